#pragma once

#include "collection/Deliveries.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"

// What the counters have in common with one another, and with the screens that work on their shifts.
namespace Counter {

inline constexpr QStringView AverageFatFormat = u"#######0.0";
inline constexpr double HighestFat = 30.0;
inline constexpr double HighestRate = 60.0;

// Twips of the grids' columns as pixels.
constexpr int Twips(int twips)
{
    return twips / 15;
}

// Whether there is a date and a shift, and whether there is a name. Unless there is, the focus goes to the
// field that lacks it, and the guide line says what is wanted.
bool InsistOnShift(DateField& date, ShiftField& time);
bool InsistOnName(NameCombo& name);

// The shift that the two fields name. A mask that holds no date is a type mismatch error.
Shift ShiftOf(const DateField& date, const ShiftField& time);

}

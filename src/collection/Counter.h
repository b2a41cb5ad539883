#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/NameCombo.h"
#include "platform/text/Numbers.h"

#include <vector>

// What the counters of the society have in common.
namespace Counter {

inline constexpr QStringView AverageFatFormat = u"#######0.0";
inline constexpr double HighestFat = 30.0;
inline constexpr double HighestRate = 60.0;

// Twips of the grids' columns as pixels.
constexpr int Twips(int twips)
{
    return twips / 15;
}

// Whether a text is one of the two shifts of a day.
inline bool IsShift(QStringView time)
{
    return time == u"sakaL" || time == u"saMQyaakaL";
}

// The names of all members with their numbers, in the order of the books.
std::vector<NameCombo::Entry> MemberNames();

}

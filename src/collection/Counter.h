#pragma once

#include "Field.h"
#include "Numbers.h"

// What the counters of the society have in common.
namespace Counter {

inline constexpr QStringView FatFormat = u"#########0.0";
inline constexpr QStringView MoneyFormat = u"#########0.00";
inline constexpr double HighestFat = 30.0;
inline constexpr double HighestRate = 60.0;

// The number that a field reads.
inline double Value(const Field& field)
{
    return Val(field.Text());
}

// A setting of the society, without blanks at its ends; empty where there are no settings.
QString Setting(QStringView column);

// Whether a query gives a row.
bool Finds(const QString& query);

}

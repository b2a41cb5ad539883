#pragma once

#include "platform/text/Currency.h"
#include "platform/text/Numbers.h"

#include <cmath>

// Sums and caps of a payment are held in single precision. What such a figure says are its seven digits.

inline float ToSingle(double value)
{
    return static_cast<float>(value);
}

// The number that the digits say: 5.1 for the single 5.0999999.
inline double Decimal(float value)
{
    return Val(ShortestDecimal(value));
}

// A sum of rupees and paise in single precision, to which one more figure comes. What binary arithmetic
// leaves behind the paise isn't part of it.
inline float AddSingle(float sum, double rupees)
{
    constexpr double paise = 100;
    return ToSingle(std::round((sum + rupees) * paise) / paise);
}

// A sum or a difference of figures without what binary arithmetic leaves behind: 0.45 for 828.45 - 828.
inline double Decimal(double value)
{
    return Currency(value).Number();
}

// The paise at the end of a figure with two decimals, in rupees: 0.95 of "3451.95", and 0.5 of "-12.50".
inline double PaiseOf(const QString& figure)
{
    return Val(Format(Val(QString(figure.trimmed().right(3))), u"0.00"));
}

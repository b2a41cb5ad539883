#pragma once

#include "platform/text/Currency.h"
#include "platform/text/Numbers.h"

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

// A sum in single precision to which one more figure comes. It is rounded to what a single holds each time,
// so that its last digits may be off; the patterns of the fields hide them.
inline float AddSingle(float sum, double figure)
{
    return ToSingle(sum + figure);
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

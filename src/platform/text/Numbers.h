#pragma once

#include <QString>

#include <cstdint>

// The number that a text begins with: blanks are ignored, a sign, a decimal point and an exponent are
// read, and 0 is returned if the text begins with no number. A value beyond double is an overflow error.
double Val(QStringView text);

// Whether the whole text is one number (blanks at the ends are allowed). An empty text is not, and
// neither is a number beyond double.
bool IsNumeric(QStringView text);

// Writes a value by a pattern of '#', '0' and one '.': '0' is a digit always shown, '#' one shown only
// when there is one. The value's decimal form (15 significant digits; 7 for single precision) is rounded
// to the pattern's decimals, half away from zero: Format(1.005, u"0.00") is "1.01". A value that rounds
// to zero has no sign. An infinite value, or none at all, is an overflow error.
QString Format(double value, QStringView pattern);
QString Format(float value, QStringView pattern);
QString Format(int value, QStringView pattern);

// The shortest decimal form, as it goes into statements: 15 significant digits (7 for single precision)
// without trailing zeros, no decimal point for a whole number, no exponent, '.' whatever the locale.
// An infinite value, or none at all, is an overflow error.
QString ShortestDecimal(double value);
QString ShortestDecimal(float value);
QString ShortestDecimal(int value);

// A 16-bit counter: rounds half to even; a value outside -32768..32767 is an overflow error.
std::int16_t ToInt16(double value);

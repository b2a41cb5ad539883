#pragma once

#include <QString>

#include <cstdint>

// Reads the number at the start of a text, with sign, decimal point and exponent; blanks are ignored. Returns
// 0 if the text doesn't begin with a number. A number too large for a double is an overflow error.
double Val(QStringView text);

// Whether the whole text is one number; blanks at the ends are allowed. False for an empty text and for a
// number too large for a double.
bool IsNumeric(QStringView text);

// Writes a number by a pattern of '#', '0' and one '.': '0' always shows a digit, '#' only if there is one.
// The decimal form of the value (15 significant digits, 7 for a float) is rounded to the decimals of the
// pattern, half away from zero: Format(1.005, u"0.00") is "1.01". A value that rounds to zero has no sign.
// Infinity and NaN are overflow errors.
QString Format(double value, QStringView pattern);
QString Format(float value, QStringView pattern);
QString Format(int value, QStringView pattern);

// The shortest decimal form, as statements take it: 15 significant digits (7 for a float) without trailing
// zeros, no decimal point in a whole number, no exponent, and '.' whatever the locale. Infinity and NaN are
// overflow errors.
QString ShortestDecimal(double value);
QString ShortestDecimal(float value);
QString ShortestDecimal(int value);

// Rounds to a 16-bit number, half to even. A value outside -32768..32767 is an overflow error.
std::int16_t ToInt16(double value);

// The same for 32 bits.
std::int32_t ToInt32(double value);

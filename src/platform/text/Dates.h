#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <optional>

namespace DateMask {

// The text of an empty date field.
inline constexpr QStringView Empty = u"__/__/____";

}

// Reads dd/MM/yyyy, whatever the locale: two, two and four digits that make a valid date from the year 100
// on. Blanks at the ends are allowed; any other text gives nothing.
std::optional<QDate> ParseDate(QStringView text);

// Whether ParseDate can read the text.
bool IsDate(QStringView text);

// Reads a date like ParseDate; it is a type mismatch error if the text isn't one.
QDate ToDate(QStringView text);

// Writes a date as dd/MM/yyyy. An invalid date gives an empty text.
QString DateText(const QDate& date);

// Writes a date by a pattern of dd, MM (or mm), yy, yyyy, MMMM (the English name of the month) and other
// characters, which are copied. An invalid date gives an empty text.
QString Format(const QDate& date, QStringView pattern);

// A time of day in English, whatever the locale: "9:05:00 AM" or "11:05:00 PM".
QString ClockText(const QTime& time);

#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <optional>

// What an empty date field reads.
inline constexpr QStringView EmptyDateMask = u"__/__/____";

// Reads dd/MM/yyyy, whatever the machine's locale: two digits, two digits, four digits, a day of the
// calendar from year 100 on. Blanks at the ends are allowed.
std::optional<QDate> ParseDate(QStringView text);

// Whether the text is a date that ParseDate reads.
bool IsDate(QStringView text);

// The date that a text holds; a text that is none is a type mismatch error.
QDate ToDate(QStringView text);

// dd/MM/yyyy; an invalid date is the empty text.
QString DateText(const QDate& date);

// Writes a date by a pattern of dd, MM (or mm), yy, yyyy, MMMM (the English month) and plain characters.
// An invalid date is the empty text.
QString Format(const QDate& date, QStringView pattern);

// The wall clock as the counter reads it: "9:05:00 AM" or "11:05:00 PM", always in English.
QString ClockText(const QTime& time);

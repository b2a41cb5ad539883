#pragma once

#include <QDate>

#include <string_view>

// Dates are stored as ISO text (yyyy-MM-dd). Statements write them as MM/dd/yyyy between # signs or as
// dd/MM/yyyy in quotes. All forms have ten characters, so a literal is converted in place.
namespace IsoDates {

inline constexpr int Length = 10;

// Converts MM/dd/yyyy to ISO. Returns false and writes nothing if the text isn't a date.
bool FromMonthFirst(std::string_view text, char* iso);

// Converts dd/MM/yyyy to ISO; blanks at the ends are allowed. Returns false and writes nothing if the text
// isn't a date.
bool FromDayFirst(std::string_view text, char* iso);

// Converts ISO to dd/MM/yyyy. Returns false and writes nothing if the text isn't an ISO date.
bool ToDayFirst(std::string_view iso, char* text);

// The date of an ISO text; invalid if it isn't one.
QDate ToDate(std::string_view iso);

}

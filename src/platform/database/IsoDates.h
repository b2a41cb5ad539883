#pragma once

#include <QDate>

#include <string_view>

// The dates of the file are ISO text (yyyy-MM-dd); the statements write them as MM/dd/yyyy between # signs
// and as dd/MM/yyyy in quotes. Ten bytes to ten bytes, so that a literal is turned round where it stands.
namespace IsoDates {

inline constexpr int Length = 10;

// MM/dd/yyyy to ISO. False, and nothing written, if the text is no date.
bool FromMonthFirst(std::string_view text, char* iso);

// dd/MM/yyyy, blanks at the ends allowed, to ISO. False, and nothing written, if the text is no date.
bool FromDayFirst(std::string_view text, char* iso);

// ISO to dd/MM/yyyy. False, and nothing written, if the text is no ISO date.
bool ToDayFirst(std::string_view iso, char* text);

// The date of an ISO text; invalid if the text is no ISO date.
QDate ToDate(std::string_view iso);

}

#include "platform/database/IsoDates.h"

#include <cstring>

namespace {

constexpr int MinYear = 100;

// The number that `count` digits make, or -1.
int Digits(const char* text, int count)
{
    int number = 0;
    for (int i = 0; i < count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

bool IsDay(int year, int month, int day)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < MinYear || month < 1 || month > 12 || day < 1)
        return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= (month == 2 && leap ? 29 : days[month - 1]);
}

std::string_view WithoutBlanks(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

void WriteIso(const char* year, const char* month, const char* day, char* iso)
{
    char made[IsoDates::Length];
    std::memcpy(made, year, 4);
    made[4] = '-';
    std::memcpy(made + 5, month, 2);
    made[7] = '-';
    std::memcpy(made + 8, day, 2);
    std::memcpy(iso, made, sizeof made);
}

bool HasSlashes(std::string_view text)
{
    return text.size() == IsoDates::Length && text[2] == '/' && text[5] == '/';
}

bool IsIso(std::string_view iso)
{
    return iso.size() == IsoDates::Length && iso[4] == '-' && iso[7] == '-'
        && IsDay(Digits(iso.data(), 4), Digits(iso.data() + 5, 2), Digits(iso.data() + 8, 2));
}

}

bool IsoDates::FromMonthFirst(std::string_view text, char* iso)
{
    const char* at = text.data();
    if (!HasSlashes(text) || !IsDay(Digits(at + 6, 4), Digits(at, 2), Digits(at + 3, 2)))
        return false;
    WriteIso(at + 6, at, at + 3, iso);
    return true;
}

bool IsoDates::FromDayFirst(std::string_view text, char* iso)
{
    text = WithoutBlanks(text);
    const char* at = text.data();
    if (!HasSlashes(text) || !IsDay(Digits(at + 6, 4), Digits(at + 3, 2), Digits(at, 2)))
        return false;
    WriteIso(at + 6, at + 3, at, iso);
    return true;
}

bool IsoDates::ToDayFirst(std::string_view iso, char* text)
{
    if (!IsIso(iso))
        return false;
    const char* at = iso.data();
    const char made[Length] = {at[8], at[9], '/', at[5], at[6], '/', at[0], at[1], at[2], at[3]};
    std::memcpy(text, made, sizeof made);
    return true;
}

QDate IsoDates::ToDate(std::string_view iso)
{
    if (!IsIso(iso))
        return {};
    return QDate(Digits(iso.data(), 4), Digits(iso.data() + 5, 2), Digits(iso.data() + 8, 2));
}

#include "platform/text/Dates.h"
#include "platform/text/RunTimeError.h"

#include <array>

namespace {

constexpr int EarliestYear = 100;
constexpr qsizetype LongestNamed = 60;

constexpr std::array<QStringView, 12> MonthNames = {u"January", u"February", u"March", u"April", u"May",
    u"June", u"July", u"August", u"September", u"October", u"November", u"December"};

// The number that a text of digits makes, or -1 if it holds anything else.
int ReadDigits(QStringView text)
{
    int number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

void AddDigits(QString& text, int number, int width)
{
    std::array<char16_t, 4> digits{};
    for (int i = width; i-- > 0; number /= 10)
        digits[i] = static_cast<char16_t>(u'0' + number % 10);
    text += QStringView(digits.data(), width);
}

// Writes the part of a date that the pattern begins with; returns the length of that part of the pattern.
qsizetype AddPart(QString& text, const QDate& date, QStringView pattern)
{
    if (pattern.startsWith(u"yyyy")) {
        AddDigits(text, date.year(), 4);
        return 4;
    }
    if (pattern.startsWith(u"yy")) {
        AddDigits(text, date.year() % 100, 2);
        return 2;
    }
    if (pattern.startsWith(u"MMMM")) {
        text += MonthNames[date.month() - 1];
        return 4;
    }
    if (pattern.startsWith(u"MM") || pattern.startsWith(u"mm")) {
        AddDigits(text, date.month(), 2);
        return 2;
    }
    if (pattern.startsWith(u"dd")) {
        AddDigits(text, date.day(), 2);
        return 2;
    }
    text += pattern.front();
    return 1;
}

}

std::optional<QDate> ParseDate(QStringView text)
{
    const QStringView date = text.trimmed();
    if (date.size() != 10 || date[2] != u'/' || date[5] != u'/')
        return std::nullopt;
    const int day = ReadDigits(date.sliced(0, 2));
    const int month = ReadDigits(date.sliced(3, 2));
    const int year = ReadDigits(date.sliced(6, 4));
    if (year < EarliestYear || !QDate::isValid(year, month, day))
        return std::nullopt;
    return QDate(year, month, day);
}

bool IsDate(QStringView text)
{
    return ParseDate(text).has_value();
}

QDate ToDate(QStringView text)
{
    if (const std::optional<QDate> date = ParseDate(text))
        return *date;
    throw RunTimeError(RunTimeError::TypeMismatch,
        Sentences(u"ही तारीख चुकीची आहे.",
            QStringLiteral("Type mismatch: '%1' is no date.").arg(text.left(LongestNamed))));
}

QString DateText(const QDate& date)
{
    return Format(date, u"dd/MM/yyyy");
}

QString Format(const QDate& date, QStringView pattern)
{
    QString text;
    if (!date.isValid())
        return text;
    text.reserve(pattern.size() + 8);
    while (!pattern.isEmpty())
        pattern = pattern.sliced(AddPart(text, date, pattern));
    return text;
}

QString ClockText(const QTime& time)
{
    QString text;
    if (!time.isValid())
        return text;
    const int hour = (time.hour() + 11) % 12 + 1;
    AddDigits(text, hour, hour < 10 ? 1 : 2);
    text += u':';
    AddDigits(text, time.minute(), 2);
    text += u':';
    AddDigits(text, time.second(), 2);
    text += time.hour() < 12 ? u" AM" : u" PM";
    return text;
}

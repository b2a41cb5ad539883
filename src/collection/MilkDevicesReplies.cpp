#include "collection/MilkDevicesReplies.h"

#include "platform/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype FieldCharacters = 4;
constexpr QStringView OneDecimal = u"#0.0";

bool IsBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QStringView WithoutBlanks(QStringView text)
{
    while (!text.isEmpty() && IsBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && IsBlank(text.back()))
        text.chop(1);
    return text;
}

// What may follow a number in a frame, such as "kg". A figure there, or a byte that can't be printed, is
// noise, and the number in front of it may be a part only.
bool IsUnit(QStringView text)
{
    return std::all_of(
        text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~' && !IsDigit(c); });
}

// The number in front of a unit, if there is one.
std::optional<double> NumberBeforeUnit(QStringView text)
{
    text = WithoutBlanks(text);
    const auto mayBeOfNumber = [](QChar c) {
        return IsDigit(c) || IsBlank(c) || c == u'.' || c == u'+' || c == u'-';
    };
    const auto unit = std::find_if_not(text.begin(), text.end(), mayBeOfNumber);
    if (!IsUnit({unit, text.end()}))
        return {};
    return MilkDevicesReplies::NumberOf({text.begin(), unit});
}

// Where the number behind the mark ends, -1 if it may still go on.
qsizetype FrameEnd(const QByteArray& reply, char mark)
{
    bool digitSeen = false;
    for (qsizetype at = 1; at < reply.size(); ++at) {
        const char c = reply[at];
        if (c >= '0' && c <= '9')
            digitSeen = true;
        else if (digitSeen && (c == '\r' || c == '\n' || c == mark))
            return at;
    }
    return -1;
}

// The nine digits of a combined reading; empty for a number that has more of them or is negative.
QString NineDigits(std::int32_t reading)
{
    constexpr std::int32_t highest = 999'999'999;
    if (reading < 0 || reading > highest)
        return {};
    return Format(reading, u"000000000");
}

}

std::optional<double> MilkDevicesReplies::NumberOf(QStringView text)
{
    text = WithoutBlanks(text);
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text = WithoutBlanks(text.sliced(1));
    // An exponent is a number elsewhere; on a serial line it is noise.
    const auto isOfNumber = [](QChar c) { return IsDigit(c) || c == u'.'; };
    if (!std::all_of(text.begin(), text.end(), isOfNumber) || !IsNumeric(text))
        return {};
    const double value = Val(text);
    return isNegative ? -value : value;
}

std::optional<QString> MilkDevicesReplies::ScaleValue(const QByteArray& reply, int start, int length)
{
    const QString piece = QString::fromLatin1(reply.mid(start - 1, length));
    const std::optional<double> number = NumberOf(piece);
    if (!number)
        return {};
    return ShortestDecimal(std::abs(*number));
}

bool MilkDevicesReplies::HoldsFrame(const QByteArray& reply, char mark)
{
    return FrameEnd(reply, mark) >= 0;
}

std::optional<double> MilkDevicesReplies::FrameValue(const QByteArray& reply, char mark)
{
    if (!reply.startsWith(mark))
        return NumberOf(QString::fromLatin1(reply.mid(1)));
    const qsizetype end = FrameEnd(reply, mark);
    return NumberBeforeUnit(QString::fromLatin1(reply.left(end < 0 ? reply.size() : end).mid(1)));
}

QString MilkDevicesReplies::LitersOfFrame(double number)
{
    return Format(number, OneDecimal).left(FieldCharacters);
}

QString MilkDevicesReplies::FatOfFrame(double number)
{
    constexpr double twoDigitsFrom = 9.9;
    const double quotient = number / 100;
    const qsizetype kept = Val(Format(quotient, OneDecimal)) >= twoDigitsFrom ? 4 : 3;
    const double fat = Val(ShortestDecimal(quotient).left(kept));
    return Format(fat, OneDecimal).left(FieldCharacters);
}

std::optional<QString> MilkDevicesReplies::LitersOfReading(std::int32_t reading, QStringView format)
{
    const QString digits = NineDigits(reading);
    if (digits.isEmpty())
        return {};
    return Format(Val(digits.left(6)) / 1000, format);
}

std::optional<QString> MilkDevicesReplies::FatOfReading(std::int32_t reading)
{
    const QString digits = NineDigits(reading);
    if (digits.isEmpty())
        return {};
    return Format(Val(digits.right(3)) / 10, OneDecimal);
}

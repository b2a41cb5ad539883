#include "platform/serial/LineSettings.h"

#include <QList>

namespace {

// A whole number of digits only.
std::optional<int> Whole(QStringView text)
{
    constexpr qsizetype mostDigits = 7;
    if (text.isEmpty() || text.size() > mostDigits)
        return {};
    int value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return {};
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

std::optional<LineSettings::Parity> ParityOf(QStringView text)
{
    using Parity = LineSettings::Parity;
    if (text.size() != 1)
        return {};
    switch (text.front().toLower().unicode()) {
    case u'n':
        return Parity::None;
    case u'e':
        return Parity::Even;
    case u'o':
        return Parity::Odd;
    case u'm':
        return Parity::Mark;
    case u's':
        return Parity::Space;
    default:
        return {};
    }
}

std::optional<LineSettings::StopBits> StopBitsOf(QStringView text)
{
    using StopBits = LineSettings::StopBits;
    if (text == u"1")
        return StopBits::One;
    if (text == u"1.5")
        return StopBits::OneAndHalf;
    if (text == u"2")
        return StopBits::Two;
    return {};
}

}

std::optional<LineSettings> ParseLineSettings(QStringView text)
{
    const QList<QStringView> parts = text.split(u',');
    if (parts.size() != 4)
        return {};
    const auto baud = Whole(parts[0].trimmed());
    const auto parity = ParityOf(parts[1].trimmed());
    const auto dataBits = Whole(parts[2].trimmed());
    const auto stopBits = StopBitsOf(parts[3].trimmed());
    if (!baud || *baud == 0 || !parity || !dataBits || *dataBits < 5 || *dataBits > 8 || !stopBits)
        return {};
    return LineSettings{*baud, *parity, *dataBits, *stopBits};
}

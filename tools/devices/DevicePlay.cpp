#include "tools/devices/DevicePlay.h"

#include <QMap>

#include <cmath>
#include <functional>

namespace {

using Measure = DevicePlay::Measure;

// A number, right-aligned in `width` characters.
QByteArray Figure(double value, int decimals, int width)
{
    return QByteArray::number(value, 'f', decimals).rightJustified(width);
}

// The digits of a number with leading zeros, without a point.
QByteArray Digits(double value, int width)
{
    return QByteArray::number(std::llround(value)).rightJustified(width, '0');
}

// Litres in five characters from the sixth on, and fat in four from the fifteenth on.
QByteArray LitersAndFat(const Measure& measure)
{
    return "ST,GS" + Figure(measure.liters, 2, 5) + ",FT," + Figure(measure.fat, 1, 4) + "\r\n";
}

DevicePlay Asked(std::vector<DevicePlay::Answer> answers)
{
    return {std::move(answers), {}};
}

DevicePlay Talking(const QByteArray& frame)
{
    return {{}, frame + "\r\n"};
}

using Maker = std::function<DevicePlay(const Measure&)>;

const QMap<QString, Maker>& Makers()
{
    static const QMap<QString, Maker> makers{
        {QStringLiteral("DILIGENT"),
            [](const Measure& m) {
                return Asked({{"w1", "=" + Figure(m.liters, 3, 7) + "\r\n"}, {"W", LitersAndFat(m)}});
            }},
        {QStringLiteral("UDFREAD"),
            [](const Measure& m) {
                return Asked({{m.receiverCommand, LitersAndFat(m)}, {"W", LitersAndFat(m)}});
            }},
        {QStringLiteral("Micro-Tech"),
            [](const Measure& m) {
                return Asked({{"W1", "ST,GS" + Figure(m.liters, 1, 4) + "\r\n"}});
            }},
        {QStringLiteral("ELECTKAPIL"),
            [](const Measure& m) {
                return Asked({{"W", LitersAndFat(m)}});
            }},
        {QStringLiteral("ELECTRO"),
            [](const Measure& m) {
                return Asked({{"W", LitersAndFat(m)}});
            }},
        {QStringLiteral("MCS"),
            [](const Measure& m) { return Talking(Digits(m.liters * 1000, 6) + Digits(m.fat * 10, 3)); }},
        {QStringLiteral("ACE CORP"), [](const Measure& m) { return Talking("+" + Figure(m.liters, 1, 6)); }},
        {QStringLiteral("NO"),
            [](const Measure& m) {
                return Asked({{"W", LitersAndFat(m)}});
            }},
        {QStringLiteral("PERCENT"), [](const Measure& m) { return Talking("%" + Digits(m.fat * 100, 4)); }},
    };
    return makers;
}

}

std::optional<DevicePlay> DevicePlay::Of(const QString& kind, const Measure& measure)
{
    const auto maker = Makers().constFind(kind);
    if (maker == Makers().constEnd())
        return {};
    return (*maker)(measure);
}

QStringList DevicePlay::Kinds()
{
    return Makers().keys();
}

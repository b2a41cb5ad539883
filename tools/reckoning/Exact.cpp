#include "tools/reckoning/Exact.h"

#include "platform/text/RunTimeError.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr std::int64_t One = 100000;
constexpr std::int64_t Paisa = One / 100;
constexpr int InvalidCall = 5;

}

Exact Exact::Of(double figure)
{
    const double units = std::round(figure * One);
    InsistOn(std::abs(figure * One - units) < 1e-2,
        QStringLiteral("%1 has more than five decimals").arg(figure, 0, 'g', 17));
    return Exact(static_cast<std::int64_t>(units));
}

Exact Exact::OfPaise(std::int64_t paise)
{
    return Exact(paise * Paisa);
}

Exact Exact::Product(Exact other) const
{
    const std::int64_t product = m_units * other.m_units;
    InsistOn(product % One == 0, Text() + u'*' + other.Text() + QStringLiteral(" has too many decimals"));
    return Exact(product / One);
}

Exact Exact::Over(Exact divisor) const
{
    constexpr std::int64_t tenths = 10;
    InsistOn(m_units >= 0 && divisor.m_units > 0, QStringLiteral("a quotient without a meaning"));
    return Exact((2 * tenths * m_units + divisor.m_units) / (2 * divisor.m_units) * (One / tenths));
}

float Exact::Single() const
{
    return static_cast<float>(static_cast<double>(m_units) / static_cast<double>(One));
}

Exact Exact::Times(Exact rate) const
{
    return Product(rate).ToThePaisa();
}

Exact Exact::ToThePaisa() const
{
    const std::int64_t half = m_units < 0 ? -Paisa / 2 : Paisa / 2;
    return Exact((m_units + half) / Paisa * Paisa);
}

Exact Exact::Paise() const
{
    return Exact(std::abs(m_units) % One);
}

Exact Exact::Half() const
{
    return Exact(m_units / 2 / Paisa * Paisa);
}

QString Exact::Text() const
{
    QString text = QString::number(std::abs(m_units) / One);
    QString decimals = QString::number(std::abs(m_units) % One).rightJustified(5, u'0');
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    if (!decimals.isEmpty())
        text += u'.' + decimals;
    return m_units < 0 ? u'-' + text : text;
}

void InsistOn(bool holds, const QString& otherwise)
{
    if (!holds)
        throw RunTimeError(InvalidCall, QStringLiteral("The reckoning: ") + otherwise);
}

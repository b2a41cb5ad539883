#include "platform/text/Currency.h"

#include "platform/text/Numbers.h"
#include "platform/text/Overflow.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

using Limits = std::numeric_limits<std::int64_t>;

constexpr int Decimals = 4;
constexpr std::int64_t Scale = 10'000;

bool FitsSum(std::int64_t first, std::int64_t second)
{
    return second > 0 ? first <= Limits::max() - second : first >= Limits::min() - second;
}

bool FitsDifference(std::int64_t first, std::int64_t second)
{
    return second > 0 ? first >= Limits::min() + second : first <= Limits::max() + second;
}

// Whether the last kept digit is rounded up. The digits left out don't end in zeros.
bool RoundsUp(QStringView leftOut, bool isOdd)
{
    return leftOut == u"5" ? isOdd : !leftOut.isEmpty() && leftOut.front() >= u'5';
}

// The nearest ten-thousandth of a value, where its decimal form can't say otherwise: where it isn't near the
// middle between two, and small enough that all its digits count.
std::optional<std::int64_t> PlainTenThousandths(double rupees)
{
    constexpr double allDigitsCount = 1e10;
    constexpr double farFromTheMiddle = 0.4;
    const double scaled = rupees * Scale;
    const double nearest = std::round(scaled);
    if (std::abs(rupees) < allDigitsCount && std::abs(scaled - nearest) < farFromTheMiddle)
        return static_cast<std::int64_t>(nearest);
    return {};
}

}

Currency::Currency(double rupees)
{
    if (const auto plain = PlainTenThousandths(rupees)) {
        m_tenThousandths = *plain;
        return;
    }
    const QString text = ShortestDecimal(rupees);
    const qsizetype point = text.indexOf(u'.');
    const QString decimals = point < 0 ? QString() : text.mid(point + 1);
    const QString digits = text.left(point) + decimals.left(Decimals).leftJustified(Decimals, u'0');
    bool fits = false;
    m_tenThousandths = digits.toLongLong(&fits);
    if (!fits)
        ThrowOverflow(text);
    // A value with so many decimals is far below the limits.
    if (RoundsUp(QStringView(decimals).mid(std::min<qsizetype>(Decimals, decimals.size())),
            m_tenThousandths % 2 != 0))
        m_tenThousandths += text.startsWith(u'-') ? -1 : 1;
}

double Currency::Number() const
{
    constexpr std::int64_t mostExact = std::int64_t{1} << 53;
    const bool isExact = m_tenThousandths > -mostExact && m_tenThousandths < mostExact;
    return isExact ? static_cast<double>(m_tenThousandths) / Scale : Val(Text());
}

QString Currency::Text() const
{
    // The smallest value can't be negated, so its two parts are negated separately.
    const std::int64_t whole = m_tenThousandths / Scale;
    const std::int64_t rest = m_tenThousandths % Scale;
    QString text = m_tenThousandths < 0 ? QStringLiteral("-") : QString();
    text += QString::number(whole < 0 ? -whole : whole);
    if (rest == 0)
        return text;
    QString decimals = QString::number(rest < 0 ? -rest : rest).rightJustified(Decimals, u'0');
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    return text + u'.' + decimals;
}

Currency& Currency::operator+=(Currency other)
{
    if (!FitsSum(m_tenThousandths, other.m_tenThousandths))
        ThrowOverflow(QString(Text() + QStringLiteral(" + ") + other.Text()));
    m_tenThousandths += other.m_tenThousandths;
    return *this;
}

Currency& Currency::operator-=(Currency other)
{
    if (!FitsDifference(m_tenThousandths, other.m_tenThousandths))
        ThrowOverflow(QString(Text() + QStringLiteral(" - ") + other.Text()));
    m_tenThousandths -= other.m_tenThousandths;
    return *this;
}

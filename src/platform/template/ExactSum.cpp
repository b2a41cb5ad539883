#include "platform/template/ExactSum.h"

#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int64_t Units = 1000000; // sums are kept in millionths

[[noreturn]] void ThrowTooLarge()
{
    throw RunTimeError(
        RunTimeError::Overflow, QStringLiteral("Overflow: a total of the report is too large."));
}

// A product of two doubles is slightly off; rounding to millionths gives the decimal that was meant.
std::int64_t ToUnits(long double number)
{
    constexpr long double limit = 9.2e18L;
    const long double units = std::round(number * Units);
    if (!(std::abs(units) < limit))
        ThrowTooLarge();
    return static_cast<std::int64_t>(units);
}

}

void ExactSum::AddUnits(std::int64_t units)
{
    if (__builtin_add_overflow(m_units, units, &m_units))
        ThrowTooLarge();
}

void ExactSum::Add(double number, int decimals)
{
    constexpr QStringView printed[Places] = {u"0", u"0.0", u"0.00", u"0.000", u"0.0000", u"0.00000"};
    AddUnits(ToUnits(decimals < Places ? Val(Format(number, printed[std::max(decimals, 0)])) : number));
}

void ExactSum::AddProduct(double first, double second)
{
    AddUnits(ToUnits(static_cast<long double>(first) * second));
}

double ExactSum::Number() const
{
    return static_cast<double>(m_units) / static_cast<double>(Units);
}

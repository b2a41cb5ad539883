#include "platform/template/Expression.h"

#include "platform/template/ExactSum.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>

Value Value::OfNumber(double number)
{
    return {.kind = Kind::Number, .number = number};
}

Value Value::OfText(QString text)
{
    return {.kind = Kind::Text, .text = std::move(text)};
}

Value Value::OfDate(QDate date)
{
    return {.kind = date.isValid() ? Kind::Date : Kind::Null, .date = date};
}

Value Value::OfTruth(bool truth)
{
    return {.kind = Kind::Truth, .number = truth ? 1.0 : 0.0};
}

double Value::Number() const
{
    if (kind == Kind::Number || kind == Kind::Truth)
        return number;
    return kind == Kind::Text ? Val(text) : 0;
}

QString Value::Text() const
{
    switch (kind) {
    case Kind::Number:
        return ShortestDecimal(number);
    case Kind::Text:
        return text;
    case Kind::Date:
        return DateText(date);
    case Kind::Null:
    case Kind::Truth:
        break;
    }
    return {};
}

int Compare(const Value& first, const Value& second)
{
    using Kind = Value::Kind;
    const auto sign = [](const auto& a, const auto& b) { return a < b ? -1 : b < a ? 1 : 0; };
    if (first.kind == Kind::Text || second.kind == Kind::Text) {
        const QString a = first.Text();
        const QString b = second.Text();
        return std::clamp(QStringView(a).trimmed().compare(QStringView(b).trimmed()), -1, 1);
    }
    if (first.kind == Kind::Date || second.kind == Kind::Date) {
        if (first.kind != second.kind)
            return first.kind == Kind::Date ? 1 : -1;
        return sign(first.date, second.date);
    }
    return sign(first.Number(), second.Number());
}

bool Expression::Uses(Operation wanted) const
{
    return operation == wanted
        || std::any_of(arguments.begin(), arguments.end(),
            [wanted](const Expression& argument) { return argument.Uses(wanted); });
}

std::optional<ValueType> VariableType(QStringView name)
{
    if (name == u"society" || name == u"year")
        return ValueType::Text;
    if (name == u"from" || name == u"to" || name == u"date")
        return ValueType::Date;
    return std::nullopt;
}

namespace {

constexpr std::int64_t Units = 1000000; // of the last of the six places, in one

[[noreturn]] void ThrowTooLarge()
{
    throw RunTimeError(
        RunTimeError::Overflow, QStringLiteral("Overflow: a total of the report is too large."));
}

// In units of the last place. The product is nearest to the decimal that the number was made from.
std::int64_t ToUnits(long double number)
{
    constexpr long double Limit = 9.2e18L;
    const long double units = std::round(number * Units);
    if (!(std::abs(units) < Limit))
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
    constexpr QStringView Printed[Places] = {u"0", u"0.0", u"0.00", u"0.000", u"0.0000", u"0.00000"};
    AddUnits(ToUnits(decimals < Places ? Val(Format(number, Printed[std::max(decimals, 0)])) : number));
}

void ExactSum::AddProduct(double first, double second)
{
    AddUnits(ToUnits(static_cast<long double>(first) * second));
}

double ExactSum::Number() const
{
    return static_cast<double>(m_units) / static_cast<double>(Units);
}

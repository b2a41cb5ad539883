#include "platform/template/Value.h"

#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <algorithm>

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

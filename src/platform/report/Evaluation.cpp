#include "platform/report/Evaluation.h"

#include "platform/report/Accumulators.h"
#include "platform/report/Page.h"
#include "platform/report/ReportData.h"
#include "platform/report/RowWalk.h"

#include <algorithm>
#include <cmath>

namespace {

Value EvaluateField(const Expression& field, ReportData& data)
{
    const Row* const row = data.CurrentRow(field.source);
    if (!row)
        return {};
    const Value& value = (*row)[static_cast<std::size_t>(field.column)];
    return value.kind == Value::Kind::Text && !field.isPlain ? Value::OfText(data.Seen(value.text)) : value;
}

Value EvaluateArithmetic(const Expression& expression, ReportData& data)
{
    const double first = Evaluate(expression.arguments[0], data).Number();
    if (expression.operation == Operation::Negate)
        return Value::OfNumber(-first);
    if (expression.operation == Operation::Absolute)
        return Value::OfNumber(std::abs(first));
    const double second = Evaluate(expression.arguments[1], data).Number();
    switch (expression.operation) {
    case Operation::Add:
        return Value::OfNumber(first + second);
    case Operation::Subtract:
        return Value::OfNumber(first - second);
    case Operation::Multiply:
        return Value::OfNumber(first * second);
    default:
        // Dividing by 0 gives 0, so that an average over nothing prints as 0.
        return Value::OfNumber(second == 0 ? 0 : first / second);
    }
}

bool EvaluateComparison(const Expression& expression, ReportData& data)
{
    const int order =
        Compare(Evaluate(expression.arguments[0], data), Evaluate(expression.arguments[1], data));
    switch (expression.operation) {
    case Operation::Equal:
        return order == 0;
    case Operation::NotEqual:
        return order != 0;
    case Operation::Less:
        return order < 0;
    case Operation::LessOrEqual:
        return order <= 0;
    case Operation::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

bool EvaluateLogic(const Expression& expression, ReportData& data)
{
    const bool first = Evaluate(expression.arguments[0], data).Truth();
    if (expression.operation == Operation::Not)
        return !first;
    if (first == (expression.operation == Operation::Or))
        return first;
    return Evaluate(expression.arguments[1], data).Truth();
}

bool IsNumber(const Expression& expression, const ReportTemplate& report)
{
    switch (expression.operation) {
    case Operation::Number:
    case Operation::Page:
    case Operation::PageCount:
    case Operation::Negate:
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Absolute:
        return true;
    case Operation::Field: {
        const TemplateSource& source = report.sources[static_cast<std::size_t>(expression.source)];
        const ValueType type = source.columns[static_cast<std::size_t>(expression.column)].type;
        return type == ValueType::Number || type == ValueType::Unknown;
    }
    case Operation::If:
        return IsNumber(expression.arguments[1], report) || IsNumber(expression.arguments[2], report);
    case Operation::Formatted:
        return expression.format.kind == PrintFormat::Kind::Number;
    case Operation::Join:
        return std::any_of(expression.arguments.begin(), expression.arguments.end(),
            [&](const Expression& part) { return IsNumber(part, report); });
    case Operation::Aggregate:
        return (expression.aggregate != AggregateKind::Minimum
                   && expression.aggregate != AggregateKind::Maximum)
            || IsNumber(expression.arguments[0], report);
    default:
        return false;
    }
}

// Empty parts are left out together with their separator.
QString EvaluateJoin(const Expression& join, ReportData& data)
{
    QStringList parts;
    for (std::size_t i = 1; i < join.arguments.size(); ++i) {
        const QString part = Evaluate(join.arguments[i], data).Text();
        if (!QStringView(part).trimmed().isEmpty())
            parts.append(part);
    }
    return parts.join(Evaluate(join.arguments.front(), data).Text());
}

// A total outside of a table reads through the whole source.
Value EvaluateOverSource(const Expression& aggregate, ReportData& data)
{
    const std::vector<Expression> one{aggregate};
    Accumulators total(one, 0);
    RowWalk walk(data, aggregate.source);
    const Row* const before = data.Walked(aggregate.source);
    Row row;
    while (walk.Next(row)) {
        data.SetCurrent(aggregate.source, &row);
        total.Add(data);
    }
    data.SetCurrent(aggregate.source, before);
    return total.Result(0, 0);
}

Value EvaluateAggregate(const Expression& aggregate, ReportData& data)
{
    if (aggregate.slot < 0)
        return EvaluateOverSource(aggregate, data);
    const int level = aggregate.aggregate == AggregateKind::Running ? aggregate.group + 1 : data.TotalsLevel;
    const Accumulators* const totals = aggregate.isOfGroups ? data.GroupTotals : data.Totals;
    return totals ? totals->Result(aggregate.slot, level) : Value();
}

}

Value Evaluate(const Expression& expression, ReportData& data)
{
    switch (expression.operation) {
    case Operation::Number:
        return Value::OfNumber(expression.number);
    case Operation::Text:
        return Value::OfText(expression.text);
    case Operation::Date:
        return Value::OfDate(QDate::fromString(expression.text, Qt::ISODate));
    case Operation::Field:
        return EvaluateField(expression, data);
    case Operation::Page:
        return Value::OfNumber(data.Page);
    case Operation::PageCount:
        return Value::OfText(QString(Page::CountMark));
    case Operation::Variable:
        return data.Variable(expression.text);
    case Operation::Negate:
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Absolute:
        return EvaluateArithmetic(expression, data);
    case Operation::Equal:
    case Operation::NotEqual:
    case Operation::Less:
    case Operation::LessOrEqual:
    case Operation::Greater:
    case Operation::GreaterOrEqual:
        return Value::OfTruth(EvaluateComparison(expression, data));
    case Operation::And:
    case Operation::Or:
    case Operation::Not:
        return Value::OfTruth(EvaluateLogic(expression, data));
    case Operation::If:
        return Evaluate(expression.arguments[Evaluate(expression.arguments[0], data).Truth() ? 1 : 2], data);
    case Operation::Formatted:
        return Value::OfText(Printed(Evaluate(expression.arguments.front(), data), expression.format));
    case Operation::Join:
        return Value::OfText(EvaluateJoin(expression, data));
    case Operation::Aggregate:
        return EvaluateAggregate(expression, data);
    }
    return {};
}

bool HoldsFigure(const TemplateText& text, const ReportTemplate& report)
{
    return std::any_of(text.pieces.begin(), text.pieces.end(), [&](const TextPiece& piece) {
        return piece.format.kind == PrintFormat::Kind::Number
            || (piece.expression && IsNumber(*piece.expression, report));
    });
}

QString Fill(const TemplateText& text, ReportData& data)
{
    QString filled;
    for (const TextPiece& piece : text.pieces)
        filled +=
            piece.expression ? Printed(Evaluate(*piece.expression, data), piece.format) : piece.characters;
    return filled;
}

QString FillForRecord(const TemplateText& text, const QString& filled, ReportData& data)
{
    const std::vector<TextPiece>& pieces = text.pieces;
    if (std::none_of(
            pieces.begin(), pieces.end(), [](const TextPiece& piece) { return piece.format.isGrouped; }))
        return filled;
    TemplateText plain = text;
    for (TextPiece& piece : plain.pieces)
        piece.format.isGrouped = false;
    return Fill(plain, data);
}

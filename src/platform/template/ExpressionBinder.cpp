#include "platform/template/ExpressionBinder.h"

#include <algorithm>

namespace {

// An empty text prints nothing and counts as 0, so it can be mixed with values of any type.
bool IsNothing(const Expression& expression)
{
    return expression.operation == Operation::Text && expression.text.isEmpty();
}

// A stored text may hold a number and can be printed as one; dates and conditions can't.
bool CanBeNumber(ValueType type)
{
    return type == ValueType::Number || type == ValueType::Text || type == ValueType::Unknown;
}

bool IsExtreme(AggregateKind kind)
{
    return kind == AggregateKind::Minimum || kind == AggregateKind::Maximum;
}

// A number in a text column is stored in Western digits. Reading the text as Marathi would spoil them.
void ReadAsStored(Expression& expression, ValueType type)
{
    if (expression.operation == Operation::Field && (type == ValueType::Text || type == ValueType::Unknown))
        expression.isPlain = true;
}

const Expression* FirstField(const Expression& expression)
{
    if (expression.operation == Operation::Field)
        return &expression;
    for (const Expression& argument : expression.arguments) {
        if (const Expression* field = FirstField(argument))
            return field;
    }
    return nullptr;
}

}

void ExpressionBinder::BindText(TemplateText& text, const Place& place)
{
    for (TextPiece& piece : text.pieces) {
        if (!piece.expression)
            continue;
        const ValueType type = Bind(*piece.expression, place);
        CheckPrinted(piece.format, type, place);
        if (piece.expression->Uses(Operation::PageCount)
            && piece.expression->operation != Operation::PageCount)
            m_sources.Fault(place.line, QStringLiteral("#pages must be alone in its braces"));
        if (piece.format.kind == PrintFormat::Kind::Number)
            ReadAsStored(*piece.expression, type);
        NotePrinting(*piece.expression);
    }
}

// Notes for the spreadsheet whether a column is printed as it is stored or in Devanagari; a template can do
// both.
void ExpressionBinder::NotePrinting(const Expression& expression)
{
    if (expression.operation == Operation::If || expression.operation == Operation::Join) {
        for (std::size_t i = 1; i < expression.arguments.size(); ++i)
            NotePrinting(expression.arguments[i]);
    }
    if (expression.operation != Operation::Field || expression.source < 0)
        return;
    TemplateSource& source = m_report.sources[static_cast<std::size_t>(expression.source)];
    SourceColumn& column = source.columns[static_cast<std::size_t>(expression.column)];
    (expression.isPlain ? column.isPrintedPlain : column.isPrintedSeen) = true;
}

void ExpressionBinder::CheckPrinted(const PrintFormat& format, ValueType type, const Place& place)
{
    if (type == ValueType::Truth)
        m_sources.Fault(place.line, QStringLiteral("a condition can't be printed; use if(…)"));
    if (format.kind == PrintFormat::Kind::Number && !CanBeNumber(type))
        m_sources.Fault(place.line, QStringLiteral("the format \"%1\" needs a number").arg(format.pattern));
    if (format.kind == PrintFormat::Kind::Date && type != ValueType::Date && type != ValueType::Unknown)
        m_sources.Fault(place.line, QStringLiteral("the format \"%1\" needs a date").arg(format.pattern));
}

void ExpressionBinder::BindCondition(std::optional<Expression>& condition, const Place& place)
{
    if (!condition)
        return;
    const ValueType type = Bind(*condition, place);
    if (type != ValueType::Truth && type != ValueType::Unknown)
        m_sources.Fault(place.line, QStringLiteral("this must be a condition, such as Liters > 0"));
    if (condition->Uses(Operation::PageCount))
        m_sources.Fault(place.line, QStringLiteral("#pages can't be used in a condition"));
}

ValueType ExpressionBinder::Bind(Expression& expression, const Place& place)
{
    switch (expression.operation) {
    case Operation::Number:
        return ValueType::Number;
    case Operation::Text:
        return ValueType::Text;
    case Operation::Date:
        return ValueType::Date;
    case Operation::Field:
        return BindField(expression, place);
    case Operation::Page:
    case Operation::PageCount:
        return BindPage(expression, place);
    case Operation::Variable:
        return VariableType(expression.text).value_or(ValueType::Unknown);
    case Operation::Negate:
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Absolute:
        return BindArithmetic(expression, place);
    case Operation::Equal:
    case Operation::NotEqual:
    case Operation::Less:
    case Operation::LessOrEqual:
    case Operation::Greater:
    case Operation::GreaterOrEqual:
        return BindComparison(expression, place);
    case Operation::And:
    case Operation::Or:
    case Operation::Not:
        return BindLogic(expression, place);
    case Operation::If:
        return BindIf(expression, place);
    case Operation::Formatted:
        return BindFormatted(expression, place);
    case Operation::Join:
        return BindJoin(expression, place);
    case Operation::Aggregate:
        return BindAggregate(expression, place);
    }
    return ValueType::Unknown;
}

ValueType ExpressionBinder::BindPage(const Expression& expression, const Place& place)
{
    if (!place.isPageEdge)
        m_sources.Fault(place.line,
            QStringLiteral("#%1 stands in a pageheader or a pagefooter only").arg(expression.text));
    return ValueType::Number;
}

ValueType ExpressionBinder::BindField(Expression& field, const Place& place)
{
    const std::vector<int> candidates = m_sources.Candidates(field.qualifier, place.line);
    if (candidates.empty() && !field.qualifier.isEmpty())
        return ValueType::Unknown;
    for (const int source : candidates) {
        const int column = m_sources.FindColumn(source, field.text);
        if (column < 0)
            continue;
        field.source = source;
        field.column = column;
        m_sources.NoteReading(source);
        if (place.isPageEnd && m_sources.MovesOn(source))
            m_sources.Fault(place.line,
                QStringLiteral("\"%1\" is a field, and a <page> can use totals only").arg(field.text));
        const SourceColumn& found =
            m_report.sources[static_cast<std::size_t>(source)].columns[static_cast<std::size_t>(column)];
        if (field.isPlain && found.type != ValueType::Text && found.type != ValueType::Unknown)
            m_sources.Fault(
                place.line, QStringLiteral("\"%1\" isn't a text, so it can't be \"plain\"").arg(field.text));
        return found.type;
    }
    const QString where = candidates.empty()
        ? QString()
        : QStringLiteral(" in ") + m_report.sources[static_cast<std::size_t>(candidates.front())].table;
    m_sources.Fault(place.line, QStringLiteral("there is no column \"%1\"").arg(field.text) + where);
    return ValueType::Unknown;
}

ValueType ExpressionBinder::BindArithmetic(Expression& expression, const Place& place)
{
    for (Expression& argument : expression.arguments) {
        const ValueType type = Bind(argument, place);
        if (type == ValueType::Text)
            m_sources.Fault(place.line,
                QStringLiteral(
                    "texts can't be added or multiplied; words are written outside of the braces"));
        else if (!CanBeNumber(type))
            m_sources.Fault(place.line, QStringLiteral("dates and conditions can't be added or multiplied"));
        ReadAsStored(argument, type);
    }
    return ValueType::Number;
}

ValueType ExpressionBinder::BindComparison(Expression& expression, const Place& place)
{
    const ValueType first = Bind(expression.arguments[0], place);
    const ValueType second = Bind(expression.arguments[1], place);
    if (first != second && first != ValueType::Unknown && second != ValueType::Unknown)
        m_sources.Fault(place.line, QStringLiteral("values of different kinds can't be compared"));
    return ValueType::Truth;
}

ValueType ExpressionBinder::BindLogic(Expression& expression, const Place& place)
{
    for (Expression& argument : expression.arguments) {
        const ValueType type = Bind(argument, place);
        if (type != ValueType::Truth && type != ValueType::Unknown)
            m_sources.Fault(place.line, QStringLiteral("and, or and not need conditions"));
    }
    return ValueType::Truth;
}

ValueType ExpressionBinder::BindIf(Expression& expression, const Place& place)
{
    const ValueType condition = Bind(expression.arguments[0], place);
    if (condition != ValueType::Truth && condition != ValueType::Unknown)
        m_sources.Fault(place.line, QStringLiteral("the first argument of if() must be a condition"));
    const ValueType yes = Bind(expression.arguments[1], place);
    const ValueType no = Bind(expression.arguments[2], place);
    if (yes == no)
        return yes;
    const auto either = [&](ValueType type) {
        return (yes == type && !IsNothing(expression.arguments[1]))
            || (no == type && !IsNothing(expression.arguments[2]));
    };
    for (const ValueType type : {ValueType::Date, ValueType::Text})
        if (either(type))
            return type;
    return ValueType::Unknown;
}

ValueType ExpressionBinder::BindFormatted(Expression& expression, const Place& place)
{
    Expression& argument = expression.arguments.front();
    const ValueType type = Bind(argument, place);
    CheckPrinted(expression.format, type, place);
    if (expression.format.kind == PrintFormat::Kind::Number)
        ReadAsStored(argument, type);
    return ValueType::Text;
}

ValueType ExpressionBinder::BindJoin(Expression& expression, const Place& place)
{
    for (Expression& argument : expression.arguments) {
        if (Bind(argument, place) == ValueType::Truth)
            m_sources.Fault(place.line, QStringLiteral("a condition can't be printed; use if(…)"));
    }
    return ValueType::Text;
}

int ExpressionBinder::SourceOf(const Expression& expression, int line)
{
    const Expression* const field = FirstField(expression);
    const std::vector<int> candidates = m_sources.Candidates(field ? field->qualifier : QString(), line);
    return candidates.empty() ? -1 : candidates.front();
}

bool ExpressionBinder::IsAllowed(const Expression& aggregate, const Place& place)
{
    const bool isRunning = aggregate.aggregate == AggregateKind::Running;
    switch (place.aggregates) {
    case Aggregates::None:
        return false;
    case Aggregates::RunningOnly:
        return isRunning;
    case Aggregates::OfTable:
        return true;
    case Aggregates::OfSource:
        return !isRunning;
    }
    return false;
}

ValueType ExpressionBinder::BindAggregate(Expression& expression, const Place& place)
{
    if (!IsAllowed(expression, place)) {
        m_sources.Fault(place.line,
            expression.aggregate == AggregateKind::Running
                ? QStringLiteral("a running sum stands in a table's columns only")
                : QStringLiteral("a total can't be used here"));
        return ValueType::Number;
    }
    const bool isOfTable = place.aggregates != Aggregates::OfSource;
    Place inside = place;
    inside.aggregates = expression.isOfGroups ? Aggregates::OfTable : Aggregates::None;
    inside.isPageEnd = false;
    ValueType type = ValueType::Number;
    if (!isOfTable) {
        expression.source = SourceOf(expression, place.line);
        if (expression.source < 0)
            return type;
        m_sources.RequireParent(expression.source, place.line);
        m_sources.Walk(expression.source);
    }
    for (Expression& argument : expression.arguments) {
        type = Bind(argument, inside);
        CheckTotalled(expression.aggregate, type, place.line);
        ReadAsStored(argument, type);
    }
    if (isOfTable)
        BindToTable(expression, place);
    else
        m_sources.Leave();
    return IsExtreme(expression.aggregate) ? type : ValueType::Number;
}

void ExpressionBinder::CheckTotalled(AggregateKind kind, ValueType type, int line)
{
    if (IsExtreme(kind)) {
        if (type == ValueType::Text || type == ValueType::Truth)
            m_sources.Fault(line, QStringLiteral("min and max need numbers or dates"));
    } else if (kind != AggregateKind::Count && (type == ValueType::Text || !CanBeNumber(type))) {
        m_sources.Fault(line, QStringLiteral("a total needs numbers"));
    }
}

void ExpressionBinder::BindToTable(Expression& expression, const Place& place)
{
    TemplateTable& table = *place.table;
    if (!expression.text.isEmpty()) {
        const auto named = [&](const TemplateGroup& group) { return group.name == expression.text; };
        const auto group = std::find_if(table.groups.begin(), table.groups.end(), named);
        if (group == table.groups.end())
            m_sources.Fault(
                place.line, QStringLiteral("no group of this table is by \"%1\"").arg(expression.text));
        else
            expression.group = static_cast<int>(group - table.groups.begin());
    }
    std::vector<Expression>& all = expression.isOfGroups ? table.groupAggregates : table.aggregates;
    expression.slot = -1; // the list holds them unbound, and this one may have been bound before
    const auto known = std::find(all.begin(), all.end(), expression);
    const int slot = static_cast<int>(known - all.begin());
    if (known == all.end())
        all.push_back(expression);
    expression.slot = slot;
}

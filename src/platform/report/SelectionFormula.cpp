#include "platform/report/SelectionFormula.h"

#include "platform/database/Catalogue.h"
#include "platform/database/Connection.h"
#include "platform/database/Sql.h"
#include "platform/template/ExpressionParser.h"
#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// One side of a comparison, as SQL.
struct Operand {
    ValueType type = ValueType::Number;
    QString sql;
};

// Turns a formula into the condition of an SQL statement.
class Translation {
public:
    Translation(const QString& formula, Connection& connection)
        : m_formula(formula)
        , m_catalogue(connection.Handle())
    {
    }

    Selection Make()
    {
        ExpressionFault fault;
        const std::optional<Expression> whole = ReadFormula(m_formula, fault);
        if (!whole)
            Fail(fault.text);
        Selection selection;
        selection.condition = QStringLiteral("(") + Condition(*whole) + QStringLiteral(")");
        selection.table = m_table;
        if (m_dates.size() == 1 && m_isOneChain)
            selection.date = m_dates.first();
        return selection;
    }

private:
    [[noreturn]] void Fail(const QString& why) const
    {
        throw RunTimeError(RunTimeError::ItemNotFound,
            QStringLiteral("The selection formula of the report can't be read: %1.\n%2").arg(why, m_formula));
    }

    QString Condition(const Expression& part);
    QString PartOfAnd(const Expression& part);
    QString Comparison(const Expression& comparison);
    Operand Field(const Expression& field);
    Operand Literal(const Expression& literal) const;

    const QString m_formula;
    QString m_table;
    QList<QDate> m_dates; // the days that a column is compared with by =, without duplicates
    bool m_isOneChain = true; // there is no "or" and no "not", so all comparisons must hold
    Catalogue m_catalogue;
};

QString Translation::Condition(const Expression& part)
{
    switch (part.operation) {
    case Operation::Or:
        m_isOneChain = false;
        return Condition(part.arguments[0]) + QStringLiteral(" or ") + Condition(part.arguments[1]);
    case Operation::And:
        return PartOfAnd(part.arguments[0]) + QStringLiteral(" and ") + PartOfAnd(part.arguments[1]);
    case Operation::Not:
        m_isOneChain = false;
        return QStringLiteral("not (") + Condition(part.arguments[0]) + QStringLiteral(")");
    default:
        return Comparison(part);
    }
}

QString Translation::PartOfAnd(const Expression& part)
{
    const QString condition = Condition(part);
    return part.operation == Operation::Or ? QStringLiteral("(") + condition + QStringLiteral(")")
                                           : condition;
}

QString Translation::Comparison(const Expression& comparison)
{
    constexpr std::pair<Operation, QStringView> signs[] = {{Operation::Equal, u"="},
        {Operation::NotEqual, u"<>"}, {Operation::Less, u"<"}, {Operation::LessOrEqual, u"<="},
        {Operation::Greater, u">"}, {Operation::GreaterOrEqual, u">="}};
    const auto sign = std::find_if(std::begin(signs), std::end(signs),
        [&](const auto& one) { return one.first == comparison.operation; });
    if (sign == std::end(signs))
        Fail(QStringLiteral("a comparison is missing"));
    const Expression& value = comparison.arguments[1];
    const Operand field = Field(comparison.arguments[0]);
    const Operand literal = Literal(value);
    if (literal.type != field.type)
        Fail(QStringLiteral("%1 is compared with a value of another kind").arg(field.sql));
    if (value.operation == Operation::Date && sign->first == Operation::Equal) {
        const QDate date = QDate::fromString(value.text, Qt::ISODate);
        if (!m_dates.contains(date))
            m_dates.append(date);
    }
    return field.sql + sign->second + literal.sql;
}

Operand Translation::Field(const Expression& field)
{
    if (field.operation != Operation::Field)
        Fail(QStringLiteral("a field such as {Table.Column} is missing"));
    const std::shared_ptr<const Table> table = m_catalogue.Find(field.qualifier);
    const Column* const column = table ? table->Find(field.text) : nullptr;
    if (!column)
        Fail(QStringLiteral("there is no field {%1.%2}").arg(field.qualifier, field.text));
    if (!m_table.isEmpty() && m_table != table->name)
        Fail(QStringLiteral("its fields are of more than one table"));
    m_table = table->name;
    const ValueType type = column->type == ColumnType::Date ? ValueType::Date
        : column->type == ColumnType::Text                  ? ValueType::Text
                                                            : ValueType::Number;
    return {type, column->name};
}

Operand Translation::Literal(const Expression& literal) const
{
    switch (literal.operation) {
    case Operation::Number:
        return {ValueType::Number, ShortestDecimal(literal.number)};
    case Operation::Negate:
        if (literal.arguments[0].operation == Operation::Number)
            return {ValueType::Number, ShortestDecimal(-literal.arguments[0].number)};
        break;
    case Operation::Text:
        return {ValueType::Text,
            QStringLiteral("'") + QString(literal.text).replace(u'\'', QStringLiteral("''"))
                + QStringLiteral("'")};
    case Operation::Date:
        return {ValueType::Date, SqlDay(QDate::fromString(literal.text, Qt::ISODate))};
    default:
        break;
    }
    Fail(QStringLiteral("a number, a text or a date is missing"));
}

}

Selection ReadSelectionFormula(const QString& formula, Connection& connection)
{
    if (formula.trimmed().isEmpty())
        return {};
    return Translation(formula, connection).Make();
}

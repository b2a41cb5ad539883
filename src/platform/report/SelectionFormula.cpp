#include "platform/report/SelectionFormula.h"

#include "platform/database/Catalogue.h"
#include "platform/database/Connection.h"
#include "platform/database/Sql.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <QRegularExpression>

namespace {

// The kinds of values that a comparison can have on its sides.
enum class Kind { Number, Text, Date };

struct Operand {
    Kind kind = Kind::Number;
    QString sql;
    QDate date = {}; // of a literal
};

class Reader {
public:
    Reader(const QString& formula, Connection& connection)
        : m_formula(formula)
        , m_rest(formula)
        , m_catalogue(connection.Handle())
    {
    }

    Selection Read()
    {
        Selection selection;
        selection.condition = ReadOr();
        if (!m_rest.trimmed().isEmpty())
            Fail(QStringLiteral("\"%1\" isn't expected").arg(m_rest.trimmed()));
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

    // Takes what the pattern finds at the start of the rest.
    QRegularExpressionMatch Take(const QRegularExpression& pattern)
    {
        const QRegularExpressionMatch match = pattern.match(
            m_rest, 0, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
        if (match.hasMatch())
            m_rest = m_rest.mid(match.capturedEnd());
        return match;
    }

    bool TakeWord(const QString& word)
    {
        return Take(QRegularExpression(
                        QStringLiteral("\\s*%1\\b").arg(word), QRegularExpression::CaseInsensitiveOption))
            .hasMatch();
    }

    QString ReadOr();
    QString ReadAnd();
    QString ReadTerm();
    QString ReadComparison();
    Operand ReadField();
    Operand ReadLiteral();
    Operand ReadDate();

    static constexpr int DeepestNesting = 50;
    const QString m_formula;
    QString m_rest;
    QString m_table;
    QList<QDate> m_dates; // that columns have to have, each once
    bool m_isOneChain = true; // all comparisons have to hold: there is neither "or" nor "not"
    int m_depth = 0;
    Catalogue m_catalogue;
};

QString Reader::ReadOr()
{
    if (++m_depth > DeepestNesting)
        Fail(QStringLiteral("its brackets are nested too deeply"));
    QString whole = ReadAnd();
    while (TakeWord(QStringLiteral("or"))) {
        m_isOneChain = false;
        whole = whole + QStringLiteral(" or ") + ReadAnd();
    }
    --m_depth;
    return QStringLiteral("(") + whole + QStringLiteral(")");
}

QString Reader::ReadAnd()
{
    QString whole = ReadTerm();
    while (TakeWord(QStringLiteral("and")))
        whole = whole + QStringLiteral(" and ") + ReadTerm();
    return whole;
}

QString Reader::ReadTerm()
{
    static const QRegularExpression open(QStringLiteral("\\s*\\("));
    static const QRegularExpression close(QStringLiteral("\\s*\\)"));
    if (TakeWord(QStringLiteral("not"))) {
        m_isOneChain = false;
        return QStringLiteral("not ") + ReadTerm();
    }
    if (!Take(open).hasMatch())
        return ReadComparison();
    const QString inside = ReadOr();
    if (!Take(close).hasMatch())
        Fail(QStringLiteral("a \")\" is missing"));
    return inside;
}

QString Reader::ReadComparison()
{
    static const QRegularExpression signs(QStringLiteral("\\s*(<>|<=|>=|=|<|>)"));
    const Operand field = ReadField();
    const QRegularExpressionMatch sign = Take(signs);
    if (!sign.hasMatch())
        Fail(QStringLiteral("a comparison is missing"));
    const Operand literal = ReadLiteral();
    if (literal.kind != field.kind)
        Fail(QStringLiteral("%1 is compared with a value of another kind").arg(field.sql));
    if (literal.kind == Kind::Date && sign.captured(1) == u"=" && !m_dates.contains(literal.date))
        m_dates.append(literal.date);
    return field.sql + sign.captured(1) + literal.sql;
}

Operand Reader::ReadField()
{
    static const QRegularExpression fields(QStringLiteral("\\s*\\{(\\w+)\\.(\\w+)\\}"));
    const QRegularExpressionMatch match = Take(fields);
    if (!match.hasMatch())
        Fail(QStringLiteral("a field such as {Table.Column} is missing"));
    const std::shared_ptr<const Table> table = m_catalogue.Find(match.captured(1));
    const Column* column = table ? table->Find(match.captured(2)) : nullptr;
    if (!column)
        Fail(QStringLiteral("there is no field %1").arg(match.captured(0).trimmed()));
    if (!m_table.isEmpty() && m_table != table->name)
        Fail(QStringLiteral("its fields are of more than one table"));
    m_table = table->name;
    const Kind kind = column->type == ColumnType::Date ? Kind::Date
        : column->type == ColumnType::Text             ? Kind::Text
                                                       : Kind::Number;
    return {kind, column->name};
}

Operand Reader::ReadLiteral()
{
    static const QRegularExpression numbers(QStringLiteral("\\s*(-?\\d+(?:\\.\\d*)?)"));
    static const QRegularExpression texts(QStringLiteral("\\s*(?:'([^']*)'|\"([^\"]*)\")"));
    if (const QRegularExpressionMatch number = Take(numbers); number.hasMatch())
        return {Kind::Number, ShortestDecimal(Val(number.captured(1)))};
    if (const QRegularExpressionMatch text = Take(texts); text.hasMatch()) {
        QString stored = text.captured(1) + text.captured(2);
        stored.replace(QStringLiteral("'"), QStringLiteral("''"));
        return {Kind::Text, QStringLiteral("'") + stored + QStringLiteral("'")};
    }
    return ReadDate();
}

Operand Reader::ReadDate()
{
    static const QRegularExpression dates(
        QStringLiteral("\\s*Date(Time)?\\s*\\(\\s*(\\d+)\\s*,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*"
                       "(?:,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*)?\\)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = Take(dates);
    if (!match.hasMatch())
        Fail(QStringLiteral("a number, a text or a date is missing"));
    const QDate date(match.captured(2).toInt(), match.captured(3).toInt(), match.captured(4).toInt());
    if (!date.isValid())
        Fail(QStringLiteral("\"%1\" is no date").arg(match.captured(0).trimmed()));
    for (const int part : {5, 6, 7}) {
        if (match.captured(part).toInt() != 0)
            Fail(QStringLiteral("the books hold dates without a time of day"));
    }
    return {Kind::Date, SqlDay(date), date};
}

}

Selection ReadSelectionFormula(const QString& formula, Connection& connection)
{
    if (formula.trimmed().isEmpty())
        return {};
    return Reader(formula, connection).Read();
}

#include "platform/report/ReportData.h"

#include "platform/report/Evaluation.h"
#include "platform/report/RowWalk.h"
#include "platform/text/RunTimeError.h"
#include "platform/text/Shivaji01.h"

#include <algorithm>

namespace {

constexpr qsizetype MostSeenTexts = 20000;
constexpr qsizetype LongestSeenText = 200;

// The values that link two rows, as one text.
QString KeyOf(const Row& row, const std::vector<int>& columns)
{
    QString key;
    for (const int column : columns)
        key += row[static_cast<std::size_t>(column)].Text().trimmed() + QChar(u'\x1f');
    return key;
}

int FindSelected(const ReportTemplate& report, const Selection& selection)
{
    if (selection.table.isEmpty())
        return -1;
    const auto found =
        std::find_if(report.sources.begin(), report.sources.end(), [&](const TemplateSource& source) {
            return source.table.compare(selection.table, Qt::CaseInsensitive) == 0;
        });
    if (found == report.sources.end())
        throw RunTimeError(RunTimeError::ItemNotFound,
            QStringLiteral("The selection formula narrows the table %1, which the report %2 doesn't read.")
                .arg(selection.table, report.file));
    return static_cast<int>(found - report.sources.begin());
}

// The type of a value in a column without a declared type, as the database names it.
ValueType TypeOfStored(const FieldValue& told)
{
    const QString type = told.Text();
    return type == u"integer" || type == u"real" ? ValueType::Number : ValueType::Text;
}

Value ToValue(const FieldValue& field, ValueType type)
{
    if (field.IsNull())
        return {};
    switch (type) {
    case ValueType::Number:
        return Value::OfNumber(field.Number());
    case ValueType::Date:
        return Value::OfDate(field.Date());
    default:
        return Value::OfText(field.Text());
    }
}

}

ReportData::ReportData(const ReportTemplate& report, Connection& connection, Selection selection)
    : m_report(report)
    , m_connection(connection)
    , m_selection(std::move(selection))
    , m_selected(FindSelected(report, m_selection))
    , m_current(report.sources.size(), nullptr)
    , m_runs(report.sources.size(), nullptr)
    , m_linked(report.sources.size())
    , m_first(report.sources.size())
{
}

ReportData::~ReportData() = default;

QString ReportData::Query(const TemplateSource& source) const
{
    QStringList columns;
    for (const SourceColumn& column : source.columns)
        columns.append(column.name);
    for (const SourceColumn& column : source.columns) {
        if (column.type == ValueType::Unknown)
            columns.append(QStringLiteral("typeof(") + column.name + QStringLiteral(")"));
    }
    QString query = QStringLiteral("select ")
        + (columns.isEmpty() ? QStringLiteral("*") : columns.join(QStringLiteral(",")))
        + QStringLiteral(" from ") + source.table;
    if (m_selected >= 0 && &source == &m_report.sources[static_cast<std::size_t>(m_selected)])
        query += QStringLiteral(" where ") + m_selection.condition;
    if (!source.order.isEmpty())
        query += QStringLiteral(" order by ") + source.order;
    return query;
}

Recordset ReportData::Open(int source)
{
    return Recordset(m_connection, Query(m_report.sources[static_cast<std::size_t>(source)]));
}

void ReportData::ReadRow(int source, const Recordset& rows, Row& row) const
{
    const std::vector<SourceColumn>& columns = m_report.sources[static_cast<std::size_t>(source)].columns;
    row.resize(columns.size());
    int told = static_cast<int>(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isUnknown = columns[i].type == ValueType::Unknown;
        const ValueType type = isUnknown ? TypeOfStored(rows.At(told++)) : columns[i].type;
        row[i] = ToValue(rows.At(static_cast<int>(i)), type);
    }
}

bool ReportData::Passes(int source, const Row& row)
{
    const std::optional<Expression>& only = m_report.sources[static_cast<std::size_t>(source)].only;
    if (!only)
        return true;
    const Row* const before = Walked(source);
    SetCurrent(source, &row);
    const bool passes = Evaluate(*only, *this).Truth();
    SetCurrent(source, before);
    return passes;
}

const ReportData::RowsByKey& ReportData::Linked(int source)
{
    std::unique_ptr<RowsByKey>& linked = m_linked[static_cast<std::size_t>(source)];
    if (linked)
        return *linked;
    linked = std::make_unique<RowsByKey>();
    const TemplateSource& from = m_report.sources[static_cast<std::size_t>(source)];
    Row row;
    for (Recordset rows = Open(source); !rows.Eof(); rows.MoveNext()) {
        ReadRow(source, rows, row);
        if (Passes(source, row))
            (*linked)[KeyOf(row, from.linkColumns)].push_back(row);
    }
    return *linked;
}

const std::vector<Row>& ReportData::LinkedRows(int source)
{
    static const std::vector<Row> none;
    const TemplateSource& from = m_report.sources[static_cast<std::size_t>(source)];
    const Row* const parent = CurrentRow(from.parent);
    if (!parent)
        return none;
    const RowsByKey& linked = Linked(source);
    const auto found = linked.constFind(KeyOf(*parent, from.parentColumns));
    return found == linked.constEnd() ? none : found.value();
}

const Row* ReportData::FirstRow(int source)
{
    std::unique_ptr<std::vector<Row>>& first = m_first[static_cast<std::size_t>(source)];
    if (!first) {
        first = std::make_unique<std::vector<Row>>(1);
        if (!RowWalk(*this, source).Next(first->front()))
            first->clear();
    }
    return first->empty() ? nullptr : first->data();
}

const Row* ReportData::CurrentRow(int source)
{
    if (const Row* const walked = Walked(source))
        return walked;
    if (m_report.sources[static_cast<std::size_t>(source)].parent < 0)
        return FirstRow(source);
    const std::vector<Row>& linked = LinkedRows(source);
    return linked.empty() ? nullptr : linked.data();
}

Value ReportData::Variable(const QString& name)
{
    if (m_variables.isEmpty()) {
        const Recordset company(m_connection, QStringLiteral("select * from CompanySelected"));
        if (!company.Eof()) {
            m_variables[QStringLiteral("society")] =
                Value::OfText(Shivaji01::ToUnicode(company[u"CompanyName"].Text()));
            m_variables[QStringLiteral("year")] = Value::OfText(company[u"AccountingYear"].Text());
        }
        const Recordset dates(m_connection, QStringLiteral("select * from ReportDates"));
        if (!dates.Eof()) {
            m_variables[QStringLiteral("from")] = Value::OfDate(dates[u"FromDate"].Date());
            m_variables[QStringLiteral("to")] = Value::OfDate(dates[u"ToDate"].Date());
        }
        m_variables[QStringLiteral("date")] = Value::OfDate(m_selection.date);
    }
    return m_variables.value(name);
}

QString ReportData::Seen(const QString& stored)
{
    const auto known = m_seen.constFind(stored);
    if (known != m_seen.constEnd())
        return known.value();
    if (m_seen.size() >= MostSeenTexts)
        m_seen.clear();
    QString seen = Shivaji01::ToUnicode(stored);
    if (stored.size() <= LongestSeenText)
        m_seen.insert(stored, seen);
    return seen;
}

#include "platform/template/TemplateCheck.h"

#include "platform/database/Connection.h"
#include "platform/template/ChoiceCheck.h"
#include "platform/template/ExpressionBinder.h"
#include "platform/template/WidthCheck.h"

#include <algorithm>
#include <set>

namespace {

using Place = ExpressionBinder::Place;
using Aggregates = ExpressionBinder::Aggregates;

class Checker {
public:
    Checker(ReportTemplate& report, Connection& connection, TemplateFaults& faults)
        : m_report(report)
        , m_catalogue(connection.Handle())
        , m_sources(report, m_catalogue, faults)
        , m_binder(report, m_sources)
    {
    }

    void CheckAll();

private:
    void CheckSource(int index);
    void CheckOrder(int index);
    void CheckLink(int index);
    void CheckElements(std::vector<TemplateElement>& elements, const Place& place);
    void CheckElement(TemplateElement& element, Place place);
    void CheckPairs(TemplatePairs& pairs, Place place);
    void CheckLanes(TemplateLanes& lanes, const Place& place);
    void CheckEach(TemplateEach& each, const Place& place);
    void CheckTable(TemplateTable& table, const Place& place);
    void CheckColumn(TemplateTable& table, TemplateColumn& column, Place place);
    void BindOwnSum(const TemplateTable& table, TemplateColumn& column);
    void CheckLines(std::vector<TemplateLine>& lines, Place place);
    void CheckTotalLines(TemplateTable& table, Place place);
    void CheckGroup(TemplateTable& table, TemplateGroup& group, Place place);
    void CheckTotals(const TemplateTable& table, int line);
    void CheckChart(TemplateChart& chart, const Place& place);
    int Enter(const QString& sourceName, int line);
    void Leave() { m_sources.Leave(); }

    ReportTemplate& m_report;
    Catalogue m_catalogue;
    SourceFinder m_sources;
    ExpressionBinder m_binder;
    std::set<int> m_runs; // sources inside an <each by>, which may be walked again for the rows of one value
};

void Checker::CheckAll()
{
    for (std::size_t i = 0; i < m_report.sources.size(); ++i)
        CheckSource(static_cast<int>(i));
    Place edge;
    edge.isPageEdge = true;
    edge.aggregates = Aggregates::None; // they would read the whole source again for each page
    edge.line = m_report.headerLine;
    CheckElements(m_report.header, edge);
    CheckElements(m_report.footer, edge);
    CheckElements(m_report.body, Place());
    const auto fault = [this](int line, const QString& text) { m_sources.Fault(line, text); };
    CheckChoices(m_report, m_sources.Use(), fault);
    CheckWidths(m_report, fault);
}

void Checker::CheckSource(int index)
{
    TemplateSource& source = m_report.sources[static_cast<std::size_t>(index)];
    const auto first = std::find_if(m_report.sources.begin(), m_report.sources.end(),
        [&](const TemplateSource& other) { return other.name == source.name; });
    if (first - m_report.sources.begin() != index)
        m_sources.Fault(source.line, QStringLiteral("there is a second source \"%1\"").arg(source.name));
    if (!source.table.isEmpty() && !m_catalogue.Find(source.table)) {
        m_sources.Fault(source.line, QStringLiteral("there is no table \"%1\"").arg(source.table));
    } else {
        CheckOrder(index);
    }
    if (!source.parentName.isEmpty())
        CheckLink(index);
    Place place;
    place.line = source.line;
    place.aggregates = Aggregates::None;
    m_sources.StandAt(index);
    m_binder.BindCondition(source.only, place);
    m_sources.Leave();
}

void Checker::CheckOrder(int index)
{
    const TemplateSource& source = m_report.sources[static_cast<std::size_t>(index)];
    const std::shared_ptr<const Table> table = m_catalogue.Find(source.table);
    if (source.order.isEmpty())
        return;
    for (const QString& part : source.order.split(u',')) {
        const QStringList words = part.simplified().split(u' ');
        if (words[0].isEmpty() || words.size() > 2 || (words.size() == 2 && words[1] != u"desc"))
            m_sources.Fault(source.line, QStringLiteral("\"%1\" is no order").arg(part));
        else if (table && !table->Find(words[0]))
            m_sources.Fault(
                source.line, QStringLiteral("there is no column \"%1\" in %2").arg(words[0], source.table));
    }
}

void Checker::CheckLink(int index)
{
    TemplateSource& source = m_report.sources[static_cast<std::size_t>(index)];
    source.parent = m_sources.FindSource(source.parentName, source.line);
    if (source.parent >= index) {
        m_sources.Fault(source.line,
            QStringLiteral("\"%1\" must stand below the source that it is linked to").arg(source.name));
        source.parent = -1;
    }
    if (source.parent < 0)
        return;
    for (const QString& column : source.link) {
        const int own = m_sources.FindColumn(index, column);
        const int others = m_sources.FindColumn(source.parent, column);
        if (own < 0 || others < 0)
            m_sources.Fault(
                source.line, QStringLiteral("the two sources don't share a column \"%1\"").arg(column));
        source.linkColumns.push_back(own);
        source.parentColumns.push_back(others);
    }
}

void Checker::CheckElements(std::vector<TemplateElement>& elements, const Place& place)
{
    for (TemplateElement& element : elements)
        CheckElement(element, place);
}

void Checker::CheckElement(TemplateElement& element, Place place)
{
    place.line = element.line;
    m_binder.BindCondition(element.condition, place);
    element.Visit([&](TemplateParagraph& paragraph) { m_binder.BindText(paragraph.text, place); },
        [&](TemplatePairs& pairs) { CheckPairs(pairs, place); },
        [&](TemplateLanes& lanes) { CheckLanes(lanes, place); },
        [&](TemplateEach& each) { CheckEach(each, place); },
        [&](TemplateTable& table) { CheckTable(table, place); },
        [&](TemplateChart& chart) { CheckChart(chart, place); }, [](const TemplateRule&) {},
        [](const TemplateSpace&) {}, [](const TemplatePageBreak&) {});
}

void Checker::CheckPairs(TemplatePairs& pairs, Place place)
{
    for (TemplatePair& pair : pairs.pairs) {
        place.line = pair.line;
        m_binder.BindCondition(pair.condition, place);
        m_binder.BindText(pair.label, place);
        m_binder.BindText(pair.value, place);
    }
}

void Checker::CheckLanes(TemplateLanes& lanes, const Place& place)
{
    for (TemplateLane& lane : lanes.lanes) {
        CheckElements(lane.elements, place);
        CheckElements(lane.bottom, place);
    }
}

int Checker::Enter(const QString& sourceName, int line)
{
    const int index = m_sources.FindSource(sourceName, line);
    if (index >= 0) {
        m_sources.RequireParent(index, line);
        if (m_sources.IsWalked(index) && !m_runs.contains(index))
            m_sources.Fault(line,
                QStringLiteral("an <each> around this goes through the rows of \"%1\" already")
                    .arg(sourceName));
        m_sources.Walk(index);
    }
    return index;
}

void Checker::CheckEach(TemplateEach& each, const Place& place)
{
    each.source = Enter(each.sourceName, place.line);
    if (each.source < 0)
        return;
    m_binder.BindCondition(each.only, place);
    if (each.by && m_binder.Bind(*each.by, place) == ValueType::Truth)
        m_sources.Fault(place.line, QStringLiteral("rows can't be grouped by a condition; use if(…)"));
    const bool wasRun = m_runs.contains(each.source);
    if (each.by)
        m_runs.insert(each.source);
    else
        m_runs.erase(each.source);
    CheckElements(each.elements, place);
    if (wasRun)
        m_runs.insert(each.source);
    else
        m_runs.erase(each.source);
    Leave();
}

void Checker::CheckTable(TemplateTable& table, const Place& place)
{
    for (TemplateSpan& span : table.spans)
        m_binder.BindText(span.text, place);
    for (TemplateColumn& column : table.columns) {
        Place head = place;
        head.line = column.line;
        m_binder.BindCondition(column.condition, head);
        m_binder.BindText(column.head, head);
    }
    table.source = Enter(table.sourceName, place.line);
    if (table.source < 0)
        return;
    Place inside = place;
    inside.table = &table;
    inside.aggregates = Aggregates::None;
    m_binder.BindCondition(table.only, inside);
    for (TemplateGroup& group : table.groups)
        CheckGroup(table, group, inside);
    for (TemplateColumn& column : table.columns)
        CheckColumn(table, column, inside);
    CheckTotalLines(table, inside);
    CheckTotals(table, place.line);
    Leave();
}

void Checker::CheckTotalLines(TemplateTable& table, Place place)
{
    place.aggregates = Aggregates::OfTable;
    if (table.totalLabel) {
        place.line = table.totalLine;
        m_binder.BindText(*table.totalLabel, place);
        CheckLines(table.totalLines, place);
    }
    if (table.page) {
        place.line = table.page->line;
        place.isPageEnd = true;
        for (TemplateText* text : {&table.page->foot, &table.page->carry, &table.page->head})
            m_binder.BindText(*text, place);
    }
}

void Checker::CheckLines(std::vector<TemplateLine>& lines, Place place)
{
    for (TemplateLine& line : lines) {
        place.line = line.line;
        m_binder.BindCondition(line.condition, place);
        std::size_t columns = 0;
        for (TemplateSpan& cell : line.cells) {
            place.line = cell.line;
            m_binder.BindText(cell.text, place);
            columns += static_cast<std::size_t>(cell.columns);
        }
        if (columns > place.table->columns.size())
            m_sources.Fault(line.line,
                QStringLiteral("the cells span %1 columns, but there are %2")
                    .arg(columns)
                    .arg(place.table->columns.size()));
    }
}

void Checker::CheckColumn(TemplateTable& table, TemplateColumn& column, Place place)
{
    place.line = column.line;
    place.aggregates = table.isOfGroups ? Aggregates::OfTable : Aggregates::RunningOnly;
    m_binder.BindText(column.cell, place);
    if (column.totalIsOwnSum)
        BindOwnSum(table, column);
    if (!column.total)
        return;
    place.aggregates = Aggregates::OfTable;
    place.isPageEnd = table.page.has_value();
    const bool countsRows =
        column.total->operation == Operation::Aggregate && column.total->arguments.empty();
    column.total->isOfGroups = table.isOfGroups && (column.totalIsOwnSum || countsRows);
    const ValueType type = m_binder.Bind(*column.total, place);
    if (type == ValueType::Truth)
        m_sources.Fault(column.line, QStringLiteral("a condition can't be printed; use if(…)"));
}

// total="sum" adds the figures as they are printed.
void Checker::BindOwnSum(const TemplateTable& table, TemplateColumn& column)
{
    if (!column.cell.IsOneExpression() || (!table.isOfGroups && column.cell.Uses(Operation::Aggregate))) {
        m_sources.Fault(column.line, QStringLiteral("total=\"sum\" needs a column of one {expression}"));
        return;
    }
    const TextPiece& piece = column.cell.pieces.front();
    Expression sum;
    sum.operation = Operation::Aggregate;
    sum.number = piece.format.decimals;
    sum.arguments.push_back(*piece.expression);
    column.total = std::move(sum);
}

void Checker::CheckGroup(TemplateTable& table, TemplateGroup& group, Place place)
{
    place.line = group.line;
    place.table = &table;
    if (m_binder.Bind(group.by, place) == ValueType::Truth)
        m_sources.Fault(group.line, QStringLiteral("rows can't be grouped by a condition; use if(…)"));
    m_binder.BindText(group.head, place);
    CheckLines(group.headLines, place);
    place.line = group.line;
    place.aggregates = Aggregates::OfTable;
    m_binder.BindText(group.foot, place);
    CheckLines(group.footLines, place);
}

void Checker::CheckTotals(const TemplateTable& table, int line)
{
    const auto first = std::find_if(table.columns.begin(), table.columns.end(),
        [](const TemplateColumn& column) { return column.total.has_value(); });
    if (first == table.columns.end())
        return;
    const bool hasFoot = table.totalLabel || table.page
        || std::any_of(table.groups.begin(), table.groups.end(),
            [](const TemplateGroup& group) { return !group.foot.IsEmpty(); });
    const bool hasRoom = std::any_of(
        table.columns.begin(), first, [](const TemplateColumn& column) { return !column.condition; });
    if (!hasFoot)
        m_sources.Fault(first->line,
            QStringLiteral("the total is never printed: there is no <total> and no group's foot"));
    else if (!hasRoom)
        m_sources.Fault(
            line, QStringLiteral("the first column has a total, so there is no room for its label"));
}

void Checker::CheckChart(TemplateChart& chart, const Place& place)
{
    m_binder.BindText(chart.title, place);
    chart.source = Enter(chart.sourceName, place.line);
    if (chart.source < 0)
        return;
    Place inside = place;
    inside.aggregates = Aggregates::None;
    m_binder.BindText(chart.x, inside);
    m_binder.BindCondition(chart.only, inside);
    for (TemplateSeries& series : chart.series) {
        inside.line = series.line;
        m_binder.BindText(series.label, place);
        const ValueType type = m_binder.Bind(series.value, inside);
        if (type == ValueType::Date || type == ValueType::Truth)
            m_sources.Fault(series.line, QStringLiteral("a chart needs numbers"));
    }
    Leave();
}

}

TemplateFaults Check(ReportTemplate& report, Connection& connection)
{
    TemplateFaults faults;
    if (!report.isRead)
        return faults;
    Checker(report, connection, faults).CheckAll();
    return faults;
}

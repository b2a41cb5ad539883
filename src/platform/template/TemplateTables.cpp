#include "platform/template/TemplateReader.h"

#include <algorithm>

namespace {

constexpr double MostRows = 100;

}

TemplateElement TemplateReader::ReadTable(Place place)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateElement element = BeginElement(attributes);
    TemplateTable table;
    table.look = attributes.Look();
    table.sourceName = attributes.Required(u"source");
    table.only = attributes.Condition(u"only");
    table.hasLines = attributes.Flag(u"lines");
    const QString rows = attributes.Text(u"rows");
    table.isOfGroups = rows == u"groups";
    if (!rows.isEmpty() && !table.isOfGroups)
        attributes.Fault(QStringLiteral("rows=\"%1\" isn't \"groups\"").arg(rows));
    attributes.Finish();
    while (NextElement()) {
        if (m_xml.name() == u"col")
            ReadColumn(table);
        else if (m_xml.name() == u"heads")
            ReadSpans(table);
        else if (m_xml.name() == u"group")
            ReadGroup(table, place);
        else if (m_xml.name() == u"total")
            ReadTotal(table);
        else if (m_xml.name() == u"page")
            ReadPageTotals(table, place);
        else
            RefuseElement();
    }
    if (table.columns.empty())
        Fault(element.line, QStringLiteral("<table> has no <col>"));
    else if (std::all_of(table.columns.begin(), table.columns.end(),
                 [](const TemplateColumn& column) { return column.condition.has_value(); }))
        Fault(element.line, QStringLiteral("every column has an \"if\", so there may be none"));
    if (table.isOfGroups && table.groups.empty())
        Fault(element.line, QStringLiteral("rows=\"groups\" needs a <group>"));
    element.what = std::move(table);
    return element;
}

void TemplateReader::ReadSpans(TemplateTable& table)
{
    ElementAttributes attributes(m_xml, *this);
    attributes.Finish();
    table.spans = ReadCells(u"head");
}

std::vector<TemplateSpan> TemplateReader::ReadCells(QStringView name)
{
    std::vector<TemplateSpan> cells;
    while (NextChild(name)) {
        ElementAttributes own(m_xml, *this);
        TemplateSpan cell;
        cell.line = own.Line();
        cell.columns = static_cast<int>(own.Number(u"span", 1, MostRows, 1));
        cell.look = own.Look();
        own.Finish();
        cell.text = ReadContent(cell.line);
        cells.push_back(std::move(cell));
    }
    return cells;
}

void TemplateReader::ReadLine(std::vector<TemplateLine>& lines)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateLine line;
    line.line = attributes.Line();
    line.condition = attributes.Condition(u"if");
    attributes.Finish();
    line.cells = ReadCells(u"cell");
    if (line.cells.empty())
        Fault(line.line, QStringLiteral("the line has no <cell>"));
    lines.push_back(std::move(line));
}

void TemplateReader::ReadColumn(TemplateTable& table)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateColumn column;
    column.line = attributes.Line();
    column.condition = attributes.Condition(u"if");
    column.width = attributes.Width();
    column.head = attributes.Template(u"head");
    column.look = attributes.Look();
    column.wraps = attributes.Flag(u"wrap");
    const QString total = attributes.Text(u"total");
    column.totalIsOwnSum = total == u"sum";
    if (total == u"count") {
        column.total.emplace();
        column.total->operation = Operation::Aggregate;
        column.total->aggregate = AggregateKind::Count;
    } else if (!total.isEmpty() && !column.totalIsOwnSum) {
        column.total = attributes.Condition(u"total");
    }
    attributes.Finish();
    column.cell = ReadContent(column.line);
    table.hasHeads = table.hasHeads || !column.head.IsEmpty();
    table.columns.push_back(std::move(column));
}

void TemplateReader::ReadGroup(TemplateTable& table, Place place)
{
    ElementAttributes attributes(m_xml, *this);
    TemplateGroup group;
    group.line = attributes.Line();
    group.name = attributes.Required(u"by");
    const std::optional<Expression> by = group.name.isEmpty() ? std::nullopt : attributes.Condition(u"by");
    group.label = attributes.Text(u"label");
    group.head = attributes.Template(u"head");
    group.foot = attributes.Template(u"foot");
    group.keep = static_cast<int>(attributes.Number(u"keep", 1, MostRows, 1));
    group.newPage = attributes.Flag(u"newpage");
    RefuseNewPage(group.line, group.newPage, place);
    attributes.Finish();
    while (NextElement()) {
        if (m_xml.name() == u"head")
            ReadLine(group.headLines);
        else if (m_xml.name() == u"foot")
            ReadLine(group.footLines);
        else
            RefuseElement();
    }
    if (!by)
        return;
    group.by = *by;
    table.groups.push_back(std::move(group));
}

void TemplateReader::ReadTotal(TemplateTable& table)
{
    ElementAttributes attributes(m_xml, *this);
    if (table.totalLabel)
        attributes.Fault(QStringLiteral("there is a second <total>"));
    table.totalLine = attributes.Line();
    table.totalLabel = attributes.Template(u"label");
    attributes.Finish();
    while (NextChild(u"foot"))
        ReadLine(table.totalLines);
}

void TemplateReader::ReadPageTotals(TemplateTable& table, Place place)
{
    ElementAttributes attributes(m_xml, *this);
    if (table.page)
        attributes.Fault(QStringLiteral("there is a second <page>"));
    if (place != Place::Flow)
        attributes.Fault(QStringLiteral("the table of a <page> can't stand in a <column>"));
    TemplatePageTotals& page = table.page.emplace();
    page.line = attributes.Line();
    page.foot = attributes.Template(u"foot");
    page.carry = attributes.Template(u"carry");
    page.head = attributes.Template(u"head");
    if (page.foot.IsEmpty() && page.carry.IsEmpty() && page.head.IsEmpty())
        attributes.Fault(QStringLiteral("<page> needs \"foot\", \"carry\" or \"head\""));
    attributes.Finish();
    EndEmpty();
}

#include "platform/template/TableReader.h"

#include "platform/template/ElementAttributes.h"

#include <algorithm>

namespace {

constexpr double MostRows = 100;

}

TemplateTable TableReader::Read(ElementAttributes& attributes, ElementPlace place)
{
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
    while (m_xml.NextElement()) {
        if (m_xml.Name() == u"col")
            ReadColumn(table);
        else if (m_xml.Name() == u"heads")
            ReadSpans(table);
        else if (m_xml.Name() == u"group")
            ReadGroup(table, place);
        else if (m_xml.Name() == u"total")
            ReadTotal(table);
        else if (m_xml.Name() == u"page")
            ReadPageTotals(table, place);
        else
            m_xml.RefuseElement();
    }
    if (table.columns.empty())
        m_xml.Fault(attributes.Line(), QStringLiteral("<table> has no <col>"));
    else if (std::all_of(table.columns.begin(), table.columns.end(),
                 [](const TemplateColumn& column) { return column.condition.has_value(); }))
        m_xml.Fault(attributes.Line(), QStringLiteral("every column has an \"if\", so there may be none"));
    if (table.isOfGroups && table.groups.empty())
        m_xml.Fault(attributes.Line(), QStringLiteral("rows=\"groups\" needs a <group>"));
    return table;
}

void TableReader::ReadSpans(TemplateTable& table)
{
    ElementAttributes attributes(m_xml);
    attributes.Finish();
    table.spans = ReadCells(u"head");
}

std::vector<TemplateSpan> TableReader::ReadCells(QStringView name)
{
    std::vector<TemplateSpan> cells;
    while (m_xml.NextChild(name)) {
        ElementAttributes own(m_xml);
        TemplateSpan cell;
        cell.line = own.Line();
        cell.columns = static_cast<int>(own.Number(u"span", 1, MostRows, 1));
        cell.look = own.Look();
        own.Finish();
        cell.text = m_xml.ReadContent(cell.line);
        cells.push_back(std::move(cell));
    }
    return cells;
}

void TableReader::ReadLine(std::vector<TemplateLine>& lines)
{
    ElementAttributes attributes(m_xml);
    TemplateLine line;
    line.line = attributes.Line();
    line.condition = attributes.Condition(u"if");
    attributes.Finish();
    line.cells = ReadCells(u"cell");
    if (line.cells.empty())
        m_xml.Fault(line.line, QStringLiteral("the line has no <cell>"));
    lines.push_back(std::move(line));
}

void TableReader::ReadColumn(TemplateTable& table)
{
    ElementAttributes attributes(m_xml);
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
    column.cell = m_xml.ReadContent(column.line);
    table.hasHeads = table.hasHeads || !column.head.IsEmpty();
    table.columns.push_back(std::move(column));
}

void TableReader::ReadGroup(TemplateTable& table, ElementPlace place)
{
    ElementAttributes attributes(m_xml);
    TemplateGroup group;
    group.line = attributes.Line();
    group.name = attributes.Required(u"by");
    const std::optional<Expression> by = group.name.isEmpty() ? std::nullopt : attributes.Condition(u"by");
    group.label = attributes.Text(u"label");
    group.head = attributes.Template(u"head");
    group.foot = attributes.Template(u"foot");
    group.keep = static_cast<int>(attributes.Number(u"keep", 1, MostRows, 1));
    group.newPage = attributes.NewPage(place);
    attributes.Finish();
    while (m_xml.NextElement()) {
        if (m_xml.Name() == u"head")
            ReadLine(group.headLines);
        else if (m_xml.Name() == u"foot")
            ReadLine(group.footLines);
        else
            m_xml.RefuseElement();
    }
    if (!by)
        return;
    group.by = *by;
    table.groups.push_back(std::move(group));
}

void TableReader::ReadTotal(TemplateTable& table)
{
    ElementAttributes attributes(m_xml);
    if (table.totalLabel)
        attributes.Fault(QStringLiteral("there is a second <total>"));
    table.totalLine = attributes.Line();
    table.totalLabel = attributes.Template(u"label");
    attributes.Finish();
    while (m_xml.NextChild(u"foot"))
        ReadLine(table.totalLines);
}

void TableReader::ReadPageTotals(TemplateTable& table, ElementPlace place)
{
    ElementAttributes attributes(m_xml);
    if (table.page)
        attributes.Fault(QStringLiteral("there is a second <page>"));
    if (place != ElementPlace::Flow)
        attributes.Fault(QStringLiteral("the table of a <page> can't stand in a <column>"));
    TemplatePageTotals& page = table.page.emplace();
    page.line = attributes.Line();
    page.foot = attributes.Template(u"foot");
    page.carry = attributes.Template(u"carry");
    page.head = attributes.Template(u"head");
    if (page.foot.IsEmpty() && page.carry.IsEmpty() && page.head.IsEmpty())
        attributes.Fault(QStringLiteral("<page> needs \"foot\", \"carry\" or \"head\""));
    attributes.Finish();
    m_xml.EndEmpty();
}

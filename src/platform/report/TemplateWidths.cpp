#include "platform/report/TemplateWidths.h"

#include "platform/report/Room.h"
#include "platform/report/TemplateHeights.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double SmallestShare = 4 * PointsPerMillimetre;
constexpr double SmallestValue = 10 * PointsPerMillimetre; // beside a label
constexpr double LettersOfAFigure = 4; // how many times its letters' size a figure such as 1234.50 is wide
constexpr double LettersOfALabel = 4; // the same for what a total is called
constexpr double LinesOfAChart = 3; // the legend, the labels, and half a line at both ends of the scale
constexpr double Tolerance = 0.05;

// Points as millimetres.
QString Shown(double points)
{
    return QString::number(std::max(points, 0.0) / PointsPerMillimetre, 'f', 1);
}

bool HoldsFigure(const TemplateText& text)
{
    return std::any_of(text.pieces.begin(), text.pieces.end(),
        [](const TextPiece& piece) { return piece.format.kind == PrintFormat::Kind::Number; });
}

class WidthChecker {
public:
    WidthChecker(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault)
        : m_report(report)
        , m_fault(fault)
        , m_heights(report)
    {
    }

    void CheckAll()
    {
        const double width = m_report.paper.BodyWidth();
        CheckElements(m_report.header, width);
        CheckElements(m_report.footer, width);
        m_pageHeight = RoomForBody();
        CheckElements(m_report.body, width);
    }

private:
    // What head and foot of a page leave of it; if that is nothing, that is the fault, and not what stands
    // there.
    double RoomForBody()
    {
        const double page = m_report.paper.BodyHeight();
        const LeastHeight header = m_heights.Of(m_report.header);
        const LeastHeight footer = m_heights.Of(m_report.footer);
        const double always = header.always + footer.always;
        const double most = always + std::max(header.atTimes, footer.atTimes);
        if (most + Room::SmallestBody <= page)
            return page - always;
        m_fault(m_report.headerLine,
            QStringLiteral("the head and the foot of the page need %1 mm, and %2 mm for the report between "
                           "them, but there are %3 mm")
                .arg(Shown(most), Shown(Room::SmallestBody), Shown(page)));
        return std::numeric_limits<double>::infinity();
    }

    void CheckElements(const std::vector<TemplateElement>& elements, double width)
    {
        for (const TemplateElement& element : elements)
            CheckElement(element, width);
    }

    void CheckElement(const TemplateElement& element, double width)
    {
        switch (element.kind) {
        case ElementKind::Columns:
            return CheckLanes(element, width);
        case ElementKind::Pairs:
            return CheckPairs(element, width);
        case ElementKind::Space:
            return CheckHeight(element.line, element.size * PointsPerMillimetre, "the space");
        case ElementKind::Text:
            CheckLetters(element.line, element.text, m_heights.LetterSize(element.look), width);
            return CheckHeight(element.line, m_heights.Line(element.look), "a line of the text");
        case ElementKind::Table:
            return CheckTable(element, width);
        case ElementKind::Chart:
            return CheckChart(element, width);
        case ElementKind::Each:
            return CheckElements(element.children, width);
        case ElementKind::Rule:
        case ElementKind::PageBreak:
            break;
        }
    }

    void CheckHeight(int line, double height, const char* what)
    {
        if (height > m_pageHeight + Tolerance)
            m_fault(line, QStringLiteral("%1 is taller than the page").arg(QLatin1String(what)));
    }

    // At least one letter stands on a line.
    void CheckLetters(int line, const TemplateText& text, double size, double width)
    {
        if (!text.IsEmpty() && width < size - Tolerance)
            m_fault(line,
                QStringLiteral("letters of %1 points don't stand in a place of %2 mm")
                    .arg(size)
                    .arg(Shown(width)));
    }

    void CheckPairs(const TemplateElement& element, double width)
    {
        const double labels =
            element.size > 0 ? element.size * PointsPerMillimetre : width * Room::PairLabelShare;
        double needed = SmallestValue;
        bool hasLabel = false;
        for (const TemplatePair& pair : element.pairs) {
            hasLabel = hasLabel || !pair.label.IsEmpty();
            const double size = m_heights.LetterSize(pair.look, element.look.size);
            CheckLetters(pair.line, pair.label, size, std::max(labels, SmallestShare));
            CheckLetters(pair.line, pair.value, size, std::max(width - labels, SmallestValue));
            if (HoldsFigure(pair.value))
                needed = std::max(needed, LettersOfAFigure * size);
            CheckHeight(pair.line, m_heights.Line(pair.look, element.look.size), "a line of the pair");
        }
        if (width - labels < needed - Tolerance)
            m_fault(element.line,
                QStringLiteral("the labels leave %1 mm for their values, which need %2 mm")
                    .arg(Shown(width - labels), Shown(needed)));
        if (hasLabel && labels < SmallestShare - Tolerance)
            m_fault(element.line,
                QStringLiteral("the labels have %1 mm, but need %2 mm")
                    .arg(Shown(labels), Shown(SmallestShare)));
    }

    void CheckLanes(const TemplateElement& element, double width)
    {
        std::vector<WidthRule> rules;
        for (const TemplateLane& lane : element.lanes) {
            rules.push_back(lane.width);
            if (!lane.elements.empty())
                CheckShare(lane.width, lane.line);
        }
        const double gap = element.size * PointsPerMillimetre;
        CheckHeight(element.line, element.height * PointsPerMillimetre, "the strip of columns");
        if (element.weight > 0)
            width -= 2 * Room::BoxPadding;
        CheckRules(rules, element.line, width, gap);
        const std::vector<double> widths = DivideWidth(rules, width, gap);
        for (std::size_t i = 0; i < element.lanes.size(); ++i) {
            const TemplateLane& lane = element.lanes[i];
            const double own = widths[i] - (lane.weight > 0 ? 2 * Room::BoxPadding : 0);
            if (widths[i] < SmallestShare - Tolerance)
                continue;
            CheckElements(lane.elements, own);
            CheckElements(lane.bottom, own);
        }
    }

    void CheckTable(const TemplateElement& element, double width)
    {
        const TemplateTable& table = *element.table;
        std::vector<WidthRule> rules;
        for (const TemplateColumn& column : table.columns) {
            rules.push_back(column.width);
            if (!column.cell.IsEmpty() || !column.head.IsEmpty() || column.total)
                CheckShare(column.width, column.line);
            CheckHeight(column.line, m_heights.Line(column.look, element.look.size), "a line of the column");
        }
        CheckRules(rules, element.line, width, 0);
        CheckCells(element, DivideWidth(rules, width, 0));
        std::size_t spanned = 0;
        for (const TemplateSpan& span : table.spans)
            spanned += static_cast<std::size_t>(span.columns);
        if (spanned > table.columns.size())
            m_fault(element.line,
                QStringLiteral("the heads span %1 columns, but there are %2")
                    .arg(spanned)
                    .arg(table.columns.size()));
    }

    // Columns that are too narrow for anything have been told already.
    void CheckCells(const TemplateElement& element, const std::vector<double>& widths)
    {
        const TemplateTable& table = *element.table;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const TemplateColumn& column = table.columns[i];
            const double size = m_heights.LetterSize(column.look, element.look.size);
            const double width = std::max(widths[i], SmallestShare);
            CheckLetters(column.line, column.cell.IsEmpty() ? column.head : column.cell, size, width);
        }
        CheckHeads(element, widths);
        CheckTotalLabel(element, widths);
        for (const TemplateGroup& group : table.groups) {
            CheckLines(element, group.headLines, widths);
            CheckLines(element, group.footLines, widths);
        }
        CheckLines(element, table.totalLines, widths);
    }

    void CheckLines(const TemplateElement& element, const std::vector<TemplateLine>& lines,
        const std::vector<double>& widths)
    {
        for (const TemplateLine& line : lines) {
            std::size_t at = 0;
            for (const TemplateSpan& cell : line.cells) {
                double width = 0;
                for (int i = 0; i < cell.columns && at < widths.size(); ++i)
                    width += widths[at++];
                const double size = m_heights.LetterSize(cell.look, element.look.size);
                CheckLetters(cell.line, cell.text, size, std::max(width, SmallestShare));
            }
        }
    }

    // The heads come again on every page, with a row below them at least, and the totals of the page.
    void CheckHeads(const TemplateElement& element, const std::vector<double>& widths)
    {
        const TemplateTable& table = *element.table;
        double spans = 0;
        std::size_t at = 0;
        for (const TemplateSpan& span : table.spans) {
            double width = -2 * Room::CellPadding;
            for (int i = 0; i < span.columns && at < widths.size(); ++i)
                width += widths[at++];
            spans = std::max(spans, m_heights.Written(span.text, span.look, element.look.size, width));
        }
        double heads = 0;
        double row = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const TemplateColumn& column = table.columns[i];
            const double width = std::max(1.0, widths[i] - 2 * Room::CellPadding);
            heads = std::max(heads, m_heights.Written(column.head, column.look, element.look.size, width));
            row = std::max(row, m_heights.Line(column.look, element.look.size));
        }
        const double edges = 2 * (Room::HeadRule + 2 * Room::RowPadding);
        if (table.page) {
            int lines = 0;
            for (const TemplateText* text : {&table.page->foot, &table.page->carry, &table.page->head})
                lines += text->IsEmpty() ? 0 : 1;
            spans += lines * (row + 2 * Room::RowPadding);
        }
        if (heads + spans > 0 && row <= m_pageHeight)
            CheckHeight(element.line, spans + heads + row + edges, "the head of the table with a row");
    }

    void CheckTotalLabel(const TemplateElement& element, const std::vector<double>& widths)
    {
        const TemplateTable& table = *element.table;
        const bool hasLabel = (table.totalLabel && !table.totalLabel->IsEmpty()) || table.page
            || std::any_of(table.groups.begin(), table.groups.end(),
                [](const TemplateGroup& group) { return !group.foot.IsEmpty(); });
        double room = 0;
        std::size_t first = 0;
        while (first < widths.size() && !table.columns[first].total && !table.columns[first].totalIsOwnSum) {
            room += table.columns[first].condition ? 0 : widths[first];
            ++first;
        }
        const double needed = LettersOfALabel * m_heights.LetterSize(element.look);
        if (hasLabel && room > 0 && first < widths.size() && room < needed - Tolerance)
            m_fault(table.columns[first].line,
                QStringLiteral("before the first total there are %1 mm for its label, which needs %2 mm")
                    .arg(Shown(room), Shown(needed)));
    }

    void CheckChart(const TemplateElement& element, double width)
    {
        const TemplateChart& chart = *element.chart;
        const double line = m_heights.Line(element.look);
        const double series = static_cast<double>(std::max<std::size_t>(1, chart.series.size()));
        const double wide = Room::ChartAxis + series * std::max(Room::ChartLabel, line);
        if (width < wide - Tolerance)
            m_fault(element.line,
                QStringLiteral("the chart needs %1 mm, but there are %2 mm").arg(Shown(wide), Shown(width)));
        const double height = chart.height * PointsPerMillimetre;
        const double high = (LinesOfAChart + (chart.title.IsEmpty() ? 0 : 1)) * line + Room::ChartGap;
        if (height < high - Tolerance)
            m_fault(element.line,
                QStringLiteral("the chart needs a height of %1 mm, but has %2 mm")
                    .arg(Shown(high), Shown(height)));
        CheckHeight(element.line, height, "the chart");
    }

    void CheckShare(const WidthRule& rule, int line)
    {
        if (!rule.isShare && rule.millimetres * PointsPerMillimetre < SmallestShare - Tolerance)
            m_fault(line,
                QStringLiteral("w=\"%1\" is too narrow for what stands there: it needs %2 mm")
                    .arg(rule.millimetres)
                    .arg(Shown(SmallestShare)));
    }

    void CheckRules(const std::vector<WidthRule>& rules, int line, double width, double gap)
    {
        double needed = rules.empty() ? 0 : gap * static_cast<double>(rules.size() - 1);
        for (const WidthRule& rule : rules)
            needed += rule.isShare ? SmallestShare : rule.millimetres * PointsPerMillimetre;
        if (needed > width + Tolerance)
            m_fault(line,
                QStringLiteral("the columns need %1 mm, but there are %2 mm")
                    .arg(Shown(needed), Shown(width)));
    }

    const ReportTemplate& m_report;
    const std::function<void(int, const QString&)>& m_fault;
    HeightReckoner m_heights;
    double m_pageHeight = std::numeric_limits<double>::infinity();
};

}

std::vector<double> DivideWidth(const std::vector<WidthRule>& rules, double width, double gap)
{
    double left = rules.empty() ? 0 : width - gap * static_cast<double>(rules.size() - 1);
    double shares = 0;
    for (const WidthRule& rule : rules) {
        if (rule.isShare)
            shares += 1;
        else
            left -= rule.millimetres * PointsPerMillimetre;
    }
    std::vector<double> widths;
    widths.reserve(rules.size());
    for (const WidthRule& rule : rules)
        widths.push_back(
            rule.isShare ? std::max(left, 0.0) / shares : rule.millimetres * PointsPerMillimetre);
    return widths;
}

void CheckWidths(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault)
{
    WidthChecker(report, fault).CheckAll();
}

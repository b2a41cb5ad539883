#include "platform/report/LayoutCheck.h"

#include "platform/report/FontMap.h"
#include "platform/report/HeightReckoner.h"
#include "platform/template/Spacing.h"
#include "platform/template/TemplateCheck.h"
#include "platform/template/TemplateWidths.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double LinesOfAChart = 3; // the legend, the labels, and half a line at each end of the scale
constexpr double Slack = 0.05;

// A length in points, shown in millimetres.
QString Shown(double points)
{
    return QString::number(std::max(points, 0.0) / Paper::PointsPerMillimetre, 'f', 1);
}

class LayoutChecker {
public:
    explicit LayoutChecker(ReportTemplate& report) : m_report(report), m_heights(report) { }

    TemplateFaults CheckAll()
    {
        if (m_report.line > 0)
            ChooseFont();
        if (m_report.isRead) {
            m_pageHeight = RoomForBody();
            CheckElements(m_report.body, m_report.paper.BodyWidth());
        }
        return std::move(m_faults);
    }

private:
    void Fault(int line, const QString& text)
    {
        if (m_faults.size() <= TemplateFault::Most)
            m_faults.push_back({m_report.file, line, text});
    }

    void ChooseFont()
    {
        for (const QString& family : m_report.fontNames.split(u',')) {
            if (FontMap::Current()->Has(family.trimmed())) {
                m_report.fontFamily = family.trimmed();
                return;
            }
        }
        Fault(m_report.line,
            QStringLiteral("the font \"%1\" isn't installed").arg(m_report.fontNames.trimmed()));
    }

    // The height that header and footer leave for the report. If that is too little, this is the only fault,
    // and the body is checked as if there were room.
    double RoomForBody()
    {
        const double page = m_report.paper.BodyHeight();
        const LeastHeight header = m_heights.Of(m_report.header);
        const LeastHeight footer = m_heights.Of(m_report.footer);
        const double always = header.always + footer.always;
        const double most = always + std::max(header.atTimes, footer.atTimes);
        if (most + Spacing::SmallestBody <= page)
            return page - always;
        Fault(m_report.headerLine,
            QStringLiteral("the head and the foot of the page need %1 mm, and %2 mm for the report between "
                           "them, but there are %3 mm")
                .arg(Shown(most), Shown(Spacing::SmallestBody), Shown(page)));
        return std::numeric_limits<double>::infinity();
    }

    void CheckElements(const std::vector<TemplateElement>& elements, double width)
    {
        for (const TemplateElement& element : elements)
            CheckElement(element, width);
    }

    void CheckElement(const TemplateElement& element, double width)
    {
        const int line = element.line;
        element.Visit(
            [&](const TemplateParagraph& paragraph) {
                CheckHeight(line, m_heights.Line(paragraph.look), "a line of the text");
            },
            [&](const TemplateSpace& space) {
                CheckHeight(line, space.height * Paper::PointsPerMillimetre, "the space");
            },
            [&](const TemplatePairs& pairs) { CheckPairs(pairs); },
            [&](const TemplateLanes& lanes) { CheckLanes(lanes, line, width); },
            [&](const TemplateEach& each) { CheckElements(each.elements, width); },
            [&](const TemplateTable& table) { CheckTable(table, line, width); },
            [&](const TemplateChart& chart) { CheckChart(chart, line, width); }, [](const TemplateRule&) {},
            [](const TemplatePageBreak&) {});
    }

    void CheckHeight(int line, double height, const char* what)
    {
        if (height > m_pageHeight + Slack)
            Fault(line, QStringLiteral("%1 is taller than the page").arg(QLatin1String(what)));
    }

    void CheckPairs(const TemplatePairs& pairs)
    {
        for (const TemplatePair& pair : pairs.pairs)
            CheckHeight(pair.line, m_heights.Line(pair.look, pairs.look.size), "a line of the pair");
    }

    void CheckLanes(const TemplateLanes& lanes, int line, double width)
    {
        CheckHeight(line, lanes.height * Paper::PointsPerMillimetre, "the strip of columns");
        const std::vector<double> widths = LaneWidths(lanes, width);
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const TemplateLane& lane = lanes.lanes[i];
            if (widths[i] < Spacing::SmallestShare - Slack)
                continue;
            const double own = InFrame(lane.frame, widths[i]);
            CheckElements(lane.elements, own);
            CheckElements(lane.bottom, own);
        }
    }

    void CheckTable(const TemplateTable& table, int line, double width)
    {
        for (const TemplateColumn& column : table.columns)
            CheckHeight(column.line, m_heights.Line(column.look, table.look.size), "a line of the column");
        CheckHeads(table, line, ColumnWidths(table, width));
    }

    // Each page of a table begins with its heads, and needs room for at least one row and the totals of the
    // page.
    void CheckHeads(const TemplateTable& table, int line, const std::vector<double>& widths)
    {
        double spans = 0;
        std::size_t at = 0;
        for (const TemplateSpan& span : table.spans) {
            double width = -2 * Spacing::CellPadding;
            for (int i = 0; i < span.columns && at < widths.size(); ++i)
                width += widths[at++];
            spans = std::max(spans, m_heights.Written(span.text, span.look, table.look.size, width));
        }
        double heads = 0;
        double row = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const TemplateColumn& column = table.columns[i];
            const double width = std::max(1.0, widths[i] - 2 * Spacing::CellPadding);
            heads = std::max(heads, m_heights.Written(column.head, column.look, table.look.size, width));
            row = std::max(row, m_heights.Line(column.look, table.look.size));
        }
        const double edges = 2 * (Spacing::HeadRule + 2 * Spacing::RowPadding);
        if (table.page) {
            int lines = 0;
            for (const TemplateText* text : {&table.page->foot, &table.page->carry, &table.page->head})
                lines += text->IsEmpty() ? 0 : 1;
            spans += lines * (row + 2 * Spacing::RowPadding);
        }
        if (heads + spans > 0 && row <= m_pageHeight)
            CheckHeight(line, spans + heads + row + edges, "the head of the table with a row");
    }

    void CheckChart(const TemplateChart& chart, int line, double width)
    {
        const double letters = m_heights.Line(chart.look);
        const double series = static_cast<double>(std::max<std::size_t>(1, chart.series.size()));
        const double wide = Spacing::ChartAxis + series * std::max(Spacing::ChartLabel, letters);
        if (width < wide - Slack)
            Fault(line,
                QStringLiteral("the chart needs %1 mm, but there are %2 mm").arg(Shown(wide), Shown(width)));
        const double height = chart.height * Paper::PointsPerMillimetre;
        const double high = (LinesOfAChart + (chart.title.IsEmpty() ? 0 : 1)) * letters + Spacing::ChartGap;
        if (height < high - Slack)
            Fault(line,
                QStringLiteral("the chart needs a height of %1 mm, but has %2 mm")
                    .arg(Shown(high), Shown(height)));
        CheckHeight(line, height, "the chart");
    }

    ReportTemplate& m_report;
    HeightReckoner m_heights;
    TemplateFaults m_faults;
    double m_pageHeight = std::numeric_limits<double>::infinity();
};

}

TemplateFaults CheckForLayout(ReportTemplate& report, Connection& connection)
{
    TemplateFaults faults = Check(report, connection);
    const TemplateFaults more = LayoutChecker(report).CheckAll();
    faults.insert(faults.end(), more.begin(), more.end());
    return faults;
}

ReportTemplate ReadForLayout(const QString& file, Connection& connection, TemplateFaults& faults)
{
    TemplateFaults own;
    ReportTemplate report = ReportTemplate::Read(file, own);
    const TemplateFaults more = CheckForLayout(report, connection);
    own.insert(own.end(), more.begin(), more.end());
    SortAndCut(own);
    faults.insert(faults.end(), own.begin(), own.end());
    return report;
}

#include "platform/template/WidthCheck.h"

#include "platform/template/Spacing.h"
#include "platform/template/TemplateWidths.h"

#include <algorithm>

namespace {

using Spacing::SmallestShare;

constexpr double SmallestValue = 10 * Paper::PointsPerMillimetre; // least width beside a label
constexpr double LettersOfAFigure = 4; // width of a figure such as 1234.50, in times the font size
constexpr double LettersOfALabel = 4; // the same for the label of a total
constexpr double Tolerance = 0.05;

// A length in points, shown in millimetres.
QString Shown(double points)
{
    return QString::number(std::max(points, 0.0) / Paper::PointsPerMillimetre, 'f', 1);
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
    {
    }

    void CheckAll()
    {
        const double width = m_report.paper.BodyWidth();
        CheckElements(m_report.header, width);
        CheckElements(m_report.footer, width);
        CheckElements(m_report.body, width);
    }

private:
    void CheckElements(const std::vector<TemplateElement>& elements, double width)
    {
        for (const TemplateElement& element : elements)
            CheckElement(element, width);
    }

    void CheckElement(const TemplateElement& element, double width)
    {
        element.Visit(
            [&](const TemplateParagraph& paragraph) {
                CheckLetters(element.line, paragraph.text, m_report.LetterSize(paragraph.look), width);
            },
            [&](const TemplatePairs& pairs) { CheckPairs(pairs, element.line, width); },
            [&](const TemplateLanes& lanes) { CheckLanes(lanes, element.line, width); },
            [&](const TemplateEach& each) { CheckElements(each.elements, width); },
            [&](const TemplateTable& table) { CheckTable(table, element.line, width); },
            [](const TemplateChart&) {}, // depends on the height of its letters; see CheckForLayout
            [](const TemplateRule&) {}, [](const TemplateSpace&) {}, [](const TemplatePageBreak&) {});
    }

    // A line must have room for at least one letter.
    void CheckLetters(int line, const TemplateText& text, double size, double width)
    {
        if (!text.IsEmpty() && width < size - Tolerance)
            m_fault(line,
                QStringLiteral("letters of %1 points don't fit into a place of %2 mm")
                    .arg(size)
                    .arg(Shown(width)));
    }

    void CheckPairs(const TemplatePairs& pairs, int line, double width)
    {
        const double labels = pairs.labelWidth > 0 ? pairs.labelWidth * Paper::PointsPerMillimetre
                                                   : width * Spacing::PairLabelShare;
        double needed = SmallestValue;
        bool hasLabel = false;
        for (const TemplatePair& pair : pairs.pairs) {
            hasLabel = hasLabel || !pair.label.IsEmpty();
            const double size = m_report.LetterSize(pair.look, pairs.look.size);
            CheckLetters(pair.line, pair.label, size, std::max(labels, SmallestShare));
            CheckLetters(pair.line, pair.value, size, std::max(width - labels, SmallestValue));
            if (HoldsFigure(pair.value))
                needed = std::max(needed, LettersOfAFigure * size);
        }
        if (width - labels < needed - Tolerance)
            m_fault(line,
                QStringLiteral("the labels leave %1 mm for their values, which need %2 mm")
                    .arg(Shown(width - labels), Shown(needed)));
        if (hasLabel && labels < SmallestShare - Tolerance)
            m_fault(line,
                QStringLiteral("the labels have %1 mm, but need %2 mm")
                    .arg(Shown(labels), Shown(SmallestShare)));
    }

    void CheckLanes(const TemplateLanes& lanes, int line, double width)
    {
        std::vector<WidthRule> rules;
        for (const TemplateLane& lane : lanes.lanes) {
            rules.push_back(lane.width);
            if (!lane.elements.empty())
                CheckShare(lane.width, lane.line);
        }
        CheckRules(rules, line, InFrame(lanes.frame, width), lanes.gap * Paper::PointsPerMillimetre);
        const std::vector<double> widths = LaneWidths(lanes, width);
        for (std::size_t i = 0; i < lanes.lanes.size(); ++i) {
            const TemplateLane& lane = lanes.lanes[i];
            if (widths[i] < SmallestShare - Tolerance)
                continue;
            const double own = InFrame(lane.frame, widths[i]);
            CheckElements(lane.elements, own);
            CheckElements(lane.bottom, own);
        }
    }

    void CheckTable(const TemplateTable& table, int line, double width)
    {
        std::vector<WidthRule> rules;
        for (const TemplateColumn& column : table.columns) {
            rules.push_back(column.width);
            if (!column.cell.IsEmpty() || !column.head.IsEmpty() || column.total)
                CheckShare(column.width, column.line);
        }
        CheckRules(rules, line, width, 0);
        CheckCells(table, ColumnWidths(table, width));
        std::size_t spanned = 0;
        for (const TemplateSpan& span : table.spans)
            spanned += static_cast<std::size_t>(span.columns);
        if (spanned > table.columns.size())
            m_fault(line,
                QStringLiteral("the heads span %1 columns, but there are %2")
                    .arg(spanned)
                    .arg(table.columns.size()));
    }

    // Columns that are too narrow for anything have been reported already and are taken as wide enough here.
    void CheckCells(const TemplateTable& table, const std::vector<double>& widths)
    {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const TemplateColumn& column = table.columns[i];
            const double size = m_report.LetterSize(column.look, table.look.size);
            const double width = std::max(widths[i], SmallestShare);
            CheckLetters(column.line, column.cell.IsEmpty() ? column.head : column.cell, size, width);
        }
        CheckTotalLabel(table, widths);
        for (const TemplateGroup& group : table.groups) {
            CheckLines(table, group.headLines, widths);
            CheckLines(table, group.footLines, widths);
        }
        CheckLines(table, table.totalLines, widths);
    }

    void CheckLines(
        const TemplateTable& table, const std::vector<TemplateLine>& lines, const std::vector<double>& widths)
    {
        for (const TemplateLine& line : lines) {
            std::size_t at = 0;
            for (const TemplateSpan& cell : line.cells) {
                double width = 0;
                for (int i = 0; i < cell.columns && at < widths.size(); ++i)
                    width += widths[at++];
                const double size = m_report.LetterSize(cell.look, table.look.size);
                CheckLetters(cell.line, cell.text, size, std::max(width, SmallestShare));
            }
        }
    }

    void CheckTotalLabel(const TemplateTable& table, const std::vector<double>& widths)
    {
        const bool hasLabel = (table.totalLabel && !table.totalLabel->IsEmpty()) || table.page
            || std::any_of(table.groups.begin(), table.groups.end(),
                [](const TemplateGroup& group) { return !group.foot.IsEmpty(); });
        double room = 0;
        std::size_t first = 0;
        while (first < widths.size() && !table.columns[first].total && !table.columns[first].totalIsOwnSum) {
            room += table.columns[first].condition ? 0 : widths[first];
            ++first;
        }
        const double needed = LettersOfALabel * m_report.LetterSize(table.look);
        if (hasLabel && room > 0 && first < widths.size() && room < needed - Tolerance)
            m_fault(table.columns[first].line,
                QStringLiteral("before the first total there are %1 mm for its label, which needs %2 mm")
                    .arg(Shown(room), Shown(needed)));
    }

    void CheckShare(const WidthRule& rule, int line)
    {
        if (!rule.isShare && rule.millimetres * Paper::PointsPerMillimetre < SmallestShare - Tolerance)
            m_fault(line,
                QStringLiteral("w=\"%1\" is too narrow for what stands there: it needs %2 mm")
                    .arg(rule.millimetres)
                    .arg(Shown(SmallestShare)));
    }

    void CheckRules(const std::vector<WidthRule>& rules, int line, double width, double gap)
    {
        double needed = rules.empty() ? 0 : gap * static_cast<double>(rules.size() - 1);
        for (const WidthRule& rule : rules)
            needed += rule.isShare ? SmallestShare : rule.millimetres * Paper::PointsPerMillimetre;
        if (needed > width + Tolerance)
            m_fault(line,
                QStringLiteral("the columns need %1 mm, but there are %2 mm")
                    .arg(Shown(needed), Shown(width)));
    }

    const ReportTemplate& m_report;
    const std::function<void(int, const QString&)>& m_fault;
};

}

void CheckWidths(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault)
{
    WidthChecker(report, fault).CheckAll();
}

#include "TemplateWidths.h"

#include <algorithm>

namespace {

constexpr double SmallestShare = 4 * PointsPerMillimetre;
constexpr double Tolerance = 0.05;

class WidthChecker {
public:
    WidthChecker(double pageHeight, const std::function<void(int, const QString&)>& fault)
        : m_pageHeight(pageHeight)
        , m_fault(fault)
    {
    }

    void CheckElements(const std::vector<TemplateElement>& elements, double width) const
    {
        for (const TemplateElement& element : elements)
            CheckElement(element, width);
    }

private:
    void CheckElement(const TemplateElement& element, double width) const
    {
        if (element.kind == ElementKind::Columns)
            CheckLanes(element, width);
        if (element.kind == ElementKind::Pairs && element.size * PointsPerMillimetre >= width)
            m_fault(element.line, QStringLiteral("the labels leave no room for their values"));
        if (element.kind == ElementKind::Space && element.size * PointsPerMillimetre > m_pageHeight)
            m_fault(element.line, QStringLiteral("the space is taller than the page"));
        if (element.table)
            CheckTable(*element.table, element.line, width);
        if (element.chart && element.chart->height * PointsPerMillimetre > m_pageHeight)
            m_fault(element.line, QStringLiteral("the chart is taller than the page"));
        CheckElements(element.children, width);
    }

    void CheckLanes(const TemplateElement& element, double width) const
    {
        std::vector<WidthRule> rules;
        for (const TemplateLane& lane : element.lanes)
            rules.push_back(lane.width);
        const double gap = element.size * PointsPerMillimetre;
        CheckRules(rules, element.line, width, gap);
        const std::vector<double> widths = DivideWidth(rules, width, gap);
        for (std::size_t i = 0; i < element.lanes.size(); ++i)
            CheckElements(element.lanes[i].elements, widths[i]);
    }

    void CheckTable(const TemplateTable& table, int line, double width) const
    {
        std::vector<WidthRule> rules;
        for (const TemplateColumn& column : table.columns)
            rules.push_back(column.width);
        CheckRules(rules, line, width, 0);
        std::size_t spanned = 0;
        for (const TemplateSpan& span : table.spans)
            spanned += static_cast<std::size_t>(span.columns);
        if (spanned > table.columns.size())
            m_fault(line,
                QStringLiteral("the heads span %1 columns, but there are %2")
                    .arg(spanned)
                    .arg(table.columns.size()));
    }

    void CheckRules(const std::vector<WidthRule>& rules, int line, double width, double gap) const
    {
        double needed = rules.empty() ? 0 : gap * static_cast<double>(rules.size() - 1);
        for (const WidthRule& rule : rules)
            needed += rule.isShare ? SmallestShare : rule.millimetres * PointsPerMillimetre;
        if (needed > width + Tolerance)
            m_fault(line,
                QStringLiteral("the columns need %1 mm, but there are %2 mm")
                    .arg(needed / PointsPerMillimetre, 0, 'f', 1)
                    .arg(width / PointsPerMillimetre, 0, 'f', 1));
    }

    double m_pageHeight;
    const std::function<void(int, const QString&)>& m_fault;
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
    const WidthChecker checker(report.paper.BodyHeight(), fault);
    checker.CheckElements(report.header, report.paper.BodyWidth());
    checker.CheckElements(report.footer, report.paper.BodyWidth());
    checker.CheckElements(report.body, report.paper.BodyWidth());
}

#include "platform/template/TemplateWidths.h"

#include "platform/template/Spacing.h"

#include <algorithm>

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

std::vector<double> LaneWidths(const TemplateLanes& lanes, double width)
{
    std::vector<WidthRule> rules;
    for (const TemplateLane& lane : lanes.lanes)
        rules.push_back(lane.width);
    return DivideWidth(rules, InFrame(lanes.frame, width), lanes.gap * PointsPerMillimetre);
}

std::vector<double> ColumnWidths(const TemplateTable& table, double width)
{
    std::vector<WidthRule> rules;
    for (const TemplateColumn& column : table.columns)
        rules.push_back(column.width);
    return DivideWidth(rules, width, 0);
}

double InFrame(double frame, double width)
{
    return frame > 0 ? width - 2 * Spacing::BoxPadding : width;
}

#include "platform/template/TemplateWidths.h"

#include "platform/template/Spacing.h"

std::vector<double> LaneWidths(const TemplateLanes& lanes, double width)
{
    std::vector<WidthRule> rules;
    for (const TemplateLane& lane : lanes.lanes)
        rules.push_back(lane.width);
    return DivideWidth(rules, InFrame(lanes.frame, width), lanes.gap * Paper::PointsPerMillimetre);
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

#include "platform/template/WidthRule.h"

#include "platform/template/Paper.h"

#include <algorithm>

std::vector<double> DivideWidth(const std::vector<WidthRule>& rules, double width, double gap)
{
    double left = rules.empty() ? 0 : width - gap * static_cast<double>(rules.size() - 1);
    double shares = 0;
    for (const WidthRule& rule : rules) {
        if (rule.isShare)
            shares += 1;
        else
            left -= rule.millimetres * Paper::PointsPerMillimetre;
    }
    std::vector<double> widths;
    widths.reserve(rules.size());
    for (const WidthRule& rule : rules)
        widths.push_back(
            rule.isShare ? std::max(left, 0.0) / shares : rule.millimetres * Paper::PointsPerMillimetre);
    return widths;
}

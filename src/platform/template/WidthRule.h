#pragma once

#include <vector>

// A width of a template: millimetres, or a share of what is left.
struct WidthRule {
    double millimetres = 0;
    bool isShare = true;
};

// Widths in points for rules of widths: the shares divide what is left.
std::vector<double> DivideWidth(const std::vector<WidthRule>& rules, double width, double gap);

#pragma once

#include <vector>

// A width in a template: millimetres, or a share of what is left.
struct WidthRule {
    double millimetres = 0;
    bool isShare = true;
};

// Turns rules into widths in points. The shares divide what the others leave.
std::vector<double> DivideWidth(const std::vector<WidthRule>& rules, double width, double gap);

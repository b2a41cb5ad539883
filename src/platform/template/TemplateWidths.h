#pragma once

#include "platform/template/TemplateElement.h"

// Widths in points; the check and the layout must agree on them.

// The widths of blocks side by side, and of the columns of a table if none is left out by its `if`.
std::vector<double> LaneWidths(const TemplateLanes& lanes, double width);
std::vector<double> ColumnWidths(const TemplateTable& table, double width);

// The width inside of a frame; without a frame, all of it.
double InFrame(double frame, double width);

#pragma once

#include "platform/template/TemplateElement.h"

// How widths are shared out, in points; the check and the filling of a template divide them alike.

// The widths of blocks side by side, and of the columns of a table if all of them are there.
std::vector<double> LaneWidths(const TemplateLanes& lanes, double width);
std::vector<double> ColumnWidths(const TemplateTable& table, double width);

// What a frame leaves of a width; all of it where there is none.
double InFrame(double frame, double width);

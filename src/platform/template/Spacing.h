#pragma once

#include "platform/template/Paper.h"

// Lengths that the filling and the check of a template share; points.
namespace Spacing {

inline constexpr float RuleGap = 1.5F; // above and below a rule
inline constexpr float SmallestBody = 30; // what head and foot of a page must leave
inline constexpr double SmallestShare = 4 * PointsPerMillimetre; // of a column with anything in it
inline constexpr float CellPadding = 2; // left and right of a cell's text
inline constexpr float RowPadding = 0.5F; // above and below it
inline constexpr float BoxPadding = 4; // between a frame and what stands in it
inline constexpr float HeadRule = 0.8F; // above and below the heads of a table
inline constexpr double PairLabelShare = 0.4; // of the width, where a template doesn't say it
inline constexpr double ChartAxis = 46; // for the figures at the left of a chart
inline constexpr double ChartGap = 4; // between a chart and its labels
inline constexpr double ChartLabel = 26; // what a label under a chart needs at least

}

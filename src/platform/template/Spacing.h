#pragma once

#include "platform/template/Paper.h"

// Lengths in points that both the check and the layout of a template go by.
namespace Spacing {

inline constexpr float RuleGap = 1.5F; // above and below a rule
inline constexpr float SmallestBody = 30; // what the header and footer must leave of the page
inline constexpr double SmallestShare = 4 * Paper::PointsPerMillimetre; // of a column that isn't empty
inline constexpr float CellPadding = 2; // to the left and right of the text of a cell
inline constexpr float RowPadding = 0.5F; // above and below it
inline constexpr float BoxPadding = 4; // between a frame and what stands in it
inline constexpr float HeadRule = 0.8F; // above and below the heads of a table
inline constexpr double PairLabelShare = 0.4; // share of the width, unless the template gives one
inline constexpr double ChartAxis = 46; // width of the scale at the left of a chart
inline constexpr double ChartGap = 4; // between the chart and its labels
inline constexpr double ChartLabel = 26; // least width of a label below a chart

}

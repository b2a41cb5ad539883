#pragma once

#include <QString>

#include <vector>

// Figures of what some work has left in the books, such as counts and sums.
using Traces = std::vector<double>;

// All figures of all rows of some queries.
Traces TracesOf(const std::vector<QString>& queries);

// Throws unless both ways have left the same, to within half a paisa for each member.
void RequireSameTraces(const Traces& byScreen, const Traces& byFloor);

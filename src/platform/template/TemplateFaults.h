#pragma once

#include <QString>

#include <vector>

// A fault of a template, and its line.
struct TemplateFault {
    QString file;
    int line = 0;
    QString text;

    // "file:line: text"
    QString Line() const;
};
using TemplateFaults = std::vector<TemplateFault>;

// Beyond this number of faults no more are looked for.
inline constexpr std::size_t MostFaults = 100;

// Sorts faults by line. If there are more than MostFaults, only those are kept, and one more that says so.
void SortAndCut(TemplateFaults& faults);

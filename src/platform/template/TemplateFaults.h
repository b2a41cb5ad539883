#pragma once

#include <QString>

#include <vector>

// What is wrong with a template, and where.
struct TemplateFault {
    QString file;
    int line = 0;
    QString text;

    // "file:line: text"
    QString Line() const;
};
using TemplateFaults = std::vector<TemplateFault>;

// A template with more faults than this isn't looked at to its end.
inline constexpr std::size_t MostFaults = 100;

// Sorts faults by line. Of more than MostFaults the first are kept, with a last one that says so.
void SortAndCut(TemplateFaults& faults);

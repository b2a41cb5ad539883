#pragma once

#include <QString>

#include <vector>

// A fault of a template, and its line.
struct TemplateFault {
    QString file;
    int line = 0;
    QString text;

    // Beyond this number of faults no more are looked for.
    static constexpr std::size_t Most = 100;

    // "file:line: text"
    QString Line() const;
};
using TemplateFaults = std::vector<TemplateFault>;

// Sorts faults by line. If there are more than TemplateFault::Most, only those are kept, and one more that
// says so.
void SortAndCut(TemplateFaults& faults);

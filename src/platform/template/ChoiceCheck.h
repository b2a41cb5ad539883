#pragma once

#include "platform/template/ReportTemplate.h"

#include <functional>
#include <set>

// How a template uses its sources, as far as the check has seen.
struct SourceUse {
    std::set<int> walked; // sources that some element goes through row by row
    std::set<int> readByFirstRow; // sources whose first row is used outside of such a walk
};

// Reports each source whose `only` depends on the current row of another source, although the rows of the
// source itself are selected just once and then kept.
void CheckChoices(const ReportTemplate& report, const SourceUse& use,
    const std::function<void(int, const QString&)>& fault);

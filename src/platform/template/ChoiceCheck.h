#pragma once

#include "platform/template/ReportTemplate.h"

#include <functional>
#include <set>

// How the sources of a template are come by, as the check has seen it.
struct SourceUse {
    std::set<int> walked; // row by row, somewhere in the template
    std::set<int> readByFirstRow; // while they are not being walked
};

// Tells of every source whose `only` goes by the row of a source that moves on, although its own rows are
// chosen once and kept.
void CheckChoices(const ReportTemplate& report, const SourceUse& use,
    const std::function<void(int, const QString&)>& fault);

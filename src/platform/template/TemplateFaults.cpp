#include "platform/template/TemplateFaults.h"

#include <algorithm>

QString TemplateFault::Line() const
{
    return QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(text);
}

void SortAndCut(TemplateFaults& faults)
{
    std::stable_sort(faults.begin(), faults.end(),
        [](const TemplateFault& a, const TemplateFault& b) { return a.line < b.line; });
    if (faults.size() <= TemplateFault::Most)
        return;
    faults.resize(TemplateFault::Most + 1);
    faults.back().text = QStringLiteral("there are more faults than %1").arg(TemplateFault::Most);
}

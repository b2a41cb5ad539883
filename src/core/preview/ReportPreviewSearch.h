#pragma once

#include "platform/report/Report.h"

// All places of a text in the pages laid out so far, in reading order. The text is in the books' encoding;
// figures are found in either script, dates as they are typed.
std::vector<Report::Found> FindInReport(const Report& report, const QString& stored);

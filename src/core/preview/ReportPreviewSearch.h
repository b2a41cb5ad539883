#pragma once

#include "platform/report/Report.h"

// All places of a text in the pages so far, from the first page to the last and from top to bottom. The
// text is as it is stored; its figures are found in either script, and dates as they are typed.
std::vector<Report::Found> FindInReport(const Report& report, const QString& stored);

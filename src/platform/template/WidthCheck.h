#pragma once

#include "platform/template/ReportTemplate.h"

#include <functional>

// Reports everything that is wider than the paper, or too narrow to be read.
void CheckWidths(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault);

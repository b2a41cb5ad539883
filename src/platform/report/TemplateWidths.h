#pragma once

#include "platform/report/ReportTemplate.h"

#include <functional>

// Tells of everything that is wider, or taller, than the paper of a template, or too narrow to be read.
void CheckWidths(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault);

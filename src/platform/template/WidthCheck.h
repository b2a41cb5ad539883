#pragma once

#include "platform/template/ReportTemplate.h"

#include <functional>

// Tells of everything that is wider than the paper of a template, or too narrow to be read.
void CheckWidths(const ReportTemplate& report, const std::function<void(int, const QString&)>& fault);

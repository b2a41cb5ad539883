#pragma once

#include "platform/template/ReportTemplate.h"

class Connection;

// The whole check of a template before it is laid out: Check, and what depends on the fonts of this machine.
// Uses the first of the template's fonts that is installed. Reports if none is, and whatever is taller than
// the paper.
TemplateFaults CheckForLayout(ReportTemplate& report, Connection& connection);

// Reads a template file and checks all of it. The faults are sorted and cut by SortAndCut.
ReportTemplate ReadForLayout(const QString& file, Connection& connection, TemplateFaults& faults);

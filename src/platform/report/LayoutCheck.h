#pragma once

#include "platform/template/ReportTemplate.h"

class Connection;

// The whole check of a template: Check of the language, and what depends on the fonts of this machine. Takes
// the first of its fonts that is installed, and tells of none, and of what is taller than the paper. Only a
// template without faults can be laid out.
TemplateFaults CheckForLayout(ReportTemplate& report, Connection& connection);

// Reads a template file and checks all of it. The faults come in the order of their lines; of very many only
// the first, and that there are more.
ReportTemplate ReadForLayout(const QString& file, Connection& connection, TemplateFaults& faults);

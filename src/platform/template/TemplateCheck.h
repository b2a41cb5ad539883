#pragma once

#include "platform/template/ReportTemplate.h"

class Connection;

// Checks a template against the tables of an open connection and the width of its paper, and binds its names
// to columns. Nothing is read from the tables, and no fonts are needed: what depends on them is checked by
// CheckForLayout. A template that couldn't be read to its end isn't checked.
TemplateFaults Check(ReportTemplate& report, Connection& connection);

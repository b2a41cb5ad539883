#pragma once

#include "platform/template/ReportTemplate.h"

class Connection;

// Compares a template with the tables of an open connection and with its paper, and binds its names to them:
// only a template that was checked without faults can be filled. No row is read, and no font is asked for:
// what letters take up is checked by whoever lays the template out. A text that couldn't be read to its end
// has no other faults than that.
TemplateFaults Check(ReportTemplate& report, Connection& connection);

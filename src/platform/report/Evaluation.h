#pragma once

#include "platform/template/TemplateText.h"

class ReportData;
struct ReportTemplate;

// The value of a checked expression in the current rows.
Value Evaluate(const Expression& expression, ReportData& data);

// A text with its expressions evaluated and printed.
QString Fill(const TemplateText& text, ReportData& data);

// The same for a spreadsheet, which wouldn't read a number with commas. `filled` is the result of Fill.
QString FillForRecord(const TemplateText& text, const QString& filled, ReportData& data);

// True if a checked text contains a number, alone or among words.
bool HoldsFigure(const TemplateText& text, const ReportTemplate& report);

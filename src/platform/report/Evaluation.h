#pragma once

#include "platform/template/TemplateText.h"

class ReportData;
struct ReportTemplate;

// Stands in a text for the number of pages until that is known.
inline constexpr QChar PageCountMark = QChar(0xFDD0);

// The value of a checked expression for the rows that are current.
Value Evaluate(const Expression& expression, ReportData& data);

// A text of a template with its expressions worked out.
QString Fill(const TemplateText& text, ReportData& data);

// The same for a spreadsheet, which reads a number only if its digits stand in one: `filled` is what Fill
// gave.
QString FillForRecord(const TemplateText& text, const QString& filled, ReportData& data);

// Whether a number of a checked template stands in a text, alone or among words.
bool HoldsFigure(const TemplateText& text, const ReportTemplate& report);

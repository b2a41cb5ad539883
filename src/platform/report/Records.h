#pragma once

#include "platform/report/ReportData.h"

// Which rows of a report go into a spreadsheet: those of its first table; without a table, those of its first
// part that comes once a row; else the first row of its first source.
struct RecordPlan {
    const TemplateTable* table = nullptr;
    const TemplateEach* each = nullptr; // only without a table
    std::vector<const TemplateEach*> around; // the parts that it stands in, and `each`, the outermost first

    // Where a part stands among these, from 1; 0 if it is none of them.
    std::size_t DepthOf(const TemplateEach& part) const;

    static RecordPlan Of(const std::vector<TemplateElement>& body);
};

// What stands above the records: the columns of the rows around them, then the groups of the table and its
// columns that hold anything, each under the words that stand above it.
QStringList RecordHeads(const RecordPlan& plan, ReportData& data);

// The fields of the rows around that are current now, in the order of the heads: those of so many parts, the
// outermost first.
QStringList FieldsAround(const RecordPlan& plan, std::size_t parts, ReportData& data);

// The columns that a template reads of a source, and what they hold in its current row, as it stands on
// paper.
QStringList FieldNames(int source, const ReportData& data);
QStringList Fields(int source, ReportData& data);

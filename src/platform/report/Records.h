#pragma once

#include "ReportData.h"

// Which rows of a report go into a spreadsheet: those of its first table; without a table, those of its first
// part that comes once a row; else the first row of its first source.
struct RecordPlan {
    const TemplateTable* table = nullptr;
    const TemplateElement* each = nullptr; // only without a table
    std::vector<int> around; // the sources of the parts that it stands in, and of `each`, the outermost first

    static RecordPlan Of(const std::vector<TemplateElement>& body);
};

// What stands above the records: the columns of the rows around them, then the groups of the table and its
// columns that hold anything, each under the words that stand above it.
QStringList RecordHeads(const RecordPlan& plan, ReportData& data);

// The fields of the rows around that are current now, in the order of the heads.
QStringList FieldsAround(const RecordPlan& plan, ReportData& data);

// The columns that a template reads of a source, and what they hold in its current row, as the eye sees it.
QStringList FieldNames(int source, const ReportData& data);
QStringList Fields(int source, ReportData& data);

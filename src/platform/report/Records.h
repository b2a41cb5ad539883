#pragma once

#include "platform/report/ReportData.h"

// Which rows of a report go into a spreadsheet, as records: those of its first table; without a table, those
// of its first <each>; without either, only the first row of its first source.
struct RecordPlan {
    const TemplateTable* table = nullptr;
    const TemplateEach* each = nullptr; // set only if there is no table
    std::vector<const TemplateEach*> around; // all <each> around it, outermost first, and `each` itself

    // The position of an <each> in `around`, counted from 1; 0 if it isn't there.
    std::size_t DepthOf(const TemplateEach& part) const;

    static RecordPlan Of(const std::vector<TemplateElement>& body);
};

// The heads of the records: the columns of the rows around, then the groups of the table, then its columns
// that aren't empty, with the heads that span them.
QStringList RecordHeads(const RecordPlan& plan, ReportData& data);

// The fields of the current rows of the first `parts` <each> around, in the order of the heads.
QStringList FieldsAround(const RecordPlan& plan, std::size_t parts, ReportData& data);

// The columns of a source that the template uses, and their values in the current row as they are printed.
QStringList FieldNames(int source, const ReportData& data);
QStringList Fields(int source, ReportData& data);

#pragma once

#include "platform/report/ReportData.h"

#include <memory>

// A walk through the rows of a source: all of it, those that hang on the parent's current row, or a run of
// them.
class RowWalk {
public:
    // Stands before the first row.
    RowWalk(ReportData& data, int source);

    // Puts the next row into `row`; false at the end.
    bool Next(Row& row);

private:
    bool NextOwn(Row& row);
    bool NextLinked(Row& row);

    ReportData& m_data;
    int m_source;
    std::unique_ptr<Recordset> m_rows;
    const std::vector<Row>* m_linked = nullptr;
    std::size_t m_at = 0;
};

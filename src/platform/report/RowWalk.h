#pragma once

#include "platform/report/ReportData.h"

#include <memory>

// Goes through the rows of a source: all of them, those linked to the parent's current row, or those of one
// value of an <each by>.
class RowWalk {
public:
    // Begins before the first row.
    RowWalk(ReportData& data, int source);

    // Reads the next row into `row`; false at the end.
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

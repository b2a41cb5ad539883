#include "platform/report/RowWalk.h"

RowWalk::RowWalk(ReportData& data, int source) : m_data(data), m_source(source)
{
    if (data.Run(source))
        m_linked = data.Run(source);
    else if (data.Template().sources[static_cast<std::size_t>(source)].parent >= 0)
        m_linked = &data.LinkedRows(source);
    else
        m_rows = std::make_unique<Recordset>(data.Open(source));
}

bool RowWalk::Next(Row& row)
{
    return m_linked ? NextLinked(row) : NextOwn(row);
}

bool RowWalk::NextLinked(Row& row)
{
    if (m_at == m_linked->size())
        return false;
    row = (*m_linked)[m_at++];
    return true;
}

bool RowWalk::NextOwn(Row& row)
{
    while (!m_rows->Eof()) {
        m_data.ReadRow(m_source, *m_rows, row);
        m_rows->MoveNext();
        if (m_data.Passes(m_source, row))
            return true;
    }
    return false;
}

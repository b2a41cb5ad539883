#pragma once

#include "platform/database/Recordset.h"
#include "platform/report/SelectionFormula.h"
#include "platform/template/ReportTemplate.h"

#include <QHash>

#include <memory>
#include <vector>

// One row of a source: the columns that the template uses, with texts as they are stored.
using Row = std::vector<Value>;

class Accumulators;

// The data that expressions are evaluated on while a template is filled: the current rows of all sources,
// the totals so far, and the page number.
class ReportData {
public:
    // Reads through an open connection, each table of the checked template when it is first needed.
    ReportData(const ReportTemplate& report, Connection& connection, Selection selection);
    ~ReportData();

    const ReportTemplate& Template() const { return m_report; }

    // The row that fields of a source are taken from now: while its rows are gone through, the current row;
    // else the first row that is linked to the parent's current row, or the first of all if it has no
    // parent. nullptr if there is none.
    const Row* CurrentRow(int source);

    // Sets the current row of a walk, and nullptr at its end.
    void SetCurrent(int source, const Row* row) { m_current[static_cast<std::size_t>(source)] = row; }
    const Row* Walked(int source) const { return m_current[static_cast<std::size_t>(source)]; }

    // Inside an <each by>, a walk through the same source goes through the rows of one value only. These are
    // the rows, or nullptr elsewhere.
    void SetRun(int source, const std::vector<Row>* rows) { m_runs[static_cast<std::size_t>(source)] = rows; }
    const std::vector<Row>* Run(int source) const { return m_runs[static_cast<std::size_t>(source)]; }

    // The value of a variable such as $society.
    Value Variable(const QString& name);

    // A stored text in Unicode.
    QString Seen(const QString& stored);

    // The rows of a linked source for the current row of its parent.
    const std::vector<Row>& LinkedRows(int source);

    // Opens the rows of a source in its order.
    Recordset Open(int source);

    // Reads the current row of the recordset into `row`.
    void ReadRow(int source, const Recordset& rows, Row& row) const;

    // True if the row passes the `only` of its source.
    bool Passes(int source, const Row& row);

    int Page = 0;
    const Accumulators* Totals = nullptr; // totals of the table that is being filled
    const Accumulators* GroupTotals = nullptr; // its totals over the printed rows of rows="groups"
    int TotalsLevel = 0; // 0: the whole table; n: its n-th group

private:
    using RowsByKey = QHash<QString, std::vector<Row>>;

    QString Query(const TemplateSource& source) const;
    const RowsByKey& Linked(int source);
    const Row* FirstRow(int source);

    const ReportTemplate& m_report;
    Connection& m_connection;
    Selection m_selection;
    int m_selected = -1; // index of the source that the selection applies to
    std::vector<const Row*> m_current;
    std::vector<const std::vector<Row>*> m_runs;
    std::vector<std::unique_ptr<RowsByKey>> m_linked;
    std::vector<std::unique_ptr<std::vector<Row>>> m_first; // first rows, read when needed
    QHash<QString, Value> m_variables;
    QHash<QString, QString> m_seen;
};

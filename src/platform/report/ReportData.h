#pragma once

#include "platform/database/Recordset.h"
#include "platform/report/SelectionFormula.h"
#include "platform/template/ReportTemplate.h"

#include <QHash>

#include <memory>
#include <vector>

// One row of a source: the columns that the template uses, texts as they are stored.
using Row = std::vector<Value>;

class Accumulators;

// What the expressions of a template look at while it is filled: the rows that are being walked through, the
// rows linked to them, the totals so far, and the number of the page.
class ReportData {
public:
    // Reads the tables of a checked template through an open connection, each when it is first needed.
    ReportData(const ReportTemplate& report, Connection& connection, Selection selection);
    ~ReportData();

    const ReportTemplate& Template() const { return m_report; }

    // The row that a field of a source stands for now: the one being walked through; else the first of those
    // linked to the parent's row; else the source's first. nullptr if there is none.
    const Row* CurrentRow(int source);

    // Walking sets the row that is being walked through, and nullptr when it has ended.
    void SetCurrent(int source, const Row* row) { m_current[static_cast<std::size_t>(source)] = row; }
    const Row* Walked(int source) const { return m_current[static_cast<std::size_t>(source)]; }

    // The rows of a source that are walked where it is walked once more within an <each> of their value;
    // nullptr where it isn't.
    void SetRun(int source, const std::vector<Row>* rows) { m_runs[static_cast<std::size_t>(source)] = rows; }
    const std::vector<Row>* Run(int source) const { return m_runs[static_cast<std::size_t>(source)]; }

    // $society and its like.
    Value Variable(const QString& name);

    // A stored text as the eye sees it.
    QString Seen(const QString& stored);

    // The rows that hang on the parent's current row; the walk through a source without a parent reads its
    // own.
    const std::vector<Row>& LinkedRows(int source);

    // Opens a source's rows, in its order.
    Recordset Open(int source);

    // Puts the row that the recordset stands at into `row`.
    void ReadRow(int source, const Recordset& rows, Row& row) const;

    // Whether the source's own condition lets a row pass.
    bool Passes(int source, const Row& row);

    int Page = 0;
    const Accumulators* Totals = nullptr; // of the table being filled
    const Accumulators* GroupTotals = nullptr; // of its rows that stand for groups
    int TotalsLevel = 0; // 0: the whole table; n: its n-th group

private:
    using RowsByKey = QHash<QString, std::vector<Row>>;

    QString Query(const TemplateSource& source) const;
    const RowsByKey& Linked(int source);
    const Row* FirstRow(int source);

    const ReportTemplate& m_report;
    Connection& m_connection;
    Selection m_selection;
    int m_selected = -1; // the source that the selection narrows
    std::vector<const Row*> m_current;
    std::vector<const std::vector<Row>*> m_runs;
    std::vector<std::unique_ptr<RowsByKey>> m_linked;
    std::vector<std::unique_ptr<std::vector<Row>>> m_first; // one row, or none
    QHash<QString, Value> m_variables;
    QHash<QString, QString> m_seen;
};

#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/Control.h"

#include <QAbstractTableModel>

#include <vector>

class QTableView;

// The rows of a query as a table to look at. What was written is seen after Refresh. The rows far below the
// first are read when they are first asked for, so that a long list is shown as quickly as a short one.
class DataGrid final : public Control {
public:
    struct Column {
        QString field; // in the query, any spelling
        Caption caption;
        int width = 100; // pixels; 0 takes what is left
        QString format = {}; // of numbers and dates; empty shows the value as it is
        bool alignRight = false;
        bool stored = true; // a text in the system's encoding; false for dates and figures without a format
    };

    DataGrid(Screen* screen, const char* name, std::vector<Column> columns);
    ~DataGrid() override;

    // The mouse has pressed a row, which is the current one now.
    Event Click;

    // The rows to show. The connection must outlive the grid.
    void Bind(Connection& connection, const QString& query);
    void Refresh();

    // Reads the rows that haven't been needed yet, so that the list stays whole when what the query reads is
    // about to change.
    void ReadAll();

    int Rows() const;
    int CurrentRow() const;
    void SetCurrentRow(int row);

    // A value of a row shown, by field; Null for a row or a field that isn't there.
    FieldValue Value(int row, QStringView field) const;

    // What the eye meets in a cell of a row shown.
    QString Cell(int row, int column) const;

    // The first column of the current row.
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;
    void MouseDone() override;

private:
    class Model;
    QTableView& View() const;
    void LayOut();
    void Reach(int row) const;

    std::unique_ptr<Model> m_model;
    bool m_isRowPressed = false; // by the mouse, which hasn't let go yet
};

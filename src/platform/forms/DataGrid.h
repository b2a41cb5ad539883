#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/Control.h"

#include <QAbstractTableModel>

#include <map>
#include <vector>

class QTableView;

// A row of a grid as the clerk has edited it, for the screen to write. Field names are found in upper and
// lower case alike.
class GridRow {
public:
    // Whether the row is to be inserted; else it was read from the database.
    bool IsNew() const { return m_isNew; }

    // The value that was read; Null in a new row.
    FieldValue Before(QStringView field) const;

    // The present text of the field as it is stored: what was typed, else what was read.
    QString Text(QStringView field) const;

    // The number that Text begins with; 0 if it begins with none.
    double Number(QStringView field) const;

private:
    friend class DataGrid;

    bool m_isNew = true;
    std::map<QString, FieldValue> m_before; // by field name in lower case
    std::map<QString, QString> m_typed;
};

// The rows of a query as a table, to look at or to edit. It shows what was written after Refresh. At first
// only some rows are read, and the rest when the clerk goes there, so that a long list opens as fast as a
// short one.
class DataGrid final : public Control {
public:
    struct Column {
        QString field; // its name in the query, in upper or lower case
        Caption caption;
        int width = 100; // pixels; 0 for the width that the others leave
        QString format = {}; // of numbers and dates; empty shows the value as it is, a date as dd/MM/yyyy
        bool alignRight = false;
        bool stored = true; // a text in the system's encoding; false for figures without a format
    };

    // What the screen does with an edited row. Each function returns whether it has accepted the row; if not,
    // the row stays as it was typed and the clerk stays in it.
    struct Editing {
        std::function<bool(const GridRow&)> write; // a new or a changed row
        std::function<bool(const GridRow&)> remove; // a row of the database on which Delete was pressed
    };

    DataGrid(Screen* screen, const char* name, std::vector<Column> columns);
    ~DataGrid() override;

    // The clerk has clicked a row; it is the current one by then.
    Event Click;

    // The clerk has double-clicked a row. Not in a grid that can be edited: there it opens the cell.
    Event DoubleClick;

    // Sets the query and reads it. The connection must outlive the grid.
    void Bind(Connection& connection, const QString& query);
    void Refresh();

    // Reads all rows anew and stands at the last one, where the newest is.
    void RefreshToEnd();

    // Reads the rows behind those that are shown and stands at the last one. For who has added a row and
    // changed nothing else: the others stay as they were read.
    void ShowAdded();

    // Shows no rows until it is bound again, and reads none.
    void Unbind();

    // Lets the clerk edit the rows in place and add new ones in an empty row at the end. The format of a
    // column decides what can be typed: numbers, dates, or a text. A letter or digit
    // starts a cell afresh, Backspace edits its text, Enter accepts it and goes to the next cell, Esc
    // restores the whole row. A row is written when the clerk leaves it or the grid; the grid uses its
    // LostFocus for that, so the screen can't. Enter in an empty row into which nothing was typed is left to
    // the screen.
    void Edit(Editing editing);

    // Writes the row that the clerk is in, if something was typed into it. Returns false if the screen
    // refused it.
    bool FinishRow();

    // If on, columns may be wider than the grid, and Left and Right scroll to them.
    void SetSideways(bool sideways);

    // For a long list that is searched: from the next Bind on all rows are read at once, and of each only the
    // fields of the columns.
    void SetSearched();

    // Reads all remaining rows now, before the tables that the query reads are changed.
    void ReadAll();

    int Rows() const; // without the empty row at the end
    int CurrentRow() const; // the empty row at the end is Rows()
    void SetCurrentRow(int row);

    // A value by row and field; Null if there is no such row or field.
    FieldValue Value(int row, QStringView field) const;

    // The text that is shown in a cell.
    QString Cell(int row, int column) const;

    // The value in the first column of the current row.
    QString Text() const override;

protected:
    bool KeyBeforeScreen(const QKeyEvent& key) override;
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    void ShowComposition(const QString& text) override;
    void ShowFocus(bool held) override;
    void MouseDone() override;

private:
    class Model;
    class Table;
    class CellEditor;
    DataGrid(Screen* screen, const char* name, std::unique_ptr<Model> model);
    QTableView& View() const;
    void LayOut();
    void StandAtEnd(const std::function<void()>& read);
    void Reach(int row) const;
    void SetCurrentCell(int row, int column);
    int CurrentColumn() const;
    int RowFor(int key) const;

    std::unique_ptr<Model> m_model;
    std::unique_ptr<CellEditor> m_editor; // if the grid can be edited
    bool m_isSideways = false;
    bool m_isRowPressed = false; // by the mouse, and not yet released
};

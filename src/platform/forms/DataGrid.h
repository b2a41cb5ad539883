#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/Control.h"

#include <QAbstractTableModel>

#include <map>
#include <vector>

class QTableView;

// A row of a grid as the clerk has left it, to be written. Fields are named in any spelling.
class GridRow {
public:
    // Whether it is to be added; else it is one of the rows that were read.
    bool IsNew() const { return m_isNew; }

    // As it was read; Null in a new row.
    FieldValue Before(QStringView field) const;

    // As it stands there now, in the system's spelling: what was typed, or else what was read.
    QString Text(QStringView field) const;

    // The number that the text begins with.
    double Number(QStringView field) const;

private:
    friend class DataGrid;

    bool m_isNew = true;
    std::map<QString, FieldValue> m_before; // by fields in small letters
    std::map<QString, QString> m_typed;
};

// The rows of a query as a table to look at, or to edit. What was written is seen after Refresh. The rows far
// below the first are read when they are first asked for, so that a long list is shown as quickly as a short
// one.
class DataGrid final : public Control {
public:
    struct Column {
        QString field; // in the query, any spelling
        Caption caption;
        int width = 100; // pixels; 0 takes what is left
        QString format = {}; // of numbers and dates; empty shows the value as it is, a date as dd/MM/yyyy
        bool alignRight = false;
        bool stored = true; // a text in the system's encoding; false for figures without a format
    };

    // What the screen does with what the clerk has edited. Each returns whether it has done it; a row that is
    // refused stays on the screen as it was typed, and the clerk in it.
    struct Editing {
        std::function<bool(const GridRow&)> write; // a new row, or one that was changed
        std::function<bool(const GridRow&)> remove; // one that was read; Delete was pressed on it
    };

    DataGrid(Screen* screen, const char* name, std::vector<Column> columns);
    ~DataGrid() override;

    // The mouse has pressed a row, which is the current one now.
    Event Click;

    // The mouse has pressed a row twice. In a grid to be edited it opens the cell instead.
    Event DoubleClick;

    // The rows to show. The connection must outlive the grid.
    void Bind(Connection& connection, const QString& query);
    void Refresh();

    // Lets the clerk edit the rows in place, and add new ones in an empty row below the last. The format of a
    // column says what can be typed there: numbers, dates, or a text. A letter or figure begins a cell anew,
    // Backspace goes on with what stands there; Enter takes it and goes on to the next cell, Esc gives the
    // row back as it was. A row is written when it is left, or the grid is: the grid has its own LostFocus
    // then, and the screen none. Where nothing was typed into the empty row, Enter is the screen's.
    void Edit(Editing editing);

    // Writes the row that the clerk is in, if he has typed into it. Returns false if the screen has refused
    // it.
    bool FinishRow();

    // Columns that don't fit in are scrolled to with Left and Right.
    void SetSideways(bool sideways);

    // Reads the rows that haven't been needed yet, so that the list stays whole when what the query reads is
    // about to change.
    void ReadAll();

    int Rows() const; // without the empty one
    int CurrentRow() const; // that of the empty one is Rows()
    void SetCurrentRow(int row);

    // A value of a row shown, by field; Null for a row or a field that isn't there.
    FieldValue Value(int row, QStringView field) const;

    // What the eye meets in a cell of a row shown.
    QString Cell(int row, int column) const;

    // The first column of the current row.
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
    void Reach(int row) const;
    void SetCurrentCell(int row, int column);
    int CurrentColumn() const;
    int RowFor(int key) const;

    std::unique_ptr<Model> m_model;
    std::unique_ptr<CellEditor> m_editor; // of a grid to be edited
    bool m_isSideways = false;
    bool m_isRowPressed = false; // by the mouse, which hasn't let go yet
};

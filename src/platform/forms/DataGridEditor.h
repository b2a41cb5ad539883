#pragma once

#include "platform/forms/DataGrid.h"
#include "platform/forms/Field.h"

// The fields that edit the cells of a grid, one for each column. While a cell is open its field is shown over
// it, but the grid keeps the focus and passes the keys on. For the sources of DataGrid only.
class DataGrid::CellEditor {
public:
    CellEditor(DataGrid& grid, Editing editing);

    // Opens the current cell, empty or with its text.
    void Open(bool withText);

    // Hides the field and keeps what was typed into it in the row.
    void Close();

    // See DataGrid::FinishRow.
    bool FinishRow();

    // The clerk has gone to another cell: closes the open one, and writes its row if it is another one.
    void FinishAllBut(int row, int column);

    bool KeyBeforeScreen(const QKeyEvent& key);
    bool KeyPress(const QKeyEvent& key);
    void Insert(const QString& text);
    void ShowComposition(const QString& text);

private:
    bool IsOpen() const { return m_column >= 0; }
    Control& Current() const { return *m_fields[m_column]; }
    bool HasNothingTyped() const;
    void HandOn(const QKeyEvent& key);
    void GoOn();
    void GiveBack();
    void Remove();
    void ReadAnew(int row);

    DataGrid& m_grid;
    Editing m_editing;
    std::vector<std::unique_ptr<Field>> m_fields;
    int m_row = -1; // of the open cell
    int m_column = -1; // -1 while none is open
};

#pragma once

#include "platform/forms/DataGrid.h"
#include "platform/forms/Field.h"

// The fields in which the cells of a grid are edited, one a column. A field lies over its cell while that is
// open; the grid keeps the focus and hands the keys on to it. For the grid's own files.
class DataGrid::CellEditor {
public:
    CellEditor(DataGrid& grid, Editing editing);

    // Opens the current cell, empty or with what stands there.
    void Open(bool withText);

    // Takes the field away; what was typed into it is the row's from now on.
    void Close();

    // See the grid.
    bool FinishRow();

    // The clerk has gone to another cell: what was typed elsewhere is taken, and another row is written.
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

#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Layout.h"

namespace Layout {

// A table of figures in two columns, such as what was at the opening and what is now. Line and head together
// name each field to a screen reader.
class FigureTable {
public:
    // The heads of the columns.
    FigureTable(const Caption& first, const Caption& second);

    // A figure, and the word behind it if it has one, such as which way a balance goes.
    struct Cell {
        NumberField& figure;
        Field* word = nullptr;
    };

    void Line(const Caption& caption, const Cell& first, const Cell& second);

    QGridLayout* Grid() const { return m_grid; }

private:
    void Head(const Caption& head, int column);
    void Put(const Caption& caption, const Caption& head, const Cell& cell, int column);

    Caption m_first;
    Caption m_second;
    QGridLayout* m_grid;
    int m_row = 1; // below the heads
};

}

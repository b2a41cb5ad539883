#include "platform/forms/FigureTable.h"

#include "platform/forms/Look.h"

namespace {

constexpr int FigureWidth = 128;
constexpr int WordWidth = 72;

// Where the figures stand; the word of each is in the column behind it.
constexpr int FirstColumn = 1;
constexpr int SecondColumn = 3;

}

Layout::FigureTable::FigureTable(const Caption& first, const Caption& second)
    : m_first(first)
    , m_second(second)
    , m_grid(new QGridLayout)
{
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(Roomy);
    m_grid->setRowMinimumHeight(0, FieldHeight);
    Head(first, FirstColumn);
    Head(second, SecondColumn);
}

void Layout::FigureTable::Head(const Caption& head, int column)
{
    m_grid->addWidget(Text(head, Qt::AlignRight, true), 0, column);
}

void Layout::FigureTable::Line(const Caption& caption, const Cell& first, const Cell& second)
{
    m_grid->setRowStretch(m_row, 0);
    m_grid->addWidget(Text(caption, Qt::AlignRight), m_row, 0);
    Put(caption, m_first, first, FirstColumn);
    Put(caption, m_second, second, SecondColumn);
    m_grid->setRowStretch(++m_row, 1);
}

void Layout::FigureTable::Put(const Caption& caption, const Caption& head, const Cell& cell, int column)
{
    const Caption name = Plain(QString(caption.Seen().trimmed() + u' ' + head.Seen().trimmed()));
    cell.figure.SetAccessibleName(name);
    SizeField(cell.figure, FigureWidth);
    m_grid->addWidget(cell.figure.Widget(), m_row, column);
    if (!cell.word)
        return;
    cell.word->SetAccessibleName(name);
    SizeField(*cell.word, WordWidth);
    m_grid->addWidget(cell.word->Widget(), m_row, column + 1);
}

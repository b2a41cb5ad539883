#include "platform/forms/DataGridEditor.h"

#include "platform/forms/DataGridModel.h"
#include "platform/forms/DateField.h"
#include "platform/forms/TextField.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

namespace {

// Whether a key replaces the text of the cell.
bool BeginsAnew(const QKeyEvent& key)
{
    const bool isTyped = !key.text().isEmpty() && key.text()[0].isPrint()
        && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    return isTyped || key.matches(QKeySequence::Paste);
}

bool LeadsToAnotherRow(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || key.key() == Qt::Key_PageUp
        || key.key() == Qt::Key_PageDown;
}

}

DataGrid::CellEditor::CellEditor(DataGrid& grid, Editing editing)
    : m_grid(grid)
    , m_editing(std::move(editing))
{
    for (const Column& column : grid.m_model->Columns()) {
        const QByteArray name = (grid.Name() + u'.' + column.field).toLatin1();
        Screen* screen = &grid.Owner();
        std::unique_ptr<Field> field;
        if (Model::IsDateFormat(column.format))
            field = std::make_unique<DateField>(screen, name.constData());
        else if (!column.format.isEmpty())
            field = std::make_unique<NumberField>(screen, name.constData(),
                column.format.contains(u'.') ? NumberField::Digits::Decimals : NumberField::Digits::Whole);
        else if (column.stored)
            field = std::make_unique<TextField>(screen, name.constData());
        else
            field = std::make_unique<PlainField>(screen, name.constData());
        field->SetVisible(false); // the grid has the focus
        field->SetAccessibleName(column.caption);
        field->Widget()->setParent(grid.View().viewport());
        m_fields.push_back(std::move(field));
    }
    grid.View().setAttribute(Qt::WA_InputMethodEnabled);
}

void DataGrid::CellEditor::Open(bool withText)
{
    const QModelIndex cell = m_grid.View().currentIndex();
    if (IsOpen() || !cell.isValid())
        return;
    m_row = cell.row();
    m_column = cell.column();
    m_grid.View().scrollTo(cell);
    QWidget& widget = *Current().Widget();
    widget.setGeometry(m_grid.View().visualRect(cell));
    Current().ShowFocus(true);
    m_fields[m_column]->SetText(withText ? m_grid.m_model->Written(m_row, m_column) : QString());
    if (withText)
        static_cast<QLineEdit&>(widget).end(false);
    widget.show();
}

void DataGrid::CellEditor::Close()
{
    if (!IsOpen())
        return;
    QString text = Current().Text();
    if (text == DateMask::Empty)
        text.clear();
    if (text != m_grid.m_model->Written(m_row, m_column))
        m_grid.m_model->Type(m_row, m_column, text);
    Current().ShowFocus(false);
    Current().Widget()->hide();
    m_column = -1;
}

bool DataGrid::CellEditor::FinishRow()
{
    Close();
    const int row = m_grid.m_model->TypedRow();
    if (row < 0)
        return true;
    if (!m_editing.write(m_grid.m_model->RowAt(row)))
        return false;
    ReadAnew(row);
    return true;
}

void DataGrid::CellEditor::FinishAllBut(int row, int column)
{
    if (IsOpen() && (m_row != row || m_column != column))
        Close();
    const int typed = m_grid.m_model->TypedRow();
    if (typed < 0 || typed == row)
        return;
    if (FinishRow())
        m_grid.SetCurrentCell(std::min(row, m_grid.Rows()), column);
    else
        m_grid.SetCurrentCell(typed, column);
}

bool DataGrid::CellEditor::HasNothingTyped() const
{
    return !IsOpen() && m_grid.m_model->TypedRow() < 0;
}

bool DataGrid::CellEditor::KeyBeforeScreen(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Escape:
        if (HasNothingTyped())
            return false;
        GiveBack();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (HasNothingTyped() && m_grid.CurrentRow() >= m_grid.Rows())
            return false;
        GoOn();
        return true;
    default:
        return false;
    }
}

bool DataGrid::CellEditor::KeyPress(const QKeyEvent& key)
{
    if (!IsOpen()) {
        if (key.key() == Qt::Key_Delete) {
            Remove();
            return true;
        }
        if (key.key() != Qt::Key_Backspace && !BeginsAnew(key))
            return false;
        Open(key.key() == Qt::Key_Backspace);
    } else if (LeadsToAnotherRow(key)) {
        return false;
    }
    if (IsOpen())
        HandOn(key);
    return true;
}

void DataGrid::CellEditor::HandOn(const QKeyEvent& key)
{
    if (Current().KeyPress(key))
        return;
    QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
    static_cast<QObject*>(Current().Widget())->event(&copy);
}

void DataGrid::CellEditor::Insert(const QString& text)
{
    Open(false);
    if (IsOpen())
        Current().Insert(text);
}

void DataGrid::CellEditor::ShowComposition(const QString& text)
{
    if (!text.isEmpty())
        Open(false);
    if (IsOpen())
        Current().ShowComposition(text);
}

// To the next cell; from the last one to the next row.
void DataGrid::CellEditor::GoOn()
{
    Close();
    const int row = m_grid.CurrentRow();
    const int next = m_grid.CurrentColumn() + 1;
    if (next < m_grid.m_model->columnCount())
        m_grid.SetCurrentCell(row, next);
    else if (FinishRow())
        m_grid.SetCurrentCell(std::min(row + 1, m_grid.Rows()), 0);
}

void DataGrid::CellEditor::GiveBack()
{
    Close();
    m_grid.m_model->ForgetTyped();
}

void DataGrid::CellEditor::Remove()
{
    const int row = m_grid.CurrentRow();
    GiveBack();
    if (row < 0 || row >= m_grid.Rows() || !m_editing.remove(m_grid.m_model->RowAt(row)))
        return;
    ReadAnew(row);
}

// Reads the rows again; the clerk stays at the same place.
void DataGrid::CellEditor::ReadAnew(int row)
{
    const int column = std::max(m_grid.CurrentColumn(), 0);
    m_grid.m_model->Read();
    m_grid.SetCurrentCell(std::min(row, m_grid.Rows()), column);
}

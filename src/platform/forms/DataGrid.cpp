#include "platform/forms/DataGrid.h"

#include "platform/forms/DataGridEditor.h"
#include "platform/forms/DataGridModel.h"
#include "platform/forms/Look.h"
#include "platform/forms/WholeRows.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {

constexpr int RowHeight = 30;
constexpr int HeadHeight = 34;

// Counted as the width of a column that takes the rest, when the others get their share.
constexpr int LeastOfTheRest = 130;

}

// Its rows grow with the type and its columns with the window, so that in a wide window the figures of a row
// don't stand far apart. A text column that takes the rest gets what the others don't need.
class DataGrid::Table final : public WholeRows<QTableView> {
public:
    Table(const std::vector<Column>& columns, const bool& isSideways)
        : m_columns(columns)
        , m_isSideways(isSideways)
    {
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        if (m_rowHeight == 0)
            m_rowHeight = verticalHeader()->defaultSectionSize(); // as the screen set it
        verticalHeader()->setDefaultSectionSize(Look::Pixels(m_rowHeight));
        const double share = Share();
        for (int at = 0; at < static_cast<int>(m_columns.size()); ++at) {
            if (m_columns[at].width > 0)
                setColumnWidth(at, static_cast<int>(m_columns[at].width * share));
        }
        WholeRows::resizeEvent(event);
    }

private:
    double Share() const
    {
        int widths = 0;
        bool hasLongText = false;
        for (const Column& column : m_columns) {
            widths += column.width > 0 ? column.width : LeastOfTheRest;
            hasLongText |= column.width == 0 && !column.alignRight;
        }
        const double fills = static_cast<double>(viewport()->width()) / widths;
        const double grown = static_cast<double>(window()->width()) / Look::DesktopWidth;
        return m_isSideways ? Look::Factor()
                            : std::max(Look::Factor(), hasLongText ? std::min(grown, fills) : fills);
    }

    const std::vector<Column>& m_columns;
    const bool& m_isSideways;
    int m_rowHeight = 0;
};

DataGrid::DataGrid(Screen* screen, const char* name, std::vector<Column> columns)
    : DataGrid(screen, name, std::make_unique<Model>(std::move(columns)))
{
}

DataGrid::DataGrid(Screen* screen, const char* name, std::unique_ptr<Model> model)
    : Control(screen, name, new Table(model->Columns(), m_isSideways))
    , m_model(std::move(model))
{
    View().setModel(m_model.get());
    LayOut();
    QObject::connect(&View(), &QTableView::pressed, &View(), [this] { m_isRowPressed = true; });
    QObject::connect(&View(), &QTableView::doubleClicked, &View(), [this] {
        if (m_editor)
            m_editor->Open(true);
        else if (DoubleClick)
            RunEvent(DoubleClick);
    });
    DataGrid::ShowFocus(false);
}

DataGrid::~DataGrid() = default;

QTableView& DataGrid::View() const
{
    return *static_cast<QTableView*>(Widget());
}

void DataGrid::LayOut()
{
    QTableView& view = View();
    view.verticalHeader()->setVisible(false);
    view.verticalHeader()->setDefaultSectionSize(RowHeight);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView& header = *view.horizontalHeader();
    header.setHighlightSections(false);
    header.setMinimumHeight(HeadHeight);
    header.setSectionResizeMode(QHeaderView::Fixed); // the mouse can't change the widths
    const std::vector<Column>& columns = m_model->Columns();
    for (int at = 0; at < static_cast<int>(columns.size()); ++at) {
        if (columns[at].width > 0)
            view.setColumnWidth(at, columns[at].width);
        else
            header.setSectionResizeMode(at, QHeaderView::Stretch);
    }
}

void DataGrid::Bind(Connection& connection, const QString& query)
{
    m_model->Bind(connection, query);
    Refresh();
}

void DataGrid::Unbind()
{
    m_model->Unbind();
    Refresh();
}

void DataGrid::Refresh()
{
    if (m_editor)
        m_editor->Close();
    m_model->Read();
    if (m_model->rowCount() > 0)
        SetCurrentCell(0, 0);
}

void DataGrid::RefreshToEnd()
{
    StandAtEnd([this] { m_model->Read(); });
}

void DataGrid::ShowAdded()
{
    StandAtEnd([this] { m_model->ReadOn(); });
}

// While rows are added, scrolled and selected, the view needn't note what is to be painted.
void DataGrid::StandAtEnd(const std::function<void()>& read)
{
    if (m_editor)
        m_editor->Close();
    View().setUpdatesEnabled(false);
    const auto painting = qScopeGuard([this] { View().setUpdatesEnabled(true); });
    read();
    if (const int rows = Rows(); rows > 0)
        SetCurrentRow(rows - 1);
}

void DataGrid::Edit(Editing editing)
{
    m_editor = std::make_unique<CellEditor>(*this, std::move(editing));
    m_model->MakeEditable();
    View().setSelectionBehavior(QAbstractItemView::SelectItems); // the cell is highlighted, not the row
    LostFocus = [this] {
        if (!FinishRow())
            SetFocus();
    };
    Refresh();
}

bool DataGrid::FinishRow()
{
    return !m_editor || m_editor->FinishRow();
}

void DataGrid::SetSideways(bool sideways)
{
    m_isSideways = sideways;
    View().setHorizontalScrollBarPolicy(sideways ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void DataGrid::SetSearched()
{
    m_model->MakeSearched();
}

void DataGrid::ReadAll()
{
    m_model->ReadRest();
}

int DataGrid::Rows() const
{
    m_model->ReadRest();
    return m_model->Rows();
}

int DataGrid::CurrentRow() const
{
    return View().currentIndex().row();
}

void DataGrid::SetCurrentRow(int row)
{
    SetCurrentCell(row, std::max(CurrentColumn(), 0));
}

int DataGrid::CurrentColumn() const
{
    return View().currentIndex().column();
}

void DataGrid::SetCurrentCell(int row, int column)
{
    Reach(row);
    if (const QModelIndex cell = m_model->index(row, column); cell.isValid())
        View().setCurrentIndex(cell);
}

FieldValue DataGrid::Value(int row, QStringView field) const
{
    Reach(row);
    return m_model->Value(row, field);
}

QString DataGrid::Cell(int row, int column) const
{
    Reach(row);
    return m_model->Shown(row, column);
}

void DataGrid::Reach(int row) const
{
    if (!m_model->HasRead(row))
        m_model->ReadRest();
}

QString DataGrid::Text() const
{
    return CurrentRow() < 0 ? QString() : Cell(CurrentRow(), 0);
}

void DataGrid::ShowFocus(bool held)
{
    Look::SetListColours(*Widget(), held);
}

void DataGrid::MouseDone()
{
    if (!std::exchange(m_isRowPressed, false))
        return;
    if (m_editor)
        m_editor->FinishAllBut(CurrentRow(), CurrentColumn());
    if (Click)
        Click();
}

bool DataGrid::KeyBeforeScreen(const QKeyEvent& key)
{
    return m_editor && m_editor->KeyBeforeScreen(key);
}

void DataGrid::Insert(const QString& text)
{
    if (m_editor)
        m_editor->Insert(text);
}

void DataGrid::ShowComposition(const QString& text)
{
    if (m_editor)
        m_editor->ShowComposition(text);
}

bool DataGrid::KeyPress(const QKeyEvent& key)
{
    if (m_editor && m_editor->KeyPress(key))
        return true;
    if (m_editor || m_isSideways) {
        const int columns = m_model->columnCount();
        if (key.key() == Qt::Key_Left || key.key() == Qt::Key_Right)
            SetCurrentCell(CurrentRow(),
                std::clamp(CurrentColumn() + (key.key() == Qt::Key_Left ? -1 : 1), 0, columns - 1));
    }
    const int wanted = RowFor(key.key());
    if (wanted == CurrentRow() || !FinishRow())
        return true;
    Reach(wanted);
    if (const int rows = m_model->rowCount(); rows > 0)
        SetCurrentRow(std::clamp(wanted, 0, rows - 1));
    return true;
}

// The row that a key leads to, which may be outside the list; for other keys the current one.
int DataGrid::RowFor(int key) const
{
    const int page = std::max(1, View().viewport()->height() / View().verticalHeader()->defaultSectionSize());
    switch (key) {
    case Qt::Key_Up:
        return CurrentRow() - 1;
    case Qt::Key_Down:
        return CurrentRow() + 1;
    case Qt::Key_PageUp:
        return CurrentRow() - page;
    case Qt::Key_PageDown:
        return CurrentRow() + page;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return std::max(Rows() - 1, 0); // Rows() reads the rest
    default:
        return CurrentRow();
    }
}

FieldValue GridRow::Before(QStringView field) const
{
    const auto before = m_before.find(field.toString().toLower());
    return before == m_before.end() ? FieldValue() : before->second;
}

QString GridRow::Text(QStringView field) const
{
    const auto typed = m_typed.find(field.toString().toLower());
    return typed == m_typed.end() ? Before(field).Text() : typed->second;
}

double GridRow::Number(QStringView field) const
{
    return Val(Text(field));
}

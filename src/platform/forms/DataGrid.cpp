#include "DataGrid.h"

#include "Connection.h"
#include "Dates.h"
#include "Look.h"
#include "Numbers.h"
#include "Shivaji01.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>

#include <algorithm>

class DataGrid::Model final : public QAbstractTableModel {
public:
    explicit Model(std::vector<Column> columns) : m_columns(std::move(columns)) { }

    void Bind(Connection& connection, const QString& query)
    {
        m_connection = &connection;
        m_query = query;
    }

    void Read()
    {
        beginResetModel();
        m_rows.clear();
        m_names.clear();
        if (m_connection) {
            Recordset rows(*m_connection, m_query);
            for (int i = 0; i < rows.Columns(); ++i)
                m_names.push_back(rows.Name(i).toLower());
            for (; !rows.Eof(); rows.MoveNext()) {
                std::vector<FieldValue>& row = m_rows.emplace_back();
                row.reserve(m_names.size());
                for (int i = 0; i < rows.Columns(); ++i)
                    row.push_back(rows.At(i));
            }
        }
        m_places.clear();
        for (const Column& column : m_columns)
            m_places.push_back(PlaceOf(column.field));
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return Shown(index.row(), index.column());
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Alignment(index.column()));
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::DisplayRole)
            return m_columns[section].caption.Seen().trimmed();
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Alignment(section));
        return {};
    }

    QString Shown(int row, int at) const
    {
        const Column& column = m_columns[at];
        if (m_places[at] < 0)
            return {};
        const FieldValue& value = m_rows[row][m_places[at]];
        if (value.IsNull())
            return {};
        if (!column.format.isEmpty())
            return column.format.contains(u'y') ? Format(value.Date(), column.format)
                                                : Format(value.Number(), column.format);
        return column.stored ? Shivaji01::ToUnicode(value.Text()) : value.Text();
    }

    FieldValue Value(int row, QStringView field) const
    {
        const int place = PlaceOf(field.toString());
        return place < 0 || row < 0 || row >= rowCount() ? FieldValue() : m_rows[row][place];
    }

    const std::vector<Column>& Columns() const { return m_columns; }

private:
    int PlaceOf(const QString& field) const
    {
        const auto at = std::find(m_names.begin(), m_names.end(), field.toLower());
        return at == m_names.end() ? -1 : static_cast<int>(at - m_names.begin());
    }

    Qt::Alignment Alignment(int at) const
    {
        return (m_columns[at].alignRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }

    std::vector<Column> m_columns;
    Connection* m_connection = nullptr;
    QString m_query;
    std::vector<QString> m_names;
    std::vector<int> m_places;
    std::vector<std::vector<FieldValue>> m_rows;
};

DataGrid::DataGrid(Screen* screen, const char* name, std::vector<Column> columns)
    : Control(screen, name, new QTableView)
    , m_model(std::make_unique<Model>(std::move(columns)))
{
    View().setModel(m_model.get());
    LayOut();
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
    view.verticalHeader()->setDefaultSectionSize(30);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView& header = *view.horizontalHeader();
    header.setHighlightSections(false);
    header.setMinimumHeight(34);
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

void DataGrid::Refresh()
{
    m_model->Read();
    if (Rows() > 0)
        SetCurrentRow(0);
}

int DataGrid::Rows() const
{
    return m_model->rowCount();
}

int DataGrid::CurrentRow() const
{
    return View().currentIndex().row();
}

void DataGrid::SetCurrentRow(int row)
{
    View().selectRow(row);
}

FieldValue DataGrid::Value(int row, QStringView field) const
{
    return m_model->Value(row, field);
}

QString DataGrid::Cell(int row, int column) const
{
    return m_model->Shown(row, column);
}

QString DataGrid::Text() const
{
    return CurrentRow() < 0 ? QString() : Cell(CurrentRow(), 0);
}

void DataGrid::ShowFocus(bool held)
{
    Look::SetListColours(*Widget(), held);
}

bool DataGrid::KeyPress(const QKeyEvent& key)
{
    const int page = std::max(1, View().viewport()->height() / View().verticalHeader()->defaultSectionSize());
    int row = CurrentRow();
    switch (key.key()) {
    case Qt::Key_Up:
        row -= 1;
        break;
    case Qt::Key_Down:
        row += 1;
        break;
    case Qt::Key_PageUp:
        row -= page;
        break;
    case Qt::Key_PageDown:
        row += page;
        break;
    case Qt::Key_Home:
        row = 0;
        break;
    case Qt::Key_End:
        row = Rows() - 1;
        break;
    default:
        return true;
    }
    if (Rows() > 0)
        SetCurrentRow(std::clamp(row, 0, Rows() - 1));
    return true;
}

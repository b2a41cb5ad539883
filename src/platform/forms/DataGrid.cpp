#include "platform/forms/DataGrid.h"

#include "platform/database/Connection.h"
#include "platform/forms/Look.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

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
        m_hasMore = false;
        if (m_connection) {
            Recordset rows(*m_connection, m_query);
            for (int i = 0; i < rows.Columns(); ++i)
                m_names.push_back(rows.Name(i).toLower());
            m_rows = Take(rows, FirstRows);
            m_hasMore = !rows.Eof();
        }
        m_places.clear();
        for (const Column& column : m_columns)
            m_places.push_back(PlaceOf(column.field));
        endResetModel();
    }

    // The rows behind those that were read with the query.
    void ReadRest()
    {
        if (!std::exchange(m_hasMore, false))
            return;
        Recordset rows(*m_connection, m_query);
        for (std::size_t read = 0; read < m_rows.size() && !rows.Eof(); ++read)
            rows.MoveNext();
        std::vector<Row> rest = Take(rows, std::numeric_limits<std::size_t>::max());
        if (rest.empty())
            return;
        const int first = static_cast<int>(m_rows.size());
        beginInsertRows({}, first, first + static_cast<int>(rest.size()) - 1);
        std::move(rest.begin(), rest.end(), std::back_inserter(m_rows));
        endInsertRows();
    }

    bool HasRead(int row) const { return row < rowCount() || !m_hasMore; }

    bool canFetchMore(const QModelIndex& parent) const override { return !parent.isValid() && m_hasMore; }
    void fetchMore(const QModelIndex&) override { ReadRest(); }

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
            return QVariant::fromValue(Alignment(section) | Qt::TextWordWrap);
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
    using Row = std::vector<FieldValue>;
    static constexpr std::size_t FirstRows = 40; // a screenful and some

    // The next rows, at most so many.
    static std::vector<Row> Take(Recordset& rows, std::size_t atMost)
    {
        std::vector<Row> taken;
        for (; !rows.Eof() && taken.size() < atMost; rows.MoveNext()) {
            Row& row = taken.emplace_back();
            row.reserve(static_cast<std::size_t>(rows.Columns()));
            for (int i = 0; i < rows.Columns(); ++i)
                row.push_back(rows.At(i));
        }
        return taken;
    }

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
    std::vector<Row> m_rows;
    bool m_hasMore = false; // the query has rows that haven't been read
};

DataGrid::DataGrid(Screen* screen, const char* name, std::vector<Column> columns)
    : Control(screen, name, new QTableView)
    , m_model(std::make_unique<Model>(std::move(columns)))
{
    View().setModel(m_model.get());
    LayOut();
    QObject::connect(&View(), &QTableView::pressed, &View(), [this] { m_isRowPressed = true; });
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
    header.setSectionResizeMode(QHeaderView::Fixed); // no hand can draw a column away from its caption
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
    if (m_model->rowCount() > 0)
        SetCurrentRow(0);
}

void DataGrid::ReadAll()
{
    m_model->ReadRest();
}

int DataGrid::Rows() const
{
    m_model->ReadRest();
    return m_model->rowCount();
}

int DataGrid::CurrentRow() const
{
    return View().currentIndex().row();
}

void DataGrid::SetCurrentRow(int row)
{
    Reach(row);
    View().selectRow(row);
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
    if (std::exchange(m_isRowPressed, false) && Click)
        Click();
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
        row = Rows() - 1; // reads them all
        break;
    default:
        return true;
    }
    Reach(row);
    if (const int rows = m_model->rowCount(); rows > 0)
        SetCurrentRow(std::clamp(row, 0, rows - 1));
    return true;
}

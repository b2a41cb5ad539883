#pragma once

#include "platform/database/Connection.h"
#include "platform/forms/DataGrid.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

// The rows of a grid's query, as the table view asks for them. For the sources of DataGrid only.
class DataGrid::Model final : public QAbstractTableModel {
public:
    explicit Model(std::vector<Column> columns) : m_columns(std::move(columns))
    {
        for (const Column& column : m_columns)
            m_fields.push_back(column.field.toLower());
    }

    void Bind(Connection& connection, const QString& query)
    {
        m_connection = &connection;
        m_query = query;
    }

    void Unbind() { m_connection = nullptr; }

    // Rows that were only added to those before are put behind them: then the view needn't begin anew.
    void Read()
    {
        Reading read = ReadFirst();
        m_kept = std::move(read.kept);
        if (IsContinuedBy(read))
            return Append(std::move(read.rows), read.hasMore);
        beginResetModel();
        m_typedRow = -1;
        m_typed.clear();
        m_names = std::move(read.names);
        m_rows = std::move(read.rows);
        m_hasMore = read.hasMore;
        m_places.clear();
        for (const QString& field : m_fields)
            m_places.push_back(PlaceOf(field));
        endResetModel();
    }

    // From now on all rows are read at once, and of each only what is shown.
    void MakeSearched() { m_isSearched = true; }

    // Reads the rows that Read left out.
    void ReadRest()
    {
        if (m_hasMore)
            ReadOn();
    }

    // Reads the rows behind those that were read. The engine passes over these by itself, which is quicker
    // than to fetch them.
    void ReadOn()
    {
        if (!m_connection)
            return;
        m_hasMore = false;
        Recordset rows(*m_connection, m_query + QStringLiteral(" limit -1 offset %1").arg(Rows()));
        Insert(Take(rows, AllRows, m_kept));
    }

    bool HasRead(int row) const { return row < Rows() || !m_hasMore; }

    bool canFetchMore(const QModelIndex& parent) const override { return !parent.isValid() && m_hasMore; }
    void fetchMore(const QModelIndex&) override { ReadRest(); }

    // In a grid that can be edited there is an empty row at the end.
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : Rows() + (m_isEditable ? 1 : 0);
    }

    int Rows() const { return static_cast<int>(m_rows.size()); }

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
        if (const QString* typed = TypedAt(row, at))
            return column.format.isEmpty() && column.stored ? Shivaji01::ToUnicode(*typed) : *typed;
        const FieldValue value = ValueAt(row, at);
        const bool isEncoded = column.format.isEmpty() && column.stored && !value.IsDate();
        return isEncoded ? Shivaji01::ToUnicode(value.Text()) : Written(row, at);
    }

    // The text of a cell as the clerk would type it; texts in the stored spelling.
    QString Written(int row, int at) const
    {
        if (const QString* typed = TypedAt(row, at))
            return *typed;
        const QString& format = m_columns[at].format;
        const FieldValue value = ValueAt(row, at);
        if (format.isEmpty() || value.IsNull())
            return value.Text();
        return IsDateFormat(format) ? Format(value.Date(), format) : Format(value.Number(), format);
    }

    static bool IsDateFormat(QStringView format) { return format.contains(u'y'); }

    FieldValue Value(int row, QStringView field) const
    {
        const int place = PlaceOf(field.toString());
        return place < 0 || row < 0 || row >= Rows() ? FieldValue() : m_rows[row][place];
    }

    const std::vector<Column>& Columns() const { return m_columns; }

    // Editing: what was typed into the cells of one row, until it is written or undone.

    void MakeEditable()
    {
        beginResetModel();
        m_isEditable = true;
        endResetModel();
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return QAbstractTableModel::flags(index) | (m_isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags);
    }

    void Type(int row, int at, const QString& text)
    {
        m_typedRow = row;
        m_typed[at] = text;
        Q_EMIT dataChanged(index(row, at), index(row, at));
    }

    void ForgetTyped()
    {
        const int row = std::exchange(m_typedRow, -1);
        m_typed.clear();
        if (row >= 0)
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }

    // The row into which something was typed; -1 if there is none.
    int TypedRow() const { return m_typedRow; }

    GridRow RowAt(int row) const
    {
        GridRow made;
        made.m_isNew = row >= Rows();
        for (std::size_t place = 0; !made.m_isNew && place < m_names.size(); ++place)
            made.m_before[m_names[place]] = m_rows[row][place];
        if (row == m_typedRow)
            for (const auto& [at, text] : m_typed)
                made.m_typed[m_columns[at].field.toLower()] = text;
        return made;
    }

private:
    using Row = std::vector<FieldValue>;
    static constexpr std::size_t FirstRows = 40; // a screenful and some
    static constexpr std::size_t AllRows = std::numeric_limits<std::size_t>::max();

    // What a query gives: the columns that a row keeps, their names in lower case, and the first rows.
    struct Reading {
        std::vector<int> kept;
        std::vector<QString> names;
        std::vector<Row> rows;
        bool hasMore = false;
    };

    Reading ReadFirst() const
    {
        Reading read;
        if (!m_connection)
            return read;
        Recordset rows(*m_connection, m_query);
        ChooseColumns(rows, read);
        read.rows = Take(rows, m_isEditable || m_isSearched ? AllRows : FirstRows, read.kept);
        read.hasMore = !rows.Eof();
        return read;
    }

    void ChooseColumns(const Recordset& rows, Reading& read) const
    {
        for (int i = 0; i < rows.Columns(); ++i) {
            const QString name = rows.Name(i).toLower();
            if (m_isSearched && std::find(m_fields.begin(), m_fields.end(), name) == m_fields.end())
                continue;
            read.kept.push_back(i);
            read.names.push_back(name);
        }
    }

    bool IsContinuedBy(const Reading& read) const
    {
        return m_typedRow < 0 && !m_rows.empty() && read.names == m_names && read.rows.size() >= m_rows.size()
            && std::equal(m_rows.begin(), m_rows.end(), read.rows.begin());
    }

    void Append(std::vector<Row> rows, bool hasMore)
    {
        rows.erase(rows.begin(), rows.begin() + Rows());
        Insert(std::move(rows));
        m_hasMore = hasMore;
    }

    // Behind the last row.
    void Insert(std::vector<Row> rows)
    {
        if (rows.empty())
            return;
        const int first = Rows();
        beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
        std::move(rows.begin(), rows.end(), std::back_inserter(m_rows));
        endInsertRows();
    }

    // Reads at most so many rows.
    static std::vector<Row> Take(Recordset& rows, std::size_t atMost, const std::vector<int>& kept)
    {
        std::vector<Row> taken;
        for (; !rows.Eof() && taken.size() < atMost; rows.MoveNext()) {
            Row& row = taken.emplace_back();
            row.reserve(kept.size());
            for (const int column : kept)
                row.push_back(rows.At(column));
        }
        return taken;
    }

    int PlaceOf(const QString& field) const
    {
        const auto at = std::find(m_names.begin(), m_names.end(), field.toLower());
        return at == m_names.end() ? -1 : static_cast<int>(at - m_names.begin());
    }

    FieldValue ValueAt(int row, int at) const
    {
        return m_places[at] < 0 || row >= Rows() ? FieldValue() : m_rows[row][m_places[at]];
    }

    // Null if nothing was typed.
    const QString* TypedAt(int row, int at) const
    {
        const auto typed = row == m_typedRow ? m_typed.find(at) : m_typed.end();
        return typed == m_typed.end() ? nullptr : &typed->second;
    }

    Qt::Alignment Alignment(int at) const
    {
        return (m_columns[at].alignRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }

    std::vector<Column> m_columns;
    std::vector<QString> m_fields; // of the columns, in lower case
    Connection* m_connection = nullptr;
    QString m_query;
    std::vector<int> m_kept; // the columns of the query that a row holds
    std::vector<QString> m_names; // of these, in lower case
    std::vector<int> m_places;
    std::vector<Row> m_rows;
    bool m_hasMore = false; // the query has rows that haven't been read
    bool m_isEditable = false;
    bool m_isSearched = false;
    int m_typedRow = -1;
    std::map<int, QString> m_typed; // by column
};

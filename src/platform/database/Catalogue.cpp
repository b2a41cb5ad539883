#include "platform/database/Catalogue.h"

#include <sqlcipher/sqlite3.h>

namespace {

QString TextAt(sqlite3_stmt* statement, int column)
{
    const unsigned char* text = sqlite3_column_text(statement, column);
    return QString::fromUtf8(reinterpret_cast<const char*>(text), sqlite3_column_bytes(statement, column));
}

// The table or view with this name, with its name as declared; null if there is none.
std::shared_ptr<Table> ReadName(sqlite3* handle, QStringView name)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle,
            "select name,type from sqlite_master where type in ('table','view') and name=? collate nocase",
            -1, &statement, nullptr)
        != SQLITE_OK)
        return nullptr;
    const QByteArray utf8 = name.toUtf8();
    sqlite3_bind_text(statement, 1, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_STATIC);
    std::shared_ptr<Table> table;
    if (sqlite3_step(statement) == SQLITE_ROW) {
        table = std::make_shared<Table>();
        table->name = TextAt(statement, 0);
        table->isView = TextAt(statement, 1) == QStringLiteral("view");
    }
    sqlite3_finalize(statement);
    return table;
}

void ReadColumns(sqlite3* handle, Table& table)
{
    QString quoted = table.name;
    quoted.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    const QString query = QStringLiteral("pragma table_info(\"") + quoted + QStringLiteral("\")");
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle, query.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        return;
    while (sqlite3_step(statement) == SQLITE_ROW)
        table.columns.push_back({TextAt(statement, 1), TypeOfDeclaration(TextAt(statement, 2))});
    sqlite3_finalize(statement);
}

}

ColumnType TypeOfDeclaration(QStringView declaration)
{
    const auto has = [declaration](
                         QStringView word) { return declaration.contains(word, Qt::CaseInsensitive); };
    if (has(u"DATE"))
        return ColumnType::Date;
    if (has(u"CHAR") || has(u"TEXT") || has(u"MEMO"))
        return ColumnType::Text;
    if (has(u"INT") || has(u"REAL") || has(u"FLOA") || has(u"DOUB") || has(u"NUM"))
        return ColumnType::Number;
    return ColumnType::Unknown;
}

const Column* Table::Find(QStringView column) const
{
    for (const Column& candidate : columns) {
        if (column.compare(candidate.name, Qt::CaseInsensitive) == 0)
            return &candidate;
    }
    return nullptr;
}

std::shared_ptr<const Table> Catalogue::Find(QStringView name)
{
    const QString key = name.toString().toLower();
    const auto known = m_tables.constFind(key);
    if (known != m_tables.constEnd())
        return known.value();
    std::shared_ptr<Table> table = ReadName(m_handle, name);
    if (table) {
        ReadColumns(m_handle, *table);
        m_tables.insert(key, table);
    }
    return table;
}

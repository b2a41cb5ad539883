#pragma once

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

struct sqlite3;

// The content of a column, by its declared type.
enum class ColumnType { Unknown, Text, Number, Date };

struct Column {
    QString name;
    ColumnType type = ColumnType::Unknown;
};

struct Table {
    QString name;
    bool isView = false;
    std::vector<Column> columns;

    // The column with this name, in upper or lower case; null if there is none.
    const Column* Find(QStringView column) const;
};

// The tables and views of the open database. Each is read when a statement first names it.
class Catalogue {
public:
    explicit Catalogue(sqlite3* handle) : m_handle(handle) { }

    // The table or view with this name, in upper or lower case; null if there is none.
    std::shared_ptr<const Table> Find(QStringView name);

    // To be called when a table was made or dropped: everything is read again.
    void Forget() { m_tables.clear(); }

private:
    sqlite3* m_handle;
    QHash<QString, std::shared_ptr<const Table>> m_tables;
};

// The type for a declaration such as "REAL" or "Date".
ColumnType TypeOfDeclaration(QStringView declaration);

#pragma once

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

struct sqlite3;

// What a column holds, by the type that it was declared with.
enum class ColumnType { Unknown, Text, Number, Date };

struct Column {
    QString name;
    ColumnType type = ColumnType::Unknown;
};

struct Table {
    QString name;
    bool isView = false;
    std::vector<Column> columns;

    // The column of a name in any spelling, or nullptr.
    const Column* Find(QStringView column) const;
};

// The tables and views of the open file, each read when a statement first names it.
class Catalogue {
public:
    explicit Catalogue(sqlite3* handle) : m_handle(handle) { }

    // The table or view of a name in any spelling; nullptr if the file has none.
    std::shared_ptr<const Table> Find(QStringView name);

    // A table was made or dropped: everything is read anew.
    void Forget() { m_tables.clear(); }

private:
    sqlite3* m_handle;
    QHash<QString, std::shared_ptr<const Table>> m_tables;
};

// The type that a declaration such as "REAL" or "Date" stands for.
ColumnType TypeOfDeclaration(QStringView declaration);

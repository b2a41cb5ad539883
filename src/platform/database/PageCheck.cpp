#include "platform/database/PageCheck.h"

#include "platform/database/DatabaseErrors.h"

#include <sqlcipher/sqlite3.h>

#include <memory>
#include <utility>

namespace {

struct Closing {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Handle = std::unique_ptr<sqlite3, Closing>;
using Statement = std::unique_ptr<sqlite3_stmt, Closing>;

// Whether a failure means a damaged page, not a full disk or a lock of another program.
bool IsDamage(int code)
{
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || primary == SQLITE_ERROR
        || code == SQLITE_IOERR_READ || code == SQLITE_IOERR_SHORT_READ;
}

// Runs a query to its end and calls `row` for each row. Returns false if a page can't be read; any other
// failure is an error.
template <class Row> bool ReadAll(sqlite3* handle, const QByteArray& query, Row row)
{
    sqlite3_stmt* prepared = nullptr;
    int code = sqlite3_prepare_v2(handle, query.constData(), -1, &prepared, nullptr);
    const Statement statement(prepared);
    while (code == SQLITE_OK || code == SQLITE_ROW) {
        code = sqlite3_step(prepared);
        if (code == SQLITE_ROW)
            row(prepared);
    }
    if (code == SQLITE_DONE)
        return true;
    if (const int extended = sqlite3_extended_errcode(handle); !IsDamage(extended))
        DatabaseErrors::ThrowFailure(handle, extended, {});
    return false;
}

QByteArray TextOf(sqlite3_stmt* statement, int column)
{
    return reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
}

bool IsSound(sqlite3* handle)
{
    QByteArray first;
    const bool read = ReadAll(handle, "pragma quick_check(1)", [&](sqlite3_stmt* row) {
        if (first.isEmpty())
            first = TextOf(row, 0);
    });
    return read && first == "ok";
}

QByteArray Quoted(QByteArray name)
{
    return '"' + name.replace("\"", "\"\"") + '"';
}

// The queries that read every row of a table or every entry of an index.
struct Reading {
    QByteArray table;
    QByteArray query;
};

std::vector<Reading> Readings(sqlite3* handle)
{
    std::vector<Reading> readings;
    ReadAll(handle, "select type, name, tbl_name from sqlite_master where type in ('table','index')",
        [&](sqlite3_stmt* row) {
            const QByteArray table = TextOf(row, 2);
            const QByteArray all = "select * from " + Quoted(table) + " not indexed";
            const QByteArray entries =
                "select count(*) from " + Quoted(table) + " indexed by " + Quoted(TextOf(row, 1));
            readings.push_back({table, TextOf(row, 0) == "table" ? all : entries});
        });
    return readings;
}

}

QStringList PageCheck::DamagedTables(const std::function<sqlite3*()>& open)
{
    Handle handle(open());
    if (IsSound(handle.get()))
        return {};
    handle.reset(open());
    QStringList damaged;
    for (const Reading& reading : Readings(handle.get())) {
        if (ReadAll(handle.get(), reading.query, [](sqlite3_stmt*) {}))
            continue;
        const QString table = QString::fromUtf8(reading.table);
        if (!damaged.contains(table))
            damaged.append(table);
        handle.reset(open());
    }
    return damaged.isEmpty() ? QStringList{QStringLiteral("?")} : damaged;
}

#pragma once

#include <QStringList>

#include <functional>

struct sqlite3;

// Reads every page of a database and finds the tables that can't be read completely.
namespace PageCheck {

// `open` opens the database again: after a page that can't be decrypted, a connection can't read any more. A
// full disk, or another program that keeps the database locked, is an error. Returns the names of the damaged
// tables, "?" for damage outside of tables; empty if there is none. The database isn't changed.
QStringList DamagedTables(const std::function<sqlite3*()>& open);

}

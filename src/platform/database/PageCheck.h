#pragma once

#include <QStringList>

#include <functional>

struct sqlite3;

// Reads every page of a database and says which tables can't be read whole.
namespace PageCheck {

// `open` opens the database anew and may return nullptr: after a page that can't be decrypted a connection
// reads nothing more. Returns the names of the damaged tables, "?" if no table's own pages are; empty if all
// is in order. The database isn't changed.
QStringList DamagedTables(const std::function<sqlite3*()>& open);

}

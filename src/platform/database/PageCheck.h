#pragma once

#include <QStringList>

#include <functional>

struct sqlite3;

// Reads every page of a database and says which tables can't be read whole.
namespace PageCheck {

// `open` opens the database anew: after a page that can't be decrypted a connection reads nothing more. A
// full disk, or another program that holds the database up, is an error. Returns the names of the damaged
// tables, "?" if no table's own pages are; empty if all is in order. The database isn't changed.
QStringList DamagedTables(const std::function<sqlite3*()>& open);

}

#pragma once

#include <QString>

// The machine-wide names of databases: a connection string names a data source, not a file.
namespace DataSource {

// Names a database file. A name registered again takes the new file.
void Register(const QString& name, const QString& file);

// The file of a name, in any spelling; empty if the name is unknown.
QString File(const QString& name);

}

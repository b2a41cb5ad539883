#pragma once

#include <QString>

// Names of databases: a connection string contains such a name, not a path.
namespace DataSource {

// Gives a database file a name. A name that exists gets the new file.
void Register(const QString& name, const QString& file);

// The file with this name, in upper or lower case; empty if the name is unknown.
QString File(const QString& name);

}

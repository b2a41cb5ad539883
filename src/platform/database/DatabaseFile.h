#pragma once

#include <QString>

struct sqlite3;

// The encrypted file: how it is made, looked at and opened.
namespace DatabaseFile {

// Opens an existing file under its password and makes it ready for the books. A file that is missing, no
// database or cut short, and a wrong password are errors that say which; the file is looked at first, so
// that a failed opening neither makes nor changes a file.
sqlite3* Open(const QString& file, const QString& password);

// Makes a new, empty file and opens it. An existing file or an empty password is an error.
sqlite3* Create(const QString& file, const QString& password);

}

#pragma once

#include <QByteArray>
#include <QString>

struct sqlite3;

// The key of a database file, which the engine derives from the password and the file's salt. That takes
// 64,000 rounds, and the engine would do it at each opening; here each key is kept until the program ends.
class FileKey {
public:
    // The key to give the engine for an open file that hasn't been read yet. An empty file gets a new salt.
    // If the salt can't be read, it is the password itself, and the engine reports what is wrong.
    static QByteArray For(sqlite3* opened, const QString& password);
};

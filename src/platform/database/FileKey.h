#pragma once

#include <QByteArray>
#include <QString>

struct sqlite3;

// What unlocks one database file: the key that the engine makes of a password and the file's own salt.
// Making it takes 64,000 rounds, which the engine goes through at each opening. Here a key once made is kept
// until the program ends.
class FileKey {
public:
    // What to hand to the engine as the key of an opened file that hasn't been read yet. An empty file gets a
    // new salt. If the salt can't be read it is the password as it stands: the engine tells what is wrong.
    static QByteArray For(sqlite3* opened, const QString& password);
};

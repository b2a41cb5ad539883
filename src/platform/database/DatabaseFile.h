#pragma once

#include "platform/database/BooksOnDisk.h"

#include <QStringList>

#include <functional>

struct sqlite3;

// How a database is to be opened.
struct OpeningPlan {
    // Read every page before the database is used. After an unclean end this is done in any case.
    bool checksPages = false;

    // Called before all pages are read, which may take a while.
    std::function<void()> checking;

    // The backup to restore if the database is damaged, named in the text for the clerk; may be empty.
    QString newestBackup;
};

// An open database file.
struct OpenedFile {
    sqlite3* handle = nullptr;
    std::shared_ptr<BooksOnDisk> onDisk;
    QStringList notes; // what was found or repaired, in sentences for the clerk
};

// Makes and opens encrypted database files.
namespace DatabaseFile {

// The default of the engine, so that its own shell can open the file with the password alone.
constexpr int PageSize = 1024;

// How long a statement waits for another program that has the database locked.
constexpr int BusyMilliseconds = 5000;

// Opens an existing file with its password. A file that is missing, damaged, truncated, read-only or not a
// database, and a wrong password are different errors. The file is checked first, so that a failed opening
// neither makes nor changes a file. What a power cut left in the log is applied, if the log belongs to this
// database and is whole.
OpenedFile Open(const QString& file, const QString& password, const OpeningPlan& plan);

// Makes a new, empty file and opens it. It is an error if the file exists or the password is empty.
OpenedFile Create(const QString& file, const QString& password);

}

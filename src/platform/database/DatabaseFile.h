#pragma once

#include "platform/database/BooksOnDisk.h"

#include <QStringList>

#include <functional>

struct sqlite3;

// How the books are to be opened.
struct OpeningPlan {
    // Every page is read before the books are used. After an end without a close that is done in any case.
    bool checksPages = false;

    // Called before every page is read, which takes a moment.
    std::function<void()> checking;

    // What damaged books are to be replaced with, as it is told to the clerk; may be empty.
    QString newestBackup;
};

// A database file that has been opened.
struct OpenedFile {
    sqlite3* handle = nullptr;
    std::shared_ptr<BooksOnDisk> onDisk;
    QStringList notes; // what the opening has met with or put right, a text each for the clerk
};

// The encrypted file: how it is made, looked at and opened.
namespace DatabaseFile {

// The engine's own default, so that its stock shell opens the books with nothing but the password.
constexpr int PageSize = 1024;

// How long a statement waits for another program that uses the books.
constexpr int BusyMilliseconds = 5000;

// Opens an existing file under its password and makes it ready for the books. A file that is missing, no
// database, damaged, cut short or not to be written, and a wrong password are errors that say which; the file
// is looked at first, so that a failed opening neither makes nor changes a file. What a power cut has left in
// the log is played into the books, if it is theirs and whole.
OpenedFile Open(const QString& file, const QString& password, const OpeningPlan& plan);

// Makes a new, empty file and opens it. An existing file or an empty password is an error.
OpenedFile Create(const QString& file, const QString& password);

}

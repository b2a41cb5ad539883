#pragma once

#include "platform/database/LogMark.h"

#include <QByteArray>
#include <QString>

#include <utility>

struct sqlite3;

// A database file that is opened with its password. The destructor closes it, unless its handle was taken.
class KeyedFile {
public:
    enum class Way {
        Write,
        Read, // with the log beside it; neither is changed
        LookOnly, // the file alone; nothing is changed, locked or made
    };

    KeyedFile(const QString& file, const QString& password, Way way);
    ~KeyedFile();
    KeyedFile(const KeyedFile&) = delete;
    KeyedFile& operator=(const KeyedFile&) = delete;

    sqlite3* Handle() const { return m_handle; }
    sqlite3* LetGo() { return std::exchange(m_handle, nullptr); }

    // The engine's result code of the opening.
    int Code() const { return m_code; }

    int Run(const QByteArray& pragma);
    void RunOrThrow(const QByteArray& pragma);

private:
    int Key(const QString& password);

    sqlite3* m_handle = nullptr;
    int m_code = 0;
};

// What the first page of a database tells with a password; reading it changes no file.
struct FirstPage {
    int code = 0; // the engine's result code; 0 if this is a database with this password
    LogMark mark;

    static FirstPage OfFile(const QString& file, const QString& password);

    // Reads a first page that is in the log of a database with so many pages.
    static FirstPage OfBytes(const QByteArray& bytes, quint32 pages, const QString& password);

    bool IsReadable() const { return code == 0; }
    bool IsUnreadable() const; // not a database, or another password
    bool IsOfTooFewPages() const; // with the right password nothing else can be wrong with a first page
};

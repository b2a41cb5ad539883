#pragma once

#include "platform/database/LogMark.h"

#include <QByteArray>
#include <QString>

#include <utility>

struct sqlite3;

// A database file opened under a password, closed again unless its handle is let go.
class KeyedFile {
public:
    enum class Way {
        Write,
        Read, // with the log that lies beside it; neither is changed
        LookOnly, // the bare file; nothing is touched, locked or made
    };

    KeyedFile(const QString& file, const QString& password, Way way);
    ~KeyedFile();
    KeyedFile(const KeyedFile&) = delete;
    KeyedFile& operator=(const KeyedFile&) = delete;

    sqlite3* Handle() const { return m_handle; }
    sqlite3* LetGo() { return std::exchange(m_handle, nullptr); }

    // How the opening went: the engine's code.
    int Code() const { return m_code; }

    int Run(const QByteArray& pragma);
    void RunOrThrow(const QByteArray& pragma);

private:
    int Key(const QString& password);

    sqlite3* m_handle = nullptr;
    int m_code = 0;
};

// What a first page says under a password, looked at without touching anything.
struct FirstPage {
    int code = 0; // the engine's; 0 if it is a database's under this password
    LogMark mark;

    static FirstPage OfFile(const QString& file, const QString& password);

    // Of a page that lies in the log of a database of so many pages.
    static FirstPage OfBytes(const QByteArray& bytes, quint32 pages, const QString& password);

    bool IsReadable() const { return code == 0; }
    bool IsUnreadable() const; // no database, or another password's
    bool IsOfTooFewPages() const; // under the right password nothing else can be wrong with a first page
};

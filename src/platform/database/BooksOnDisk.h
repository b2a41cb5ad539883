#pragma once

#include "platform/database/FileState.h"
#include "platform/database/LogMark.h"

#include <QByteArray>
#include <QFile>

#include <memory>

// The database file and its log on the disk, while this process has them open.
//
// Nothing else in this process may open and close that file, its log or its index: when a process closes a
// file, the system drops all locks that it holds on it, including those of the database engine, and the next
// program that looks at the database would take the log away. So this object opens both files before the
// engine takes its first lock and closes them after its last. Whoever reads the raw file asks AreOpen first.
class BooksOnDisk {
public:
    // The object of a database file; there is one for each file that is open in this process.
    static std::shared_ptr<BooksOnDisk> Hold(const QString& file);

    // Whether this process has the database file open.
    static bool AreOpen(const QString& file);

    // Whether a path, with all its links followed, leads to a database file that is open in this process, or
    // to its log or index.
    static bool AreReachedBy(const QString& path);

    enum class Verdict {
        Untouched,
        FoldedByOthers, // another program has folded the log, which is allowed
        LogEmptied, // the database was written and the log is empty: folded by others, if the engine confirms
                    // it
        LogGone, // the database is the same; the log was removed, but the engine still has it open
        Changed, // replaced, truncated or overwritten: nothing may be written any more
    };

    // Checks whether database and log are still the files that were opened, and no smaller.
    Verdict Look();

    // Remembers the present state of both files, or one of them, as written by the engine. First called when
    // the engine has opened the log.
    void RememberBooks();
    void RememberLog();
    void Remember();

    // The marks of the database and of the round of the log that is being written, see LogMark.
    LogRound round;

    // Whether the files were found to be replaced: from then on nothing is written to them, by any
    // connection.
    bool isForeign = false;

    // Removes the object from the open databases: its connection stays open until the process ends, and the
    // file can be opened again.
    void LeaveToTheEnd();

    // Makes what was written to the database durable, with the time of the file.
    void Sync();

    const FileState& Books() const { return m_books; }
    qint64 LogSize() const { return qMax<qint64>(m_logState.size, 0); }

    ~BooksOnDisk();
    BooksOnDisk(const BooksOnDisk&) = delete;
    BooksOnDisk& operator=(const BooksOnDisk&) = delete;

private:
    explicit BooksOnDisk(const QString& file);

    QByteArray FirstPage();
    bool LogHolds(const QByteArray& firstPage);

    QString m_path;
    QFile m_file;
    QFile m_log;
    FileState m_books;
    FileState m_logState;
    QByteArray m_firstPage;
};

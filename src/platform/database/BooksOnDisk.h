#pragma once

#include "platform/database/FileState.h"
#include "platform/database/LogMark.h"

#include <QByteArray>
#include <QFile>

#include <memory>

// The file of the books and its log as they lie on the disk while this process has them open.
//
// Nothing in this process may open and close that file, its log or its index in any other way meanwhile: when
// a process closes a file, the system drops all locks that the process has on it, the engine's among them,
// and the next program that looks at the books takes their log away from under the engine. So this object
// opens both once, before the engine's first lock, and closes them behind its last; whoever reads the raw
// bytes of books asks AreOpen first.
class BooksOnDisk {
public:
    // The one object of a database file in this process.
    static std::shared_ptr<BooksOnDisk> Hold(const QString& file);

    // Whether this process has the file open.
    static bool AreOpen(const QString& file);

    // Whether a path leads to books that this process has open, to their log or to their index, however it is
    // spelled and whatever links are on the way.
    static bool AreReachedBy(const QString& path);

    enum class Verdict {
        Untouched,
        FoldedByOthers, // another program has brought the log into the books, as it may
        LogEmptied, // the books were written and the log is empty: folded by others, if the engine says so
        LogGone, // the books are the same, and the engine still has the removed log
        Changed, // replaced, cut short or overwritten: nothing may be written any more
    };

    // Looks whether books and log are still the ones that were opened, and not smaller.
    Verdict Look();

    // What lies there now is what the engine has written: one of them, or both. First called when the engine
    // has opened the log.
    void RememberBooks();
    void RememberLog();
    void Remember();

    // The marks of the books and of the round of the log that is being written, see LogMark.
    LogRound round;

    // Whether the files were found to be others: from then on nothing goes into them, whoever has them open.
    bool isForeign = false;

    // Takes the object out of the books that this process has open: its connection is left to the end of the
    // process, and the file can be opened anew.
    void LeaveToTheEnd();

    // Sees that what was written into the books is on the disk with its time.
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

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

// The committed content of the log beside a database file that isn't in the file yet. The headers of a log
// aren't encrypted, so this needs no password.
struct WriteAheadLog {
    bool isThere = false; // a clean end leaves no log, not even an empty one
    quint32 databasePages = 0; // how many pages the database has by the last commit; 0 without a commit
    QHash<quint32, qint64> pages; // the committed pages by number: where the newest of each begins in the log
    QByteArray firstPage; // the newest committed first page as it lies in the log; empty if it isn't there
    int lostCommits = 0; // about how many commits come after a damaged place, or were cut off

    // Reads the log of a database file that this process doesn't have open. A missing log has no commits.
    static WriteAheadLog Read(const QString& databaseFile, int pageSize);

    // Whether one of its pages is in the file already, because a fold was interrupted.
    bool IsPartlyFolded(const QString& databaseFile, int pageSize) const;

    // The names of the log and of its index, which the engine makes beside a database.
    static QString NameFor(const QString& databaseFile) { return databaseFile + QStringLiteral("-wal"); }
    static QString IndexNameFor(const QString& databaseFile) { return databaseFile + QStringLiteral("-shm"); }
};

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

// What has been committed to the log beside a database file and isn't in the file yet. The log's own
// heads aren't encrypted, so this can be read without the password.
struct WriteAheadLog {
    bool isThere = false; // a clean end leaves no log, not even an empty one
    quint32 databasePages = 0; // how many pages the database has by the last commit; 0 without a commit
    QHash<quint32, qint64> pages; // the committed pages by number: where the newest of each begins in the log
    QByteArray firstPage; // the newest committed first page as it lies in the log; empty if it isn't there
    int lostCommits = 0; // at least so many commits stand behind a damaged place, or were cut off

    // Reads the log of a database file that nobody in this process has open. A missing log has no commits.
    static WriteAheadLog Read(const QString& databaseFile, int pageSize);

    // Whether one of its pages has come into the file already, as a fold leaves it that was cut off.
    bool IsPartlyFolded(const QString& databaseFile, int pageSize) const;

    // The names of the log and of the engine's index to it.
    static QString NameFor(const QString& databaseFile) { return databaseFile + QStringLiteral("-wal"); }
    static QString IndexNameFor(const QString& databaseFile) { return databaseFile + QStringLiteral("-shm"); }
};

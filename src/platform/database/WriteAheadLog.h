#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

// What has been committed to the log beside a database file and isn't in the file yet. The log's own
// heads aren't encrypted, so this can be read without the password.
struct WriteAheadLog {
    quint32 databasePages = 0; // how many pages the database has by the last commit; 0 without a commit
    QSet<quint32> pages; // the numbers of the committed pages
    QByteArray firstPage; // the newest committed first page as it lies in the log; empty if it isn't there

    // Reads the log of a database file. A missing or broken log has no commits.
    static WriteAheadLog Read(const QString& databaseFile, int pageSize);
};

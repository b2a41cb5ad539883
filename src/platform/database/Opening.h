#pragma once

#include "platform/database/DatabaseFile.h"
#include "platform/database/KeyedFile.h"
#include "platform/database/WriteAheadLog.h"

#include <QDateTime>

// The checks and repairs before the engine opens a database: whether it can be read and written, whether the
// log beside it belongs to it and is whole, and, after an unclean end, every page. The log isn't applied to
// the file before all of this is done.
class Opening {
public:
    Opening(QString file, QString password, const OpeningPlan& plan);

    // Does all checks and repairs. What can't be repaired is an error, which leaves the files as they were.
    void Run();

    // The round of the log with which work goes on.
    LogRound Round() const;

    const QStringList& Notes() const { return m_notes; }

private:
    void LookAndMend();
    void RequireReadable() const;
    void RequireWritable() const;
    void PutForeignLogAside();
    void ReturnFirstSector();
    void KeepDamagedLog();
    void RequireRightPassword() const;
    void RequirePages() const;
    void RequireSoundPages();

    void RequireLookedAt(const FirstPage& page) const;
    bool HasLoggedPage() const { return !m_log.firstPage.isEmpty(); }
    bool IsLogOfThisFile() const;
    QString DatedLog() const;
    QByteArray Salt() const;
    QStringList DamagedTables(const QString& file) const;

    QString m_file;
    QString m_password;
    const OpeningPlan& m_plan;
    QDateTime m_lastWritten; // the file, before anything was mended in it
    WriteAheadLog m_log;
    FirstPage m_first; // of the file
    FirstPage m_logged; // the newest in the log, if there is one
    QStringList m_notes;
};

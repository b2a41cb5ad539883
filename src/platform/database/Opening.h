#pragma once

#include "platform/database/DatabaseFile.h"
#include "platform/database/KeyedFile.h"
#include "platform/database/WriteAheadLog.h"

// What is looked at and put right before the engine opens the books: whether they can be read and written,
// whether the log beside them is theirs and whole, and, after an unclean end, every page. Nothing is played
// into the file before all of this is done.
class Opening {
public:
    Opening(QString file, QString password, const OpeningPlan& plan);

    // Does all of it. What can't be put right is an error, and the files are left as they were.
    void Run();

    // The round of the log that the books go on with.
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
    WriteAheadLog m_log;
    FirstPage m_first; // of the file
    FirstPage m_logged; // the newest in the log, if there is one
    QStringList m_notes;
};

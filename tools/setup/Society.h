#pragma once

#include <QDateTime>
#include <QString>

// What the installer is told of a new society.
struct SocietyPlan {
    QString name; // in Devanagari; without apostrophes, which would break the system's statements
    QString year; // "2026-2027": the books run from 1 April of the first to 31 March of the second
    QString password; // ASCII letters, digits and marks
    bool demo = false; // with 40 members, their customers and two months of deliveries, always the same
    bool replace = false; // an older database is kept under a dated name; else it is an error
    QDateTime now = QDateTime::currentDateTime(); // dates the names of what is kept
};

// The file names of a society within its folder.
inline constexpr QStringView DatabaseFileName = u"Morvelta.mdb";
inline constexpr QStringView PasswordFileName = u"PWD.TXT";
inline constexpr QStringView BackupFolderName = u"Backup";

// Why no society can be made of a plan: one sentence, or an empty text if it can.
QString WhyRefused(const SocietyPlan& plan);

// Makes a society in a folder: the database, the note that its pages are sound, the password's file, the folder
// of the backups and the report templates. A refused plan, an older database that isn't to be replaced, and a file that can't be written are RunTimeErrors.
//
// A power cut or an error leaves either the older society as it was, or no database and the older society
// whole under a dated name (its log and its password under the same date); making the society again is all
// it takes then. A database never stands beside the log or the password of another. A log that has lost its
// database is kept under a dated name, too.
void MakeSociety(const QString& folder, const SocietyPlan& plan);

// Writes the report templates into a folder. One that differs from the delivered one is kept under a dated
// name first; one that doesn't is left alone. A power cut leaves each of them as it was or new.
void WriteTemplates(const QString& folder, const QDateTime& now = QDateTime::currentDateTime());

// Writes one of them, in the same way. A name that isn't delivered is a RunTimeError.
void WriteTemplate(
    const QString& folder, const QString& name, const QDateTime& now = QDateTime::currentDateTime());

// The same for tests: the society of a plan is made once in a process, and copied from then on. The folder
// must hold no society.
void CopySociety(const QString& folder, const SocietyPlan& plan);

// A society after a full year, for measuring: members and two shifts a day to which all of them come, each
// with one can. 500 members give 365,000 deliveries.
void MakeLargeSociety(const QString& folder, const SocietyPlan& plan, int members = 500, int days = 365);

#pragma once

#include <QDateTime>
#include <QString>

// What the installer is told about a new society.
struct SocietyPlan {
    QString name; // in Devanagari, without apostrophes, which would break statements
    QString year; // "2026-2027": from 1 April of the first year to 31 March of the second
    QString password; // ASCII letters, digits and marks
    QString federation; // who buys the milk, in Devanagari: gets a debtor's account; empty for none
    bool demo = false; // with members, customers, deliveries, advances and a payment, always the same
    bool replace = false; // keep an older database under a dated name; otherwise it is an error
    QDateTime now = QDateTime::currentDateTime(); // the date in those names
};

// The names of a society's files in its folder.
inline constexpr QStringView DatabaseFileName = u"Morvelta.mdb";
inline constexpr QStringView PasswordFileName = u"PWD.TXT";
inline constexpr QStringView BackupFolderName = u"Backup";

// Writes the log beside the books in a folder into them. What another program that reads them holds back
// stays in the log. Returns false if the books can't be opened, so that nobody can write it into them.
bool FoldLog(const QString& folder);

// The reason why the plan is refused, in one sentence; empty if it is accepted.
QString WhyRefused(const SocietyPlan& plan);

// Makes a society in a folder: the database, the note that its pages are sound, the password file, the folder
// for backups and the report templates. It is a RunTimeError if the plan is refused, if there is an older
// database that isn't to be replaced, or if a file can't be written.
//
// After a power cut or an error there is either the older society as it was, or no database and the whole
// older society under a dated name (log and password under the same date); then making the society again is
// all that is needed. A database is never left beside the log or the password of another one. A log without a
// database is also kept under a dated name.
void MakeSociety(const QString& folder, const SocietyPlan& plan);

// Writes the report templates into a folder. A template that differs from the delivered one is first kept
// under a dated name; one that doesn't is left alone. After a power cut each of them is whole, old or new.
void WriteTemplates(const QString& folder, const QDateTime& now = QDateTime::currentDateTime());

// Writes one template in the same way. An unknown name is a RunTimeError.
void WriteTemplate(
    const QString& folder, const QString& name, const QDateTime& now = QDateTime::currentDateTime());

// MakeSociety for tests: makes the society of a plan once for each process, and then copies it. The folder
// must not hold a society.
void CopySociety(const QString& folder, const SocietyPlan& plan);

// Makes a society with a full year of deliveries, for measuring: every member brings one can to both shifts
// of each day. 500 members give 365,000 deliveries.
void MakeLargeSociety(const QString& folder, const SocietyPlan& plan, int members = 500, int days = 365);

#include "backups/BooksCopies.h"

#include "platform/database/CheckedNote.h"
#include "platform/database/ClosedFile.h"
#include "platform/database/Disk.h"
#include "platform/database/SafeCopy.h"
#include "platform/database/WriteAheadLog.h"
#include "platform/text/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

using BooksCopies::Work;

constexpr QStringView ReplacedBegins = u"Morvelta Before ";
constexpr QStringView LastNote = u"/LastBackup.txt"; // beside the books: the path of the last backup
constexpr QStringView Unfinished = u".part"; // behind the name of what is being written

// Without these tables the program can't work, so a file that lacks one isn't books of it.
constexpr QStringView NeededTables[] = {u"CompanySelected", u"AutoSettings", u"MenuAccessTable",
    u"MembersMaster", u"CustomersMaster", u"AccountsMaster", u"FatDates", u"MilkCollections", u"MilkSales",
    u"MilkPayments", u"MilkPaymentsDetails", u"TransactionsMaster", u"TransactionsDetails", u"AdvanceReceipt",
    u"YearSums", u"AccountYearSums"};

// The parts of a run, in percent of it.
constexpr int Copied = 50;
constexpr int Read = 90;
constexpr int Done = 100;

void Tell(const BooksCopies::Progress& progress, BooksCopies::Work work, int percent)
{
    if (progress)
        progress(work, percent);
}

SafeCopy::Progress OfCopying(const BooksCopies::Progress& progress)
{
    return [progress](qint64 done, qint64 all) {
        Tell(progress, Work::Copying, static_cast<int>(done * Copied / all));
    };
}

[[noreturn]] void ThrowBad(const QString& marathi, const QString& english)
{
    throw RunTimeError(RunTimeError::DatabaseFailure, Sentences(marathi, english));
}

bool HasLog(const QString& books)
{
    return QFileInfo(WriteAheadLog::NameFor(books)).size() > 0;
}

// The books alone are copied, so all of them must be in their file.
void RequireFolded(const QString& books)
{
    if (HasLog(books))
        ThrowBad(QStringLiteral(
                     "हिशेबाची वही दुसरा प्रोग्राम वापरत आहे किंवा डिस्क भरली आहे; प्रत झाली नाही. तो बंद करा किंवा "
                     "जागा करा आणि पुन्हा करा. काहीही बदलले नाही."),
            QStringLiteral(
                "The log of \"%1\" can't be folded: another program has the books open, or the disk is "
                "full. Nothing was changed.")
                .arg(books));
}

void RequireBooks(const QMap<QString, qint64>& rows, const QString& shown)
{
    for (const QStringView table : NeededTables)
        if (!rows.contains(table.toString()))
            ThrowBad(QStringLiteral("\"%1\" ही फाइल या कार्यक्रमाच्या हिशेबाची नाही.").arg(shown),
                QStringLiteral("The file \"%1\" holds no books of this program: it has no table %2.")
                    .arg(shown, table));
}

void RequireSame(
    const QMap<QString, qint64>& copied, const QMap<QString, qint64>& original, const QString& shown)
{
    if (copied != original)
        ThrowBad(
            QStringLiteral("\"%1\" ची प्रत मूळ फाइलशी जुळत नाही. डिस्क तपासा आणि पुन्हा करा. जुनी फाइल आहे तशीच आहे.")
                .arg(shown),
            QStringLiteral("The copy of \"%1\" hasn't the rows of the original. An older one is as it was.")
                .arg(shown));
}

BooksContent ContentOf(const ClosedFile& books, const QMap<QString, qint64>& rows)
{
    return {rows.value(QStringLiteral("MilkCollections")), rows.value(QStringLiteral("MembersMaster")),
        rows.value(QStringLiteral("MilkPayments")),
        books.NewestDay(QStringLiteral("MilkCollections"), QStringLiteral("CollectionDate"))};
}

// Looks at a file that bears the name `shown` for the clerk. With an original its rows are counted against
// that.
BooksContent Looked(const QString& file, const QString& shown, const QString& original,
    const QString& password, const BooksCopies::Progress& progress)
{
    Tell(progress, Work::Checking, Copied);
    const ClosedFile books(file, password, shown);
    books.RequireSound();
    Tell(progress, Work::Checking, Read);
    const QMap<QString, qint64> rows = books.Rows();
    RequireBooks(rows, shown);
    if (!original.isEmpty())
        RequireSame(rows, ClosedFile(original, password).Rows(), shown);
    return ContentOf(books, rows);
}

// Removes what a kill has left unfinished: regular and history copies, kept books, copies of a year (at the
// root of a drive that isn't trusted with the name of the folder before theirs), books that were coming back,
// and the note. A copy under a name of the clerk's is left; its next one goes over it. So is what is to be
// brought back.
void Sweep(const QString& folder, const QString& wanted = {})
{
    const QDir there(folder);
    for (const QString& name :
        there.entryList({QStringLiteral("Morvelta*.mdb.part"), QStringLiteral("Morvelta*.mdb-wal.part"),
                            QStringLiteral("Y*C*.mdb.part"), QStringLiteral("BackupY*C*.mdb.part"),
                            QStringLiteral("LastBackup.txt.part")},
            QDir::Files))
        if (QFileInfo(there.filePath(name)) != QFileInfo(wanted))
            QFile::remove(there.filePath(name));
}

QString FreeName(const RestorePlan& plan)
{
    const QString name =
        plan.keptFolder + u'/' + ReplacedBegins + plan.now.toString(QStringLiteral("dd MMMM yyyy HHmmss"));
    const QString ending = QStringLiteral(".mdb");
    QString free = name + ending;
    for (int n = 2; QFileInfo::exists(free); ++n)
        free = name + u'-' + QString::number(n) + ending;
    return free;
}

// With the time of the original, before the copy has its name: a log goes only with books that are no newer.
void Keep(const QString& file, const QString& kept)
{
    SafeCopy::Copy(file, kept, [&](const QString& copied) {
        QFile copy(copied);
        if (copy.open(QIODevice::ReadWrite))
            copy.setFileTime(QFileInfo(file).lastModified(), QFileDevice::FileModificationTime);
    });
}

void KeepBooks(const RestorePlan& plan)
{
    if (!QFileInfo::exists(plan.books))
        return;
    QDir().mkpath(plan.keptFolder);
    const QString kept = FreeName(plan);
    if (HasLog(plan.books))
        Keep(WriteAheadLog::NameFor(plan.books), WriteAheadLog::NameFor(kept));
    Keep(plan.books, kept);
}

// The last backup may lie on another drive. Until the new note is on the disk the old one stands; a backup
// that can't be noted is none the worse.
void NoteLast(const QString& books, const QString& target)
{
    const QString note = QFileInfo(books).path() + LastNote;
    QFile made(note + Unfinished);
    Disk& disk = Disk::Current();
    const bool isWritten = made.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)
        && !disk.Write(made, QFileInfo(target).absoluteFilePath().toUtf8());
    made.close();
    if (!isWritten || disk.Sync(made.fileName()) || disk.Move(made.fileName(), note))
        QFile::remove(made.fileName());
}

QFileInfo LastNoted(const QString& booksFolder)
{
    QFile note(booksFolder + LastNote);
    return QFileInfo(note.open(QIODevice::ReadOnly) ? QString::fromUtf8(note.readAll()) : QString());
}

}

BooksContent BooksCopies::BackUp(
    const QString& books, const QString& target, const QString& password, const Progress& progress)
{
    RequireFolded(books);
    Sweep(QFileInfo(target).path());
    Sweep(QFileInfo(books).path());
    BooksContent content;
    SafeCopy::Copy(
        books, target,
        [&](const QString& copy) {
            content = Looked(copy, QFileInfo(target).fileName(), books, password, progress);
        },
        OfCopying(progress));
    NoteLast(books, target);
    Tell(progress, Work::Checking, Done);
    return content;
}

BooksContent BooksCopies::Check(const QString& copy, const QString& password, const Progress& progress)
{
    const BooksContent content = Looked(copy, QFileInfo(copy).fileName(), {}, password, progress);
    Tell(progress, Work::Checking, Done);
    return content;
}

BooksContent BooksCopies::Restore(const RestorePlan& plan, const Progress& progress)
{
    if (!plan.replacesDamagedBooks)
        RequireFolded(plan.books);
    Sweep(plan.keptFolder, plan.copy);
    Sweep(QFileInfo(plan.books).path(), plan.copy);
    BooksContent content;
    SafeCopy::Copy(
        plan.copy, plan.books,
        [&](const QString& copied) {
            content = Looked(copied, QFileInfo(plan.copy).fileName(), plan.copy, plan.password, progress);
            Tell(progress, Work::Keeping, Read);
            KeepBooks(plan);
        },
        OfCopying(progress));
    for (const QString& name : {WriteAheadLog::NameFor(plan.books), WriteAheadLog::IndexNameFor(plan.books)})
        QFile::remove(name);
    CheckedNote::Write(QFileInfo(plan.books).path(), plan.now.date());
    Tell(progress, Work::Keeping, Done);
    return content;
}

QString BooksCopies::Newest(const QString& booksFolder)
{
    const QDir folder(booksFolder + QStringLiteral("/Backup"));
    QFileInfoList copies = folder.entryInfoList({QStringLiteral("*.mdb")}, QDir::Files);
    copies.append(LastNoted(booksFolder));
    QFileInfo newest;
    for (const QFileInfo& copy : copies)
        if (copy.isFile() && !copy.fileName().startsWith(ReplacedBegins)
            && (newest.filePath().isEmpty() || copy.lastModified() > newest.lastModified()))
            newest = copy;
    return newest.filePath();
}

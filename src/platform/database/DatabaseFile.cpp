#include "platform/database/DatabaseFile.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/Opening.h"
#include "platform/database/SqlFunctions.h"

#include <QFile>

#include <sqlcipher/sqlite3.h>

namespace {

// The engine doesn't fold the log by itself (wal_autocheckpoint=0), as a save would have to wait for that.
// The pages that it keeps in memory, in KiB, hold a month of deliveries with their indexes: a page that was
// pushed out has to be read and deciphered again.
void MakeReady(KeyedFile& opened)
{
    sqlite3_busy_timeout(opened.Handle(), DatabaseFile::BusyMilliseconds);
    opened.RunOrThrow("pragma cache_size=-32768");
    opened.RunOrThrow("pragma temp_store=memory");
    opened.RunOrThrow("pragma foreign_keys=off");
    opened.RunOrThrow("pragma journal_mode=wal");
    opened.RunOrThrow("pragma wal_autocheckpoint=0");
    opened.RunOrThrow("pragma synchronous=full");
    SqlFunctions::Register(opened.Handle());
}

OpenedFile OpenForBooks(const QString& file, const QString& password)
{
    OpenedFile books;
    books.onDisk = BooksOnDisk::Hold(file);
    KeyedFile opened(file, password, KeyedFile::Way::Write);
    if (opened.Code() != SQLITE_OK)
        DatabaseErrors::ThrowFailure(opened.Handle(), opened.Code(), {});
    MakeReady(opened);
    books.handle = opened.LetGo();
    return books;
}

// A further connection to books that are open already. It must not open files that have meanwhile replaced
// those of the first connection.
void RequireUntouched(BooksOnDisk& books)
{
    using Verdict = BooksOnDisk::Verdict;
    const Verdict found = books.isForeign ? Verdict::Changed : books.Look();
    if (found == Verdict::LogGone)
        DatabaseErrors::ThrowLogGone(false);
    if (found != Verdict::Changed)
        return;
    books.isForeign = true;
    DatabaseErrors::ThrowFilesChanged();
}

}

OpenedFile DatabaseFile::Open(const QString& file, const QString& password, const OpeningPlan& plan)
{
    if (BooksOnDisk::AreOpen(file)) {
        RequireUntouched(*BooksOnDisk::Hold(file));
        return OpenForBooks(file, password);
    }
    Opening opening(file, password, plan);
    opening.Run();
    OpenedFile books = OpenForBooks(file, password);
    books.onDisk->Remember();
    books.notes = opening.Notes();
    books.onDisk->round = opening.Round();
    return books;
}

OpenedFile DatabaseFile::Create(const QString& file, const QString& password)
{
    QFile made(file);
    if (password.isEmpty() || !made.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw RunTimeError(RunTimeError::FileAccess,
            Sentences(u"नवीन डेटाबेस तयार करता आला नाही.",
                QStringLiteral(
                    "The database file \"%1\" can't be made: it exists already, its folder can't be "
                    "written, or the password is empty.")
                    .arg(file)));
    made.close();
    try {
        OpenedFile books = OpenForBooks(file, password);
        books.onDisk->Remember();
        return books;
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}

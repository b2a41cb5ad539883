#include "platform/database/ConnectionPrivate.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/KeyAnswer.h"
#include "platform/database/LiteralBinding.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

namespace {

// Keeps a connection that the engine mustn't close until the process ends.
void LeaveOpen(sqlite3* handle, const std::shared_ptr<BooksOnDisk>& onDisk)
{
    using Connections = std::vector<std::pair<sqlite3*, std::shared_ptr<BooksOnDisk>>>;
    static Connections& connections = *new Connections;
    connections.emplace_back(handle, onDisk);
}

// While it lives, statements don't wait for other programs that have the database locked.
class NoWaiting {
public:
    explicit NoWaiting(sqlite3* handle) : m_handle(handle) { sqlite3_busy_timeout(handle, 0); }
    ~NoWaiting() { sqlite3_busy_timeout(m_handle, DatabaseFile::BusyMilliseconds); }
    NoWaiting(const NoWaiting&) = delete;
    NoWaiting& operator=(const NoWaiting&) = delete;

private:
    sqlite3* m_handle;
};

}

Loan& Loan::operator=(Loan&& other) noexcept
{
    End();
    m_cache = other.m_cache;
    m_prepared = std::move(other.m_prepared);
    return *this;
}

void Loan::Reset()
{
    sqlite3_reset(m_prepared->Handle());
}

void Loan::End()
{
    if (!m_prepared)
        return;
    Reset();
    m_cache->GiveBack(std::move(m_prepared));
}

Connection::Private::Private(const OpenedFile& opened)
    : m_handle(opened.handle)
    , m_onDisk(opened.onDisk)
    , m_guard(opened.handle)
    , m_catalogue(opened.handle)
    , m_cache(opened.handle)
    , m_begin(Prepare("begin immediate"))
    , m_commit(Prepare("commit"))
{
}

Connection::Private::~Private()
{
    for (Recordset::Private* recordset : m_recordsets)
        recordset->Abandon();
    m_cache.Clear();
    m_begin.reset();
    m_commit.reset();
    Fold();
    // When the engine closes the last connection, it folds the log by itself. That would damage a file that
    // was put in the place of the books. And unless the log notes that a fold has begun, a log that a power
    // cut leaves half folded would afterwards be taken for that of other books.
    const LogRound& round = m_onDisk->round;
    const bool isLogUntold = m_onDisk->LogSize() > 0 && round.isMarked && !round.isFolding;
    if (m_onDisk->isForeign || isLogUntold) {
        m_onDisk->LeaveToTheEnd();
        LeaveOpen(m_handle, m_onDisk);
        return;
    }
    sqlite3_close(m_handle);
}

Loan Connection::Private::Take(const QString& statement)
{
    m_scanned.Scan(statement);
    std::shared_ptr<CachedShape> shape = m_cache.Find(m_scanned.Shape());
    if (!shape)
        shape = m_cache.Add(m_scanned.Shape(), Translator(m_catalogue).Translate(m_scanned, statement));
    std::unique_ptr<Prepared> prepared = m_cache.Take(shape, statement);
    m_scanned.SwapArena(prepared->Arena());
    BindLiterals(prepared->Handle(), shape->made, m_scanned.Literals(), prepared->Arena().data(), statement);
    return Loan(m_cache, std::move(prepared));
}

int Connection::Private::Execute(const QString& statement)
{
    Loan loan = Take(statement);
    if (loan->Made().kind == StatementKind::Query || m_depth > 0)
        return Run(loan, statement);
    Begin();
    try {
        const int changes = Run(loan, statement);
        Commit();
        return changes;
    } catch (...) {
        loan.End();
        GiveUp();
        throw;
    }
}

int Connection::Private::Run(Loan& loan, const QString& statement)
{
    const StatementKind kind = loan->Made().kind;
    const bool isSchema = kind == StatementKind::Create;
    if (kind != StatementKind::Query) {
        RequireTransaction();
        KeepRests(isSchema ? nullptr : &loan->Made());
    }
    m_guard.Begin();
    const StatementGuard::Telling telling(m_guard, m_working);
    int code = SQLITE_ROW;
    while (code == SQLITE_ROW)
        code = sqlite3_step(loan.Handle());
    if (code != SQLITE_DONE)
        DatabaseErrors::ThrowFailure(m_handle, code, statement);
    const int changes = isSchema || kind == StatementKind::Query ? 0 : sqlite3_changes(m_handle);
    loan.End();
    if (isSchema)
        ForgetShapes();
    return changes;
}

void Connection::Private::RunScript(const QString& script)
{
    RequireTransaction();
    KeepRests(nullptr);
    const StatementGuard::Aside aside(m_guard);
    const int code = sqlite3_exec(m_handle, script.toUtf8().constData(), nullptr, nullptr, nullptr);
    ForgetShapes();
    m_onDisk->RememberLog();
    if (code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(m_handle, code, script);
}

void Connection::Private::ForgetShapes()
{
    m_cache.Clear();
    m_catalogue.Forget();
}

void Connection::Private::Remove(Recordset::Private* recordset)
{
    m_recordsets.erase(std::remove(m_recordsets.begin(), m_recordsets.end(), recordset), m_recordsets.end());
}

void Connection::Private::KeepRests(const Translation* writing)
{
    for (Recordset::Private* recordset : m_recordsets)
        recordset->KeepRest(writing);
}

// When the disk fails, the engine may roll back by itself. The statements that follow belong to the same
// transaction and must not be written without the earlier ones.
void Connection::Private::RequireTransaction() const
{
    if (m_depth > 0 && sqlite3_get_autocommit(m_handle) != 0)
        DatabaseErrors::ThrowRolledBack();
}

// Checked before each transaction: if somebody has removed or replaced the files, whatever is saved from then
// on is lost with them. The check is quick, compared to a save.
void Connection::Private::RequireUntouchedFiles()
{
    const BooksOnDisk::Verdict found = LookAtFiles();
    if (found == BooksOnDisk::Verdict::Changed)
        DatabaseErrors::ThrowFilesChanged();
    if (found == BooksOnDisk::Verdict::LogGone)
        DatabaseErrors::ThrowLogGone(Fold());
}

// Whether the database and its log may be written. Another program may have folded the log meanwhile. Files
// that were found to be replaced count as replaced from then on, even if the old ones are put back, as nobody
// knows what was done to them in between.
BooksOnDisk::Verdict Connection::Private::LookAtFiles()
{
    using Verdict = BooksOnDisk::Verdict;
    const Verdict found = m_onDisk->isForeign ? Verdict::Changed : m_onDisk->Look();
    switch (found) {
    case Verdict::Untouched:
    case Verdict::LogGone:
        return found;
    case Verdict::LogEmptied:
        if (!IsEmptiedByFold())
            break;
        m_onDisk->Remember();
        [[fallthrough]];
    case Verdict::FoldedByOthers:
        m_onDisk->round.BeginAnew();
        return Verdict::Untouched;
    case Verdict::Changed:
        break;
    }
    m_onDisk->isForeign = true;
    return Verdict::Changed;
}

// With an empty log the engine reads the mark from the file. If the file has the mark of our round, the round
// was folded.
bool Connection::Private::IsEmptiedByFold()
{
    const StatementGuard::Aside aside(m_guard);
    return LogMark::Of(m_handle).round == m_onDisk->round.log;
}

void Connection::Private::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

int Connection::Private::RunOwn(const QByteArray& own)
{
    const StatementGuard::Aside aside(m_guard);
    return sqlite3_exec(m_handle, own.constData(), nullptr, nullptr, nullptr);
}

int Connection::Private::RunOwn(sqlite3_stmt& own)
{
    const StatementGuard::Aside aside(m_guard);
    const int code = sqlite3_step(&own);
    sqlite3_reset(&own);
    return code == SQLITE_DONE ? SQLITE_OK : code;
}

Connection::Private::OwnStatement Connection::Private::Prepare(const char* own)
{
    sqlite3_stmt* made = nullptr;
    if (const int code = sqlite3_prepare_v2(m_handle, own, -1, &made, nullptr); code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(m_handle, code, {});
    return OwnStatement(made);
}

void Connection::Private::RunOrThrow(const QByteArray& own)
{
    if (const int code = RunOwn(own); code != SQLITE_OK)
        DatabaseErrors::ThrowFailure(m_handle, code, {});
}

// The first transaction after a fold begins a new round of the log.
void Connection::Private::MarkRound()
{
    const LogRound& round = m_onDisk->round;
    if (round.isMarked)
        return;
    m_newRound = LogMark{LogMark::BaseOf(round.books, m_onDisk->Books()), LogMark::New()};
    RunOrThrow("pragma application_id=" + QByteArray::number(m_newRound->base)
        + ";pragma user_version=" + QByteArray::number(m_newRound->round));
}

bool Connection::Private::IsReading() const
{
    for (sqlite3_stmt* one = sqlite3_next_stmt(m_handle, nullptr); one;
         one = sqlite3_next_stmt(m_handle, one)) {
        if (sqlite3_stmt_busy(one) != 0)
            return true;
    }
    return false;
}

// A fold changes the time of the file and, if the power fails, only some of its pages. So the log notes first
// that a fold has begun: then the log is recognised by the mark of the file alone, not by its size and time.
bool Connection::Private::SayThatFoldBegins()
{
    LogRound& round = m_onDisk->round;
    if (round.isFolding)
        return true;
    const qint32 base = round.isMarked ? LogMark::Folding(round.base) : LogMark::FoldingBaseOf(round.books);
    if (RunOwn("begin immediate;pragma application_id=" + QByteArray::number(base) + ";commit")
        != SQLITE_OK) {
        if (sqlite3_get_autocommit(m_handle) == 0)
            RunOwn("rollback");
        return false;
    }
    round.base = base;
    round.isMarked = true;
    round.isFolding = true;
    return true;
}

bool Connection::Private::Fold()
{
    if (m_depth > 0 || IsReading())
        return false;
    const BooksOnDisk::Verdict found = LookAtFiles();
    if (found == BooksOnDisk::Verdict::Changed)
        return false;
    const bool isLogGone = found == BooksOnDisk::Verdict::LogGone;
    if (!isLogGone)
        m_onDisk->RememberLog();
    if (m_onDisk->LogSize() == 0)
        return true;
    const NoWaiting noWaiting(m_handle);
    if (!SayThatFoldBegins())
        return false;
    int frames = -1;
    int folded = -1;
    const int code =
        sqlite3_wal_checkpoint_v2(m_handle, nullptr, SQLITE_CHECKPOINT_TRUNCATE, &frames, &folded);
    m_onDisk->Sync();
    m_onDisk->RememberBooks();
    if (!isLogGone)
        m_onDisk->RememberLog();
    // The log can't be emptied while another program reads from it. Once all of it is folded, the engine
    // nevertheless overwrites it from the beginning.
    if (code == SQLITE_OK || (code == SQLITE_BUSY && frames >= 0 && frames == folded))
        m_onDisk->round.BeginAnew();
    return code == SQLITE_OK;
}

void Connection::Private::Rollback()
{
    if (sqlite3_get_autocommit(m_handle) == 0)
        RunOwn("rollback");
    m_isDoomed = false;
    m_newRound.reset();
    ForgetShapes();
}

void Connection::Private::Begin()
{
    if (m_depth == 0) {
        RequireUntouchedFiles();
        if (const int code = RunOwn(*m_begin); code != SQLITE_OK)
            DatabaseErrors::ThrowFailure(m_handle, code, {});
        try {
            MarkRound();
        } catch (...) {
            Rollback();
            throw;
        }
    }
    ++m_depth;
}

void Connection::Private::Commit()
{
    if (m_depth == 0)
        DatabaseErrors::ThrowClosed();
    if (m_depth > 1) {
        --m_depth;
        return;
    }
    if (!m_isDoomed)
        RequireTransaction();
    m_depth = 0;
    if (m_isDoomed) {
        Rollback();
        DatabaseErrors::ThrowGivenUp();
    }
    if (const int code = RunOwn(*m_commit); code != SQLITE_OK) {
        const RunTimeError failure = DatabaseErrors::CommitFailure(m_handle, code);
        Rollback();
        throw failure;
    }
    KeyAnswer::NoteSaved();
    if (m_newRound) {
        m_onDisk->round.Write(*m_newRound);
        m_newRound.reset();
    }
    m_onDisk->RememberLog();
    if (m_written)
        m_written();
}

void Connection::Private::GiveUp()
{
    if (m_depth == 0)
        return;
    m_isDoomed = true;
    if (--m_depth == 0)
        Rollback();
}

#pragma once

#include "platform/database/Connection.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/Recordset.h"
#include "platform/database/StatementCache.h"
#include "platform/database/StatementGuard.h"

#include <deque>
#include <optional>

// A prepared statement that was taken from the cache, bound and ready to step. It goes back to the cache at
// the end of the loan.
class Loan {
public:
    Loan() = default;
    Loan(StatementCache& cache, std::unique_ptr<Prepared> prepared)
        : m_cache(&cache)
        , m_prepared(std::move(prepared))
    {
    }
    Loan(Loan&&) noexcept = default;
    Loan& operator=(Loan&& other) noexcept;
    ~Loan() { End(); }

    Prepared* operator->() const { return m_prepared.get(); }
    sqlite3_stmt* Handle() const { return m_prepared->Handle(); }

    // Stops reading but keeps the statement.
    void Reset();

    // Gives the statement back to the cache.
    void End();

    // Ends the loan without giving the statement back: the connection is closing.
    void Drop() { m_prepared.reset(); }

private:
    StatementCache* m_cache = nullptr;
    std::unique_ptr<Prepared> m_prepared;
};

class Recordset::Private {
public:
    Private(Connection::Private& connection, const QString& query);
    ~Private();

    bool Eof() const;
    void MoveNext();
    FieldValue At(int column) const;
    int Find(QStringView field) const;
    const std::vector<QString>& Names() const;
    void Close();

    // Reads the remaining rows now: the connection is closing, or a table of this query is about to change.
    void Abandon();
    void KeepRest(const Translation* writing);

private:
    void Step();
    FieldValue Read(int column) const;
    std::vector<FieldValue> ReadRow() const;
    bool IsTouchedBy(const Translation& writing) const;
    void RequireOpen() const;

    Connection::Private* m_connection;
    QString m_query;
    Loan m_loan;
    bool m_eof = false;
    bool m_isKept = false; // the current row and the rest of the rows are in m_rows
    std::deque<std::vector<FieldValue>> m_rows;
    mutable int m_hint = 0; // the next field, since fields are mostly read in order
};

class Connection::Private {
public:
    explicit Private(const OpenedFile& opened);
    ~Private();

    sqlite3* Handle() const { return m_handle; }
    StatementCache& Cache() { return m_cache; }
    StatementGuard& Guard() { return m_guard; }

    // Returns a statement that is ready to step, with its literals bound.
    Loan Take(const QString& statement);
    int Execute(const QString& statement);
    void RunScript(const QString& script);

    // Transactions inside each other are joined: only the outermost begins and commits, and if an inner one
    // is given up, the whole is rolled back.
    void Begin();
    void Commit();
    void GiveUp();

    bool Fold();
    qint64 LogSize() const { return m_onDisk->LogSize(); }
    void SetWritten(std::function<void()> written) { m_written = std::move(written); }

    void SetWorking(std::function<void()> working) { m_working = std::move(working); }

    void Add(Recordset::Private* recordset) { m_recordsets.push_back(recordset); }
    void Remove(Recordset::Private* recordset);

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    // A statement that each save runs, prepared once.
    using OwnStatement = std::unique_ptr<sqlite3_stmt, Finalize>;

    int Run(Loan& loan, const QString& statement);
    void KeepRests(const Translation* writing);
    void RequireTransaction() const;
    void RequireUntouchedFiles();
    void Rollback();
    void ForgetShapes();
    void RunOrThrow(const QByteArray& own);
    int RunOwn(const QByteArray& own);
    int RunOwn(sqlite3_stmt& own);
    OwnStatement Prepare(const char* own);
    void MarkRound();
    bool SayThatFoldBegins();
    BooksOnDisk::Verdict LookAtFiles();
    bool IsEmptiedByFold();
    bool IsReading() const;

    sqlite3* m_handle;
    std::shared_ptr<BooksOnDisk> m_onDisk;
    StatementGuard m_guard;
    Catalogue m_catalogue;
    StatementCache m_cache;
    OwnStatement m_begin;
    OwnStatement m_commit;
    ScannedStatement m_scanned;
    std::vector<Recordset::Private*> m_recordsets;
    std::function<void()> m_written;
    std::function<void()> m_working;
    int m_depth = 0;
    bool m_isDoomed = false;
    std::optional<LogMark>
        m_newRound; // the marks with which the running transaction begins a new round of the log
};

#include "ConnectionPrivate.h"

#include "DatabaseErrors.h"
#include "LiteralBinding.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

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

Connection::Private::~Private()
{
    for (Recordset::Private* recordset : m_recordsets)
        recordset->Abandon();
    m_cache.Clear();
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
    const StatementKind kind = loan->Made().kind;
    const bool isSchema = kind == StatementKind::Create || kind == StatementKind::Drop;
    if (kind != StatementKind::Query) {
        RequireTransaction();
        KeepRests(isSchema ? nullptr : &loan->Made());
    }
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
    const int code = sqlite3_exec(m_handle, script.toUtf8().constData(), nullptr, nullptr, nullptr);
    ForgetShapes();
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

// A failure of the disk may make the engine roll back on its own; what follows must not be written alone.
void Connection::Private::RequireTransaction() const
{
    if (m_depth > 0 && sqlite3_get_autocommit(m_handle) != 0)
        throw RunTimeError(RunTimeError::DatabaseFailure,
            Sentences(u"काम अर्धवट राहिले; काहीही जतन झाले नाही. पुन्हा सुरू करा.",
                QStringLiteral(
                    "The transaction was rolled back after a failure; nothing was saved. Start again.")));
}

void Connection::Private::Rollback()
{
    if (sqlite3_get_autocommit(m_handle) == 0)
        sqlite3_exec(m_handle, "rollback", nullptr, nullptr, nullptr);
    m_isDoomed = false;
    ForgetShapes();
}

void Connection::Private::Begin()
{
    if (m_depth == 0) {
        const int code = sqlite3_exec(m_handle, "begin immediate", nullptr, nullptr, nullptr);
        if (code != SQLITE_OK)
            DatabaseErrors::ThrowFailure(m_handle, code, {});
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
        throw RunTimeError(RunTimeError::DatabaseFailure,
            Sentences(u"कामाचा एक भाग पूर्ण झाला नाही; काहीही जतन झाले नाही.",
                QStringLiteral("A part of the transaction was given up; nothing was saved.")));
    }
    const int code = sqlite3_exec(m_handle, "commit", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        const RunTimeError failure = DatabaseErrors::Failure(m_handle, code, {});
        Rollback();
        throw failure;
    }
}

void Connection::Private::GiveUp()
{
    if (m_depth == 0)
        return;
    m_isDoomed = true;
    if (--m_depth == 0)
        Rollback();
}

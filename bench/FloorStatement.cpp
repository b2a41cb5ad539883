#include "bench/FloorStatement.h"

#include "core/state/AppState.h"
#include "platform/text/RunTimeError.h"

#include <sqlcipher/sqlite3.h>

namespace {

void Require(int code, int wanted)
{
    if (code != wanted)
        throw RunTimeError(RunTimeError::DatabaseFailure, QString::fromUtf8(sqlite3_errmsg(gCn.Handle())));
}

}

FloorStatement::FloorStatement(const char* sql)
{
    Require(sqlite3_prepare_v2(gCn.Handle(), sql, -1, &m_statement, nullptr), SQLITE_OK);
}

FloorStatement::~FloorStatement()
{
    sqlite3_finalize(m_statement);
}

void FloorStatement::Put(int at, std::string_view text)
{
    sqlite3_bind_text(m_statement, at, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void FloorStatement::Put(int at, double number)
{
    sqlite3_bind_double(m_statement, at, number);
}

void FloorStatement::PutWhole(int at, long long number)
{
    sqlite3_bind_int64(m_statement, at, number);
}

bool FloorStatement::Step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    Require(code, SQLITE_DONE);
    return false;
}

void FloorStatement::Reset()
{
    sqlite3_reset(m_statement);
}

void FloorStatement::Run()
{
    while (Step()) { }
    Reset();
}

bool FloorStatement::Finds()
{
    const bool found = Step();
    Reset();
    return found;
}

double FloorStatement::Number()
{
    const double number = Step() ? NumberAt(0) : 0;
    Reset();
    return number;
}

double FloorStatement::NumberAt(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

std::string_view FloorStatement::TextAt(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column)))
                : std::string_view();
}

#include "platform/database/StatementGuard.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// The engine asks whether to go on after so many of its virtual machine instructions, which take at most some
// milliseconds.
constexpr int StepsBetweenQuestions = 5000;

// Functions that could do more than read and write rows: run statements, or load code.
constexpr std::array DeniedFunctions{"sqlcipher_export", "load_extension", "fts3_tokenizer"};

// Pragmas that change nothing and are always allowed. The translator uses the first to read the columns of a
// table.
constexpr std::array AllowedPragmas{"table_info", "integrity_check", "quick_check"};

bool IsOneOf(const char* name, const auto& names)
{
    return std::any_of(
        names.begin(), names.end(), [name](const char* each) { return sqlite3_stricmp(name, each) == 0; });
}

// The name of a rate chart is "Fat" and six digits, the day from which it is valid.
bool IsChart(std::string_view table)
{
    constexpr std::string_view start = "Fat";
    return table.size() == start.size() + 6 && table.starts_with(start)
        && std::all_of(
            table.begin() + start.size(), table.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsAllowed(int action, const char* first, const char* second)
{
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_INSERT: // the engine itself guards its own tables
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
    case SQLITE_TRANSACTION:
    case SQLITE_RECURSIVE:
        return true;
    case SQLITE_FUNCTION:
        return !IsOneOf(second, DeniedFunctions);
    case SQLITE_PRAGMA:
        return IsOneOf(first, AllowedPragmas);
    case SQLITE_CREATE_TABLE:
        return IsChart(first);
    default:
        return false;
    }
}

}

StatementGuard::StatementGuard(sqlite3* handle)
{
    sqlite3_set_authorizer(handle, Authorize, this);
    sqlite3_progress_handler(handle, StepsBetweenQuestions, Progress, this);
}

int StatementGuard::Authorize(
    void* guard, int action, const char* first, const char* second, const char*, const char*)
{
    const bool isAside = static_cast<StatementGuard*>(guard)->m_aside > 0;
    return isAside || IsAllowed(action, first, second) ? SQLITE_OK : SQLITE_DENY;
}

int StatementGuard::Progress(void* guard)
{
    auto& self = *static_cast<StatementGuard*>(guard);
    const std::optional<Clock::duration> worked = self.Worked();
    if (!worked)
        return 0;
    if (self.m_working && *worked >= self.m_quiet)
        (*self.m_working)();
    return self.m_aside == 0 && *worked >= self.m_bound ? 1 : 0;
}

// How long the run has lasted since its first question; nothing at the first. The clock is read here, not at
// the beginning of each run, since nearly all runs end before the first question. The engine counts the
// instructions of a prepared statement over all its runs, so that now and then a short one is asked as well.
std::optional<StatementGuard::Clock::duration> StatementGuard::Worked()
{
    const Clock::time_point now = Clock::now();
    if (m_run == m_timedRun)
        return now - m_since;
    m_timedRun = m_run;
    m_since = now;
    return std::nullopt;
}

#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <optional>

struct sqlite3;

// Restricts an open connection to what statements of screens need: reading and writing rows, and making the
// table of a new rate chart. Everything else is denied when a statement is prepared: other changes of the
// schema, other files (attach), settings (pragma), and functions that run statements or load code. A
// statement that works for too long is ended with an error.
class StatementGuard {
public:
    using Clock = std::chrono::steady_clock;

    explicit StatementGuard(sqlite3* handle);
    StatementGuard(const StatementGuard&) = delete;
    StatementGuard& operator=(const StatementGuard&) = delete;

    // To be called before the engine works on a statement: its time counts from here.
    void Begin() { ++m_run; }

    // Sets how long the engine may work without returning. The time between two rows of a list, while the
    // clerk looks at it, doesn't count.
    void SetBound(Clock::duration bound) { m_bound = bound; }

    // Sets how long the engine may work before it says so: what is done then, such as painting the screen,
    // would take longer than a short statement.
    void SetQuiet(Clock::duration quiet) { m_quiet = quiet; }

    // Calls a function every few milliseconds from then on, during the lifetime of this object.
    class Telling {
    public:
        Telling(StatementGuard& guard, const std::function<void()>& working) : m_guard(guard)
        {
            guard.m_working = working ? &working : nullptr;
        }
        ~Telling() { m_guard.m_working = nullptr; }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;

    private:
        StatementGuard& m_guard;
    };

    // Suspends the guard during its lifetime, for the statements of the database room itself (checks, folding
    // the log) and for the scripts of the installer.
    class Aside {
    public:
        explicit Aside(StatementGuard& guard) : m_guard(guard) { ++guard.m_aside; }
        ~Aside() { --m_guard.m_aside; }
        Aside(const Aside&) = delete;
        Aside& operator=(const Aside&) = delete;

    private:
        StatementGuard& m_guard;
    };

private:
    static int Authorize(
        void* guard, int action, const char* first, const char* second, const char* file, const char* inside);
    static int Progress(void* guard);
    std::optional<Clock::duration> Worked();

    Clock::duration m_bound = std::chrono::seconds(60);
    Clock::duration m_quiet = std::chrono::milliseconds(20);
    int m_aside = 0;
    quint64 m_run = 0; // counts the times that the engine was set to work
    quint64 m_timedRun = 0;
    Clock::time_point m_since; // when the run that is timed was first asked after
    const std::function<void()>* m_working = nullptr;
};

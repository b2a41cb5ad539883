#pragma once

#include <QtGlobal>

#include <chrono>

struct sqlite3;

// Lets an open connection do what the system's statements do, and nothing else: rows are read and written,
// and the table of a new rate chart is made. Everything else of the engine is denied when a statement is
// prepared: other changes of the schema, other files (attach), its switches (pragma), and the functions that
// run statements or load code. A statement that works for too long is ended with an error.
class StatementGuard {
public:
    using Clock = std::chrono::steady_clock;

    explicit StatementGuard(sqlite3* handle);
    StatementGuard(const StatementGuard&) = delete;
    StatementGuard& operator=(const StatementGuard&) = delete;

    // The engine is about to work for a statement; from here on the time counts.
    void Begin() { ++m_run; }

    // How long the engine may work without an answer. The time that the clerk takes between two rows of a
    // list doesn't count.
    void SetBound(Clock::duration bound) { m_bound = bound; }

    // As long as it lives, the guard stands aside: for what the database room itself has to tell the engine
    // (checks, the folding of the log) and for the installer's scripts.
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
    bool IsOverdue();

    Clock::duration m_bound = std::chrono::seconds(60);
    int m_aside = 0;
    quint64 m_run = 0; // counts the times that the engine was set to work
    quint64 m_timedRun = 0;
    Clock::time_point m_since; // when the run that is timed was first asked after
};

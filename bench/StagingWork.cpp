#include "bench/StagingWork.h"

#include "bench/CounterPlay.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"

#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

// Takes the place of the report engine: a report that is staged isn't shown, but the time is noted.
class StagedReports {
public:
    StagedReports()
        : m_engine(std::exchange(
            TemplateReport::Engine(), [this](const TemplateReport::Run&) { m_staged = Clock::now(); }))
    {
    }
    ~StagedReports() { TemplateReport::Engine() = m_engine; }
    StagedReports(const StagedReports&) = delete;
    StagedReports& operator=(const StagedReports&) = delete;

    // The seconds from then until a report was staged.
    double Since(Clock::time_point from) const
    {
        Require(m_staged > from, "A report is staged.");
        return std::chrono::duration<double>(m_staged - from).count();
    }

private:
    std::function<void(const TemplateReport::Run&)> m_engine;
    Clock::time_point m_staged;
};

}

StagingWork::StagingWork(const char* screen, const QString& mode, const QString& keys, const QString& print)
    : m_screen(screen)
    , m_mode(mode)
    , m_keys(keys)
    , m_print(print)
{
}

double StagingWork::ByScreen()
{
    gAppState.gReportMode = m_mode;
    const StagedReports reports;
    double seconds = 0;
    Play(m_screen, [&](Clerk& clerk) {
        clerk.Type(m_keys);
        const Clock::time_point from = Clock::now();
        Timed(clerk, m_print);
        seconds = reports.Since(from);
    });
    m_traces = ReadTraces();
    gCn.Fold();
    return seconds;
}

double StagingWork::ByFloor()
{
    const double seconds = SecondsOf([&] { StageByFloor(); });
    RequireSameTraces(m_traces, ReadTraces());
    gCn.Fold();
    return seconds;
}

#include "bench/Work.h"

#include "bench/BenchSociety.h"
#include "bench/PaintGaps.h"
#include "core/menu/ScreenDirectory.h"
#include "core/start/BooksKeeper.h"
#include "platform/text/RunTimeError.h"

namespace {

constexpr Target AfterYears{.ratio = 1.3};

// One society and then the other, in turns, since books are opened one at a time.
constexpr int Openings = 2;

void AddGaps(benchmark::State& state, const WorkCase& which, const Pair& gaps)
{
    if (which.hasGaps)
        Outcomes::Add(state, "its longest wait between paintings", gaps, Milliseconds,
            {.below = LongestPaintGap * Milliseconds.scale});
}

void Measure(benchmark::State& state, const QString& drives, const WorkCase& which)
{
    Pair seconds;
    Pair gaps;
    const BooksOfSociety books(drives);
    const std::unique_ptr<Work> work = which.make();
    work->ByScreen(); // the first has the window to make
    work->ByFloor();
    for ([[maybe_unused]] auto _ : state) {
        seconds.Turn([&] { return work->ByScreen(); }, [&] { return work->ByFloor(); });
        gaps.Measured.Add(work->LongestGap());
        gaps.Floor.Add(LongestPaintGap);
        state.SetIterationTime(seconds.Measured.Last());
    }
    Outcomes::Add(state, which.what, seconds, Milliseconds, which.target);
    AddGaps(state, which, gaps);
}

void MeasureYears(benchmark::State& state, const QString& drives, const WorkCase& which)
{
    Pair seconds;
    const auto measure = [&](const QString& society, Samples& samples) {
        const BooksOfSociety books(society);
        const std::unique_ptr<Work> work = which.make();
        work->ByScreen();
        for (int turn = 0; turn < which.turns; ++turn)
            samples.Add(work->ByScreen());
    };
    const QString years = TenYears().Drives();
    for ([[maybe_unused]] auto _ : state) {
        measure(drives, seconds.Floor);
        measure(years, seconds.Measured);
        state.SetIterationTime(seconds.Measured.Last());
    }
    Outcomes::Add(state, which.what + ": ten years", seconds, Milliseconds, AfterYears);
}

using Measuring = void (*)(benchmark::State&, const QString&, const WorkCase&);

void Run(benchmark::State& state, const QString& drives, const WorkCase& which, Measuring measure)
{
    try {
        measure(state, drives, which);
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

void Register(
    const std::string& name, int turns, const QString& drives, const WorkCase& which, Measuring measure)
{
    benchmark::RegisterBenchmark(name.c_str(), Run, drives, which, measure)
        ->UseManualTime()
        ->Iterations(turns)
        ->Unit(benchmark::kMillisecond);
}

}

std::string Iso(const QDate& day)
{
    return day.toString(Qt::ISODate).toStdString();
}

QString Typed(const QDate& day)
{
    return day.toString(QStringLiteral("ddMMyyyy"));
}

void Work::Play(const char* screen, const std::function<void(Clerk&)>& script)
{
    Clerk clerk;
    const std::optional<RunTimeError> failure = clerk.Play(
        [&] {
            const BooksKeeper keeper;
            ScreenDirectory::Open(QString::fromLatin1(screen), {});
        },
        [&](Clerk& self) {
            script(self);
            self.Type(QStringLiteral("{ESC}"));
        });
    if (failure)
        throw RunTimeError(*failure);
}

double Work::Timed(Clerk& clerk, const QString& keys)
{
    return Timed(clerk, [&] { clerk.Type(keys); });
}

double Work::Timed(Clerk& clerk, const std::function<void()>& act)
{
    std::unique_ptr<PaintGaps> gaps; // lives on the program's thread
    clerk.Do([&] { gaps = std::make_unique<PaintGaps>(); });
    const double seconds = SecondsOf(act);
    clerk.Do([&] {
        m_longestGap = gaps->Longest();
        gaps.reset();
    });
    return seconds;
}

void RegisterWork(const QString& drives, const WorkCase& which)
{
    Register(which.name, which.turns, drives, which, Measure);
    if (which.hasYears)
        Register(which.name + "/ten-years", Openings, drives, which, MeasureYears);
}

// The whole program, each time in a new process, so that nothing is cached in it.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/RunTimeError.h"

#include <sqlcipher/sqlite3.h>

#include <QCoreApplication>
#include <QProcess>

namespace {

constexpr int ChildMilliseconds = 300000;

// A run of this program with one of the words that main knows.
class Child {
public:
    Child(const QString& word, const QString& drives)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(), {word, drives});
    }

    // Waits for its first line.
    void WaitForLine()
    {
        while (!m_process.canReadLine())
            Require(m_process.waitForReadyRead(ChildMilliseconds), "The program answers.");
    }

    // Waits for its end and returns all that it has printed.
    QByteArray WaitForEnd()
    {
        Require(m_process.waitForFinished(ChildMilliseconds) && m_process.exitStatus() == QProcess::NormalExit
                && m_process.exitCode() == 0,
            "The program ends well.");
        return m_process.readAllStandardOutput();
    }

private:
    QProcess m_process;
};

// The number after a word in what a child has printed.
double NumberIn(const QByteArray& printed, const QByteArray& word)
{
    const qsizetype at = printed.indexOf(word);
    Require(at >= 0, "The program tells its numbers.");
    return printed.mid(at + word.size()).simplified().split(' ').front().toDouble();
}

// The peak memory of a child in bytes, from what it has printed.
double PeakIn(const QByteArray& printed)
{
    return NumberIn(printed, "VmHWM:") * 1024;
}

// Derives the key once and reads the first page.
void OpenByEngine(const QByteArray& file, const QByteArray& password)
{
    sqlite3* handle = nullptr;
    int code = sqlite3_open_v2(file.constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_key(handle, password.constData(), static_cast<int>(password.size()));
    if (code == SQLITE_OK)
        code = sqlite3_exec(handle, "select count(*) from sqlite_master", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    Require(code == SQLITE_OK, "The engine opens the books.");
}

double SecondsToMenu(const QString& drives)
{
    std::optional<Child> child;
    const double seconds = SecondsOf([&] {
        child.emplace(QStringLiteral("--play-start"), drives);
        child->WaitForLine();
    });
    child->WaitForEnd();
    return seconds;
}

void MeasureStart(benchmark::State& state, const QString& drives, Pair& pair)
{
    QByteArray password;
    {
        const BooksOfSociety books(drives);
        password = gAppState.gDbPassword.toUtf8();
    }
    const QByteArray file = LocalAppFile(u"Morvelta.mdb").toUtf8();
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn([&] { return SecondsToMenu(drives); },
            [&] { return SecondsOf([&] { OpenByEngine(file, password); }); });
        state.SetIterationTime(pair.Measured.Last());
    }
}

// The floor is the memory that the program uses at the menu.
void MeasurePeak(benchmark::State& state, const QString& word, const QString& drives, Pair& pair)
{
    for ([[maybe_unused]] auto _ : state) {
        pair.Floor.Add(PeakIn(Child(QStringLiteral("--play-start"), drives).WaitForEnd()));
        const double seconds =
            SecondsOf([&] { pair.Measured.Add(PeakIn(Child(word, drives).WaitForEnd())); });
        state.SetIterationTime(seconds);
    }
}

void MeasureDay(benchmark::State& state, const QString& drives, Pair& pair)
{
    MeasurePeak(state, QStringLiteral("--play-day"), drives, pair);
}

void MeasureReport(benchmark::State& state, const QString& drives, Pair& pair)
{
    MeasurePeak(state, QStringLiteral("--play-report"), drives, pair);
}

// A maximum meets whatever else the machine does, so the quietest of some shifts counts. The floor of the
// longest key is the usual key among those that save.
void MeasureSlips(benchmark::State& state, const QString& drives, Pair& pair)
{
    constexpr int shifts = 5;
    for ([[maybe_unused]] auto _ : state) {
        QByteArray quietest;
        for (int shift = 0; shift < shifts; ++shift) {
            const QByteArray printed = Child(QStringLiteral("--play-slips"), drives).WaitForEnd();
            if (quietest.isEmpty() || NumberIn(printed, "longest:") < NumberIn(quietest, "longest:"))
                quietest = printed;
        }
        pair.Measured.Add(NumberIn(quietest, "longest:"));
        pair.Floor.Add(NumberIn(quietest, "usual:"));
        state.SetLabel(quietest.left(quietest.indexOf('\n')).toStdString());
        state.SetIterationTime(pair.Measured.Last());
    }
}

struct ProgramCase {
    const char* what;
    void (*measure)(benchmark::State&, const QString&, Pair&);
    Unit unit;
    Target target;
};

void Run(benchmark::State& state, const QString& drives, const ProgramCase& which)
{
    Pair pair;
    try {
        which.measure(state, drives, pair);
        Outcomes::Add(state, which.what, pair, which.unit, which.target);
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

}

void RegisterProgramCases(const QString& drives)
{
    const ProgramCase start{"start to menu", MeasureStart, Milliseconds, {.below = 400.0}};
    const ProgramCase day{"memory after 1,000 deliveries", MeasureDay, Megabytes, {.below = 120.0}};
    const ProgramCase report{"memory of a report of 20,000 rows", MeasureReport, Megabytes, {.below = 150.0}};
    const ProgramCase slips{
        "a shift of 200 with receipts: longest key", MeasureSlips, Milliseconds, {.below = 16.0}};
    benchmark::RegisterBenchmark("program/start", Run, drives, start)
        ->UseManualTime()
        ->Iterations(11)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("program/day", Run, drives, day)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("program/report", Run, drives, report)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("program/slips", Run, drives, slips)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

// A report of 20,000 rows: its layout in memory, its first page, and the whole as a PDF. And a report of one
// very long text.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorReport.h"
#include "bench/Outcomes.h"
#include "bench/ReportPlay.h"
#include "platform/text/RunTimeError.h"

#include <QFileInfo>

namespace {

constexpr double LookedAt = 1.5; // pixels a point
constexpr int Turns = 21; // with fewer, the disk would move the median too much

// The database and a finished list, with the floor made from it.
struct List {
    std::shared_ptr<Connection> books = OpenForReports();
    std::unique_ptr<Report> report = Finished(books);
    FloorReport floor{*report};

    static std::unique_ptr<Report> Finished(const std::shared_ptr<Connection>& books)
    {
        std::unique_ptr<Report> report = BeginList(books);
        report->Complete();
        std::size_t figures = 0;
        for (std::size_t page = 0; page < report->PageCount(); ++page)
            for (const PlacedItem& item : report->PageAt(page).items)
                figures += item.kind == PlacedItem::Kind::Text && item.fit == Fit::Shrink;
        // The number and four figures of each row, and three totals.
        Require(figures == 5 * ListedRows + 3, "All rows of the list are on its pages.");
        return report;
    }
};

double SecondsToFill(const List& list)
{
    std::unique_ptr<Report> report;
    const double seconds = SecondsOf([&] {
        report = BeginList(list.books);
        report->Complete();
    });
    Require(report->PageCount() == list.report->PageCount(), "Every list has the same pages.");
    return seconds;
}

void MeasureFill(benchmark::State& state, const QString&, Pair& pair)
{
    List list;
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn([&] { return SecondsToFill(list); },
            [&] {
                int rows = 0;
                const double seconds = SecondsOf([&] { rows = list.floor.ReadAndLayOut(); });
                Require(rows == ListedRows, "The floor reads all rows.");
                return seconds;
            });
        state.SetIterationTime(pair.Measured.Last());
    }
}

// The floor of the first page is the whole report.
void MeasureFirstPage(benchmark::State& state, const QString&, Pair& pair)
{
    const List list;
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn(
            [&] {
                std::unique_ptr<Report> report;
                QImage picture;
                const double seconds = SecondsOf([&] {
                    report = BeginList(list.books);
                    report->LayOutNext();
                    picture = report->Image(0, LookedAt);
                });
                Require(report->PageCount() == 1 && !picture.isNull(), "The first page stands alone.");
                return seconds;
            },
            [&] { return SecondsToFill(list); });
        state.SetIterationTime(pair.Measured.Last());
    }
}

void MeasurePdf(benchmark::State& state, const QString& drives, Pair& pair)
{
    List list;
    const QString file = drives + QStringLiteral("/list.pdf");
    const QString floors = drives + QStringLiteral("/floor.pdf");
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn(
            [&] {
                bool isDone = false;
                const double seconds = SecondsOf([&] { isDone = list.report->SavePdf(file).Done(); });
                Require(isDone, "The PDF is saved.");
                return seconds;
            },
            [&] { return SecondsOf([&] { list.floor.SavePdf(floors); }); });
        state.SetIterationTime(pair.Measured.Last());
    }
    const auto size = static_cast<double>(QFileInfo(file).size());
    const auto floorsSize = static_cast<double>(QFileInfo(floors).size());
    // Unlike the floor, the report marks each Marathi word as one piece, so that it can be copied from the
    // PDF.
    Require(size >= floorsSize && size < 1.5 * floorsSize, "The report writes all that the floor writes.");
}

// The seconds until the last page of a text in one field is laid out.
double SecondsToFillLongText(const std::shared_ptr<Connection>& books, int megabytes)
{
    StageLongText(megabytes);
    std::unique_ptr<Report> report;
    const double seconds = SecondsOf([&] {
        report = BeginLongText(books);
        report->Complete();
    });
    Require(report->PageCount() > 50U * static_cast<unsigned>(megabytes), "The text is on its pages.");
    return seconds;
}

// The floor of ten megabytes is ten times the time of one.
void MeasureLongText(benchmark::State& state, const QString&, Pair& pair)
{
    const std::shared_ptr<Connection> books = OpenForReports();
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn([&] { return SecondsToFillLongText(books, 10); },
            [&] { return 10 * SecondsToFillLongText(books, 1); });
        state.SetIterationTime(pair.Measured.Last());
    }
}

struct ReportCase {
    const char* what;
    void (*measure)(benchmark::State&, const QString&, Pair&);
    Target target;
    int turns = Turns;
};

void Run(benchmark::State& state, const QString& drives, const ReportCase& which)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        which.measure(state, drives, pair);
        Outcomes::Add(state, which.what, pair, Milliseconds, which.target);
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

void Register(const char* name, const QString& drives, const ReportCase& which)
{
    benchmark::RegisterBenchmark(name, Run, drives, which)
        ->UseManualTime()
        ->Iterations(which.turns)
        ->Unit(benchmark::kMillisecond);
}

}

void RegisterReportCases(const QString& drives)
{
    Register("report/fill", drives, {"a report of 20,000 rows: laid out", MeasureFill, {.ratio = 1.2}});
    Register("report/first", drives, {"its first page, beside the whole", MeasureFirstPage, {.ratio = 0.1}});
    Register("report/pdf", drives, {"its PDF", MeasurePdf, {.ratio = 1.2}});
    Register("report/long", drives,
        {"a text of 10 MB in one field, beside ten of 1 MB", MeasureLongText, {.ratio = 1.2}, 3});
}

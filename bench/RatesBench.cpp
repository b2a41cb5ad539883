// Deliveries priced anew after a change of the chart: a month of them, by a chart of 300 fats.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorStatement.h"
#include "bench/Outcomes.h"
#include "core/menu/ScreenDirectory.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/RunTimeError.h"
#include "rates/WorkingChart.h"
#include "tools/clerk/Clerk.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <vector>

namespace {

constexpr int FirstTenths = 10;
constexpr int Fats = 300;

// The day of the newest chart, a month before the end of the year.
const QDate MonthBegins(2027, 3, 1);

struct Rate {
    double fat = 0;
    double cow = 0;
    double buffalo = 0;
};

std::vector<Rate> Rates()
{
    std::vector<Rate> rates;
    for (int tenths = FirstTenths; tenths < FirstTenths + Fats; ++tenths)
        rates.push_back({tenths / 10.0, 10 + tenths / 5.0, 12 + tenths / 4.0});
    return rates;
}

// Gives the newest chart a row for each of the 300 fats.
void FillNewestChart()
{
    const QString table =
        Recordset(gCn, Sql(u"select * from FatDates where FromDate=", SqlDay(MonthBegins)))[u"FatFileName"]
            .Text();
    Transaction filling(gCn);
    gCn.Execute(Sql(u"delete * from ", table));
    for (const Rate& rate : Rates())
        gCn.Execute(Sql(u"insert into ", table, u"(Fat,CowRate,BuffRate) values(",
            Values(rate.fat, rate.cow, rate.buffalo), u")"));
    filling.Commit();
}

// The longest time in which nothing was painted while the program was at work.
class PaintGaps final : public QObject {
public:
    PaintGaps() { qApp->installEventFilter(this); }
    double Longest() const { return m_longest; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            m_longest = std::max(m_longest, SecondsSince(m_last));
            m_last = Clock::now();
        }
        return false;
    }

private:
    using Clock = std::chrono::steady_clock;
    static double SecondsSince(Clock::time_point from)
    {
        return std::chrono::duration<double>(Clock::now() - from).count();
    }

    Clock::time_point m_last = Clock::now();
    double m_longest = 0;
};

// The same writes in prepared statements and one durable transaction.
double FloorSeconds()
{
    FloorStatement begin("begin immediate");
    FloorStatement price("update MilkCollections set Rate=? where CompanyId=1 and CollectionDate>=? "
                         "and Animal=? and Fat=?");
    FloorStatement amounts(
        "update MilkCollections set Amount=Liters*Rate where CompanyId=1 and CollectionDate>=?");
    FloorStatement commit("commit");
    const std::string from = MonthBegins.toString(Qt::ISODate).toStdString();
    const std::vector<Rate> rates = Rates();
    return SecondsOf([&] {
        begin.Run();
        for (const Rate& rate : rates) {
            const Recordset any(
                gCn, u"select * from CompanySelected"); // or the guard takes all for one long run
            price.Bind(rate.cow, from, "gaaya", rate.fat).Run();
            price.Bind(rate.buffalo, from, "mhOsa", rate.fat).Run();
        }
        amounts.Bind(from).Run();
        commit.Run();
    });
}

double SumOfAmounts()
{
    return Recordset(
        gCn, Sql(u"select sum(Amount) from MilkCollections where CollectionDate>=", SqlDay(MonthBegins)))
        .At(0)
        .Number();
}

struct Measured {
    Pair Seconds;
    Pair Gaps; // their floor is a tenth of a second
};

void MeasureReRating(benchmark::State& state, Clerk& clerk, Measured& measured)
{
    constexpr double tenth = 0.1;
    for ([[maybe_unused]] auto _ : state) {
        double longestGap = 0;
        const auto byScreen = [&] {
            clerk.Type(QStringLiteral("%d{ENTER}%s")); // the newest chart, saved over itself
            std::optional<PaintGaps> gaps; // lives on the program's thread
            clerk.Do([&] { gaps.emplace(); });
            const double seconds = SecondsOf([&] { clerk.Type(QStringLiteral("%h")); });
            clerk.Do([&] {
                longestGap = gaps->Longest();
                gaps.reset();
            });
            return seconds;
        };
        const auto byFloor = [&] {
            double seconds = 0;
            clerk.Do([&] { seconds = FloorSeconds(); });
            return seconds;
        };
        measured.Seconds.Turn(byScreen, byFloor);
        measured.Gaps.Measured.Add(longestGap);
        measured.Gaps.Floor.Add(tenth);
        state.SetIterationTime(measured.Seconds.Measured.Last());
    }
}

void ReRate(benchmark::State& state, const QString& drives)
{
    constexpr const char* what = "a month of 31,000 deliveries priced anew";
    Measured measured;
    try {
        const OpenBooks books(drives);
        FillNewestChart();
        const double before = SumOfAmounts();
        Clerk clerk;
        const auto failure = clerk.Play([] { ScreenDirectory::Open(QStringLiteral("frmNewFatRates"), {}); },
            [&](Clerk& self) {
                MeasureReRating(state, self, measured);
                self.Type(QStringLiteral("{ESC}"));
            });
        if (failure)
            throw RunTimeError(*failure);
        Require(SumOfAmounts() != before, "The deliveries have other amounts.");
        Outcomes::Add(state, what, measured.Seconds, Milliseconds, {.ratio = 1.4});
        Outcomes::Add(
            state, "its longest wait between paintings", measured.Gaps, Milliseconds, {.below = 100.0});
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, what, error.Text().toStdString());
    }
}

}

void RegisterRatesCases(const QString& drives)
{
    constexpr int runs = 3;
    benchmark::RegisterBenchmark("rates/re-rating", ReRate, drives)
        ->UseManualTime()
        ->Iterations(runs)
        ->Unit(benchmark::kMillisecond);
}

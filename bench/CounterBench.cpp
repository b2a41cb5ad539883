// The times for which the clerk waits on the way through the fields of a delivery.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorStatement.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/RunTimeError.h"

namespace {

const QDate FullDay(2026, 10, 15);

// Floor: finds the newest rate chart, and the rate of a fat in it.
class FloorRate {
public:
    double Find(std::string_view day, std::string_view fat)
    {
        while (m_charts.Step() && m_charts.TextAt(0) != day) { }
        m_charts.Reset();
        Require(m_rate.Bind(fat).Step(), "The chart has the fat.");
        const double rate = m_rate.NumberAt(1);
        m_rate.Reset();
        return rate;
    }

private:
    static std::string RateQuery()
    {
        const Recordset chart(gCn, QStringLiteral("select * from FatDates"));
        return QString(Sql(u"select * from ", chart[u"FatFileName"].Text(), u" where Fat=?")).toStdString();
    }

    FloorStatement m_charts{"select * from FatDates order by FromDate"};
    FloorStatement m_rate{RateQuery().c_str()};
};

void MeasureFat(benchmark::State& state, Pair& pair)
{
    FloorRate floor;
    const std::string day = SavingDay.toString(Qt::ISODate).toStdString();
    // Member 1 brings cow milk.
    Type(QStringLiteral("{ENTER}2{ENTER}{ENTER}1{ENTER}5.5{ENTER}"));
    int tenths = 0;
    for ([[maybe_unused]] auto _ : state) {
        tenths = (tenths + 1) % 20;
        const QString fat = ShortestDecimal((35 + tenths) / 10.0);
        RequireFocus(u"txtFat");
        Type(fat);
        Paint();
        double rate = 0;
        pair.Turn([] { return SecondsOf([] { Type(QStringLiteral("{ENTER}")); }); },
            [&] {
                const std::string key = fat.toStdString();
                return SecondsOf([&] { rate = floor.Find(day, key); });
            });
        Require(rate > 0, "The floor finds a rate.");
        state.SetIterationTime(pair.Measured.Last());
        RequireFocus(u"txtRate");
        Type(QStringLiteral("+{TAB}"));
        Paint();
    }
}

// Floor: opens a shift with prepared statements.
class FloorShift {
public:
    double Open(std::string_view day, std::string_view time)
    {
        const double highest = m_highest.Bind(day, time).Number();
        m_begin.Run();
        m_empty.Run();
        m_fill.Bind(day, time).Run();
        m_tidy.Run();
        m_commit.Run();
        return highest + 1;
    }

private:
    FloorStatement m_highest{
        "select max(CollectionNo) from MilkCollections where CollectionDate=? and CollectionTime=?"};
    FloorStatement m_begin{"begin immediate"};
    FloorStatement m_empty{"delete from MilkCollectionsTemp"};
    FloorStatement m_fill{"insert into MilkCollectionsTemp select * from MilkCollections "
                          "where CollectionDate=? and CollectionTime=?"};
    FloorStatement m_tidy{"delete from MilkCollectionsTemp where CollectionNo=0"};
    FloorStatement m_commit{"commit"};
};

void RequireFullCopy()
{
    const Recordset copy(gCn, QStringLiteral("select count(*) from MilkCollectionsTemp"));
    Require(copy.At(0).Number() == SocietyMembers, "The copy holds the whole shift.");
}

void MeasureShift(benchmark::State& state, Pair& pair)
{
    FloorShift floor;
    const std::string day = FullDay.toString(Qt::ISODate).toStdString();
    Type(QStringLiteral("{ENTER}"));
    bool isMorning = false;
    for ([[maybe_unused]] auto _ : state) {
        isMorning = !isMorning;
        RequireFocus(u"txtTime");
        Type(isMorning ? QStringLiteral("1") : QStringLiteral("2"));
        Paint();
        pair.Turn(
            [] {
                const double seconds = SecondsOf([] { Type(QStringLiteral("{ENTER}")); });
                RequireFullCopy();
                return seconds;
            },
            [&] {
                double next = 0;
                const double seconds =
                    SecondsOf([&] { next = floor.Open(day, isMorning ? "sakaL" : "saMQyaakaL"); });
                Require(next == SocietyMembers + 1, "The floor finds the next number.");
                RequireFullCopy();
                return seconds;
            });
        state.SetIterationTime(pair.Measured.Last());
        RequireFocus(u"txtCollectionNo");
        Paint();
        Type(QStringLiteral("+{TAB}"));
    }
}

struct CounterCase {
    const char* what;
    QDate day;
    void (*measure)(benchmark::State&, Pair&);
    Unit unit;
    Target target;
};

void Run(benchmark::State& state, const QString& drives, const CounterCase& which)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        PlayAtCounter(which.day, [&] { which.measure(state, pair); });
        Outcomes::Add(state, which.what, pair, which.unit, which.target);
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

}

void RegisterCounterCases(const QString& drives)
{
    const CounterCase fat{"leaving the fat", SavingDay, MeasureFat, Milliseconds, {.below = 0.5}};
    const CounterCase shift{
        "opening a shift of 500 rows", FullDay, MeasureShift, Milliseconds, {.below = 20.0}};
    benchmark::RegisterBenchmark("counter/fat", Run, drives, fat)
        ->UseManualTime()
        ->Iterations(2000)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("counter/shift", Run, drives, shift)
        ->UseManualTime()
        ->Iterations(100)
        ->Unit(benchmark::kMillisecond);
}

// Deliveries priced anew after a change of the chart: a month of them, by a chart of 300 fats.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorStatement.h"
#include "bench/Work.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"

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

// The same statements prepared, the writes in one durable transaction. The screen has left the chart in the
// working table.
double FloorSeconds()
{
    FloorStatement paid("select * from MilkPayments where CompanyId=1 and ToDate>=?");
    FloorStatement begin("begin immediate");
    FloorStatement chart("select Fat,CowRate,BuffRate from FatRates");
    FloorStatement price("update MilkCollections set Rate=? where CompanyId=1 and CollectionDate>=? "
                         "and Animal=? and Fat=?");
    FloorStatement amounts(
        "update MilkCollections set Amount=Liters*Rate where CompanyId=1 and CollectionDate>=?");
    FloorStatement commit("commit");
    const std::string from = MonthBegins.toString(Qt::ISODate).toStdString();
    return SecondsOf([&] {
        Require(!paid.Bind(from).Finds(), "No payment reaches to the month.");
        begin.Run();
        int fats = 0;
        for (; chart.Step(); ++fats) {
            const Recordset any(
                gCn, u"select * from CompanySelected"); // or the guard takes all for one long run
            price.Bind(chart.NumberAt(1), from, "gaaya", chart.NumberAt(0)).Run();
            price.Bind(chart.NumberAt(2), from, "mhOsa", chart.NumberAt(0)).Run();
        }
        chart.Reset();
        Require(fats == Fats, "The chart has all its fats.");
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

class ReRated final : public Work {
public:
    ReRated()
    {
        FillNewestChart();
        // Earlier turns may have priced the month by this very chart.
        gCn.Execute(Sql(
            u"update MilkCollections set Rate=1,Amount=Liters where CollectionDate>=", SqlDay(MonthBegins)));
        m_before = SumOfAmounts();
    }

    double ByScreen() override
    {
        double seconds = 0;
        Play("frmNewFatRates", [&](Clerk& clerk) {
            clerk.Type(QStringLiteral("%d{ENTER}%s")); // the newest chart, saved over itself
            seconds = Timed(clerk, QStringLiteral("%h"));
        });
        Require(SumOfAmounts() != m_before, "The deliveries have other amounts.");
        gCn.Fold();
        return seconds;
    }

    double ByFloor() override
    {
        const double seconds = FloorSeconds();
        gCn.Fold();
        return seconds;
    }

private:
    double m_before = 0;
};

}

void RegisterRatesCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "rates/re-rating",
            .what = "a month of 31,000 deliveries priced anew",
            .turns = 5,
            .target = {.ratio = 1.4},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<ReRated>(); }});
}

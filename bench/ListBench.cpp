// A list that is read again and painted after a write. Its length shouldn't matter.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Screen.h"
#include "platform/text/RunTimeError.h"

#include <QCoreApplication>
#include <QHBoxLayout>

namespace {

// The order of the counter, and one of those that the buttons of the gate choose.
struct ListCase {
    const char* what;
    QStringView order;
};

constexpr int LongRows = 2000;
constexpr int ShortRows = 20;

std::vector<DataGrid::Column> ShownColumns()
{
    return {{.field = QStringLiteral("CollectionNo"), .caption = Plain(u"No"), .alignRight = true},
        {.field = QStringLiteral("MemberName"), .caption = Plain(u"Name"), .width = 300},
        {.field = QStringLiteral("Animal"), .caption = Plain(u"Animal")},
        {.field = QStringLiteral("Liters"), .caption = Plain(u"Liters"), .format = QStringLiteral("0.000")},
        {.field = QStringLiteral("Fat"), .caption = Plain(u"Fat"), .format = QStringLiteral("0.0")},
        {.field = QStringLiteral("Amount"), .caption = Plain(u"Amount"), .format = QStringLiteral("0.00")}};
}

// A list of the deliveries in a table, in some order.
class ListScreen final : public Screen {
public:
    ListScreen(QStringView table, QStringView order)
        : Screen("ListScreen")
        , List(this, "List", ShownColumns())
    {
        setParent(nullptr); // a window of its own, since a covered list isn't painted
        setFixedSize(1000, 600);
        (new QHBoxLayout(this))->addWidget(List.Widget());
        List.Bind(gCn, Sql(u"select * from ", table, u" order by ", order));
    }

    DataGrid List;
};

void FillTable(QStringView table, int rows)
{
    gCn.Execute(Sql(u"delete * from ", table));
    for (int number = 1; number <= rows; ++number)
        gCn.Execute(Sql(u"insert into ", table,
            u"(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,"
            u"Rate,Amount) values(1,'01/04/2027','sakaL',",
            number, u",", number, u",'rama paaTIla','gaaya',", LitersOf(number), u",4,30,",
            LitersOf(number) * 30, u")"));
}

void Refresh(DataGrid& list)
{
    list.Refresh();
    Paint();
}

void MeasureLists(benchmark::State& state, QStringView order, Pair& pair)
{
    FillTable(u"MilkCollectionsTemp", LongRows);
    FillTable(u"MilkCollectionsOld", ShortRows);
    ListScreen longList(u"MilkCollectionsTemp", order);
    ListScreen shortList(u"MilkCollectionsOld", order);
    longList.show();
    shortList.show();
    QCoreApplication::processEvents(); // so that both are shown and painted
    Refresh(longList.List);
    Refresh(shortList.List);
    for (const ListScreen* list : {&longList, &shortList})
        Require(!list->List.Widget()->visibleRegion().isEmpty(), "Both lists are seen.");
    for ([[maybe_unused]] auto _ : state) {
        pair.Turn([&] { return SecondsOf([&] { Refresh(longList.List); }); },
            [&] { return SecondsOf([&] { Refresh(shortList.List); }); });
        state.SetIterationTime(pair.Measured.Last());
    }
    Require(longList.List.Rows() == LongRows && shortList.List.Rows() == ShortRows, "The lists are whole.");
    FillTable(u"MilkCollectionsTemp", 0);
    FillTable(u"MilkCollectionsOld", 0);
}

void Run(benchmark::State& state, const QString& drives, const ListCase& which)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        MeasureLists(state, which.order, pair);
        Outcomes::Add(state, which.what, pair, Milliseconds, {.ratio = 1.2});
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, which.what, error.Text().toStdString());
    }
}

}

void RegisterListCases(const QString& drives)
{
    const ListCase newest{"a list of 2,000 rows, beside 20", u"CollectionNo desc"};
    const ListCase sorted{"the same by litres", u"Liters desc"};
    for (const auto& [name, which] : {std::pair("counter/list", newest), std::pair("counter/sorted", sorted)})
        benchmark::RegisterBenchmark(name, Run, drives, which)
            ->UseManualTime()
            ->Iterations(500)
            ->Unit(benchmark::kMillisecond);
}

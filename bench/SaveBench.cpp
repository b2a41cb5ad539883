#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorSave.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/text/RunTimeError.h"
#include "rates/LookupFatRate.h"

#include <cmath>

namespace {

constexpr const char* What = "a save at the counter";
constexpr double HalfPaisa = 0.005;
constexpr const char* FloorsShift = "saMQyaakaL";

double One(const QString& query)
{
    return Recordset(gCn, query).At(0).Number();
}

// The delivery that DeliveryKeys makes for a member, for the floor's shift.
FloorSave::Row RowOf(int member)
{
    const Recordset master(gCn, Sql(u"select * from MembersMaster where MemberNo=", member));
    FloorSave::Row row;
    row.day = SavingDay.toString(Qt::ISODate).toStdString();
    row.time = FloorsShift;
    row.memberNo = member;
    row.memberName = master[u"MemberName"].Text().toStdString();
    row.animal = master[u"Animal"].Text().toStdString();
    row.liters = LitersOf(member);
    row.fat = FatOf(member);
    row.rate = LookupFatRate(SavingDay, row.fat, master[u"Animal"].Text()).rate;
    row.amount = Val(Format(row.liters * row.rate, u"#########0.00"));
    row.actualTime = "6.45";
    return row;
}

// The floor saves the members in another order, so that neither of the two finds the pages of a member in the
// cache because of the other.
std::vector<FloorSave::Row> FloorsRows()
{
    std::vector<FloorSave::Row> rows;
    for (int number = 1; number <= SocietyMembers; ++number) {
        rows.push_back(RowOf((number + SocietyMembers / 2) % SocietyMembers + 1));
        rows.back().number = number;
    }
    return rows;
}

// Throws unless both have left the same rows, and the members' figures are the sums of their rows.
void RequireSameResult()
{
    for (QStringView table : {u"MilkCollections", u"MilkCollectionsTemp"}) {
        const SqlText rows =
            Sql(u"select count(*),sum(Liters),sum(Fat),sum(Rate),sum(Amount),sum(CollectionNo) "
                u"from ",
                table, u" where CollectionDate=#", SavingDay.toString(QStringLiteral("MM/dd/yyyy")),
                u"# and CollectionTime='");
        const Recordset screen(gCn, Sql(rows, u"sakaL'"));
        const Recordset floor(gCn, Sql(rows, QString::fromUtf8(FloorsShift), u"'"));
        Require(screen.At(0).Number() == SocietyMembers, "Every save of the counter has left its row.");
        for (int column = 0; column < screen.Columns(); ++column)
            Require(std::abs(screen.At(column).Number() - floor.At(column).Number()) < HalfPaisa,
                "Both ways leave the same rows.");
    }
    Require(
        One(QStringLiteral("select count(*) from MembersMaster where ClosingBalance>0")) == SocietyMembers,
        "The balances are posted.");
    const double delivered = One(QStringLiteral("select sum(Liters) from MilkCollections"));
    const double closing =
        One(QStringLiteral("select sum(CowClosingLits)+sum(BuffClosingLits) from MembersMaster"));
    // Closing litres are single precision: half a litre in the three million of a year.
    Require(std::abs(delivered - closing) < 0.5, "The closing litres are those of all rows.");
}

void MeasureSaves(benchmark::State& state, Pair& pair)
{
    FloorSave floor;
    const std::vector<FloorSave::Row> rows = FloorsRows();
    Type(QStringLiteral("{ENTER}1{ENTER}"));
    int member = 0;
    for ([[maybe_unused]] auto _ : state) {
        const FloorSave::Row& row = rows.at(static_cast<std::size_t>(member));
        ++member;
        RequireFocus(u"txtCollectionNo");
        Type(DeliveryKeys(member));
        RequireFocus(u"cmdGo");
        Paint();
        double next = 0;
        pair.Turn([] { return SecondsOf([] { Type(QStringLiteral("{ENTER}")); }); },
            [&] { return SecondsOf([&] { next = floor.Save(row); }); });
        Require(next == row.number + 1, "The floor's number steps on.");
        state.SetIterationTime(pair.Measured.Last());
        Paint();
    }
    RequireSameResult();
}

void Save(benchmark::State& state, const QString& drives)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        PlayAtCounter(SavingDay, [&] { MeasureSaves(state, pair); });
        Outcomes::Add(state, What, pair, Milliseconds, {.ratio = 1.5, .below = 5.0});
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, What, error.Text().toStdString());
    }
}

}

void RegisterSaveCases(const QString& drives)
{
    benchmark::RegisterBenchmark("counter/save", Save, drives)
        ->UseManualTime()
        ->Iterations(SocietyMembers)
        ->Unit(benchmark::kMillisecond);
}

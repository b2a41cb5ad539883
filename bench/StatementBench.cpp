// A statement as a screen puts it together, known to the cache, beside a prepared statement that is bound
// directly.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorStatement.h"
#include "bench/Outcomes.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/RunTimeError.h"

namespace {

constexpr int Statements = 20000;
constexpr Target KnownShape{.ratio = 1.3, .slack = 3};

using Measuring = void (*)(benchmark::State&, Pair&);

// Times both with another member number each time.
template <class Measured, class Floor>
void Compare(benchmark::State& state, Pair& pair, const Measured& measured, const Floor& floor)
{
    int member = 0;
    for ([[maybe_unused]] auto _ : state) {
        member = member % SocietyMembers + 1;
        pair.Turn([&] { return SecondsOf([&] { measured(member); }); },
            [&] { return SecondsOf([&] { floor(member); }); });
        state.SetIterationTime(pair.Measured.Last());
    }
}

void MemberByNumber(benchmark::State& state, Pair& pair)
{
    FloorStatement select("select * from MembersMaster where MemberNo=?");
    qsizetype read = 0;
    std::size_t floorRead = 0;
    Compare(
        state, pair,
        [&](int member) {
            const Recordset row(gCn, Sql(u"SELECT * FROM MembersMaster where MemberNo=", member));
            read += row[u"MemberName"].Text().size();
        },
        [&](int member) {
            if (select.Bind(member).Step())
                floorRead += select.TextAt(2).size();
            select.Reset();
        });
    Require(read > 0 && floorRead > 0, "Both ways read a name.");
}

void RowOfShift(benchmark::State& state, Pair& pair)
{
    FloorStatement select("select * from MilkCollections where CollectionDate=? and CollectionTime=? "
                          "and CollectionNo=?");
    double read = 0;
    double floorRead = 0;
    Compare(
        state, pair,
        [&](int number) {
            const Recordset row(gCn,
                Sql(u"SELECT * FROM MilkCollections where cstr(CollectionDate)=#10/15/2026# and "
                    u"CollectionTime='",
                    u"sakaL", u"' AND CollectionNo=", number));
            read += row[u"Liters"].Number();
        },
        [&](int number) {
            if (select.Bind("2026-10-15", "sakaL", number).Step())
                floorRead += select.NumberAt(7);
            select.Reset();
        });
    Require(read > 0 && read == floorRead, "Both ways read the same litres.");
}

void ClosingLitres(benchmark::State& state, Pair& pair)
{
    FloorStatement update("update MembersMaster set CowClosingLits=?,BuffClosingLits=? "
                          "where CompanyId=1 and MemberNo=?");
    const Transaction rolledBack(gCn);
    Compare(
        state, pair,
        [](int member) {
            gCn.Execute(
                Sql(u"Update MembersMaster Set CowClosingLits=", LitersOf(member), u",BuffClosingLits=",
                    2 * LitersOf(member), u" where CompanyId=", 1, u" And Memberno=", member));
        },
        [&](int member) { update.Bind(LitersOf(member), 2 * LitersOf(member), member).Run(); });
}

void NewRow(benchmark::State& state, Pair& pair)
{
    FloorStatement insert(
        "insert into MilkCollectionsTemp (CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
        "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
        "values (?,?,?,?,?,?,?,?,?,?,?,?,?)");
    const QString name = QStringLiteral("gaNaoSa rama paaTIla");
    const std::string floorName = name.toStdString();
    const Transaction rolledBack(gCn);
    Compare(
        state, pair,
        [&](int member) {
            gCn.Execute(Sql(u"insert into MilkCollectionsTemp(CompanyId,CollectionDate,CollectionTime,"
                            u"CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount,TranId,"
                            u"ActualCollectionTime) values(",
                1, u",'01/04/2027','sakaL',", member, u",", member, u",'", name, u"','gaaya',",
                LitersOf(member), u",", FatOf(member), u",", 35.25, u",", 35.25 * member, u",0, '6.45')"));
        },
        [&](int member) {
            insert
                .Bind(1, "2027-04-01", "sakaL", member, member, floorName, "gaaya", LitersOf(member),
                    FatOf(member), 35.25, 35.25 * member, 0, "6.45")
                .Run();
        });
}

void Run(benchmark::State& state, const QString& drives, const char* what, Measuring measure)
{
    Pair pair;
    try {
        const BooksOfSociety books(drives);
        measure(state, pair);
        Outcomes::Add(state, what, pair, Microseconds, KnownShape);
    } catch (const RunTimeError& error) {
        Outcomes::Fail(state, what, error.Text().toStdString());
    }
}

void Register(const char* name, const QString& drives, const char* what, Measuring measure)
{
    benchmark::RegisterBenchmark(name, Run, drives, what, measure)
        ->UseManualTime()
        ->Iterations(Statements)
        ->Unit(benchmark::kMicrosecond);
}

}

void RegisterStatementCases(const QString& drives)
{
    Register("statement/member", drives, "select: a member by number", MemberByNumber);
    Register("statement/row", drives, "select: a row of a shift", RowOfShift);
    Register("statement/update", drives, "update: the closing litres", ClosingLitres);
    Register("statement/insert", drives, "insert: a row of the copy", NewRow);
}

// The bonus of all members for the milk of a year.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorBonus.h"
#include "bench/Traces.h"
#include "bench/Work.h"
#include "core/state/AppState.h"

namespace {

constexpr int Turns = 5;
constexpr double CowRate = 0.5; // of the settings
constexpr double BuffRate = 0.75;
const QDate YearEnds = YearBegins.addYears(1).addDays(-1);

class Bonus final : public Work {
public:
    // Over all members and both kinds of milk, with the rates as they are proposed, and the advances ticked.
    double ByScreen() override
    {
        double seconds = 0;
        Play("frmBonusPayments", [&](Clerk& clerk) {
            clerk.Type(QStringLiteral("%1{ENTER}%2{ENTER}1{ENTER}%3{ENTER}3{ENTER}{ENTER}{ENTER} {ENTER}")
                           .arg(Typed(YearBegins), Typed(YearEnds), QString::number(SocietyMembers)));
            clerk.Do([] { RequireFocus(u"cmdGo"); });
            Timed(clerk,
                [&] { clerk.Do([&] { seconds = SecondsOf([] { Type(QStringLiteral("{ENTER}")); }); }); });
            clerk.Do([] { RequireFocus(u"txtMemberNo"); });
            clerk.Do([&] { m_traces = ReadTraces(); });
        });
        Require(m_traces.front() == SocietyMembers, "All members are in the bonus.");
        gCn.Fold();
        return seconds;
    }

    double ByFloor() override
    {
        const double seconds = SecondsOf([&] { m_floor.Build(SocietyMembers); });
        RequireSameTraces(m_traces, ReadTraces());
        gCn.Fold();
        return seconds;
    }

private:
    static Traces ReadTraces()
    {
        return TracesOf({QStringLiteral(
            "select count(*),sum(SerialNo),sum(MemberNo),sum(FromAcNo),sum(ToAcNo),sum(CowBonusRate),"
            "sum(BuffBonusRate),sum(CurrentCowLiters),sum(CurrentBuffLiters),sum(TotalCowLiters),"
            "sum(TotalBuffLiters),sum(TotalCowBonus),sum(TotalBuffBonus),sum(TotalBonus),sum(Advance) from "
            "BonusPayments")});
    }

    FloorBonus m_floor{Iso(YearBegins), Iso(YearEnds), CowRate, BuffRate};
    Traces m_traces;
};

}

void RegisterBonusCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "bonus/year",
            .what = "the bonus of 500 members for a year",
            .turns = Turns,
            .target = {.ratio = 1.4},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<Bonus>(); }});
}

// The payment of the milk of ten days: of one member as his number is left, and of all members in one run.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorPayment.h"
#include "bench/PaidPeriods.h"
#include "bench/Traces.h"
#include "bench/Work.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Dates.h"

namespace {

constexpr int RunTurns = 5;
constexpr int CalculationTurns = 41;

// Takes the run back, whoever made it.
void TakeBack()
{
    const QString day = SqlDay(UnpaidTo);
    Transaction takingBack(gCn);
    gCn.Execute(Sql(u"delete * from MilkPayments where PaymentDate=", day));
    gCn.Execute(Sql(u"delete * from MilkPaymentsDetails where TranDate=", day));
    gCn.Execute(Sql(u"delete * from AdvanceReceipt where TranDate=", day, u" and AdvanceType='Uchal Kapat'"));
    gCn.Execute(u"update MembersMaster set ClosingBalance=0,CowClosingThev=0,BuffClosingThev=0,"
                u"ClosingUchal=0");
    takingBack.Commit();
    gCn.Fold();
}

// What a run has left in all its tables.
Traces TracesOfRun()
{
    const QString day = SqlDay(UnpaidTo);
    return TracesOf(
        {Sql(u"select count(*),sum(TranId),sum(Liters),sum(Amount),sum(Kapat),sum(NetAmount),"
             u"sum(PreviousBalance),sum(CurrentBalance),sum(TotalUchal),sum(ThevKapatCow),sum(ThevKapatBuff),"
             u"sum(LitersCow),sum(CowAmount),sum(FixedKapat),sum(PreviousAdvance) from MilkPayments where "
             u"PaymentDate=",
             day),
            Sql(u"select count(*),sum(MemberNo),sum(Amount),sum(TranId) from MilkPaymentsDetails where "
                u"TranDate=",
                day),
            Sql(u"select count(*),sum(TranId),sum(Amount) from AdvanceReceipt where TranDate=", day),
            QStringLiteral("select sum(ClosingBalance),sum(CowClosingThev),sum(BuffClosingThev),"
                           "sum(ClosingUchal) from MembersMaster")});
}

class PaymentRun final : public Work {
public:
    PaymentRun() { TakeBack(); }

    double ByScreen() override
    {
        double seconds = 0;
        Play("frmNewMilkPayment", [&](Clerk& clerk) {
            clerk.Type(
                QStringLiteral("{DOWN}{DOWN}{ENTER}%1{ENTER}{ENTER}1{ENTER}{ENTER}").arg(Typed(UnpaidFrom)));
            clerk.Do([] { RequireFocus(u"cmdCalculate"); });
            seconds = Timed(clerk, QStringLiteral("{ENTER}"));
        });
        m_traces = TracesOfRun();
        Require(m_traces.front() == SocietyMembers, "All members are paid.");
        TakeBack();
        return seconds;
    }

    double ByFloor() override
    {
        FloorPayment floor(Iso(UnpaidFrom), Iso(UnpaidTo));
        const double seconds = SecondsOf([&] {
            for (int member = 1; member <= SocietyMembers; ++member)
                floor.Pay(member);
        });
        RequireSameTraces(m_traces, TracesOfRun());
        TakeBack();
        return seconds;
    }

private:
    Traces m_traces;
};

// Each time another member.
class Calculation final : public Work {
public:
    double ByScreen() override
    {
        NextMember();
        double seconds = 0;
        Play("frmNewMilkPayment", [&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{DOWN}{ENTER}{ENTER}%n%1{ENTER}{ENTER}").arg(Typed(UnpaidFrom)));
            clerk.Do([&] {
                RequireFocus(u"txtMemberNo");
                Type(QString::number(m_member));
                Paint();
                seconds = SecondsOf([] {
                    Type(QStringLiteral("{ENTER}"));
                    Paint();
                });
                RequireFocus(u"txtTotalMilkPurchaseAmount");
            });
        });
        return seconds;
    }

    double ByFloor() override
    {
        FloorPayment floor(Iso(UnpaidFrom), Iso(UnpaidTo));
        return SecondsOf([&] { floor.WorkOut(m_member); });
    }

private:
    void NextMember() { m_member = m_member % SocietyMembers + 1; }

    int m_member = 0;
};

}

void RegisterPaymentCases(const QString& drives)
{
    RegisterWork(drives,
        {.name = "payments/run",
            .what = "500 members paid for ten days in one run",
            .turns = RunTurns,
            .target = {.ratio = 1.6},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<PaymentRun>(); }});
    RegisterWork(drives,
        {.name = "payments/calculation",
            .what = "one member's payment worked out",
            .turns = CalculationTurns,
            .target = {.below = 10.0},
            .hasYears = true,
            .make = [] { return std::make_unique<Calculation>(); }});
}

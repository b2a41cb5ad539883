// The pay slips of all members for ten days, and the registers of the payments, deposits and advances: their
// staging, the first page on the screen, and the layout of all slips.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FirstPage.h"
#include "bench/FloorRegister.h"
#include "bench/FloorReport.h"
#include "bench/FloorSlips.h"
#include "bench/PaidPeriods.h"
#include "bench/PaintGaps.h"
#include "bench/ReportPlay.h"
#include "bench/StagingWork.h"
#include "platform/report/LayoutCheck.h"
#include "platform/shell/AppFolder.h"

namespace {

constexpr int StagingTurns = 9;
constexpr int LayoutTurns = 9;
constexpr int FirstPageTurns = 9;
constexpr Target Staging{.ratio = 1.4};

constexpr const char* SlipsScreen = "frmReportMilkPayments";

QString KeysOfSlips()
{
    return Typed(PaidTo) + QStringLiteral("{ENTER}1{ENTER}{ENTER}");
}

class Slips final : public StagingWork {
public:
    Slips() : StagingWork(SlipsScreen, {}, KeysOfSlips()) { }

private:
    void StageByFloor() override { m_floor.Stage(SocietyMembers); }

    Traces ReadTraces() const override
    {
        return TracesOf({QStringLiteral("select count(*),sum(MemberNo) from MilkPaymentsTemp"),
            QStringLiteral("select count(*),sum(Liters) from MilkCollectionsTemp"),
            QStringLiteral(
                "select count(*),sum(LitersM),sum(AmountM),sum(LitersE),sum(AmountE) from MilkCollectionsME"),
            QStringLiteral(
                "select "
                "count(*),sum(Other),sum(Uchal),sum(Khadya),sum(Kirana),sum(PrevThev),sum(CurrentThev),"
                "sum(BalThev) from KapatSummary"),
            QStringLiteral("select count(*),sum(Value1) from KapatDetails")});
    }

    FloorSlips m_floor{Iso(PaidFrom), Iso(PaidTo), Iso(YearBegins)};
};

class Register final : public StagingWork {
public:
    Register(PaymentRegister::Kind kind, const char* mode)
        : StagingWork("frmReportMilkPaymentsRegister", QString::fromLatin1(mode),
            Typed(PaidFrom) + QStringLiteral("{ENTER}{ENTER}1{ENTER}{ENTER}"))
        , m_floor(kind, Iso(PaidFrom), Iso(PaidTo), Iso(YearBegins))
    {
    }

private:
    void StageByFloor() override { m_floor.Stage(SocietyMembers); }

    Traces ReadTraces() const override
    {
        return TracesOf({QStringLiteral(
                             "select count(*),sum(TranId),sum(CowLiters),sum(BuffLiters),sum(Amount),"
                             "sum(ThevKapat),sum(OtherKapat),sum(NetAmount),sum(PreviousBalance),"
                             "sum(CurrentBalance),sum(ActualKapat),sum(PreviousAdvance) from "
                             "MilkPaymentsRegister"),
            QStringLiteral("select count(*),sum(Other),sum(Uchal),sum(Khadya),sum(Kirana) from KapatSummary"),
            QStringLiteral("select count(*) from ReportDates")});
    }

    FloorRegister m_floor;
};

class Balances final : public StagingWork {
public:
    Balances(FloorBalances::Kind kind, const char* mode)
        : StagingWork("frmReportMilkPaymentsRegister", QString::fromLatin1(mode),
            Typed(YearBegins) + QStringLiteral("{ENTER}") + Typed(PaidTo)
                + QStringLiteral("{ENTER}1{ENTER}{ENTER}"))
        , m_floor(kind, Iso(YearBegins), Iso(PaidTo))
    {
    }

private:
    void StageByFloor() override { m_floor.Stage(SocietyMembers); }

    Traces ReadTraces() const override
    {
        return TracesOf(
            {QStringLiteral(
                 "select count(*),sum(MemberNo),sum(ThevKapat),sum(NetAmount),sum(PreviousBalance),"
                 "sum(CurrentBalance) from MilkPaymentsRegister"),
                QStringLiteral("select count(*) from ReportDates")});
    }

    FloorBalances m_floor;
};

// The slips on the screen, from the end of the staging until the first page has been painted.
class FirstSlips final : public FirstPage {
public:
    FirstSlips() : FirstPage(SlipsScreen, {}, KeysOfSlips()) { }

    double ByScreen() override { return ShowPage().page; }
    double ByFloor() override { return LongestPaintGap; }
};

// All slips laid out, beside their texts laid out once.
class LaidOutSlips final : public Work {
public:
    LaidOutSlips()
    {
        FloorSlips(Iso(PaidFrom), Iso(PaidTo), Iso(YearBegins)).Stage(SocietyMembers);
        m_books = OpenForReports();
        m_report = Begin();
        m_report->Complete();
        m_floor = std::make_unique<FloorReport>(*m_report);
    }

    double ByScreen() override
    {
        std::unique_ptr<Report> report;
        const double seconds = SecondsOf([&] {
            report = Begin();
            report->Complete();
        });
        Require(report->PageCount() == m_report->PageCount() && report->PageCount() >= SocietyMembers / 2,
            "All slips are on their pages.");
        return seconds;
    }

    double ByFloor() override
    {
        return SecondsOf([&] { m_floor->LayOut(); });
    }

private:
    std::unique_ptr<Report> Begin() const
    {
        TemplateFaults faults;
        ReportTemplate slip = ReadForLayout(LocalAppFile(u"MilkPaymentsReport10D.rpt"), *m_books, faults);
        Require(faults.empty(), "The template is sound.");
        return std::make_unique<Report>(std::move(slip), m_books, Selection());
    }

    std::shared_ptr<Connection> m_books;
    std::unique_ptr<Report> m_report;
    std::unique_ptr<FloorReport> m_floor;
};

void RegisterRegister(const QString& drives, const char* name, const char* what,
    const std::function<std::unique_ptr<Work>()>& make)
{
    RegisterWork(drives,
        {.name = name,
            .what = what,
            .turns = StagingTurns,
            .target = Staging,
            .hasGaps = true,
            .hasYears = true,
            .make = make});
}

}

void RegisterSlipsCases(const QString& drives)
{
    using Kind = PaymentRegister::Kind;
    RegisterWork(drives,
        {.name = "slips/staged",
            .what = "500 slips of ten days: staged",
            .turns = StagingTurns,
            .target = {.ratio = 1.4, .below = 2000.0},
            .hasGaps = true,
            .hasYears = true,
            .make = [] { return std::make_unique<Slips>(); }});
    RegisterWork(drives,
        {.name = "slips/first",
            .what = "their first page on the screen",
            .turns = FirstPageTurns,
            .target = {.below = 100.0},
            .hasYears = true,
            .make = [] { return std::make_unique<FirstSlips>(); }});
    RegisterWork(drives,
        {.name = "slips/fill",
            .what = "all of them laid out",
            .turns = LayoutTurns,
            .target = {.ratio = 1.2},
            .hasYears = true,
            .make = [] { return std::make_unique<LaidOutSlips>(); }});
    RegisterRegister(drives, "registers/payments", "the payment register of 500: staged",
        [] { return std::make_unique<Register>(Kind::Payments, "PR"); });
    RegisterRegister(drives, "registers/deposits", "the deposit register",
        [] { return std::make_unique<Register>(Kind::Deposits, "TR"); });
    RegisterRegister(drives, "registers/advances", "the advance register",
        [] { return std::make_unique<Register>(Kind::Advances, "UR"); });
    RegisterRegister(drives, "registers/owed", "the balances of the advances",
        [] { return std::make_unique<Balances>(FloorBalances::Kind::Advances, "UchalBalanceStatement"); });
    RegisterRegister(drives, "registers/deposited", "the balances of the deposits",
        [] { return std::make_unique<Balances>(FloorBalances::Kind::Deposits, "ThevBalanceStatement"); });
}

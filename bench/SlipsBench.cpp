// The pay slips of all members for ten days, and the registers of the payments, deposits and advances: their
// staging, the first page on the screen, and the layout of all slips.

#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/CounterPlay.h"
#include "bench/FloorRegister.h"
#include "bench/FloorReport.h"
#include "bench/FloorSlips.h"
#include "bench/PaidPeriods.h"
#include "bench/PaintGaps.h"
#include "bench/ReportPlay.h"
#include "bench/Traces.h"
#include "bench/Work.h"
#include "core/preview/ReportHandover.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"
#include "platform/report/LayoutCheck.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Dates.h"

#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int StagingTurns = 9;
constexpr int LayoutTurns = 9;
constexpr int FirstPageTurns = 9;
constexpr Target Staging{.ratio = 1.4};

std::string Iso(const QDate& day)
{
    return day.toString(Qt::ISODate).toStdString();
}

QString Typed(const QDate& day)
{
    return day.toString(QStringLiteral("ddMMyyyy"));
}

// Takes the place of the report engine: a report that is staged isn't shown, but the time is noted.
class StagedReports {
public:
    StagedReports()
        : m_engine(std::exchange(
            TemplateReport::Engine(), [this](const TemplateReport::Run&) { m_staged = Clock::now(); }))
    {
    }
    ~StagedReports() { TemplateReport::Engine() = m_engine; }
    StagedReports(const StagedReports&) = delete;
    StagedReports& operator=(const StagedReports&) = delete;

    // The seconds from then until a report was staged.
    double Since(Clock::time_point from) const
    {
        Require(m_staged > from, "A report is staged.");
        return std::chrono::duration<double>(m_staged - from).count();
    }

private:
    std::function<void(const TemplateReport::Run&)> m_engine;
    Clock::time_point m_staged;
};

// The staging of a report on its screen, and by prepared statements.
class StagingWork : public Work {
public:
    double ByScreen() override
    {
        gAppState.gReportMode = m_mode;
        const StagedReports reports;
        double seconds = 0;
        Play(m_screen, [&](Clerk& clerk) {
            clerk.Type(m_keys);
            const Clock::time_point from = Clock::now();
            Timed(clerk, QStringLiteral("%i"));
            seconds = reports.Since(from);
        });
        m_traces = ReadTraces();
        gCn.Fold();
        return seconds;
    }

    double ByFloor() override
    {
        const double seconds = SecondsOf([&] { StageByFloor(); });
        RequireSameTraces(m_traces, ReadTraces());
        gCn.Fold();
        return seconds;
    }

protected:
    StagingWork(const char* screen, QString mode, QString keys)
        : m_screen(screen)
        , m_mode(std::move(mode))
        , m_keys(std::move(keys))
    {
    }

    virtual void StageByFloor() = 0;
    virtual Traces ReadTraces() const = 0;

private:
    const char* m_screen;
    QString m_mode;
    QString m_keys;
    Traces m_traces;
};

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

// When the page of the preview is painted for the first time.
class FirstPage final : public QObject {
public:
    FirstPage() { qApp->installEventFilter(this); }
    std::optional<Clock::time_point> Painted;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !Painted && object->parent()
            && object->parent()->objectName() == u"picPage")
            QMetaObject::invokeMethod(
                this, [this] { Painted = Clock::now(); }, Qt::QueuedConnection);
        return false;
    }
};

// The slips on the screen, from the end of the staging until the first page has been painted.
class FirstSlips final : public Work {
public:
    FirstSlips() : m_engine(TemplateReport::Engine())
    {
        TemplateReport::Engine() = [this](const TemplateReport::Run& run) {
            m_staged = Clock::now();
            m_engine(run);
        };
    }
    ~FirstSlips() override { TemplateReport::Engine() = m_engine; }

    double ByScreen() override
    {
        std::unique_ptr<FirstPage> page; // lives on the program's thread
        Clock::time_point painted;
        Play(SlipsScreen, [&](Clerk& clerk) {
            clerk.Do([&] { page = std::make_unique<FirstPage>(); });
            clerk.Type(KeysOfSlips() + QStringLiteral("%i"));
            for (int turns = 0; turns < 1000 && !page->Painted; ++turns)
                clerk.Do([] {});
            clerk.Do([&] {
                Require(page->Painted.has_value(), "The first page is painted.");
                painted = *page->Painted;
                page.reset();
            });
            clerk.Type(QStringLiteral("{ESC}"));
        });
        return std::chrono::duration<double>(painted - m_staged).count();
    }

    double ByFloor() override { return LongestPaintGap; }

private:
    const ReportHandover m_reports;
    std::function<void(const TemplateReport::Run&)> m_engine;
    Clock::time_point m_staged;
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

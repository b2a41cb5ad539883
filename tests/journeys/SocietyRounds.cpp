// What the clerk of a small society does beside the counter and the payments.

#include "Screens.h"
#include "collection/frmAbsenseMemberCollection.h"
#include "collection/frmDailyCollection.h"
#include "collection/frmMilkCollections.h"
#include "collection/frmSearchCollections.h"
#include "core/preview/ReportHandover.h"
#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "payments/frmThevDate.h"
#include "platform/database/Sql.h"
#include "platform/forms/DataGrid.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "reports/frmReportPaymentList.h"
#include "tests/journeys/SocietyYear.h"
#include "tests/support/FakePrinter.h"
#include "utilities/frmAutoSettings.h"
#include "utilities/frmBackup.h"
#include "vouchers/frmUchalVouchers.h"

#include <QDeadlineTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <utility>

namespace {

const QDate FirstDay(2026, 4, 1);

// While it lives, reports are shown in the preview.
class ShownReports {
public:
    explicit ShownReports(const std::function<void(const TemplateReport::Run&)>& engine)
        : m_engine(std::exchange(TemplateReport::Engine(), engine))
    {
    }
    ~ShownReports() { TemplateReport::Engine() = m_engine; }
    ShownReports(const ShownReports&) = delete;
    ShownReports& operator=(const ShownReports&) = delete;

private:
    std::function<void(const TemplateReport::Run&)> m_engine;
    ReportHandover m_handover{std::make_unique<FakePrinter>(QStringList{"Office", "Store"})};
};

int RowsOf(Clerk& clerk, const char* grid)
{
    return dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(grid))).Rows();
}

QString NamesIn(const QString& rows)
{
    return "select MemberName from " + rows;
}

}

// The beginning of the year

// The program is started and left once; the list of its keys and the settings are looked at.
void SocietyYear::OpenTheProgram()
{
    RegisterScreens();
    gCn.Close();
    int exitCode = -1;
    Failure = TheClerk.Play([&] { exitCode = RunProgram(); },
        [&](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}01042026{ENTER}{ENTER}{F12}");
            EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
            Type(clerk, "{ESC}{F7}");
            EXPECT_EQ(OnTop(clerk), "frmAutoSettings");
            Type(clerk, "{ESC}");
            EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
            clerk.AskToLeave();
            Type(clerk, "%h");
        });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(exitCode, 0);
    gCn.Close();
    LoadAppState();
}

void SocietyYear::KeyDepositSpan()
{
    On<frmThevDate>([](Clerk& clerk) { Type(clerk, "01042026{ENTER}31032027{ENTER}%s"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select FromDate,ToDate from CompanySelected"), QStringList("01/04/2026|31/03/2027"));
}

// The figures of the page of payments, and the way down to the last question of it.
void SocietyYear::SetDeductions(const char* paise)
{
    static constexpr std::array options = {"OptionAddThev", "OptionPayable", "OptionPayIt", "OptionDiscount"};
    const auto placeOf = [](const std::string& option) {
        return std::find(options.begin(), options.end(), option) - options.begin();
    };
    const QString others =
        "select CompanyId,AutoLiters,AutoFat,PrintStatus,CanLimitCow,CanLimitBuff,"
        "ReceiptType,RepeatCollection,PaymentDuration,PurchaseEntry,UchalEntry,SalesRateCow,"
        "SalesRateBuff,SalesRateMix,MSRPrintStatus from AutoSettings";
    const QStringList before = Rows(others);
    On<frmAutoSettings>([&](Clerk& clerk) {
        Type(clerk, "^{PGDN}{ENTER}.35{ENTER}.55{DOWN}{ENTER}{ENTER}{ENTER}");
        const auto steps = placeOf(std::string("Option") + paise) - placeOf(Focus(clerk));
        for (auto step = std::abs(steps); step > 0; --step)
            Type(clerk, steps > 0 ? "{DOWN}" : "{UP}");
        EXPECT_EQ(Focus(clerk), std::string("Option") + paise);
        Type(clerk, "%s%b");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select ThevKapatCow,ThevKapatBuff,DecimalPayment from AutoSettings"),
        QStringList(QString("0.35|0.55|%1").arg(paise)));
    EXPECT_EQ(Rows(others), before);
}

// The end of a period, before its payments

int SocietyYear::ForgottenMember() const
{
    std::size_t at = static_cast<std::size_t>(m_periods) % m_members.size();
    while (!Brings(m_members[at]))
        at = (at + 1) % m_members.size();
    return m_members[at];
}

bool SocietyYear::IsForgotten(int member, const Shift& shift) const
{
    const qint64 left = shift.day.daysTo(m_period.to);
    return !shift.isMorning && left >= 2 && left <= 4 && member == ForgottenMember();
}

// Three evenings were left out at the counter; in the office they are entered one after the other. What he
// brought was never sold.
void SocietyYear::KeyForgottenDays()
{
    const int member = ForgottenMember();
    const bool isCow = TakesBoth(member) || member % 3 == 0;
    On<frmDailyCollection>([&](Clerk& clerk) {
        QDate day = m_period.to.addDays(-4);
        clerk.Type(QString("%n%1{ENTER}{ENTER}%2{ENTER}2{ENTER}{ENTER}%3{ENTER}")
                       .arg(QString::number(member), Typed(day), TakesBoth(member) ? "1" : ""));
        for (; day <= m_period.to.addDays(-2); day = day.addDays(1)) {
            const MilkReckoning::Delivery delivery{member, Reckoning.Vouchers.NameOf(member), isCow,
                ThrowLitres(200, 1400), Exact::Of((isCow ? 41 : 66) / 10.0)};
            EXPECT_EQ(Focus(clerk), "txtLiters");
            clerk.Type(QString("%1{ENTER}%2{ENTER}{ENTER}").arg(delivery.litres.Text(), delivery.fat.Text()));
            m_milk.DeliverLate({day, false}, delivery);
            m_gained = m_gained - delivery.litres;
        }
    });
    EXPECT_FALSE(Failure);
}

void SocietyYear::LookAtTheDay()
{
    const std::vector<int> bringers = m_milk.BringersOf({LastDay(), true});
    ASSERT_FALSE(bringers.empty());
    LookAtMember(bringers.front());
    LookForTheAbsent();
    PrintAgain(bringers.back());
}

// F7 at the counter: what he brought so far, row by row.
void SocietyYear::LookAtMember(int member)
{
    std::ptrdiff_t deliveries = 0;
    for (QDate day = FirstDay; day <= LastDay(); day = day.addDays(1))
        for (const bool isMorning : {true, false}) {
            const std::vector<int> bringers = m_milk.BringersOf({day, isMorning});
            deliveries += std::count(bringers.begin(), bringers.end(), member);
        }
    On<frmMilkCollections>([&](Clerk& clerk) {
        clerk.Type(QString("{ENTER}1{ENTER}{ENTER}%1{F7}%2{ENTER}%3{ENTER}%1{ENTER}{ENTER}{ENTER}")
                       .arg(QString::number(member), Typed(FirstDay), Typed(LastDay())));
        EXPECT_EQ(RowsOf(clerk, "DataGridMilk"), deliveries);
        EXPECT_GT(deliveries, 3);
        Type(clerk, "%b");
    });
    EXPECT_FALSE(Failure);
}

// A line for each can of the morning before, of those who didn't come.
void SocietyYear::LookForTheAbsent()
{
    const std::vector<int> here = m_milk.BringersOf({LastDay(), true});
    QStringList absent;
    for (const int member : m_milk.BringersOf({LastDay().addDays(-1), true}))
        if (std::find(here.begin(), here.end(), member) == here.end())
            absent.append(QString::number(member));
    absent.sort();
    On<frmAbsenseMemberCollection>([&](Clerk& clerk) {
        clerk.Type(QString("%1{ENTER}1{ENTER}{ENTER}").arg(Typed(LastDay())));
        EXPECT_EQ(RowsOf(clerk, "DataGridMembers"), absent.size());
    });
    EXPECT_FALSE(Failure);
    QStringList listed = Rows("select MemberNo from ShortMemberList");
    listed.sort();
    EXPECT_EQ(listed, absent);
}

void SocietyYear::PrintAgain(int member)
{
    const ShownReports preview(m_engine);
    On<frmSearchCollections>([&](Clerk& clerk) {
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        clerk.Type(
            QString("%1{ENTER}1{ENTER}%2{ENTER}{ENTER}").arg(Typed(LastDay()), QString::number(member)));
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        Type(clerk, "{ENTER}{ENTER}");
        LookAtPaper(clerk, Reckoning.Vouchers.NameOf(member), "frmSearchCollections");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(One("select MemberNo from MilkReceipt"), QString::number(member));
}

// After the payments

// The preview shows the text, and Esc leads back.
void SocietyYear::LookAtPaper(Clerk& clerk, const QString& shown, const std::string& below)
{
    ASSERT_EQ(OnTop(clerk), "frmReportPreview");
    clerk.Type("{END}^f" + shown + "{ENTER}");
    EXPECT_TRUE(QString::fromStdString(Label(clerk, "lblState")).startsWith("सापडले: 1 / "))
        << below << ' ' << shown.toStdString() << ' ' << Label(clerk, "lblState");
    Type(clerk, "{ESC}");
    EXPECT_EQ(OnTop(clerk), below);
}

void SocietyYear::LookAtReport(const QString& keys, const QString& shown, const std::function<void()>& open)
{
    Failure = TheClerk.Play(open, [&](Clerk& clerk) {
        const std::string screen = OnTop(clerk);
        clerk.Type(keys + "%i");
        LookAtPaper(clerk, shown, screen);
    });
    EXPECT_FALSE(Failure);
}

void SocietyYear::LookAtRegister(const char* mode, const QString& keys, const QString& shown)
{
    SCOPED_TRACE(mode);
    gAppState.gReportMode = mode;
    LookAtReport(keys, shown, [] { frmReportMilkPaymentsRegister().ShowModal(); });
}

// Of the period that is paid. Who was paid is looked for in all of them.
void SocietyYear::LookAtReports()
{
    const ShownReports preview(m_engine);
    const QString paid = NamesIn(Sql(u"MilkPayments where PaymentDate=", SqlDay(LastDay())));
    const QString name = One(paid + " order by MemberNo desc");
    const QString member = One(Sql(u"select MemberNo from MembersMaster where MemberName=", Quoted(name)));
    const QString came = One(NamesIn(Sql(u"MilkCollections where CollectionDate=", SqlDay(LastDay()))));
    const QString from = Typed(m_period.from) + "{ENTER}";
    const QString to = Typed(LastDay()) + "{ENTER}";
    const QString all = "1{ENTER}{ENTER}";

    LookAtReport(to + all, name, [] { frmReportMilkPayments().ShowModal(); });
    LookAtReport(to, name, [] { frmReportPaymentList().ShowModal(); });
    LookAtRegister("PR", from + "{ENTER}" + all, name);
    LookAtRegister("TR", from + "{ENTER}" + all, name);
    LookAtRegister("UR", from + "{ENTER}" + all, name);
    LookAtRegister("UD", from + to + member + "{ENTER}", name);
    LookAtRegister("UchalBalanceStatement", from + to + all, name);
    LookAtRegister("ThevBalanceStatement", from + to + all, name);
    LookAtReport(from + to + "{ENTER}" + name + "{ENTER}", name, [] { frmReportMilkPS().ShowModal(); });
    LookAtReport(to + "{ENTER}", came, [] { frmReportMilkCollections().ShowModal(); });
    LookAtReport({}, name, [] { frmReportMembersList().ShowModal(); });
    On<frmReportMembersList>([](Clerk& clerk) {
        Type(clerk, "%i^s");
        EXPECT_EQ(OnTop(clerk), "frmReportFile");
        Type(clerk, "{ESC}^p");
        EXPECT_EQ(OnTop(clerk), "frmReportPrinter");
        Type(clerk, "{ESC}{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmReportMembersList");
    });
    EXPECT_FALSE(Failure);
    PrintAdvance();
    ExpectAgreement();
}

void SocietyYear::PrintAdvance()
{
    const int member = ThrowMember();
    On<frmUchalVouchers>([&](Clerk& clerk) {
        GiveAdvance(clerk, member, LastDay(), "%h");
        EXPECT_EQ(OnTop(clerk), "frmNarrations");
        Type(clerk, "{ENTER}{ENTER}");
        LookAtPaper(clerk, Reckoning.Vouchers.NameOf(member), "frmUchalVouchers");
    });
    EXPECT_FALSE(Failure);
    ++m_printed;
}

// Backups

void SocietyYear::AtBackup(const char* type, const std::function<void(Clerk&)>& script)
{
    On<frmBackup>([&](Clerk& clerk) {
        Type(clerk, type);
        for (int key = 0; key < 8 && Focus(clerk) != "cmdBackup"; ++key)
            Type(clerk, "{ENTER}");
        ASSERT_EQ(Focus(clerk), "cmdBackup");
        script(clerk);
        Type(clerk, "{ESC}");
    });
    EXPECT_FALSE(Failure);
}

// In turn under the plain name and under that of the day.
void SocietyYear::BackUp(const QDate& day)
{
    const bool isDated = day.weekNumber() % 2 == 0;
    AtBackup(isDated ? "2" : "1", [&](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblContent"),
            QString("बॅकअपमध्ये : दूध संकलन %1, मेम्बर %2, पेमेंट %3, शेवटचा दिवस %4")
                .arg(m_milk.Deliveries())
                .arg(m_members.size())
                .arg(Reckoning.Payments().size())
                .arg(DayText(day))
                .toStdString());
    });
    const QString name = isDated ? QString(" On " + day.toString("dd MMMM yyyy")) : QString();
    m_kept = {day, "Backup/Morvelta" + name + ".mdb", Reckoning, m_milk, m_gained};
    EXPECT_TRUE(QFile::exists(FolderFile(m_kept.file))) << m_kept.file.toStdString();
}

// The newest backup gets the name of the year by hand and comes back. Returns its day: what was keyed since
// is lost.
QDate SocietyYear::Restore()
{
    const QStringList lost = Rows("select * from MilkCollections");
    QFile::remove(FolderFile("Backup/Y2026-2027C1.mdb"));
    EXPECT_TRUE(QFile::copy(FolderFile(m_kept.file), FolderFile("Backup/Y2026-2027C1.mdb")));
    AtBackup("1", [](Clerk& clerk) { Type(clerk, "{TAB}{ENTER}"); });
    Reckoning = m_kept.money;
    m_milk = m_kept.milk;
    m_gained = m_kept.gained;
    EXPECT_GT(lost.size(), m_milk.Deliveries());
    ExpectAgreement();
    return m_kept.day;
}

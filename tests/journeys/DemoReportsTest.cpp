// Every report that the menu names, over the days that the demonstration society has.

#include "collection/frmSearchCollections.h"
#include "core/menu/MainMenu.h"
#include "platform/report/ReportControl.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Shivaji01.h"
#include "tests/journeys/DemoSocietyTest.h"
#include "tests/support/FakeReportWindow.h"

#include <QDeadlineTimer>

namespace {

// How a report is reached and printed, and what stands in one of its rows.
struct MenuReport {
    const char* name;
    int list; // of the main list
    int entry; // of that list
    const char* typedName; // put into the keys at %1, in Devanagari
    const char* keys;
    const char* row;
};

constexpr const char* TwoMonths = "01042026{ENTER}31052026{ENTER}%i";
constexpr const char* TwoMonthsOfAll = "01042026{ENTER}31052026{ENTER}1{ENTER}{ENTER}%i";
constexpr const char* TenDaysOfAll = "21042026{ENTER}{ENTER}1{ENTER}{ENTER}%i";
constexpr const char* TwoMonthsOfOne = "01042026{ENTER}31052026{ENTER}%1%i";
constexpr const char* Shinde = "महादेव शंकर शिंदे";
constexpr const char* Federation = "सातारा जिल्हा दूध संघ";
constexpr const char* Bank = "जिल्हा मध्यवर्ती सहकारी बँक";

const MenuReport Reports[] = {
    {"Collections", 2, 0, "", "31052026{ENTER}{ENTER}%i", Shinde},
    {"Slips", 2, 2, "", "30042026{ENTER}1{ENTER}{ENTER}%i", Shinde},
    {"PaymentsInCash", 2, 3, "", "30042026{ENTER}%i", Shinde},
    {"PaymentsByBank", 2, 3, "", "30042026{ENTER}{DOWN}%i", "रामचंद्र विठ्ठल पाटील"},
    {"PaymentRegister", 2, 4, "", TenDaysOfAll, Shinde},
    {"DepositRegister", 2, 5, "", TenDaysOfAll, Shinde},
    {"AdvanceRegister", 2, 6, "", TenDaysOfAll, "विलास आनंदा निकम"},
    {"AdvancesOfOne", 2, 7, "", "01042026{ENTER}30042026{ENTER}7{ENTER}%i", "640.25"},
    {"GainInLitres", 2, 8, "", "01042026{ENTER}31052026{ENTER}{ENTER}{ENTER}", "15/05/2026 एकूण"},
    {"GainInRupees", 2, 8, "", "01042026{ENTER}31052026{ENTER}{DOWN}{ENTER}{ENTER}", "15/05/2026 एकूण"},
    {"Purchases", 2, 9, "", TwoMonths, Shinde},
    {"Sales", 2, 10, "", TwoMonths, "गणेश भोजनालय"},
    {"Comparison", 2, 11, Federation, TwoMonthsOfOne, "15/05/2026"},
    {"ComparisonOfTheOther", 2, 11, "कोयना दूध संघ", TwoMonthsOfOne, "24/05/2026"},
    {"StatementOfAMember", 2, 12, Shinde, "01042026{ENTER}31052026{ENTER}{ENTER}%1%i", "15/05/2026"},
    {"StatementOfACustomer", 2, 12, "गणेश भोजनालय", "01042026{ENTER}31052026{ENTER}{DOWN}{ENTER}%1%i",
        "15/05/2026"},
    {"Members", 2, 13, "", "%i", Shinde},
    {"CashBook", 2, 14, "", TwoMonths, "विलास आनंदा निकम"},
    {"BankBook", 2, 15, Bank, TwoMonthsOfOne, "184500.00"},
    {"AdvanceBalances", 3, 0, "", TwoMonthsOfAll, "मंगल दिनकर यादव"},
    {"DepositBalances", 3, 1, "", TwoMonthsOfAll, Shinde},
    {"Bonus", 4, 2, "",
        "01042026{ENTER}31032027{ENTER}1{ENTER}{ENTER}3{ENTER}.5{ENTER}.75{ENTER}{ENTER}{ENTER}%i", Shinde},
};

class DemoReportsTest : public DemoSocietyTest {
protected:
    DemoReportsTest()
    {
        ReportSurroundings::Current() = {
            &TheWindow, nullptr, [](const QString& path) { return LocalPath(path); }};
    }
    ~DemoReportsTest() override
    {
        TheWindow.Shown.clear();
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
    }

    static void ChooseEntry(Clerk& clerk, int at)
    {
        clerk.Type("{HOME}" + QStringLiteral("{DOWN}").repeated(at) + "{ENTER}");
    }

    // Plays on the menu with one of its lists open.
    void InList(int list, const std::function<void(Clerk&)>& script)
    {
        On<MainMenuFrm>([&](Clerk& clerk) {
            Type(clerk, "01062026{ENTER}{ENTER}");
            ChooseEntry(clerk, list);
            script(clerk);
        });
        EXPECT_FALSE(Failure);
        EXPECT_TRUE(TheBox.Shown.isEmpty()) << TheBox.Shown.join(u'\n').toStdString();
    }

    // The texts of the one report that was shown.
    QStringList Texts() const
    {
        QStringList texts;
        if (TheWindow.Shown.size() != 1)
            return texts;
        Report& report = *TheWindow.Shown.back();
        report.Complete();
        for (std::size_t page = 0; page < report.PageCount(); ++page)
            for (const PlacedItem& item : report.PageAt(page).items)
                if (item.kind == PlacedItem::Kind::Text)
                    texts.append(item.text);
        return texts;
    }

    FakeReportWindow TheWindow;
};

class EachDemoReportTest : public DemoReportsTest, public ::testing::WithParamInterface<MenuReport> { };

std::string NameOf(const ::testing::TestParamInfo<MenuReport>& report)
{
    return report.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, EachDemoReportTest, ::testing::ValuesIn(Reports), NameOf);

TEST_P(EachDemoReportTest, HasRows)
{
    const MenuReport& report = GetParam();
    InList(report.list, [&](Clerk& clerk) {
        ChooseEntry(clerk, report.entry);
        clerk.Type(QString::fromLatin1(report.keys)
                       .replace("%1", KeysOf(Shivaji01::FromUnicode(QString::fromUtf8(report.typedName)))));
    });
    ASSERT_EQ(TheWindow.Shown.size(), 1U);
    const QStringList texts = Texts();
    EXPECT_FALSE(texts.filter(QString::fromUtf8(report.row)).isEmpty())
        << texts.join(u'\n').left(3000).toStdString();
}

TEST_F(DemoReportsTest, ASlipOfADeliveryIsFound)
{
    InList(2, [](Clerk& clerk) {
        ChooseEntry(clerk, 1);
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        Type(clerk, "31052026{ENTER}1{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(One("select MemberNo from MilkReceipt"), "3");
}

}

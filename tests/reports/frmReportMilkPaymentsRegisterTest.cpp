// The screen of the registers and balances in its six modes.

#include "tests/reports/RegistersTest.h"

#include "core/menu/MenuEntries.h"
#include "platform/forms/OptionButton.h"

namespace {

constexpr const char* AllModes[] = {"PR", "TR", "UR", "UD", "UchalBalanceStatement", "ThevBalanceStatement"};

using RegisterScreenTest = RegistersTest;

}

TEST_F(RegisterScreenTest, EachModeHasItsTitleWhichIsTheMenus)
{
    for (const auto& [mode, title] : {std::pair("PR", " dUQa pomaonT rijasTr irpaoT-"),
             {"TR", " zova rijasTr irpaoT-"}, {"UR", " ]cala rijasTr irpaoT-"},
             {"UD", " ]cala rijasTr irpaoT-"}, {"UchalBalanceStatement", "]cala yaadI"},
             {"ThevBalanceStatement", "zova yaadI"}, {"", " dUQa pomaonT rijasTr irpaoT-"}})
        InMode(mode, [&, expected = title](Clerk& clerk) {
            EXPECT_EQ(clerk.Top().Title().Text(), QString::fromUtf8(expected)) << mode;
            EXPECT_EQ(Reads(clerk, "cmdReport"), "&irpaoT-");
        });
    for (const MenuEntry& entry : MenuEntries::MReports())
        if (entry.screen == u"frmReportMilkPaymentsRegister")
            InMode(entry.reportMode.toLatin1().constData(),
                [&](Clerk& clerk) { EXPECT_EQ(clerk.Top().Title().Text(), entry.title); });
}

TEST_F(RegisterScreenTest, EachModePrintsItsTemplate)
{
    Pay({});
    for (const auto& [mode, title] :
        {std::pair("PR", "दूध पेमेंट रजिस्टर"), {"TR", "ठेव रजिस्टर"}, {"UR", "उचल रजिस्टर"}, {"UD", "वैयक्तिक उचल"},
            {"UchalBalanceStatement", "उचल यादी"}, {"ThevBalanceStatement", "ठेव यादी"}}) {
        TheWindow.Shown.clear();
        Print(mode, "11042026{ENTER}20042026{ENTER}1{ENTER}%i");
        EXPECT_EQ(TheWindow.Titles(), QStringList(QString::fromUtf8(title)));
    }
}

TEST_F(RegisterScreenTest, TheEndOfThePeriodIsProposedByTheDurationInTheRegisters)
{
    struct Case {
        const char* duration;
        const char* from;
        const char* to;
    };
    for (const Case& each : {Case{"1 idvasa", "15042026", "15/04/2026"},
             {"7 idvasa", "28042026", "04/05/2026"}, {"10 idvasa", "01042026", "10/04/2026"},
             {"10 idvasa", "11042026", "20/04/2026"}, {"10 idvasa", "21042026", "30/04/2026"},
             {"10 idvasa", "21052026", "31/05/2026"}, {"10 idvasa", "21022027", "28/02/2027"},
             {"10 idvasa", "05042026", "__/__/____"}, {"15 idvasa", "01042026", "15/04/2026"},
             {"15 idvasa", "16022027", "28/02/2027"}, {"15 idvasa", "16012027", "31/01/2027"},
             {"15 idvasa", "02042026", "__/__/____"}, {"1 maihnaa", "01012027", "31/01/2027"},
             {"1 maihnaa", "02012027", "__/__/____"}, {"", "01042026", "__/__/____"}}) {
        SetDuration(each.duration);
        for (const char* mode : AllModes)
            InMode(mode, [&](Clerk& clerk) {
                clerk.Type(QString::fromLatin1(each.from) + QStringLiteral("{ENTER}"));
                EXPECT_EQ(
                    Reads(clerk, "maskToDate"), strlen(mode) == 2 && mode[1] == 'R' ? each.to : "__/__/____")
                    << mode << ' ' << each.duration << ' ' << each.from;
            });
    }
}

TEST_F(RegisterScreenTest, TheStatementOfOneAsksForOneMember)
{
    for (const char* mode : AllModes)
        InMode(mode, [&](Clerk& clerk) {
            const bool isOne = QLatin1String(mode) == u"UD";
            EXPECT_EQ(CanEnter(clerk, "txtToNo"), !isOne) << mode;
            EXPECT_EQ(clerk.Top().findChild<QLabel*>("lblToMember")->isVisible(), !isOne) << mode;
            EXPECT_EQ(CanEnter(clerk, "OptionPT"), QLatin1String(mode) == u"PR") << mode;
            EXPECT_EQ(CanEnter(clerk, "OptionLS"), QLatin1String(mode) == u"PR") << mode;
        });
}

TEST_F(RegisterScreenTest, OnlyTheBalancesSpeakOfADateAndAnEnd)
{
    for (const char* mode : AllModes)
        InMode(mode, [&](Clerk& clerk) {
            QStringList texts;
            for (const QLabel* label : clerk.Top().findChildren<QLabel*>())
                texts.append(label->text());
            const bool isBalance = strlen(mode) > 2;
            EXPECT_EQ(texts.contains(Seen("idnaaMk")), isBalance) << mode;
            EXPECT_EQ(texts.contains(Seen("AKor")), isBalance) << mode;
            EXPECT_EQ(texts.contains(Seen("kalaavaQaI")), !isBalance) << mode;
        });
}

TEST_F(RegisterScreenTest, ADateThatIsNoneKeepsTheFocusWithoutAMessageAndTheGuideSaysWhatIsWanted)
{
    for (const char* mode : AllModes)
        InMode(mode, [&](Clerk& clerk) {
            const auto keeps = [&](const char* keys, const char* field) {
                Type(clerk, keys);
                EXPECT_EQ(Focus(clerk), field) << mode << ' ' << keys;
                EXPECT_EQ(Label(clerk, "lblGuide"), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर") << mode;
            };
            keeps("{ENTER}", "maskFromDate");
            keeps("31132026{ENTER}", "maskFromDate");
            keeps("3104%i", "maskFromDate");
            keeps("05042026{ENTER}31132026{ENTER}", "maskToDate");
            keeps("3104%i", "maskToDate");
            EXPECT_EQ(TheBox.Shown, QStringList());
        });
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(RegisterScreenTest, APeriodWithoutPaymentsIsTold)
{
    Pay({.member = 9});
    Pay({.from = "01/04/2026", .to = "10/04/2026"});
    for (const char* mode : {"PR", "TR", "UR"})
        for (const char* keys :
            {"11042026{ENTER}{ENTER}1{ENTER}8{ENTER}%i", "11042026{ENTER}19042026{ENTER}1{ENTER}{ENTER}%i",
                "12042026{ENTER}20042026{ENTER}1{ENTER}{ENTER}%i", "20042026{ENTER}11042026{ENTER}1{ENTER}%i",
                "11042026{ENTER}{ENTER}1{ENTER}{DEL}{ENTER}%i"}) {
            TheBox.Shown.clear();
            TheBox.Titles.clear();
            Print(mode, keys);
            EXPECT_EQ(TheBox.Shown, QStringList("No Records")) << mode << ' ' << keys;
            EXPECT_EQ(TheBox.Titles, QStringList("Milk Payments"));
        }
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(RegisterScreenTest, AMissingTemplateEndsTheProgramWhenTheRowsAreStaged)
{
    Pay({});
    RemoveTemplate("UchalRegisterNew.rpt");
    gAppState.gReportMode = QStringLiteral("UR");
    Type<frmReportMilkPaymentsRegister>("11042026{ENTER}{ENTER}1{ENTER}{ENTER}%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(One("select count(*) from MilkPaymentsRegister"), "1");
}

TEST_F(RegisterScreenTest, TheBarStaysUntilTheListIsPrinted)
{
    Pay({});
    for (const char* mode : {"PR", "TR", "UR", "UchalBalanceStatement", "ThevBalanceStatement"}) {
        std::unique_ptr<PaintedStaging> bar;
        bool shown = false;
        const AtThePrint look([&] { shown = bar->IsShown(); });
        InMode(mode, [&](Clerk& clerk) {
            Type(clerk, "11042026{ENTER}20042026{ENTER}1{ENTER}{ENTER}");
            clerk.Do([&] { bar = std::make_unique<PaintedStaging>(clerk.Top()); });
            Type(clerk, "%i");
            EXPECT_TRUE(shown) << mode;
            EXPECT_FALSE(bar->IsShown()) << mode;
        });
    }
}

TEST_F(RegisterScreenTest, TheBarAndTheMemberInHandAreShownWhileTheRowsAreStaged)
{
    for (const char* mode : {"PR", "TR", "UR", "UchalBalanceStatement", "ThevBalanceStatement"}) {
        Run("delete * from MilkPayments");
        Pay({});
        Pay({.member = 5, .name = "saIta"});
        Pay({.member = 9, .name = "gaNaoSa"});
        std::unique_ptr<PaintedStaging> bar;
        InMode(mode, [&](Clerk& clerk) {
            Type(clerk, "11042026{ENTER}20042026{ENTER}1{ENTER}{ENTER}");
            clerk.Do([&] { bar = std::make_unique<PaintedStaging>(clerk.Top()); });
            EXPECT_FALSE(bar->IsShown()) << mode;
            Type(clerk, "%i");
            EXPECT_FALSE(bar->IsShown()) << mode;
        });
        ASSERT_TRUE(bar);
        EXPECT_EQ(bar->Messages.value(0), "Generating the Report");
        for (const char* seen : {"33 % 1 राम", "66 % 5 सीता", "100 % 9 गणेश"})
            EXPECT_TRUE(bar->Seen.contains(QString::fromUtf8(seen))) << mode << ' ' << seen;
    }
}

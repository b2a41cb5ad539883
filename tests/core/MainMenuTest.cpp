#include "SocietyTest.h"

#include "MainMenu.h"
#include "ScreenDirectory.h"

namespace {

// A screen that stands in for one of the rooms above the menu.
class frmStandIn final : public Screen {
public:
    frmStandIn() : Screen("frmStandIn") { }
};

class MainMenu : public SocietyTest {
protected:
    // Opens the menu and passes the date, so that the script begins on the main list.
    void Menu(const std::function<void(Clerk&)>& script)
    {
        On<MainMenuFrm>([&](Clerk& clerk) {
            ASSERT_EQ(clerk.ScreenName(), QStringLiteral("frmAppDate"));
            clerk.Type(QStringLiteral("{ENTER}{ENTER}"));
            ASSERT_EQ(clerk.ScreenName(), QStringLiteral("MainMenuFrm"));
            script(clerk);
        });
        EXPECT_FALSE(Failure);
    }

    static bool Shows(Clerk& clerk, const char* list) { return clerk.CanEnter(QLatin1String(list)); }

    static QStringList Entries(Clerk& clerk, const char* list)
    {
        QStringList entries;
        for (const Caption& entry :
            dynamic_cast<MenuList*>(clerk.Top().Find(QString::fromLatin1(list)))->Entries())
            entries.append(entry.Text());
        return entries;
    }

    static int IndexOfMain(Clerk& clerk)
    {
        return dynamic_cast<MenuList*>(clerk.Top().Find(u"ListMain"))->CurrentIndex();
    }

    // Moves to an entry of the main list, counted from 0, and chooses it.
    static void ChooseMain(Clerk& clerk, int index)
    {
        clerk.Type(
            QStringLiteral("{HOME}") + QStringLiteral("{DOWN}").repeated(index) + QStringLiteral("{ENTER}"));
    }
};

}

TEST_F(MainMenu, TheListsHoldTheirEntriesInOrder)
{
    Menu([](Clerk& clerk) {
        EXPECT_EQ(Entries(clerk, "ListMain"),
            QStringList({QStringLiteral("maasTr"), QStringLiteral("dUQa vyavahar"),
                QStringLiteral("dUQa irpaoT-"), QStringLiteral("vaaiYa-k irpaoT-"),
                QStringLiteral("[tr sauivaQaa À TUlsa"), QStringLiteral("baahor")}));
        EXPECT_EQ(Entries(clerk, "ListMaster").size(), 4);
        EXPECT_EQ(Entries(clerk, "ListSVouchers").size(), 8);
        EXPECT_EQ(Entries(clerk, "ListMReports").size(), 15);
        EXPECT_EQ(Entries(clerk, "listYearlyReport").size(), 3);
        EXPECT_EQ(Entries(clerk, "ListUtilities").size(), 5);
        EXPECT_EQ(IndexOfMain(clerk), 0);
    });
}

TEST_F(MainMenu, TransportIsOfferedOnlyWhenTheSettingReadsTrueAndThenDoesNothing)
{
    Run(QStringLiteral("update AutoSettings set ShowTransportCharges='True'"));
    Menu([&](Clerk& clerk) {
        ASSERT_EQ(Entries(clerk, "ListSVouchers").size(), 9);
        EXPECT_EQ(Entries(clerk, "ListSVouchers")[7], QStringLiteral("dUQa vaahtUk Kca-"));
        ChooseMain(clerk, 1);
        clerk.Type(QStringLiteral("{END}{UP}{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("MainMenuFrm"));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MainMenu, EachMainEntryOpensItsListOnItsFirstEntryAndTheToolsOnTheSecond)
{
    const char* lists[] = {
        "ListMaster", "ListSVouchers", "ListMReports", "listYearlyReport", "ListUtilities"};
    Menu([&](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            EXPECT_TRUE(Shows(clerk, lists[at]));
            EXPECT_EQ(clerk.Focus(), QLatin1String(lists[at]));
            EXPECT_EQ(dynamic_cast<MenuList*>(clerk.Top().FocusHolder())->CurrentIndex(), at == 4 ? 1 : 0);
            clerk.Type(QStringLiteral("{ESC}"));
            EXPECT_FALSE(Shows(clerk, lists[at]));
        }
    });
}

TEST_F(MainMenu, EscAndLeftSetTheMainListToTheirFixedPlace)
{
    const int after[] = {0, 2, 4, 4, 4};
    Menu([&](Clerk& clerk) {
        for (const char* key : {"{ESC}", "{LEFT}"})
            for (int at = 0; at < 5; ++at) {
                ChooseMain(clerk, at);
                clerk.Type(QLatin1String(key));
                EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMain"));
                EXPECT_EQ(IndexOfMain(clerk), after[at]) << "from list " << at << " by " << key;
            }
    });
}

TEST_F(MainMenu, BaahorOfASubListHidesItAndLeavesTheMainListWhereItWas)
{
    Menu([&](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            clerk.Type(QStringLiteral("{END}{ENTER}"));
            EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMain"));
            EXPECT_EQ(IndexOfMain(clerk), at);
        }
    });
}

TEST_F(MainMenu, AClosedMasterSaysThatALoginIsRequiredWhileTheFunctionKeysStillWork)
{
    gAppState.gAccessMaster = 0;
    Menu([&](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(TheBox.Shown, QStringList(QStringLiteral("Administrator LogIn Required")));
        EXPECT_FALSE(Shows(clerk, "ListMaster"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMain"));
        clerk.Type(QStringLiteral("{F7}"));
        ASSERT_EQ(TheBox.Shown.size(), 2);
        EXPECT_TRUE(TheBox.Shown[1].contains(QStringLiteral("ऑटो सेटींग्ज")));
    });
}

TEST_F(MainMenu, WithEverythingClosedOnlyTheYearlyListOpens)
{
    gAppState.gAccessMaster = gAppState.gAccessStockVoucher = gAppState.gAccessStockReport =
        gAppState.gAccessUtilities = 0;
    Menu([&](Clerk& clerk) {
        for (int at : {0, 1, 2, 4})
            ChooseMain(clerk, at);
        EXPECT_EQ(TheBox.Shown.size(), 4);
        ChooseMain(clerk, 3);
        EXPECT_TRUE(Shows(clerk, "listYearlyReport"));
        EXPECT_EQ(TheBox.Shown.size(), 4);
    });
}

TEST_F(MainMenu, AnAdministratorIsGrantedAccessToAClosedList)
{
    gAppState.gAccessUtilities = 0;
    gAppState.gAdminLoggedIn = QStringLiteral("YES");
    Menu([&](Clerk& clerk) {
        ChooseMain(clerk, 4);
        EXPECT_EQ(TheBox.Shown, QStringList(QStringLiteral("Access Granted")));
        EXPECT_TRUE(Shows(clerk, "ListUtilities"));
    });
}

TEST_F(MainMenu, TabActsAsEnter)
{
    Menu([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{TAB}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMaster"));
    });
}

TEST_F(MainMenu, AnEntryWhoseScreenIsNotThereNamesItInAPlainMessageAndNothingElse)
{
    Menu([&](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}{DOWN}{ENTER}"));
        ASSERT_EQ(TheBox.Shown.size(), 1);
        EXPECT_TRUE(TheBox.Shown[0].contains(QStringLiteral("ग्राहकाचे रजिस्टर")));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMaster")) << "the list stays as it was";
    });
}

TEST_F(MainMenu, AReportEntrySetsModeAndTitleBeforeItsScreenOpens)
{
    ScreenDirectory::Add(
        QStringLiteral("frmReportMilkPaymentsRegister"), [] { return std::make_unique<frmStandIn>(); });
    Menu([](Clerk& clerk) {
        ChooseMain(clerk, 2);
        clerk.Type(QStringLiteral("{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmStandIn"));
        EXPECT_EQ(gAppState.gReportMode, QStringLiteral("TR"));
        EXPECT_EQ(clerk.Top().Title().Text(), QStringLiteral(" zova rijasTr irpaoT-"));
        clerk.Type(QStringLiteral("{ESC}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMReports"));
    });
    ScreenDirectory::Add(QStringLiteral("frmReportMilkPaymentsRegister"), {});
}

TEST_F(MainMenu, TheCollectionReceiptIsOpenedInTheNameOfTheMenu)
{
    gAppState.gCallerTag = QStringLiteral("MC");
    Menu([](Clerk& clerk) {
        ChooseMain(clerk, 2);
        clerk.Type(QStringLiteral("{DOWN}{ENTER}"));
        EXPECT_EQ(gAppState.gCallerTag, QStringLiteral("N"));
    });
}

TEST_F(MainMenu, F9IsPromisedByItsLabelAndDoesNothing)
{
    Menu([&](Clerk& clerk) {
        clerk.Type(QStringLiteral("{F9}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("MainMenuFrm"));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MainMenu, F4F7F8AndF12AnswerFromAnyList)
{
    Menu([&](Clerk& clerk) {
        ChooseMain(clerk, 1);
        clerk.Type(QStringLiteral("{F4}{F8}"));
        ASSERT_EQ(TheBox.Shown.size(), 2);
        EXPECT_TRUE(TheBox.Shown[0].contains(QStringLiteral("उचल नोंद")));
        EXPECT_TRUE(TheBox.Shown[1].contains(QStringLiteral("दूध संकलन")));
        clerk.Type(QStringLiteral("{F12}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
    });
}

TEST_F(MainMenu, LeavingOffersTheBackupAndAsksAndNoStays)
{
    Menu([&](Clerk& clerk) {
        clerk.Type(QStringLiteral("{END}{ENTER}"));
        ASSERT_EQ(TheBox.Shown.size(), 1) << "the backup is named first";
        EXPECT_TRUE(TheBox.Shown[0].contains(QStringLiteral("बॅक अप्")));
        EXPECT_EQ(clerk.Message(), QStringLiteral("saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ"));
        clerk.Type(QStringLiteral("%n"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("MainMenuFrm"));
        clerk.Type(QStringLiteral("{ESC}%h"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(MainMenu, TheCloseBoxClosesAtOnceWithoutBackupOrQuestion)
{
    Menu([&](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(clerk.ScreenName(), QString());
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MainMenu, ComesUpWithoutACompany)
{
    Run(QStringLiteral("delete * from CompanySelected"));
    gCn.Close();
    LoadAppState();
    gAppState.gAccountingYear = QStringLiteral("2026-2027");
    Menu([](Clerk& clerk) { EXPECT_EQ(clerk.Focus(), QStringLiteral("ListMain")); });
}

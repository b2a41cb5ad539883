#include "tests/core/menu/MenuTest.h"

#include "core/start/MdlAccounts.h"
#include "tests/core/ScreenFace.h"

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>

namespace {

using MainMenuTest = MenuTest;

// Double-clicks the current entry of a list.
void DoubleClick(Clerk& clerk, MenuList& list)
{
    clerk.Do([&list] {
        auto& widget = *static_cast<QListWidget*>(list.Widget());
        const QPointF at = widget.visualItemRect(widget.currentItem()).center();
        const QPointF global = widget.viewport()->mapToGlobal(at);
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                 QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, global, Qt::LeftButton,
                type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(widget.viewport(), &event);
        }
    });
}

}

TEST_F(MainMenuTest, EachMainEntryOpensItsListOnItsFirstEntryAndTheToolsOnTheSecond)
{
    Menu([&](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            EXPECT_TRUE(Shows(clerk, SubLists[at]));
            EXPECT_EQ(clerk.Focus(), QLatin1String(SubLists[at]));
            EXPECT_EQ(List(clerk, SubLists[at]).CurrentIndex(), at == 4 ? 1 : 0);
            Type(clerk, "{ESC}");
            EXPECT_FALSE(Shows(clerk, SubLists[at]));
        }
    });
}

TEST_F(MainMenuTest, EscAndLeftSetTheMainListToTheirFixedPlace)
{
    const int after[] = {0, 2, 4, 4, 4};
    Menu([&](Clerk& clerk) {
        for (const char* key : {"{ESC}", "{LEFT}"})
            for (int at = 0; at < 5; ++at) {
                ChooseMain(clerk, at);
                clerk.Type(QLatin1String(key));
                EXPECT_EQ(Focus(clerk), "ListMain");
                EXPECT_EQ(IndexOfMain(clerk), after[at]) << "from list " << at << " by " << key;
            }
    });
}

TEST_F(MainMenuTest, BaahorOfASubListHidesItAndLeavesTheMainListWhereItWas)
{
    Menu([&](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            Type(clerk, "{END}{ENTER}");
            EXPECT_FALSE(Shows(clerk, SubLists[at])) << SubLists[at];
            EXPECT_EQ(Focus(clerk), "ListMain");
            EXPECT_EQ(IndexOfMain(clerk), at);
        }
    });
}

TEST_F(MainMenuTest, AClosedMasterSaysThatALoginIsRequiredWhileTheFunctionKeysStillWork)
{
    gAppState.gAccessMaster = 0;
    Menu([&](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("Administrator LogIn Required"));
        EXPECT_FALSE(Shows(clerk, "ListMaster"));
        EXPECT_EQ(Focus(clerk), "ListMain");
        Type(clerk, "{F7}");
        EXPECT_EQ(OnTop(clerk), "frmAutoSettings");
    });
}

TEST_F(MainMenuTest, WithEverythingClosedOnlyTheYearlyListOpens)
{
    CloseEverything();
    Menu([&](Clerk& clerk) {
        for (int at : {0, 1, 2, 4})
            ChooseMain(clerk, at);
        EXPECT_EQ(TheBox.Shown.size(), 4);
        ChooseMain(clerk, 3);
        EXPECT_TRUE(Shows(clerk, "listYearlyReport"));
        EXPECT_EQ(TheBox.Shown.size(), 4);
    });
}

TEST_F(MainMenuTest, AnAdministratorIsGrantedAccessToAClosedList)
{
    gAppState.gAccessUtilities = 0;
    gAppState.gAdminLoggedIn = "YES";
    Menu([&](Clerk& clerk) {
        ChooseMain(clerk, 4);
        EXPECT_EQ(TheBox.Shown, QStringList("Access Granted"));
        EXPECT_TRUE(Shows(clerk, "ListUtilities"));
    });
}

TEST_F(MainMenuTest, TabActsAsEnter)
{
    Menu([](Clerk& clerk) {
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "ListMaster");
    });
}

TEST_F(MainMenuTest, AnUnknownScreenIsABug)
{
    EXPECT_DEBUG_DEATH(ScreenDirectory::Open("frmNowhere"), "frmNowhere");
}

TEST_F(MainMenuTest, F9IsPromisedByItsLabelAndDoesNothing)
{
    Menu([&](Clerk& clerk) {
        Type(clerk, "{F9}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MainMenuTest, F4F7F8AndF12AnswerFromAnyList)
{
    Menu([&](Clerk& clerk) {
        ChooseMain(clerk, 1);
        for (const auto& [key, screen] : {std::pair("{F4}", "frmUchalVouchers"), {"{F7}", "frmAutoSettings"},
                 {"{F8}", "frmCollectionGate"}}) {
            Type(clerk, key);
            EXPECT_EQ(OnTop(clerk), screen);
            Type(clerk, "{ESC}");
        }
        Type(clerk, "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
    });
}

TEST_F(MainMenuTest, LeavingOffersTheBackupAndAsksAndNoStays)
{
    Menu([&](Clerk& clerk) {
        Type(clerk, "{END}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmBackup");
        Type(clerk, "{ESC}");
        EXPECT_EQ(clerk.Message(), "saa^FTvaoArmaQaUna na@kI baahor pDayacao ka Æ");
        Type(clerk, "%n");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
        Type(clerk, "{ESC}{ESC}%h");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(MainMenuTest, TheCloseBoxClosesAtOnceWithoutBackupOrQuestion)
{
    Menu([&](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(MainMenuTest, TheMainListGainingTheFocusByMouseHidesEveryListButTheYearlyOne)
{
    Menu([](Clerk& clerk) {
        for (int at = 0; at < 5; ++at) {
            ChooseMain(clerk, at);
            Press(clerk, "ListMain");
            EXPECT_EQ(Focus(clerk), "ListMain");
            EXPECT_EQ(Shows(clerk, SubLists[at]), at == 3) << SubLists[at];
            if (at == 3)
                Type(clerk, "{HOME}{DOWN}{DOWN}{DOWN}{ENTER}{ESC}");
        }
    });
}

TEST_F(MainMenuTest, ADoubleClickChoosesAsEnterDoes)
{
    Menu([&](Clerk& clerk) {
        DoubleClick(clerk, List(clerk, "ListMain"));
        ASSERT_TRUE(Shows(clerk, "ListMaster"));
        EXPECT_EQ(Focus(clerk), "ListMaster");
        DoubleClick(clerk, List(clerk, "ListMaster"));
        EXPECT_EQ(OnTop(clerk), "frmMembers");
    });
}

TEST_F(MainMenuTest, F2StartsTheCalculatorMaximised)
{
    Menu([](Clerk& clerk) { Type(clerk, "{F2}"); });
    EXPECT_EQ(TheCalculator.Started, QStringList("C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"));
}

TEST_F(MainMenuTest, ItsFaceShowsTitlesHeadingVersionTwiceAndTheSocietyButNoYear)
{
    Menu([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), Seen(" dUQa saMklana saa^FTvaoAr"));
        EXPECT_EQ(LabelOf(clerk, "lblSystem"), Seen(" dUQa saMklana va vyavasqaapna p`NaalaI"));
        EXPECT_EQ(LabelOf(clerk, "lblMenu"), Seen("maona maonaU"));
        EXPECT_EQ(LabelOf(clerk, "lblVersion"), "Ver 2.0");
        EXPECT_EQ(LabelOf(clerk, "lblVersionFoot"), "Ver 2.0");
        EXPECT_EQ(LabelOf(clerk, "lblCompanyTitle"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(LabelOf(clerk, "lblAcYear"), QString());
    });
}

TEST_F(MainMenuTest, TodaysDateIsTheMachinesAtLoadAndIsNotUpdated)
{
    Menu([&](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTodayDate"), "15/04/2026");
        TheClock.Time = TheClock.Time.addDays(1);
        Type(clerk, "{ENTER}{ESC}{F12}{ESC}");
        EXPECT_EQ(LabelOf(clerk, "lblTodayDate"), "15/04/2026");
    });
}

TEST_F(MainMenuTest, WithoutACompanyTheDateAskedForIsEmptyThenTodayAndTheMenuNamesNoSociety)
{
    Run("delete * from CompanySelected");
    gCn.Close();
    ASSERT_TRUE(LoadAppState());
    On<MainMenuFrm>([](Clerk& clerk) {
        ASSERT_EQ(OnTop(clerk), "frmAppDate");
        EXPECT_EQ(Reads(clerk, "MaskAppDate"), "__/__/____");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), " idnaaMk vyavaisqat Ta[-p kra.");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "MaskAppDate"), "15/04/2026");
        Type(clerk, "{ENTER}{ENTER}");
        ASSERT_EQ(OnTop(clerk), "MainMenuFrm");
        EXPECT_EQ(Focus(clerk), "ListMain");
        EXPECT_EQ(LabelOf(clerk, "lblCompanyTitle"), QString());
        EXPECT_EQ(LabelOf(clerk, "lblAcYear"), QString());
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(gAppState.gCompanyId, 0);
    EXPECT_EQ(gAppState.gAppDate, QDate(2026, 4, 15));
}

#include "collection/frmAbsenseMemberCollection.h"
#include "tests/collection/CounterTest.h"

namespace {

class AbsentMembersTest : public CounterTest {
protected:
    // Plays on the screen as it opens, with the focus on the date.
    void AskingAfter(const std::function<void(Clerk&)>& script) { On<frmAbsenseMemberCollection>(script); }

    // Asks after a morning and reads the list as it is seen.
    std::vector<std::string> AbsentOn(const char* date)
    {
        std::vector<std::string> seen;
        AskingAfter([&](Clerk& clerk) {
            Type(clerk, date);
            Type(clerk, "{ENTER}1{ENTER}{ENTER}");
            const DataGrid& grid = Grid(clerk, "DataGridMembers");
            for (int row = 0; row < grid.Rows(); ++row)
                seen.push_back(Line(grid, row));
        });
        return seen;
    }

    QStringList Listed() { return Rows("select CompanyId,MemberNo,MemberName from ShortMemberList"); }

    void Bring(
        const char* date, const char* shift, int number, int member, const char* name, const char* animal)
    {
        AddDelivery(QString::fromLatin1(date), QString::fromLatin1(shift), number, member,
            QString::fromLatin1(name), QString::fromLatin1(animal), 5, 4.5, 35, 175);
    }

    static std::string Member(int number, const char* name)
    {
        return std::to_string(number) + '|' + Seen(QString::fromLatin1(name)).toStdString();
    }
};

TEST_F(AbsentMembersTest, OpensEmptyWithTheFocusOnTheDate)
{
    Run("insert into ShortMemberList(CompanyId,MemberNo,MemberName) values(1, 1, 'rama')");
    AskingAfter([this](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "MaskDate");
        EXPECT_EQ(Reads(clerk, "MaskDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "Command1"), ">>");
        EXPECT_EQ(Label(clerk, "Label28"), Seen("Aaja dUQa saMklana nasaNaaáyaaMcaI naavao").toStdString());
        EXPECT_EQ(Grid(clerk, "DataGridMembers").Rows(), 0);
        EXPECT_TRUE(Listed().isEmpty());
    });
}

TEST_F(AbsentMembersTest, EnterLeadsFromTheDateToTheButtonAndPressesIt)
{
    AskingAfter([](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(Focus(clerk), "Command1");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "Command1");
        Type(clerk, "{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(AbsentMembersTest, WhoCameTheDayBeforeAndNotTodayIsListed)
{
    Bring("14/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    Bring("14/04/2026", "sakaL", 2, 2, "saIta", "mhOsa");
    Bring("15/04/2026", "sakaL", 1, 2, "saIta", "mhOsa");
    EXPECT_EQ(AbsentOn("15042026"), std::vector{Member(1, "rama")});
    EXPECT_EQ(Listed(), Of({"1|1|rama"}));
}

TEST_F(AbsentMembersTest, WhoBroughtBothKindsIsListedTwice)
{
    Bring("14/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya");
    Bring("14/04/2026", "sakaL", 2, 3, "gaNaoSa", "mhOsa");
    EXPECT_EQ(AbsentOn("15042026"), (std::vector{Member(3, "gaNaoSa"), Member(3, "gaNaoSa")}));
}

TEST_F(AbsentMembersTest, OneKindTodayIsEnough)
{
    Bring("14/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya");
    Bring("14/04/2026", "sakaL", 2, 3, "gaNaoSa", "mhOsa");
    Bring("15/04/2026", "sakaL", 1, 3, "gaNaoSa", "mhOsa");
    EXPECT_TRUE(AbsentOn("15042026").empty());
}

TEST_F(AbsentMembersTest, WhoSkippedTheDayBeforeIsNotListed)
{
    Bring("13/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    EXPECT_TRUE(AbsentOn("15042026").empty());
}

TEST_F(AbsentMembersTest, TheFirstShiftOfAllGivesAnEmptyList)
{
    Bring("15/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    EXPECT_TRUE(AbsentOn("15042026").empty());
}

TEST_F(AbsentMembersTest, AnEmptyListIsToldInTheGuideUntilThereIsAnother)
{
    Bring("14/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    AskingAfter([this](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}1{ENTER}");
        EXPECT_EQ(Label(clerk, "lblFooter"), "Enter : यादी") << "Enter doesn't lead on from the button";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblFooter"), "कालच्या या वेळेतील कोणीही गैरहजर नाही");
        EXPECT_TRUE(Shows(clerk, "lblFooter"));
        Bring("12/04/2026", "sakaL", 1, 1, "rama", "gaaya");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Grid(clerk, "DataGridMembers").Rows(), 1);
        EXPECT_EQ(Label(clerk, "lblFooter"), "Enter : यादी");
    });
}

TEST_F(AbsentMembersTest, ADeliveryWithoutACompanyCountsLikeAnyOther)
{
    Bring("14/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    Bring("14/04/2026", "sakaL", 2, 2, "saIta", "mhOsa");
    Bring("15/04/2026", "sakaL", 1, 2, "saIta", "mhOsa");
    Run("update MilkCollections set CompanyId=0");
    EXPECT_EQ(AbsentOn("15042026"), std::vector{Member(1, "rama")});
    EXPECT_EQ(Listed(), Of({"1|1|rama"})) << "listed for the company of the screen";
}

TEST_F(AbsentMembersTest, TheListHasItsCaptions)
{
    AskingAfter([](Clerk& clerk) { EXPECT_EQ(Heads(Grid(clerk, "DataGridMembers")), "मेम्बर नं.|मेम्बरचे नाव"); });
}

TEST_F(AbsentMembersTest, EscClosesWithoutClearing)
{
    Failure = TheClerk.Play(
        [] {
            frmAbsenseMemberCollection screen;
            screen.ShowModal();
            EXPECT_EQ(screen.Find(u"MaskDate")->Text(), "15/04/2026");
            EXPECT_EQ(screen.Find(u"txtTime")->Text(), "sakaL");
        },
        [](Clerk& clerk) {
            Type(clerk, "15042026{ENTER}1{ESC}");
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
}

TEST_F(AbsentMembersTest, TheCalculatorAndTheKeyboardTutorAreAtHand)
{
    AskingAfter([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, Of({"C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"}));
        Type(clerk, "{F12}");
        EXPECT_EQ(clerk.ScreenName(), "frmKeyboardTutor");
    });
}

TEST_F(AbsentMembersTest, OnlyTheShiftAskedForCounts)
{
    Bring("14/04/2026", "saMQyaakaL", 1, 1, "rama", "gaaya");
    Bring("14/04/2026", "sakaL", 1, 2, "saIta", "mhOsa");
    Bring("15/04/2026", "saMQyaakaL", 1, 2, "saIta", "mhOsa");
    EXPECT_EQ(AbsentOn("15042026"), std::vector{Member(2, "saIta")});
}

TEST_F(AbsentMembersTest, TheDayBeforeTheFirstOfAMonthIsTheLastOfTheOneBefore)
{
    Bring("30/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    EXPECT_EQ(AbsentOn("01052026"), std::vector{Member(1, "rama")});
}

TEST_F(AbsentMembersTest, ASecondQuestionReplacesTheList)
{
    Bring("13/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    Bring("14/04/2026", "sakaL", 1, 2, "saIta", "mhOsa");
    AskingAfter([](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}1{ENTER}{ENTER}+{TAB}+{TAB}14042026{ENTER}{ENTER}{ENTER}");
        const DataGrid& grid = Grid(clerk, "DataGridMembers");
        ASSERT_EQ(grid.Rows(), 1);
        EXPECT_EQ(Line(grid, 0), Member(1, "rama"));
    });
}

TEST_F(AbsentMembersTest, WithoutACompanyTheListIsTidiedAway)
{
    Bring("14/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    gAppState.gCompanyId = 0;
    EXPECT_TRUE(AbsentOn("15042026").empty());
}

TEST_F(AbsentMembersTest, ABadDateKeepsTheFocusWithoutAMessage)
{
    for (const char* date : {"", "25132026", "31042026", "1504"}) {
        AskingAfter([&](Clerk& clerk) {
            Type(clerk, date);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "MaskDate") << date;
            EXPECT_EQ(clerk.ScreenName(), "frmAbsenseMemberCollection");
        });
    }
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(AbsentMembersTest, TheButtonWaitsForDateAndShift)
{
    Run("delete * from ShortMemberList");
    AskingAfter([](Clerk& clerk) {
        clerk.Press("Command1");
        EXPECT_EQ(Focus(clerk), "MaskDate");
        Type(clerk, "15042026");
        clerk.Press("Command1");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Focus(clerk), "Command1");
    });
}

TEST_F(AbsentMembersTest, AStatementThatFailsLeavesTheListAsItWas)
{
    Bring("13/04/2026", "sakaL", 1, 1, "rama", "gaaya");
    Bring("14/04/2026", "sakaL", 1, 5, "ok", "gaaya");
    gCn.RunScript("update MilkCollections set MemberName='o''k' where MemberNo=5");
    AskingAfter([](Clerk& clerk) {
        Type(clerk, "14042026{ENTER}1{ENTER}{ENTER}+{TAB}+{TAB}15042026{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Listed(), Of({"1|1|rama"}));
}

}

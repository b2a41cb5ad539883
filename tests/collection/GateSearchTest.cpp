#include "tests/collection/GateTest.h"

namespace {

class GateSearchTest : public GateTest { };

TEST_F(GateSearchTest, WithTheBoxOffNothingIsFiltered)
{
    AtTheGate([](Clerk& clerk) {
        Type(clerk, "{ENTER}1");
        EXPECT_EQ(Listed(clerk), "4321");
    });
}

TEST_F(GateSearchTest, TheListFollowsTheNumberKeystrokeByKeystroke)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}3");
        EXPECT_EQ(Listed(clerk), "43");
        Type(clerk, "1");
        EXPECT_EQ(Listed(clerk), "");
        Type(clerk, "{BS}");
        EXPECT_EQ(Listed(clerk), "43");
        Type(clerk, "{BS}");
        EXPECT_EQ(Listed(clerk), "4321") << "an emptied field shows the whole shift";
    });
}

TEST_F(GateSearchTest, ANewEntryNarrowsTheListAndIsSavedAgainstTheWholeShift)
{
    Searching([this](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Listed(clerk), "43") << "the name found by the number filters last";
        Type(clerk, "1");
        EXPECT_EQ(Listed(clerk), "31") << "filters don't combine";
        Type(clerk, "{ENTER}2{ENTER}4.5{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        Set("RepeatCollection", "haoya");
        DeliverOf(clerk, 3, 1, "2", "4.5");
        EXPECT_EQ(Books().last().toStdString(), "5|3|gaNaoSa|gaaya|2|4.5|35|70");
        EXPECT_EQ(Listed(clerk), "54321") << "the emptied line shows the whole shift";
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "14.00");
    });
}

TEST_F(GateSearchTest, LitresFatAndRateAreSearchedByTheirValue)
{
    Searching([](Clerk& clerk) {
        clerk.Press("txtLiters");
        Type(clerk, "2.5");
        EXPECT_EQ(Listed(clerk), "42");
    });
    Searching([](Clerk& clerk) {
        PressAndSelect(clerk, "txtFat");
        Type(clerk, "7");
        EXPECT_EQ(Listed(clerk), "4");
        Type(clerk, ".");
        EXPECT_EQ(Listed(clerk), "4");
    });
    Searching([](Clerk& clerk) {
        clerk.Press("txtRate");
        Type(clerk, "49");
        EXPECT_EQ(Listed(clerk), "2");
    });
}

TEST_F(GateSearchTest, ANamesFirstLettersShowAllThatBeginWithThem)
{
    AddMember(4, "rajaa");
    AddMilk(5, 4, "rajaa", "gaaya", 1, 4, 32, 32);
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}r");
        EXPECT_EQ(Listed(clerk), "51");
        Type(clerk, "aj");
        EXPECT_EQ(Listed(clerk), "5");
    });
}

TEST_F(GateSearchTest, ANameIsFoundInAnySpellingThatReadsSo)
{
    AddMember(4, "maa$tI");
    AddMember(5, "maarutI paaTIla");
    AddMilk(5, 4, "maa$tI", "gaaya", 1, 4, 32, 32);
    AddMilk(6, 5, "maarutI paaTIla", "gaaya", 1, 4, 32, 32);
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}maaru");
        EXPECT_EQ(Listed(clerk), "65");
        Type(clerk, "tI");
        EXPECT_EQ(Listed(clerk), "65");
        Type(clerk, " p");
        EXPECT_EQ(Listed(clerk), "6");
    });
}

TEST_F(GateSearchTest, ARowOfTheOtherCompanyIsFoundAndListedInEachOrder)
{
    AddMember(4, "maa$tI", "gaaya");
    AddMilk(5, 4, "maa$tI", "gaaya", 9, 3, 32, 288);
    Run("update MilkCollections set CompanyId=2 where CollectionNo=5");
    Searching([](Clerk& clerk) {
        EXPECT_EQ(Listed(clerk), "54321");
        Type(clerk, "{ENTER}4");
        EXPECT_EQ(Listed(clerk), "5") << "by number";
        Type(clerk, "{BS}{ENTER}maa$");
        EXPECT_EQ(Listed(clerk), "5") << "by name";
    });
    EXPECT_FALSE(Failure);
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}maarutI");
        EXPECT_EQ(Listed(clerk), "5") << "by another spelling";
    });
    EXPECT_FALSE(Failure);
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1");
        EXPECT_EQ(Listed(clerk), "531") << "by animal";
        clerk.Press("cmdLtrOrder");
        EXPECT_EQ(Listed(clerk).size(), 5U) << "in order";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(GateSearchTest, AnEmptyNameGivesAllRows)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}r");
        EXPECT_EQ(Listed(clerk), "1");
        Type(clerk, "{BS}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
        EXPECT_EQ(Listed(clerk), "4321");
        Type(clerk, " ");
        EXPECT_EQ(Listed(clerk), "4321") << "blanks are no name";
    });
}

TEST_F(GateSearchTest, ARowLoadedIntoTheLineFiltersToo)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Listed(clerk), "2") << "its rate is set last";
    });
}

TEST_F(GateSearchTest, SortingShowsTheWholeShiftAgain)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        EXPECT_EQ(Listed(clerk), "1");
        clerk.Press("cmdLtrOrder");
        EXPECT_EQ(Listed(clerk).size(), 4U);
    });
}

TEST_F(GateSearchTest, TheTotalsGoByTheWholeShift)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}3");
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "12.00");
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "5.00");
    });
}

TEST_F(GateSearchTest, TheFilterStaysWhenTheSearchIsTurnedOff)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        clerk.Press("chkSerachMode");
        EXPECT_EQ(Reads(clerk, "chkSerachMode"), "0");
        EXPECT_EQ(Listed(clerk), "1");
    });
}

TEST_F(GateSearchTest, AnEmptiedAnimalShowsTheRowsWithoutOne)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1");
        EXPECT_EQ(Listed(clerk), "31");
        PressAndSelect(clerk, "txtCollectionNo");
        Type(clerk, "0{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        EXPECT_EQ(Listed(clerk), "") << "it was emptied last, and there is none";
    });
}

TEST_F(GateSearchTest, AMembersNameWithAnApostropheEndsTheProgram)
{
    gCn.RunScript("update MilkCollections set MemberName='ra''ma' where CollectionNo=1");
    Searching([](Clerk& clerk) { Type(clerk, "1{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Failure->Statement().contains("ra'ma"));
}

}

// Finding a member's deliveries: the fields, the search, and what is left of it.

#include "tests/collection/SearchCollectionsTest.h"

// Opening

TEST_F(SearchCollectionsTest, OpensFromTheMenuWithTheWorkingDayAndNoRows)
{
    Run("insert into MilkCollectionsTemp select * from MilkCollections");
    FromTheMenu([this](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        EXPECT_EQ(Reads(clerk, "txtTime"), "");
        EXPECT_EQ(Reads(clerk, "cmdGo"), "&Print");
        EXPECT_EQ(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).Items(),
            Of({"gaNaoSa", "rama", "saIta"}));
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(Books().size(), 3);
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 0);
        ExpectNothingFound(clerk);
    });
}

TEST_F(SearchCollectionsTest, TheTickSwitchesItselfOffAndLeavesTheClerkWhereHeIs)
{
    On<frmSearchCollections>([](Clerk& clerk) {
        auto& screen = clerk.On<frmSearchCollections>();
        clerk.Do([&] {
            EXPECT_TRUE(screen.TimerStart) << "it has yet to tick";
            EXPECT_EQ(screen.FocusHolder(), screen.Find(u"maskDate")) << "he is at the date before it";
            screen.Find(u"txtTime")->SetFocus();
        });
        AwaitTick(clerk);
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "1");
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
        EXPECT_TRUE(CanEnter(clerk, "txtMemberNo")) << "the date's own rules were not run again";
        EXPECT_FALSE(screen.TimerStart);
    });
}

TEST_F(SearchCollectionsTest, ACallersTagWithoutACounterIsAsFromTheMenu)
{
    gAppState.gCallerTag = "MC";
    FromTheMenu([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
    });
}

TEST_F(SearchCollectionsTest, CalculatorTutorAndEscAnswer)
{
    FromTheMenu([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, Of({"C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"}));
        Type(clerk, "{F12}");
        EXPECT_EQ(clerk.ScreenName(), "frmKeyboardTutor");
        Type(clerk, "{ESC}{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(SearchCollectionsTest, EscClearsTheFieldsBeforeItCloses)
{
    Failure = TheClerk.Play(
        [] {
            frmSearchCollections screen;
            screen.ShowModal();
            EXPECT_EQ(screen.Find(u"maskDate")->Text(), "__/__/____");
            for (const char* field : {"txtTime", "txtMemberNo", "ComboMemberName"})
                EXPECT_EQ(screen.Find(QString::fromLatin1(field))->Text(), QString()) << field;
        },
        [](Clerk& clerk) {
            AwaitTick(clerk);
            Type(clerk, "{ENTER}1{ENTER}1{ENTER}{ENTER}");
            ASSERT_EQ(Focus(clerk), "DataGridInwards");
            Type(clerk, "{ESC}");
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
}

TEST_F(SearchCollectionsTest, TheListHasItsCaptions)
{
    FromTheMenu([](Clerk& clerk) {
        EXPECT_EQ(Heads(Grid(clerk, "DataGridInwards")), "संकलन क्र.|दूध|लिटर्स|फॅट|दर|रक्कम");
    });
}

// Date, shift and member

TEST_F(SearchCollectionsTest, ABadDateKeepsTheFocusWithoutAMessage)
{
    for (const char* date : {"", "25132026", "13252026", "1504"}) {
        FromTheMenu([&](Clerk& clerk) {
            Type(clerk, "{BS}");
            Type(clerk, date);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "maskDate") << date;
            EXPECT_EQ(clerk.ScreenName(), "frmSearchCollections");
        });
    }
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(SearchCollectionsTest, TheShiftComesByItsKeysAndIsNeeded)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Label(clerk, "lblFooter"), Seen("  1 ¹ sakaL    2 ¹ saMQyaakaL").toStdString());
        Type(clerk, "3a{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "2{BS}x");
        EXPECT_EQ(Reads(clerk, "txtTime"), "saMQyaakaL");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(SearchCollectionsTest, TheMemberWaitsForTheShift)
{
    FromTheMenu([](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "txtMemberNo"));
        EXPECT_FALSE(CanEnter(clerk, "ComboMemberName"));
        Type(clerk, "{ENTER}1");
        EXPECT_TRUE(CanEnter(clerk, "txtMemberNo"));
        EXPECT_TRUE(CanEnter(clerk, "ComboMemberName"));
    });
}

TEST_F(SearchCollectionsTest, OfTwoMembersOfOneNameTheOneWhoseNumberWasTypedIsFound)
{
    AddSecondRama();
    After(4, [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "4");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
    });
}

TEST_F(SearchCollectionsTest, OfTwoMembersOfOneNameTheFirstIsFoundByTheNameAlone)
{
    AddSecondRama();
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}rama%{UP}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
    });
}

TEST_F(SearchCollectionsTest, AMemberPickedInTheListGivesWayToANumberThatIsTyped)
{
    AddSecondRama();
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}{DOWN}{DOWN}{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "4");
        Type(clerk, "+{TAB}+{TAB}1{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
    });
}

TEST_F(SearchCollectionsTest, F9OnTheSecondOfTwoMembersOfOneNameFindsHim)
{
    AddSecondRama();
    for (const char* number : {"4", "04"})
        On<frmMilkCollections>([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}{ENTER}");
            Type(clerk, number);
            Type(clerk, "{F9}");
            AwaitTick(clerk);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "4");
            EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
        });
}

TEST_F(SearchCollectionsTest, ANumberShowsItsMemberAndAnUnknownOneIsEmptied)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}77{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_TRUE(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).IsDroppedDown());
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(SearchCollectionsTest, ANameThatIsNobodysKeepsTheFocusWhileThereIsNoNumber)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}raja{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "raja");
        EXPECT_TRUE(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).IsDroppedDown());
        ExpectNothingFound(clerk);
    });
}

TEST_F(SearchCollectionsTest, ANameThatIsNobodysBesideANumberLetsGoAndLeavesTheRows)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "+{TAB}{END}+{HOME}raja{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "raja");
        EXPECT_EQ(Copy().size(), 2);
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        ExpectNothingFound(clerk);
    });
}

TEST_F(SearchCollectionsTest, ApostrophesAndDigitsAreDroppedFromTheName)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}s'a1I2ta");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
    });
}

// Search

TEST_F(SearchCollectionsTest, TheMembersRowsOfTheShiftAreShownNewestFirst)
{
    AddDelivery("15/04/2026", "saMQyaakaL", 1, 1, "rama", "gaaya", 9, 4.5, 35, 315);
    AddDelivery("14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 9, 4.5, 35, 315);
    After(1, [this](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        const DataGrid& grid = Grid(clerk, "DataGridInwards");
        ASSERT_EQ(grid.Rows(), 2);
        EXPECT_EQ(Line(grid, 0), "3|" + Seen("mhOsa").toStdString() + "|1.500|8.00|49.00|73.50");
        EXPECT_EQ(Line(grid, 1), "1|" + Seen("gaaya").toStdString() + "|5.000|4.50|35.00|175.00");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175", "3|1|rama|mhOsa|1.5|8|49|73.5"}));
        EXPECT_TRUE(CanEnter(clerk, "cmdGo"));
    });
}

TEST_F(SearchCollectionsTest, FromTheMenuTheCopyIsLeftWithTheMembersRows)
{
    Run("insert into MilkCollectionsTemp select * from MilkCollections");
    After(1, [](Clerk& clerk) {
        Type(clerk, "{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175", "3|1|rama|mhOsa|1.5|8|49|73.5"}));
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(SearchCollectionsTest, ARowWithoutACompanyIsFoundLikeAnyOther)
{
    Run("update MilkCollections set CompanyId=0 where CollectionNo=3");
    After(1, [this](Clerk& clerk) {
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
        EXPECT_EQ(One("select CompanyId from MilkCollectionsTemp where CollectionNo=3"), "0");
    });
}

TEST_F(SearchCollectionsTest, AMemberIsFoundByNameWithBlanksAroundIt)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER} saIta {ENTER}");
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
    });
}

TEST_F(SearchCollectionsTest, AnotherSpellingOfANameFindsTheMembersRows)
{
    AddMember(8, "maa$tI", "gaaya");
    AddDelivery("15/04/2026", "sakaL", 4, 8, "maa$tI", "gaaya", 2, 4.5, 35, 70);
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}maarutI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "maa$tI");
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
    });
}

TEST_F(SearchCollectionsTest, ShiftTabLeadsFromTheRowsBackToTheNumberOfAnotherMember)
{
    After(1, [](Clerk& clerk) {
        Type(clerk, "+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "2{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
    });
}

TEST_F(SearchCollectionsTest, ASearchThatFindsNothingSaysSo)
{
    After(3, [this](Clerk& clerk) {
        EXPECT_EQ(TheBox.Shown, Of({"No Records"}));
        EXPECT_TRUE(Copy().isEmpty());
        ExpectNothingFound(clerk);
        EXPECT_EQ(Focus(clerk), "maskDate");
    });
}

TEST_F(SearchCollectionsTest, WhatIsNumberedZeroIsNoDelivery)
{
    Run("update MilkCollections set CollectionNo=0 where MemberNo=2");
    After(2, [this](Clerk&) {
        EXPECT_EQ(TheBox.Shown, Of({"No Records"}));
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(Books().size(), 3);
    });
}

TEST_F(SearchCollectionsTest, AnotherMemberOrShiftTakesTheRowsOutOfReach)
{
    for (const auto& [field, keys] : {std::pair("txtMemberNo", "2"), std::pair("txtTime", "2"),
             std::pair("ComboMemberName", "x"), std::pair("maskDate", "")}) {
        After(1, [field = field, keys = keys](Clerk& clerk) {
            EXPECT_TRUE(CanEnter(clerk, "cmdGo"));
            clerk.Press(QString::fromLatin1(field));
            Type(clerk, keys);
            ExpectNothingFound(clerk);
        });
    }
}

// From a counter

TEST_F(SearchCollectionsTest, F9AtTheCounterGoesOnWithItsLine)
{
    FromTheCounter<frmMilkCollections>(1, [](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
    });
}

TEST_F(SearchCollectionsTest, F9AtTheGateGoesOnWithItsLineToo)
{
    FromTheCounter<frmCollectionGate>(2, [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
    });
}

TEST_F(SearchCollectionsTest, F9OnAMemberWithoutARowOpensNothing)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{F9}");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
    });
}

TEST_F(SearchCollectionsTest, TheCountersListStaysAsLongAsItWasAfterTheCopyWasReplaced)
{
    for (int number = 10; number < 70; ++number)
        AddMorningDelivery(number);
    FromTheCounter<frmMilkCollections>(2, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ESC}");
        ASSERT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_GT(Grid(clerk, "DataGridInwards").Rows(), 60);
    });
}

TEST_F(SearchCollectionsTest, TheCounterGoesByWhatWasFoundUntilItsShiftIsLeftAgain)
{
    FromTheCounter<frmMilkCollections>(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ESC}");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_EQ(Copy().size(), 2);
        clerk.Press("txtLiters");
        clerk.Press("txtCollectionNo");
        Type(clerk, "99");
        Deliver(clerk, 2, "3", "8");
        EXPECT_TRUE(TheBox.Shown.isEmpty()) << "her first row isn't in the copy";
        EXPECT_EQ(Books().size(), 4);
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "4.500");
        clerk.Press("txtTime");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Copy(), Books());
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "6.500");
    });
}

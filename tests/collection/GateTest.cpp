#include "tests/collection/GateTest.h"

#include <QCheckBox>

namespace {

TEST_F(GateTest, LitresHaveTwoDecimalsInTheFieldTheListAndTheTotals)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Line(Grid(clerk, "DataGridInwards"), 0), "4|3|गणेश|म्हैस|2.50|7.0|45.00|112.50");
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "12.00");
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "5.00");
        EXPECT_EQ(Label(clerk, "lblAvgCowFat"), "4.2");
        Type(clerk, "1{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.00");
        Type(clerk, "5.255{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.26");
    });
}

TEST_F(GateTest, TheAmountRestsOnLitresOfTwoDecimals)
{
    AtTheGate([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}9.999{ENTER}4.5{ENTER}33.333{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "10.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "333.30");
        Set("RepeatCollection", "haoya");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Books().last().toStdString(), "5|1|rama|gaaya|10|4.5|33.33|333.3");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6");
    });
}

TEST_F(GateTest, SavesByTheRulesOfTheCounter)
{
    Set("PurchaseEntry", "Collection");
    AtTheGate([this](Clerk& clerk) {
        Deliver(clerk, 1, "1", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        Type(clerk, "{ENTER}1{ENTER}1{ENTER}30.1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "4.5{ENTER}60.01{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        Set("RepeatCollection", "haoya");
        Type(clerk, "60{ENTER}{ENTER}");
        EXPECT_EQ(
            Rows("select ClosingBalance,CowClosingLits from MembersMaster where MemberNo=1"), Of({"60|6"}));
        EXPECT_EQ(One("select Amount from MilkReceipt"), "60");
        Type(clerk, "5{ENTER}{F10}");
        EXPECT_EQ(Books().size(), 4);
    });
}

TEST_F(GateTest, OpensWithTheSocietysNameAndWithoutReadingTheSelectedCompany)
{
    Run("delete * from CompanySelected");
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblCompanyName"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(Reads(clerk, "chkSerachMode"), "0");
    });
}

TEST_F(GateTest, OpeningEmptiesTheCopyAndLeavesTheBooks)
{
    const QStringList books = Books();
    Run("insert into MilkCollectionsTemp select * from MilkCollections");
    On<frmCollectionGate>([&](Clerk& clerk) {
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 0);
        EXPECT_EQ(Books(), books);
    });
}

TEST_F(GateTest, HasNoMemberFrameAndF7DoesNothing)
{
    AtTheGate([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F7}");
        EXPECT_EQ(clerk.ScreenName(), "frmCollectionGate");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_TRUE(Shows(clerk, "lblF9"));
        EXPECT_FALSE(Shows(clerk, "lblF7"));
        EXPECT_FALSE(Shows(clerk, "lblMilk"));
        for (const char* control : {"maskFromDate", "txtAccountId", "DataGridMilk", "cmdGoOn"})
            EXPECT_EQ(clerk.Top().Find(QString::fromLatin1(control)), nullptr) << control;
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama") << "the number is checked on leaving it";
    });
}

TEST_F(GateTest, ItsButtonsAndItsBoxHaveTheirCaptions)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "Command1"), "&baahor");
        EXPECT_EQ(Reads(clerk, "Command3"), " dUQa saMklana nasaNaaro saBaasad") << "with a blank before it";
        const auto& box = *static_cast<QCheckBox*>(clerk.Top().Find(u"chkSerachMode")->Widget());
        EXPECT_EQ(box.text(), Seen("A^DvhansD saca-"));
    });
}

TEST_F(GateTest, FieldsAreWhiteAndTheLeftSaveButtonIsYellow)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(ColourOf(clerk, "txtMemberNo", QPalette::Base), "#ffffff");
        EXPECT_EQ(ColourOf(clerk, "txtCollectionNo", QPalette::Base), "#ffc0c0");
        EXPECT_EQ(ColourOf(clerk, "cmdGo", QPalette::Button), "#ffffff");
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(ColourOf(clerk, "cmdGo", QPalette::Button), "#ffffc0");
    });
}

TEST_F(GateTest, EscAndItsButtonCloseIt)
{
    for (const char* keys : {"{ENTER}1{ESC}", "%b"}) {
        AtTheGate([&](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_TRUE(clerk.ScreenName().isEmpty()) << keys;
        });
        EXPECT_FALSE(Failure);
    }
    EXPECT_EQ(Books().size(), 4);
}

TEST_F(GateTest, AltBLeavesItFromEveryField)
{
    AddMorningDelivery(5);
    for (const auto& [keys, field] : std::initializer_list<std::pair<const char*, const char*>>{
             {"+{TAB}", "txtTime"}, {"+{TAB}+{TAB}", "maskDate"}, {"+{TAB}+{TAB}31022026", "maskDate"},
             {"+{TAB}+{TAB}15042027{ENTER}", "txtTime"}, {"5{ENTER}", "txtMemberNo"},
             {"{ENTER}{ENTER}", "ComboMemberName"}, {"{ENTER}3{ENTER}", "txtAnimal"},
             {"{ENTER}1{ENTER}", "txtLiters"}, {"{ENTER}1{ENTER}2{ENTER}99", "txtFat"},
             {"{ENTER}1{ENTER}2{ENTER}4.5{ENTER}", "txtRate"},
             {"{ENTER}1{ENTER}2{ENTER}4.5{ENTER}{ENTER}", "cmdGo"}}) {
        AtTheGate([&](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), field);
            Type(clerk, "%b");
            if (clerk.ScreenName() == u"frmMessages") // an empty name is asked for on the way
                Type(clerk, "{ENTER}");
            EXPECT_TRUE(clerk.ScreenName().isEmpty()) << field;
        });
        EXPECT_FALSE(Failure) << field;
    }
    EXPECT_EQ(Books().size(), 5);
}

// By keyboard: what stands behind the entry line is reached backwards from the date

TEST_F(GateTest, TheSearchBoxIsReachedBackwardsFromTheDate)
{
    AtTheGate([](Clerk& clerk) {
        Type(clerk, "+{TAB}+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "chkSerachMode");
        Type(clerk, " ");
        EXPECT_EQ(Reads(clerk, "chkSerachMode"), "1");
        Type(clerk, "{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        Type(clerk, "{ENTER}3");
        EXPECT_EQ(Listed(clerk), "43");
    });
}

// Rows that are alike there stand in the order of their numbers, or with the arrow down against it.
TEST_F(GateTest, TheSortButtonsAreReachedBackwardsFromTheDate)
{
    AtTheGate([](Clerk& clerk) {
        Type(clerk, "+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}");
        for (const auto& [button, rows] :
            std::initializer_list<std::pair<const char*, const char*>>{{"cmdAmtOrder", "3124"},
                {"cmdRateOrder", "2413"}, {"cmdFatOrder", "2413"}, {"cmdLtrOrder", "3142"}}) {
            Type(clerk, "+{TAB}");
            EXPECT_EQ(Focus(clerk), button);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Reads(clerk, button), "↓");
            EXPECT_EQ(Listed(clerk), rows) << button;
        }
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdLtrOrder"), "↑");
        EXPECT_EQ(Listed(clerk), "2413");
    });
}

TEST_F(GateTest, TheDeviceButtonsAreReachedBackwardsFromTheDate)
{
    AtTheGate([](Clerk& clerk) {
        Type(clerk, "+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}+{TAB}");
        for (const auto& [button, before, after] :
            {std::tuple("cmdPrinterOnOff", "ip`MTr sau$", "ip`MTr baMd"), {"cmdAutoFat", "baMd", "sau$"},
                {"cmdAutoLiter", "baMd", "sau$"}}) {
            Type(clerk, "+{TAB}");
            EXPECT_EQ(Focus(clerk), button);
            EXPECT_EQ(Reads(clerk, button), before);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Reads(clerk, button), after);
        }
        EXPECT_EQ(gAppState.gAutoLiters, "haoya");
        EXPECT_EQ(gAppState.gAutoFat, "haoya");
    });
}

TEST_F(GateTest, AbsentMembersAreAScreenOfTheirOwn)
{
    AtTheGate([](Clerk& clerk) {
        clerk.Press("Command3");
        EXPECT_EQ(clerk.ScreenName(), "frmAbsenseMemberCollection");
    });
}

// The order

TEST_F(GateTest, ASortButtonGivesDescendingThenAscendingThenDescending)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Listed(clerk), "4321");
        EXPECT_EQ(clerk.Reads("cmdFatOrder"), "↑");
        for (const auto& [arrow, rows] : {std::pair("↓", "2413"), {"↑", "3142"}, {"↓", "2413"}}) {
            clerk.Press("cmdFatOrder");
            EXPECT_EQ(Listed(clerk), rows);
            EXPECT_EQ(Reads(clerk, "cmdFatOrder"), arrow);
        }
    });
}

TEST_F(GateTest, EachSortButtonSortsByItsOwnColumn)
{
    AtTheGate([](Clerk& clerk) {
        for (const auto& [button, first] : {std::pair("cmdLtrOrder", '3'), {"cmdFatOrder", '2'},
                 {"cmdRateOrder", '2'}, {"cmdAmtOrder", '3'}}) {
            clerk.Press(QString::fromLatin1(button));
            EXPECT_EQ(Listed(clerk)[0], first) << button;
        }
        clerk.Press("cmdRateOrder");
        EXPECT_EQ(Listed(clerk), "3142");
    });
}

TEST_F(GateTest, TheOrderStaysThroughASave)
{
    AtTheGate([](Clerk& clerk) {
        clerk.Press("cmdLtrOrder");
        PressAndSelect(clerk, "txtCollectionNo");
        Type(clerk, "2{ENTER}{ENTER}9{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Listed(clerk)[0], '2');
    });
}

}

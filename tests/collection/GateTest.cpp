#include "CounterTest.h"

#include "ScreenDirectory.h"

namespace {

class frmAbsent final : public Screen {
public:
    frmAbsent() : Screen("frmAbsenseMemberCollection") { }
};

// The morning has four deliveries already.
class GateTest : public CounterTest {
protected:
    GateTest()
    {
        AddMilk(1, 1, "rama", "gaaya", 5, 4.5, 35, 175);
        AddMilk(2, 2, "saIta", "mhOsa", 2.5, 8, 49, 122.5);
        AddMilk(3, 3, "gaNaoSa", "gaaya", 7, 4, 32, 224);
        AddMilk(4, 3, "gaNaoSa", "mhOsa", 2.5, 7, 45, 112.5);
    }

    void AddMilk(int number, int member, const char* name, const char* animal, double liters, double fat,
        double rate, double amount)
    {
        AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("sakaL"), number, member,
            QString::fromLatin1(name), QString::fromLatin1(animal), liters, fat, rate, amount);
    }

    // The numbers in the list, from the top down.
    static std::string Listed(Clerk& clerk)
    {
        const DataGrid& grid = Grid(clerk, "DataGridInwards");
        std::string numbers;
        for (int row = 0; row < grid.Rows(); ++row)
            numbers += grid.Cell(row, 0).toStdString();
        return numbers;
    }

    // At the gate with the search on and the focus on the collection number.
    void Searching(const std::function<void(Clerk&)>& script)
    {
        AtTheGate([&](Clerk& clerk) {
            clerk.Press(QStringLiteral("chkSerachMode"));
            PressAndSelect(clerk, "txtCollectionNo");
            script(clerk);
        });
    }

    // With the mouse into a field, whose text is to be typed over.
    static void PressAndSelect(Clerk& clerk, const char* field)
    {
        clerk.Press(QString::fromLatin1(field));
        Type(clerk, "{HOME}+{END}");
    }

    static std::string ColourOf(Clerk& clerk, const char* control, QPalette::ColorRole role)
    {
        return clerk.Top()
            .Find(QString::fromLatin1(control))
            ->Widget()
            ->palette()
            .color(QPalette::Active, role)
            .name()
            .toStdString();
    }
};

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
            Rows(QStringLiteral("select ClosingBalance,CowClosingLits from MembersMaster where MemberNo=1")),
            Of({"60|6"}));
        EXPECT_EQ(One(QStringLiteral("select Amount from MilkReceipt")), QStringLiteral("60"));
        Type(clerk, "5{ENTER}{F10}");
        EXPECT_EQ(Books().size(), 4);
    });
}

TEST_F(GateTest, OpensWithTheSocietysNameAndWithoutReadingTheSelectedCompany)
{
    Run(QStringLiteral("delete * from CompanySelected"));
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblCompanyName"), "श्री गणेश दूध संस्था");
        EXPECT_EQ(Reads(clerk, "chkSerachMode"), "0");
    });
}

TEST_F(GateTest, HasNoMemberFrameAndF7DoesNothing)
{
    AtTheGate([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F7}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmCollectionGate"));
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

TEST_F(GateTest, FieldsAreWhiteAndTheLeftSaveButtonIsYellow)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(ColourOf(clerk, "txtMemberNo", QPalette::Base), "#ffffff");
        EXPECT_EQ(ColourOf(clerk, "txtCollectionNo", QPalette::Base), "#ffc0c0");
        EXPECT_EQ(ColourOf(clerk, "cmdGo", QPalette::Button), "#ffffff");
        clerk.Press(QStringLiteral("cmdGo"));
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

TEST_F(GateTest, AbsentMembersAreAScreenOfTheirOwn)
{
    ScreenDirectory::Add(
        QStringLiteral("frmAbsenseMemberCollection"), [] { return std::make_unique<frmAbsent>(); });
    AtTheGate([](Clerk& clerk) {
        clerk.Press(QStringLiteral("Command3"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmAbsenseMemberCollection"));
    });
    ScreenDirectory::Add(QStringLiteral("frmAbsenseMemberCollection"), {});
}

// The order

TEST_F(GateTest, ASortButtonGivesDescendingThenAscendingThenDescending)
{
    AtTheGate([](Clerk& clerk) {
        EXPECT_EQ(Listed(clerk), "4321");
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdFatOrder")), QStringLiteral("↑"));
        for (const auto& [arrow, rows] : {std::pair("↓", "2413"), {"↑", "3142"}, {"↓", "2413"}}) {
            clerk.Press(QStringLiteral("cmdFatOrder"));
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
        clerk.Press(QStringLiteral("cmdRateOrder"));
        EXPECT_EQ(Listed(clerk), "3142");
    });
}

TEST_F(GateTest, TheOrderStaysThroughASave)
{
    AtTheGate([](Clerk& clerk) {
        clerk.Press(QStringLiteral("cmdLtrOrder"));
        PressAndSelect(clerk, "txtCollectionNo");
        Type(clerk, "2{ENTER}{ENTER}9{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Listed(clerk)[0], '2');
    });
}

// The search

TEST_F(GateTest, WithTheBoxOffNothingIsFiltered)
{
    AtTheGate([](Clerk& clerk) {
        Type(clerk, "{ENTER}1");
        EXPECT_EQ(Listed(clerk), "4321");
    });
}

TEST_F(GateTest, TheListFollowsTheNumberKeystrokeByKeystroke)
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

TEST_F(GateTest, ANewEntryNarrowsTheListAndIsSavedAgainstTheWholeShift)
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

TEST_F(GateTest, LitresFatAndRateAreSearchedByTheirValue)
{
    Searching([](Clerk& clerk) {
        clerk.Press(QStringLiteral("txtLiters"));
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
        clerk.Press(QStringLiteral("txtRate"));
        Type(clerk, "49");
        EXPECT_EQ(Listed(clerk), "2");
    });
}

TEST_F(GateTest, ANamesFirstLettersShowAllThatBeginWithThem)
{
    AddMember(4, QStringLiteral("rajaa"));
    AddMilk(5, 4, "rajaa", "gaaya", 1, 4, 32, 32);
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}r");
        EXPECT_EQ(Listed(clerk), "51");
        Type(clerk, "aj");
        EXPECT_EQ(Listed(clerk), "5");
        Type(clerk, "{BS}{BS}{BS}");
        EXPECT_EQ(Listed(clerk), "54321");
    });
}

TEST_F(GateTest, ARowLoadedIntoTheLineFiltersToo)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Listed(clerk), "2") << "its rate is set last";
    });
}

TEST_F(GateTest, SortingShowsTheWholeShiftAgain)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        EXPECT_EQ(Listed(clerk), "1");
        clerk.Press(QStringLiteral("cmdLtrOrder"));
        EXPECT_EQ(Listed(clerk).size(), 4U);
    });
}

TEST_F(GateTest, TheTotalsGoByTheWholeShift)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}3");
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "12.00");
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "5.00");
    });
}

TEST_F(GateTest, TheFilterStaysWhenTheSearchIsTurnedOff)
{
    Searching([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5");
        clerk.Press(QStringLiteral("chkSerachMode"));
        EXPECT_EQ(Reads(clerk, "chkSerachMode"), "0");
        EXPECT_EQ(Listed(clerk), "1");
    });
}

TEST_F(GateTest, AMembersNameWithAnApostropheEndsTheProgram)
{
    gCn.RunScript(QStringLiteral("update MilkCollections set MemberName='ra''ma' where CollectionNo=1"));
    Searching([](Clerk& clerk) { Type(clerk, "1{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Failure->Statement().contains(QStringLiteral("ra'ma")));
}

}

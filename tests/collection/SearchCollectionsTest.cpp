#include "CounterTest.h"
#include "ScreenDirectory.h"
#include "frmSearchCollections.h"

#include <QDeadlineTimer>

namespace {

// In the books: two rows of member 1 and one of member 2 in the morning of the 15th.
class SearchCollectionsTest : public CounterTest {
protected:
    SearchCollectionsTest()
    {
        AddMorningDelivery(1);
        AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("sakaL"), 2, 2, QStringLiteral("saIta"),
            QStringLiteral("mhOsa"), 2, 8, 49, 98);
        AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("sakaL"), 3, 1, QStringLiteral("rama"),
            QStringLiteral("mhOsa"), 1.5, 8, 49, 73.5);
        ScreenDirectory::Add(
            QStringLiteral("frmSearchCollections"), [] { return std::make_unique<frmSearchCollections>(); });
    }
    ~SearchCollectionsTest() override { ScreenDirectory::Add(QStringLiteral("frmSearchCollections"), {}); }

    // Goes on as soon as the timer of the opening has ticked.
    static void AwaitTick(Clerk& clerk)
    {
        const QDeadlineTimer limit(10000);
        while (clerk.On<frmSearchCollections>().TimerStart && !limit.hasExpired())
            clerk.Do([] {});
        ASSERT_FALSE(clerk.On<frmSearchCollections>().TimerStart);
    }

    // Plays as the menu opens it, with the focus on the date.
    void FromTheMenu(const std::function<void(Clerk&)>& script)
    {
        On<frmSearchCollections>([&](Clerk& clerk) {
            AwaitTick(clerk);
            script(clerk);
        });
    }

    // Plays with a member of the morning looked for by number.
    void After(int member, const std::function<void(Clerk&)>& script)
    {
        FromTheMenu([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}1{ENTER}%1{ENTER}{ENTER}").arg(member));
            script(clerk);
        });
    }

    // Plays with F9 pressed at a counter on a member of the morning.
    template <class Counter> void FromTheCounter(int member, const std::function<void(Clerk&)>& script)
    {
        On<Counter>([&](Clerk& clerk) {
            clerk.Type(QStringLiteral("{ENTER}1{ENTER}{ENTER}%1{F9}").arg(member));
            ASSERT_EQ(clerk.ScreenName(), QStringLiteral("frmSearchCollections"));
            AwaitTick(clerk);
            script(clerk);
        });
    }

    static void ExpectNothingFound(Clerk& clerk)
    {
        EXPECT_FALSE(CanEnter(clerk, "DataGridInwards"));
        EXPECT_FALSE(CanEnter(clerk, "cmdGo"));
    }
};

// Opening

TEST_F(SearchCollectionsTest, OpensFromTheMenuWithTheWorkingDayAndNoRows)
{
    Run(QStringLiteral("insert into MilkCollectionsTemp select * from MilkCollections"));
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

TEST_F(SearchCollectionsTest, TheTickComesOnceAndLeavesTheClerkAlone)
{
    On<frmSearchCollections>([](Clerk& clerk) {
        EXPECT_TRUE(clerk.On<frmSearchCollections>().TimerStart);
        Type(clerk, "{ENTER}1");
        AwaitTick(clerk);
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
    });
}

TEST_F(SearchCollectionsTest, ACallersTagWithoutACounterIsAsFromTheMenu)
{
    gAppState.gCallerTag = QStringLiteral("MC");
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
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
        Type(clerk, "{ESC}{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QString());
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
            EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmSearchCollections"));
        });
    }
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(SearchCollectionsTest, TheShiftComesByItsKeysAndIsNeeded)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(
            Label(clerk, "lblFooter"), Seen(QStringLiteral("  1 ¹ sakaL    2 ¹ saMQyaakaL")).toStdString());
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

TEST_F(SearchCollectionsTest, ANumberShowsItsMemberAndAnUnknownOneIsEmptied)
{
    FromTheMenu([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}77{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_TRUE(dynamic_cast<const NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).IsDroppedDown());
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), QStringLiteral("maombarcao naaMva vyavaisqat Ta[-p kra"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
}

TEST_F(SearchCollectionsTest, ANameThatIsNobodysKeepsTheFocusAndTheRows)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "+{TAB}{END}+{HOME}raja{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "raja");
        EXPECT_EQ(Copy().size(), 2);
        ExpectNothingFound(clerk);
    });
}

// Search

TEST_F(SearchCollectionsTest, TheMembersRowsOfTheShiftAreShownNewestFirst)
{
    AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("saMQyaakaL"), 1, 1, QStringLiteral("rama"),
        QStringLiteral("gaaya"), 9, 4.5, 35, 315);
    AddDelivery(QStringLiteral("14/04/2026"), QStringLiteral("sakaL"), 1, 1, QStringLiteral("rama"),
        QStringLiteral("gaaya"), 9, 4.5, 35, 315);
    After(1, [this](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "DataGridInwards");
        const DataGrid& grid = Grid(clerk, "DataGridInwards");
        ASSERT_EQ(grid.Rows(), 2);
        EXPECT_EQ(
            Line(grid, 0), "3|" + Seen(QStringLiteral("mhOsa")).toStdString() + "|1.500|8.00|49.00|73.50");
        EXPECT_EQ(
            Line(grid, 1), "1|" + Seen(QStringLiteral("gaaya")).toStdString() + "|5.000|4.50|35.00|175.00");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175", "3|1|rama|mhOsa|1.5|8|49|73.5"}));
        EXPECT_TRUE(CanEnter(clerk, "cmdGo"));
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
    Run(QStringLiteral("update MilkCollections set CollectionNo=0 where MemberNo=2"));
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
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections"));
    });
}

TEST_F(SearchCollectionsTest, TheCounterGoesByWhatWasFoundUntilItsShiftIsLeftAgain)
{
    FromTheCounter<frmMilkCollections>(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ESC}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections"));
        EXPECT_EQ(Copy().size(), 2);
        clerk.Press(QStringLiteral("txtLiters"));
        clerk.Press(QStringLiteral("txtCollectionNo"));
        Type(clerk, "99");
        Deliver(clerk, 2, "3", "8");
        EXPECT_TRUE(TheBox.Shown.isEmpty()) << "her first row isn't in the copy";
        EXPECT_EQ(Books().size(), 4);
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "4.500");
        clerk.Press(QStringLiteral("txtTime"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Copy(), Books());
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), "6.500");
    });
}

// Printing again

class ReprintTest : public SearchCollectionsTest {
protected:
    QStringList Receipt()
    {
        return Rows(QStringLiteral("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                                   "MemberName,Animal,Liters,Fat,Rate,Amount,ActualCollectionTime "
                                   "from MilkReceipt"));
    }
};

TEST_F(ReprintTest, TheRowUnderTheCursorIsPrintedWithoutItsClock)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5|4.5|35|175|NULL"}));
        clerk.Press(QStringLiteral("DataGridInwards"));
        Type(clerk, "{UP}%p");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|3|1|rama|mhOsa|1.5|8|49|73.5|NULL"}));
    });
    EXPECT_EQ(Printed.size(), 2U);
}

TEST_F(ReprintTest, ItShowsOnTheScreenWhateverTheSettingsSay)
{
    for (const char* status : {"naahI", "haoya"}) {
        Set("PrintStatus", status);
        Printed.clear();
        After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
        ASSERT_EQ(Printed.size(), 1U) << status;
        EXPECT_EQ(Printed[0].destination, CounterReport::Destination::Window);
        EXPECT_EQ(Printed[0].logon, QStringLiteral("dsn=VetrolanDSN;pwd=Doodh#26"));
    }
}

TEST_F(ReprintTest, ARowOfAnotherCompanyBecomesOneOfThisForTheSlip)
{
    Run(QStringLiteral("update MilkCollections set CompanyId=2 where MemberNo=2"));
    After(2, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Receipt(), Of({"1|15/04/2026|sakaL|2|2|saIta|mhOsa|2|8|49|98|NULL"}));
    });
    EXPECT_EQ(
        One(QStringLiteral("select CompanyId from MilkCollections where MemberNo=2")), QStringLiteral("2"));
}

TEST_F(ReprintTest, ASocietyThatIsNoneLeavesNoSlip)
{
    Run(QStringLiteral("delete * from AutoSettings"));
    gAppState.gCompanyId = 0;
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_TRUE(Receipt().isEmpty());
    });
}

TEST_F(ReprintTest, EachTypeHasItsTemplateHere)
{
    const std::pair<const char*, const char*> types[] = {
        {"Tašp 1", "C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt"},
        {"Tašp 2", "C:\\Tarvel01\\Vetrolan\\MilkReceipt2.rpt"},
        {"Tašp 3", "C:\\Tarvel01\\Vetrolan\\MilkReceiptBhl.rpt"},
        {"Tašp 4", "C:\\Tarvel01\\Vetrolan\\MilkReceiptGhlp.rpt"},
        {"Tašp 5", "C:\\Tarvel01\\Sorvelan\\MilkReceiptAtk.rpt"},
        {" Tašp 6 ", "C:\\Tarvel01\\Vetrolan\\MilkReceiptShenoli.rpt"},
    };
    for (const auto& [type, path] : types) {
        Run(QStringLiteral("update AutoSettings set ReceiptType='%1'").arg(QString::fromUtf8(type)));
        Printed.clear();
        After(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}"); });
        ASSERT_EQ(Printed.size(), 1U) << type;
        EXPECT_EQ(Printed[0].fileName, QString::fromLatin1(path)) << type;
    }
}

TEST_F(ReprintTest, WithoutATemplateTheSlipIsStagedAndTheClerkIsTold)
{
    for (const char* type : {"Tašp 7", "Tašp 8", "Tašp 9"}) {
        Run(QStringLiteral("update AutoSettings set ReceiptType='%1'").arg(QString::fromUtf8(type)));
        TheBox.Shown.clear();
        After(1, [this](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}");
            EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmSearchCollections"));
            EXPECT_EQ(Receipt().size(), 1);
        });
        EXPECT_TRUE(Printed.empty()) << type;
        EXPECT_EQ(TheBox.Shown.size(), 1) << type;
    }
}

TEST_F(ReprintTest, ATypeWithoutATemplateKeepsThatOfTheSlipBefore)
{
    After(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        Run(QString::fromUtf8("update AutoSettings set ReceiptType='Tašp 8'"));
        Type(clerk, "{ENTER}");
        ASSERT_EQ(Printed.size(), 2U);
        EXPECT_EQ(Printed[1].fileName, QStringLiteral("C:\\Tarvel01\\Vetrolan\\MilkReceipt1.rpt"));
    });
}

}

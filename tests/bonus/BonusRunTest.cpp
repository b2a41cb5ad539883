// The run: each member's litres, bonus and advance.

#include "tests/bonus/BonusPaymentsTest.h"

namespace {

using BonusRunTest = BonusPaymentsTest;

TEST_F(BonusRunTest, HundredLitresAtHalfARupeeAndTwoHundredAtThreeQuartersGive50And150And200)
{
    AfterTheRun([](Clerk& clerk) {
        EXPECT_FALSE(Shows(clerk, "maskFromDate"));
        EXPECT_TRUE(Shows(clerk, "txtMemberNo"));
        const auto& grid = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGrid1"));
        EXPECT_EQ(grid.Rows(), 3);
        EXPECT_EQ(grid.Cell(0, 5).toStdString(), "100.00");
        EXPECT_EQ(grid.Cell(0, 11).toStdString(), "200.00");
        EXPECT_EQ(grid.Cell(0, 14).toStdString(), "") << "until the clerk passes";
        EXPECT_EQ(Label(clerk, "lblMemberNo"), "30") << "the last one in hand";
        EXPECT_EQ(Label(clerk, "lblMemberName"), Seen("gaNaoSa").toStdString());
        EXPECT_EQ(Label(clerk, "lblCowliters"), "0.000");
        EXPECT_EQ(Label(clerk, "lblTotalBonus"), "0.00");
    });
    EXPECT_EQ(Built(),
        (QStringList{"1|5|rama|100|200|100|200|50|150|200|0", "2|12|saIta|0|8|0|8|0|6|6|0",
            "3|30|gaNaoSa|0|0|0|0|0|0|0|0"}));
    EXPECT_EQ(Rows("select CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,BuffBonusRate,"
                   "PreviousCowLiters,PreviousBuffLiters,RemainingBonus,PreviousThev,AcNo,Animal from "
                   "BonusPayments where MemberNo=12"),
        QStringList("1|01/04/2026|30/04/2026|5|30|daonhI|0.5|0.75|NULL|NULL|NULL|NULL|NULL|NULL"));
}

TEST_F(BonusRunTest, AMemberWithoutMilkHasARowOfNoughts)
{
    AfterTheRun([](Clerk&) {});
    EXPECT_EQ(Built().last(), "3|30|gaNaoSa|0|0|0|0|0|0|0|0");
}

TEST_F(BonusRunTest, MembersOutsideTheRangeAndOfOtherCompaniesHaveNone)
{
    AddMember(4, "vaIr");
    AddMember(31, "Aqa-");
    Run("update MembersMaster set CompanyId=2 where MemberNo=12");
    AfterTheRun([](Clerk&) {});
    EXPECT_EQ(Rows("select SerialNo,MemberNo from BonusPayments"), (QStringList{"1|5", "2|30"}));
}

TEST_F(BonusRunTest, TheTypeOfMilkIsKeptAndBothAnimalsAreSummed)
{
    Play([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}5{ENTER}5{ENTER}1{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Built(), QStringList("1|5|rama|100|200|100|200|50|150|200|0"));
    EXPECT_EQ(One("select MilkType from BonusPayments"), "gaaya");
}

TEST_F(BonusRunTest, TheMemberInHandIsShownWithAllFigures)
{
    Play([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}5{ENTER}5{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}");
        for (const char* label : {"lblMemberNo", "lblMemberName", "lblCowliters", "lblTotalBonus"})
            EXPECT_EQ(Label(clerk, label), "") << label;
        Type(clerk, "{ENTER}");
        for (const auto& [label, text] : {std::pair("lblMemberNo", "5"), std::pair("lblCowliters", "100.000"),
                 std::pair("lblBuffLiters", "200.000"), std::pair("lblCowBonus", "50.00"),
                 std::pair("lblBuffBonus", "150.00"), std::pair("lblTotalBonus", "200.00")})
            EXPECT_EQ(Label(clerk, label), text) << label;
        EXPECT_EQ(Label(clerk, "lblMemberName"), Seen("rama").toStdString());
    });
    EXPECT_FALSE(Failure);
}

// The member's number alone says whose they are.
TEST_F(BonusRunTest, TheDeliveriesOfEveryCompanyAreSummed)
{
    AddDelivery("16/04/2026", 5, "gaaya", 11, 2);
    AfterTheRun([](Clerk&) {});
    EXPECT_EQ(Built().first(), "1|5|rama|111|200|111|200|55.5|150|205.5|0");
}

TEST_F(BonusRunTest, FiguresAreOfSinglePrecision)
{
    AddDelivery("20/04/2026", 12, "gaaya", 12345.678);
    Run("update AutoSettings set CowBonusRate=0.333");
    Play([](Clerk& clerk) {
        Ask(clerk);
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Rows("select CurrentCowLiters,CowBonusRate,TotalCowBonus from BonusPayments where MemberNo=12"),
        QStringList("12345.68|0.33|4074.074"))
        << "seven digits, at the rate as it is shown";
}

// The advances

class BonusAdvanceTest : public BonusPaymentsTest {
protected:
    BonusAdvanceTest()
    {
        AddVoucher("01/04/2026", 1, "rama", 50, "]cala idlaI.");
        AddVoucher("30/04/2026", 1, "rama", 25.5, "]cala idlaI.");
        AddVoucher("31/03/2026", 1, "rama", 1000, "]cala idlaI.");
        AddVoucher("01/05/2026", 1, "rama", 2000, "]cala idlaI.");
        AddVoucher("15/04/2026", 1, "rama", 4000, "[tr");
        AddReceipt("01/04/2026", 5, 8000);
        AddReceipt("02/04/2026", 5, 20.25);
        AddReceipt("30/04/2026", 5, 5);
        AddReceipt("01/05/2026", 5, 16000);
        AddReceipt("15/04/2026", 12, 7);
    }

    QStringList WithAdvances()
    {
        Play([](Clerk& clerk) {
            Ask(clerk);
            Type(clerk, "+{TAB} {ENTER}{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtMemberNo");
        });
        EXPECT_FALSE(Failure);
        return Rows("select MemberNo,Advance from BonusPayments");
    }
};

TEST_F(BonusAdvanceTest, TickedItIsWhatWasGivenLessWhatCameBackButNotOnTheFirstDayItself)
{
    EXPECT_EQ(WithAdvances(), (QStringList{"5|50.25", "12|-7", "30|0"}));
}

TEST_F(BonusAdvanceTest, UntickedItIsNought)
{
    AfterTheRun([](Clerk&) {});
    EXPECT_EQ(Rows("select Advance from BonusPayments"), (QStringList{"0", "0", "0"}));
}

TEST_F(BonusAdvanceTest, OfAMemberWhoseNameChangedAfterItTheAdvanceIsntFound)
{
    Run("update MembersMaster set MemberName='ramaa' where MemberNo=5");
    EXPECT_EQ(WithAdvances().first(), "5|-25.25");
}

TEST_F(BonusAdvanceTest, AnotherCompanysVouchersDontCount)
{
    Run("update TransactionsMaster set CompanyId=2");
    Run("update AdvanceReceipt set CompanyId=2 where Amount=5");
    EXPECT_EQ(WithAdvances().first(), "5|-20.25");
}

// The same again

TEST_F(BonusRunTest, ASecondRunWithTheSameParametersKeepsTheClerksCorrections)
{
    AfterTheRun([this](Clerk& clerk) {
        Type(clerk, "5{ENTER}{ENTER}{ENTER}{ENTER}30{ENTER}12.5{ENTER}{ENTER}");
        EXPECT_EQ(Corrected(5), "0|0|100|200|50|150|200|30|182.5|12.5");
        AddDelivery("16/04/2026", 5, "gaaya", 500);
        Type(clerk, "{F5}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_FALSE(Shows(clerk, "txtMemberNo"));
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Corrected(5), "0|0|100|200|50|150|200|30|182.5|12.5");
    });
}

TEST_F(BonusRunTest, AnyParameterThatChangedBuildsItAnew)
{
    struct Change {
        const char* keys; // from the first date to the button
        const char* first;
    };
    for (const Change& change :
        {Change{"02042026{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "1|5|40|0"},
            Change{"{ENTER}29042026{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "1|5|60|0"},
            Change{"{ENTER}{ENTER}12{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "1|12|0|0"},
            Change{"{ENTER}{ENTER}{ENTER}12{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}", "1|5|100|0"},
            Change{"{ENTER}{ENTER}{ENTER}{ENTER}1{ENTER}{ENTER}{ENTER}{ENTER}", "1|5|100|0"},
            Change{"{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}.6{ENTER}{ENTER}{ENTER}", "1|5|100|0"},
            Change{"{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}.8{ENTER}{ENTER}", "1|5|100|0"},
            Change{"{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER} {ENTER}", "1|5|100|9"}}) {
        Run("update AutoSettings set CowBonusRate=0.5,BuffBonusRate=0.75");
        Run("delete * from TransactionsMaster");
        AddVoucher("15/04/2026", 1, "rama", 9, "]cala idlaI.");
        AfterTheRun([&](Clerk& clerk) {
            Run("update BonusPayments set Advance=77");
            Type(clerk, "{F5}");
            Type(clerk, change.keys);
            EXPECT_EQ(Focus(clerk), "cmdGo") << change.keys;
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtMemberNo") << change.keys;
            EXPECT_EQ(Rows("select SerialNo,MemberNo,CurrentCowLiters,Advance from BonusPayments").first(),
                change.first)
                << change.keys;
        });
    }
}

TEST_F(BonusRunTest, NothingElseInTheBooksIsTouched)
{
    const QStringList members = Rows("select * from MembersMaster");
    const QStringList deliveries = Rows("select * from MilkCollections");
    AfterTheRun([](Clerk& clerk) { Type(clerk, "5{ENTER}{ENTER}1{ENTER}2{ENTER}3{ENTER}4{ENTER}{ENTER}"); });
    EXPECT_EQ(Rows("select * from MembersMaster"), members);
    EXPECT_EQ(Rows("select * from MilkCollections"), deliveries);
    for (const char* table : {"TransactionsMaster", "AdvanceReceipt", "MilkPayments", "BonusPaymentsTemp"})
        EXPECT_EQ(Rows(QStringLiteral("select * from %1").arg(QLatin1String(table))), QStringList()) << table;
}

TEST_F(BonusRunTest, ANameWithAnApostropheFailsItsStatementAndTheRunBeforeStays)
{
    AddMember(20, "X");
    AfterTheRun([](Clerk&) {});
    gCn.Execute(u"update MembersMaster set MemberName='vaIr' where MemberNo=20");
    gCn.RunScript("update MembersMaster set MemberName='vai''r' where MemberNo=20");
    const QStringList before = Built();
    Play([](Clerk& clerk) {
        Ask(clerk);
        Type(clerk, "{ENTER}");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Built(), QStringList()) << "it was emptied as the screen opened, and is not half full";
    EXPECT_EQ(before.size(), 4);
}

}

// The member's row, called up, corrected, saved and printed.

#include "tests/bonus/BonusPaymentsTest.h"

#include "platform/shell/AppFolder.h"
#include "tests/support/FakeReportWindow.h"

namespace {

using BonusCorrectionTest = BonusPaymentsTest;

TEST_F(BonusCorrectionTest, ANumberOfTheRunFillsAllFieldsAndAnotherKeepsTheFocus)
{
    AfterTheRun([](Clerk& clerk) {
        for (const char* number : {"", "0", "6", "999999999"}) {
            Type(clerk, number);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtMemberNo") << number;
            EXPECT_NE(Label(clerk, "lblGuide"), "") << number;
        }
        Type(clerk, "5{ENTER}");
        for (const auto& [field, text] : {std::pair("cmbMemberName", "rama"),
                 std::pair("txtPreviousCowLiters", "0.000"), std::pair("txtPreviousBuffLiters", "0.000"),
                 std::pair("txtCurrentCowLiters", "100.000"), std::pair("txtCurrentBuffLiters", "200.000"),
                 std::pair("txtTotalcowLiters", "100.000"), std::pair("txtTotalBuffLiters", "200.00"),
                 std::pair("txtTotalCowBonus", "50.00"), std::pair("txtTotalBuffBonus", "150.00"),
                 std::pair("txtTotalBonus", "200.00"), std::pair("txtAdvance", "0.00"),
                 std::pair("txtPreviousThev", "0.00"), std::pair("txtRemainingBonus", "200.00")})
            EXPECT_EQ(Reads(clerk, field), text) << field;
        EXPECT_EQ(Focus(clerk), "cmbMemberName");
    });
}

TEST_F(BonusCorrectionTest, AnAdvanceOf30AndADepositOfTwelveAndAHalfLeave182AndAHalf)
{
    AfterTheRun([this](Clerk& clerk) {
        Type(clerk, "5{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAdvance");
        Type(clerk, "3");
        EXPECT_EQ(Reads(clerk, "txtRemainingBonus"), "197.00") << "at each key";
        Type(clerk, "0{ENTER}12.5");
        EXPECT_EQ(Reads(clerk, "txtRemainingBonus"), "182.50");
        EXPECT_EQ(Corrected(5), "NULL|NULL|100|200|50|150|200|0|NULL|NULL") << "not saved yet";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNext");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Corrected(5), "0|0|100|200|50|150|200|30|182.5|12.5");
        const auto& grid = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGrid1"));
        EXPECT_EQ(grid.Cell(0, 14).toStdString(), "182.50");
        EXPECT_EQ(Corrected(12), "NULL|NULL|0|8|0|6|6|0|NULL|NULL") << "the others stay empty";
    });
}

TEST_F(BonusCorrectionTest, PreviousLitresCountWithThreeDecimalsOfCowsAndTwoOfBuffaloes)
{
    AfterTheRun([this](Clerk& clerk) {
        Type(clerk, "5{ENTER}{ENTER}10.126{ENTER}20.126");
        EXPECT_EQ(Reads(clerk, "txtTotalcowLiters"), "110.126");
        EXPECT_EQ(Reads(clerk, "txtTotalBuffLiters"), "220.13");
        EXPECT_EQ(Reads(clerk, "txtTotalCowBonus"), "55.06");
        EXPECT_EQ(Reads(clerk, "txtTotalBuffBonus"), "165.10");
        EXPECT_EQ(Reads(clerk, "txtTotalBonus"), "220.16");
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Corrected(5), "10.126|20.126|110.126|220.13|55.06|165.1|220.16|0|220.16|0");
    });
}

TEST_F(BonusCorrectionTest, CalledUpAgainTheRowShowsWhatWasSaved)
{
    AfterTheRun([](Clerk& clerk) {
        Type(clerk, "5{ENTER}{ENTER}10{ENTER}20{ENTER}30{ENTER}40{ENTER}{ENTER}12{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAdvance"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtPreviousThev"), "0.00");
        Type(clerk, "+{TAB}5{ENTER}");
        for (const auto& [field, text] : {std::pair("txtPreviousCowLiters", "10.000"),
                 std::pair("txtPreviousBuffLiters", "20.000"), std::pair("txtAdvance", "30.00"),
                 std::pair("txtPreviousThev", "40.00"), std::pair("txtRemainingBonus", "230.00")})
            EXPECT_EQ(Reads(clerk, field), text) << field;
    });
}

TEST_F(BonusCorrectionTest, AMemberIsCalledUpByNameAndAForeignNameGivesWay)
{
    AfterTheRun([](Clerk& clerk) {
        Type(clerk, "5{ENTER}saIta{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
        EXPECT_EQ(Reads(clerk, "txtCurrentBuffLiters"), "8.000");
        Type(clerk, "+{TAB}xyz{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "saIta");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
    });
}

TEST_F(BonusCorrectionTest, AForeignNameTakesNoCorrectionAway)
{
    AfterTheRun([](Clerk& clerk) {
        Type(clerk, "5{ENTER}{ENTER}10.5{ENTER}+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "cmbMemberName");
        Type(clerk, "xyz{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtPreviousCowLiters"), "10.500");
    });
}

TEST_F(BonusCorrectionTest, AMemberWhoseNameChangedSinceTheRunKeepsItsRow)
{
    AfterTheRun([this](Clerk& clerk) {
        Run("update MembersMaster set MemberName='ramaa' where MemberNo=5");
        Type(clerk, "5{ENTER}{ENTER}{ENTER}{ENTER}30{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Corrected(5), "0|0|100|200|50|150|200|30|170|0");
        EXPECT_EQ(One("select MemberName from BonusPayments where MemberNo=5"), "rama");
    });
}

TEST_F(BonusCorrectionTest, AnAdvanceBelowNoughtIsAddedAndStaysBelow)
{
    AddReceipt("15/04/2026", 12, 7.25);
    Play([this](Clerk& clerk) {
        Ask(clerk);
        Type(clerk, "+{TAB} {ENTER}{ENTER}12{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAdvance"), "-7.25");
        EXPECT_EQ(Reads(clerk, "txtRemainingBonus"), "13.25");
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNext");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Corrected(12), "0|0|0|8|0|6|6|-7.25|13.25|0");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusCorrectionTest, WithAnEmptiedNumberNothingIsSaved)
{
    AfterTheRun([this](Clerk& clerk) {
        const QStringList before = Rows("select * from BonusPayments");
        Type(clerk, "5{ENTER}{ENTER}{ENTER}{ENTER}30{ENTER}");
        Press(clerk, "txtMemberNo");
        Type(clerk, "{DEL}%i");
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Rows("select * from BonusPayments"), before);
    });
}

TEST_F(BonusCorrectionTest, ARowWithoutASerialNumberGoesWithTheNextSave)
{
    AfterTheRun([this](Clerk& clerk) {
        Run("insert into BonusPayments(SerialNo,MemberNo) values(0,77)");
        Type(clerk, "5{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Rows("select MemberNo from BonusPayments"), (QStringList{"5", "12", "30"}));
    });
}

TEST_F(BonusCorrectionTest, TheListStandsAtTheMemberInHandBehindTheSaveToo)
{
    AfterTheRun([](Clerk& clerk) {
        const auto& grid = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGrid1"));
        EXPECT_EQ(grid.CurrentRow(), 0);
        Type(clerk, "12{ENTER}");
        EXPECT_EQ(grid.CurrentRow(), 1);
        Type(clerk, "gaNaoSa{ENTER}");
        EXPECT_EQ(grid.CurrentRow(), 2);
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(grid.CurrentRow(), 2);
        EXPECT_EQ(grid.Cell(2, 14).toStdString(), "0.00");
    });
}

// The report

TEST_F(BonusCorrectionTest, TheStatementIsShownWithTheMembersAsTheyAreNow)
{
    FakeReportWindow window;
    ReportSurroundings::Current() = {&window, nullptr, [](const QString& path) { return LocalPath(path); }};
    PrintForReal();
    AfterTheRun([](Clerk& clerk) { Type(clerk, "5{ENTER}{ENTER}10{ENTER}20{ENTER}30{ENTER}12.5{ENTER}%i"); });
    ASSERT_EQ(window.Shown.size(), 1U);
    window.Shown.front()->Complete();
    QStringList texts;
    for (const PlacedItem& item : window.Shown.front()->PageAt(0).items)
        texts.append(item.text);
    const auto row = texts.indexOf(Seen("rama"));
    ASSERT_GT(row, 0);
    EXPECT_EQ(texts.mid(row + 1, 12).join(u' ').toStdString(),
        "10.000 20.000 100.000 200.000 110.000 220.000 55.00 165.00 220.00 12.50 30.00 202.50");
    for (const char* other : {"saIta", "gaNaoSa"})
        EXPECT_TRUE(texts.contains(Seen(other))) << other;
    window.Shown.clear();
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
}

TEST_F(BonusCorrectionTest, TheReportSavesTheMemberOnTheScreenFirst)
{
    AfterTheRun([this](Clerk& clerk) {
        Type(clerk, "12{ENTER}{ENTER}{ENTER}{ENTER}1{ENTER}%i");
        EXPECT_EQ(Corrected(12), "0|0|0|8|0|6|6|1|5|0");
        EXPECT_EQ(OnTop(clerk), "frmBonusPayments");
    });
    ASSERT_EQ(Printed.size(), 1U);
    EXPECT_EQ(Printed[0].fileName, "C:\\Tarvel01\\Vetrolan\\BonusPayments.rpt");
    EXPECT_EQ(Printed[0].subject, "01-04-2026 ते 30-04-2026");
}

TEST_F(BonusCorrectionTest, WithoutAMemberTheReportIsPrintedAndNothingIsSaved)
{
    AfterTheRun([this](Clerk& clerk) {
        const QStringList before = Rows("select * from BonusPayments");
        Run("insert into BonusPayments(SerialNo,MemberNo) values(0,77)");
        Type(clerk, "%i");
        EXPECT_EQ(Printed.size(), 1U);
        EXPECT_EQ(Rows("select * from BonusPayments"), before) << "nor is a stray row printed";
        Press(clerk, "cmdNext");
        EXPECT_EQ(Rows("select * from BonusPayments"), before);
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

}

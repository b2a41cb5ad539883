#include "tests/masters/MembersTest.h"

#include "masters/MemberClosing.h"

namespace {

class MembersClosingTest : public MembersTest {
protected:
    MembersClosingTest() { AddMember(1, "rama"); }

    // The closing balance after the opening one has been typed.
    QString BalanceAfter(const QString& amount, const QString& directionKey)
    {
        QString shown;
        Play([&](Clerk& clerk) {
            CallUp(clerk, 1);
            GoTo(clerk, "txtOpeningBalance");
            TypeEach(clerk, {amount, directionKey});
            shown = clerk.Reads("txtClosingBalance") + u' ' + clerk.Reads("txtClosingDorC");
        });
        return shown;
    }

    // What a closing figure shows after its opening one has been typed.
    QString ClosingAfter(const QString& opening, const QString& typed, const QString& closing)
    {
        QString shown;
        Play([&](Clerk& clerk) {
            CallUp(clerk, 1);
            GoTo(clerk, opening);
            clerk.Type(typed + "{ENTER}");
            shown = clerk.Reads(closing);
        });
        return shown;
    }
};

}

TEST_F(MembersClosingTest, WithoutEntriesTheOpeningIsTheClosing)
{
    EXPECT_EQ(BalanceAfter("100", "1"), "100.00 doNao");
    EXPECT_EQ(BalanceAfter("100", "2"), "100.00 yaoNao");
    EXPECT_EQ(BalanceAfter("0", "2"), "0.00 doNao");
}

TEST_F(MembersClosingTest, CollectionsAloneArePayableToTheMember)
{
    AddCollection(1, "rama", 100.25);
    AddCollection(1, "rama", 50.5);
    EXPECT_EQ(BalanceAfter(QString(), "1"), "150.75 doNao");
}

TEST_F(MembersClosingTest, AllFiveSumsMoveTheBalance)
{
    AddCollection(1, "rama", 1000);
    AddPayment(1, "rama", 200);
    AddUchal(1, 40);
    for (const char* kind : {"mhOsa zova", "gaaya zova", "zova"})
        AddDeduction(1, QLatin1String(kind), 3);
    AddDeduction(1, "]cala", 500);
    AddReceipt(1, "Uchal Receipt", 15);
    AddReceipt(1, "Uchal Kapat", 600);
    EXPECT_EQ(BalanceAfter("1", "1"), "767.00 doNao");
    EXPECT_EQ(BalanceAfter("1", "2"), "765.00 doNao");
}

TEST_F(MembersClosingTest, BelowZeroItIsDueFromTheMember)
{
    AddUchal(1, 500.5);
    EXPECT_EQ(BalanceAfter("100", "1"), "400.50 yaoNao");
}

TEST_F(MembersClosingTest, OtherMembersAndOtherCompaniesDontCount)
{
    AddCollection(2, "Xyaama", 10);
    AddCollection(1, "rama", 10, 2);
    AddPayment(1, "rama", 10, 2);
    AddUchal(1, 10, 2);
    AddReceipt(1, "Uchal Receipt", 25, 2);
    AddDeduction(1, "zova", 10, 2);
    EXPECT_EQ(BalanceAfter("5", "1"), "5.00 doNao");
}

TEST_F(MembersClosingTest, TheSumsAreSinglePrecision)
{
    AddCollection(1, "rama", 16777217);
    const MemberClosing::Balance balance = MemberClosing::BalanceOf(1, 0, Direction::Payable);
    EXPECT_EQ(balance.amount, 16777216.0);
    AddCollection(1, "rama", 0.34);
    EXPECT_EQ(BalanceAfter(QString(), "1"), "16777218.00 doNao");
}

TEST_F(MembersClosingTest, ALargeOpeningBalanceIsRightToThePaisa)
{
    EXPECT_EQ(BalanceAfter("123456.78", "1"), "123456.78 doNao");
}

TEST_F(MembersClosingTest, SavingRecomputesTheBalanceFromTheEntries)
{
    Play([this](Clerk& clerk) {
        CallUp(clerk, 1);
        clerk.Do([this] { AddCollection(1, "rama", 80); });
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows("select ClosingBalance,ClosingDorC from MembersMaster"), QStringList{"80|C"});
}

TEST_F(MembersClosingTest, TheLettersOfTheWordsAreWritten)
{
    AddUchal(1, 30);
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtOpeningBalance");
        TypeEach(clerk, {"10", "1"});
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows("select OpeningBalance,OpeningDorC,ClosingBalance,ClosingDorC from MembersMaster"),
        QStringList{"10|C|20|D"});
}

TEST_F(MembersClosingTest, TheAdvanceCountsRepaymentsOfEveryKind)
{
    AddUchal(1, 1000);
    AddReceipt(1, "Uchal Receipt", 100);
    AddReceipt(1, "Uchal Kapat", 250.5);
    EXPECT_EQ(ClosingAfter("txtOpeningUchal", "50", "txtClosingUchal"), "699.50");
}

TEST_F(MembersClosingTest, ALargeAdvanceIsRightToThePaisa)
{
    AddUchal(1, 1234567.89);
    EXPECT_EQ(ClosingAfter("txtOpeningUchal", "0", "txtClosingUchal"), "1234567.89");
}

TEST_F(MembersClosingTest, EachDepositCountsItsOwnKind)
{
    AddDeduction(1, "gaaya zova", 12.5);
    AddDeduction(1, "mhOsa zova", 30.25);
    AddDeduction(1, "zova", 100);
    EXPECT_EQ(ClosingAfter("txtCowOpeningThev", "10", "txtCowClosingThev"), "22.50");
    EXPECT_EQ(ClosingAfter("txtBuffOpeningThev", "10", "txtBuffClosingThev"), "40.25");
}

TEST_F(MembersClosingTest, LitresMoveByWhatTheOpeningMoves)
{
    Run("update MembersMaster set CowOpeningLits=100,CowClosingLits=350.5,BuffOpeningLits=10,"
        "BuffClosingLits=-40");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, "txtCowOpeningLits");
        TypeEach(clerk, {"120.25", "11"});
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "370.750");
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "41.000");
        Type(clerk, "+{TAB}+{TAB}100{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "350.500");
    });
}

TEST_F(MembersClosingTest, ANewMembersLitresAreThoseOfTheOpeningWhateverWasLoadedBefore)
{
    Run("update MembersMaster set CowOpeningLits=100,CowClosingLits=350");
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Press(clerk, "cmdCancel");
        Press(clerk, "cmdNew");
        TypeEach(clerk, {QString(), "gaNaoXa", QString(), QString(), "3", "1", QString(), QString(), "7.5"});
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "7.500");
    });
}

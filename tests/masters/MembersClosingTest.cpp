#include "tests/masters/MembersTest.h"

#include "masters/MemberClosing.h"

namespace {

class MembersClosingTest : public MembersTest {
protected:
    MembersClosingTest() { AddMember(1, QStringLiteral("rama")); }

    // The closing balance after the opening one has been typed.
    QString BalanceAfter(const QString& amount, const QString& directionKey)
    {
        QString shown;
        Play([&](Clerk& clerk) {
            CallUp(clerk, 1);
            GoTo(clerk, QStringLiteral("txtOpeningBalance"));
            TypeEach(clerk, {amount, directionKey});
            shown = clerk.Reads(QStringLiteral("txtClosingBalance")) + u' '
                + clerk.Reads(QStringLiteral("txtClosingDorC"));
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
            clerk.Type(typed + QStringLiteral("{ENTER}"));
            shown = clerk.Reads(closing);
        });
        return shown;
    }
};

}

TEST_F(MembersClosingTest, WithoutEntriesTheOpeningIsTheClosing)
{
    EXPECT_EQ(BalanceAfter(QStringLiteral("100"), QStringLiteral("1")), QStringLiteral("100.00 doNao"));
    EXPECT_EQ(BalanceAfter(QStringLiteral("100"), QStringLiteral("2")), QStringLiteral("100.00 yaoNao"));
    EXPECT_EQ(BalanceAfter(QStringLiteral("0"), QStringLiteral("2")), QStringLiteral("0.00 doNao"));
}

TEST_F(MembersClosingTest, CollectionsAloneArePayableToTheMember)
{
    AddCollection(1, QStringLiteral("rama"), 100.25);
    AddCollection(1, QStringLiteral("rama"), 50.5);
    EXPECT_EQ(BalanceAfter(QString(), QStringLiteral("1")), QStringLiteral("150.75 doNao"));
}

TEST_F(MembersClosingTest, AllFiveSumsMoveTheBalance)
{
    AddCollection(1, QStringLiteral("rama"), 1000);
    AddPayment(1, QStringLiteral("rama"), 200);
    AddUchal(1, 40);
    for (const char* kind : {"mhOsa zova", "gaaya zova", "zova"})
        AddDeduction(1, QLatin1String(kind), 3);
    AddDeduction(1, QStringLiteral("]cala"), 500);
    AddReceipt(1, QStringLiteral("Uchal Receipt"), 15);
    AddReceipt(1, QStringLiteral("Uchal Kapat"), 600);
    EXPECT_EQ(BalanceAfter(QStringLiteral("1"), QStringLiteral("1")), QStringLiteral("767.00 doNao"));
    EXPECT_EQ(BalanceAfter(QStringLiteral("1"), QStringLiteral("2")), QStringLiteral("765.00 doNao"));
}

TEST_F(MembersClosingTest, BelowZeroItIsDueFromTheMember)
{
    AddUchal(1, 500.5);
    EXPECT_EQ(BalanceAfter(QStringLiteral("100"), QStringLiteral("1")), QStringLiteral("400.50 yaoNao"));
}

TEST_F(MembersClosingTest, OtherMembersAndOtherCompaniesDontCount)
{
    AddCollection(2, QStringLiteral("Xyaama"), 10);
    AddCollection(1, QStringLiteral("rama"), 10, 2);
    AddPayment(1, QStringLiteral("rama"), 10, 2);
    AddUchal(1, 10, 2);
    AddReceipt(1, QStringLiteral("Uchal Receipt"), 25, 2);
    AddDeduction(1, QStringLiteral("zova"), 10, 2);
    EXPECT_EQ(BalanceAfter(QStringLiteral("5"), QStringLiteral("1")), QStringLiteral("5.00 doNao"));
}

TEST_F(MembersClosingTest, TheSumsAreSinglePrecision)
{
    AddCollection(1, QStringLiteral("rama"), 16777217);
    const MemberClosing::Balance balance = MemberClosing::BalanceOf(1, 0, Direction::Payable);
    EXPECT_EQ(balance.amount, 16777216.0);
    AddCollection(1, QStringLiteral("rama"), 0.34);
    EXPECT_EQ(BalanceAfter(QString(), QStringLiteral("1")), QStringLiteral("16777218.00 doNao"));
}

TEST_F(MembersClosingTest, ALargeOpeningBalanceIsRightToThePaisa)
{
    EXPECT_EQ(
        BalanceAfter(QStringLiteral("123456.78"), QStringLiteral("1")), QStringLiteral("123456.78 doNao"));
}

TEST_F(MembersClosingTest, SavingRecomputesTheBalanceFromTheEntries)
{
    Play([this](Clerk& clerk) {
        CallUp(clerk, 1);
        clerk.Do([this] { AddCollection(1, QStringLiteral("rama"), 80); });
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows(QStringLiteral("select ClosingBalance,ClosingDorC from MembersMaster")),
        QStringList{QStringLiteral("80|C")});
}

TEST_F(MembersClosingTest, TheLettersOfTheWordsAreWritten)
{
    AddUchal(1, 30);
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, QStringLiteral("txtOpeningBalance"));
        TypeEach(clerk, {QStringLiteral("10"), QStringLiteral("1")});
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Rows(QStringLiteral(
                  "select OpeningBalance,OpeningDorC,ClosingBalance,ClosingDorC from MembersMaster")),
        QStringList{QStringLiteral("10|C|20|D")});
}

TEST_F(MembersClosingTest, TheAdvanceCountsRepaymentsOfEveryKind)
{
    AddUchal(1, 1000);
    AddReceipt(1, QStringLiteral("Uchal Receipt"), 100);
    AddReceipt(1, QStringLiteral("Uchal Kapat"), 250.5);
    EXPECT_EQ(ClosingAfter(
                  QStringLiteral("txtOpeningUchal"), QStringLiteral("50"), QStringLiteral("txtClosingUchal")),
        QStringLiteral("699.50"));
}

TEST_F(MembersClosingTest, ALargeAdvanceIsRightToThePaisa)
{
    AddUchal(1, 1234567.89);
    EXPECT_EQ(ClosingAfter(
                  QStringLiteral("txtOpeningUchal"), QStringLiteral("0"), QStringLiteral("txtClosingUchal")),
        QStringLiteral("1234567.89"));
}

TEST_F(MembersClosingTest, EachDepositCountsItsOwnKind)
{
    AddDeduction(1, QStringLiteral("gaaya zova"), 12.5);
    AddDeduction(1, QStringLiteral("mhOsa zova"), 30.25);
    AddDeduction(1, QStringLiteral("zova"), 100);
    EXPECT_EQ(ClosingAfter(QStringLiteral("txtCowOpeningThev"), QStringLiteral("10"),
                  QStringLiteral("txtCowClosingThev")),
        QStringLiteral("22.50"));
    EXPECT_EQ(ClosingAfter(QStringLiteral("txtBuffOpeningThev"), QStringLiteral("10"),
                  QStringLiteral("txtBuffClosingThev")),
        QStringLiteral("40.25"));
}

TEST_F(MembersClosingTest, LitresMoveByWhatTheOpeningMoves)
{
    Run(QStringLiteral("update MembersMaster set CowOpeningLits=100,CowClosingLits=350.5,BuffOpeningLits=10,"
                       "BuffClosingLits=-40"));
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        GoTo(clerk, QStringLiteral("txtCowOpeningLits"));
        TypeEach(clerk, {QStringLiteral("120.25"), QStringLiteral("11")});
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "370.750");
        EXPECT_EQ(Reads(clerk, "txtBuffClosingLits"), "41.000");
        Type(clerk, "+{TAB}+{TAB}100{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "350.500");
    });
}

TEST_F(MembersClosingTest, ANewMembersLitresAreThoseOfTheOpeningWhateverWasLoadedBefore)
{
    Run(QStringLiteral("update MembersMaster set CowOpeningLits=100,CowClosingLits=350"));
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Press(clerk, "cmdCancel");
        Press(clerk, "cmdNew");
        TypeEach(clerk,
            {QString(), QStringLiteral("gaNaoXa"), QString(), QString(), QStringLiteral("3"),
                QStringLiteral("1"), QString(), QString(), QStringLiteral("7.5")});
        EXPECT_EQ(Reads(clerk, "txtCowClosingLits"), "7.500");
    });
}

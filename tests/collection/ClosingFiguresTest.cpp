#include "collection/ClosingFigures.h"

#include "tests/collection/CounterTest.h"

namespace {

class ClosingFiguresTest : public CounterTest {
protected:
    std::string Balance()
    {
        return Rows("select ClosingBalance,ClosingDorC from MembersMaster where MemberNo=1")
            .value(0)
            .toStdString();
    }
    std::string Litres(int member = 1)
    {
        return Rows(
            QStringLiteral("select CowClosingLits,BuffClosingLits from MembersMaster where MemberNo=%1")
                .arg(member))
            .value(0)
            .toStdString();
    }
    void Add(double amount) { PostClosingBalance(u"rama", amount, PostAction::Add); }
    void Del(double amount) { PostClosingBalance(u"rama", amount, PostAction::Del); }
};

TEST_F(ClosingFiguresTest, AnAmountIsAddedAndPayable)
{
    Add(183.75);
    EXPECT_EQ(Balance(), "183.75|C");
    Add(0.1);
    Add(0.2);
    EXPECT_EQ(Balance(), "184.05|C");
}

TEST_F(ClosingFiguresTest, AnAmountTakenOffDownToZeroIsDue)
{
    Add(100);
    Del(100);
    EXPECT_EQ(Balance(), "0|D");
}

TEST_F(ClosingFiguresTest, BelowZeroTheBalanceIsDueAndKeepsItsSign)
{
    Del(12.5);
    EXPECT_EQ(Balance(), "-12.5|D");
}

TEST_F(ClosingFiguresTest, TheLetterOfTheOldBalanceIsNotLookedAt)
{
    Run("update MembersMaster set ClosingBalance=50,ClosingDorC='D' where MemberNo=1");
    Add(10);
    EXPECT_EQ(Balance(), "60|C");
}

TEST_F(ClosingFiguresTest, AMissingBalanceBecomesZeroWhateverTheAmount)
{
    Run("update MembersMaster set ClosingBalance=null where MemberNo=1");
    Add(183.75);
    EXPECT_EQ(Balance(), "0|D");
}

TEST_F(ClosingFiguresTest, BlanksAroundTheMembersNameDoNotHideTheMember)
{
    Run("update MembersMaster set MemberName=' rama ' where MemberNo=1");
    Add(5);
    EXPECT_EQ(Balance(), "5|C");
}

TEST_F(ClosingFiguresTest, OnlyTheNamedMemberOfTheCompanyIsPosted)
{
    Run("update MembersMaster set CompanyId=2 where MemberNo=1");
    Add(5);
    PostClosingBalance(u"saIta", 7, PostAction::Add);
    EXPECT_EQ(Rows("select ClosingBalance from MembersMaster order by MemberNo"), Of({"0", "7", "0"}));
}

TEST_F(ClosingFiguresTest, LitresAreTheOpeningAndAllDeliveriesOfEachAnimal)
{
    Run("update MembersMaster set CowOpeningLits=100.5,BuffOpeningLits=20.25 where MemberNo=3");
    for (int day = 1; day <= 3; ++day)
        AddDelivery(
            QStringLiteral("0%1/04/2026").arg(day), "sakaL", 1, 3, "gaNaoSa", "gaaya", 1.25, 4, 30, 37.5);
    AddDelivery("01/04/2026", "saMQyaakaL", 1, 3, "gaNaoSa", "mhOsa", 2.5, 8, 40, 100);
    RefreshClosingLitres(3);
    EXPECT_EQ(Litres(3), "104.25|22.75");
    EXPECT_EQ(Litres(1), "0|0");
}

TEST_F(ClosingFiguresTest, MissingFiguresCountAsZero)
{
    Run("update MembersMaster set CowOpeningLits=null,BuffOpeningLits=null where MemberNo=1");
    RefreshClosingLitres(1);
    EXPECT_EQ(Litres(), "0|0");
}

TEST_F(ClosingFiguresTest, LitresAreAddedInSinglePrecision)
{
    Run("update MembersMaster set CowOpeningLits=12345.678,BuffOpeningLits=16777216 where MemberNo=3");
    for (const char* animal : {"gaaya", "mhOsa"})
        AddDelivery("01/04/2026", "sakaL", 1, 3, "gaNaoSa", QString::fromLatin1(animal), 1, 4, 30, 30);
    RefreshClosingLitres(3);
    EXPECT_EQ(Litres(3), "12346.68|16777220");
}

TEST_F(ClosingFiguresTest, DeliveriesOfAnotherCompanyAreNotCounted)
{
    AddMorningDelivery(1);
    Run("update MilkCollections set CompanyId=2");
    RefreshClosingLitres(1);
    EXPECT_EQ(Litres(), "0|0");
}

}

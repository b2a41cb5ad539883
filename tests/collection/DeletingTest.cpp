#include "tests/collection/CounterTest.h"

namespace {

class DeletingTest : public CounterTest {
protected:
    void AddPayment(const char* from, const char* to, int member)
    {
        Run(QStringLiteral(
            "insert into MilkPayments(CompanyId,FromDate,ToDate,MemberNo) values(1,'%1','%2',%3)")
                .arg(QString::fromLatin1(from), QString::fromLatin1(to))
                .arg(member));
    }

    // Walks to a number of the open shift and deletes it.
    static void Delete(Clerk& clerk, int number) { clerk.Type(QStringLiteral("%1{ENTER}{F10}").arg(number)); }
};

TEST_F(DeletingTest, TheRowIsGoneFromBothTablesWithoutAQuestion)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 1);
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_EQ(Books(), Of({"2|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_EQ(Copy(), Books());
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "");
    });
}

TEST_F(DeletingTest, AGapStaysInTheSeries)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    AddMorningDelivery(3);
    InTheMorning([](Clerk& clerk) {
        Delete(clerk, 2);
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "4");
    });
}

TEST_F(DeletingTest, TheNumberOfTheLastRowIsUsedAgain)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 2);
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        Deliver(clerk, 2, "1", "8");
        EXPECT_EQ(Books().last().toStdString(), "2|2|saIta|mhOsa|1|8|49|49");
    });
}

TEST_F(DeletingTest, AnEmptiedShiftBeginsAtOneAgain)
{
    AddMorningDelivery(5);
    InTheMorning([](Clerk& clerk) {
        Delete(clerk, 5);
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
    });
}

TEST_F(DeletingTest, ClosingLitresFallAndTheClosingBalanceStays)
{
    Set("PurchaseEntry", "Collection");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Delete(clerk, 1);
        EXPECT_EQ(Rows("select ClosingBalance,ClosingDorC,CowClosingLits from MembersMaster "
                       "where MemberNo=1"),
            Of({"70|C|0"}));
    });
}

TEST_F(DeletingTest, APaymentOfThatVeryDayStopsIt)
{
    AddMorningDelivery(1);
    AddPayment("15/04/2026", "15/04/2026", 1);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 1);
        EXPECT_EQ(TheBox.Shown, Of({"Milk Payment Already Done, You Cannot Delete this Collection"}));
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Books().size(), 1);
        EXPECT_EQ(Copy().size(), 1);
    });
}

TEST_F(DeletingTest, APaymentOfALongerPeriodDoesNotStopIt)
{
    AddMorningDelivery(1);
    AddPayment("11/04/2026", "20/04/2026", 1);
    AddPayment("15/04/2026", "16/04/2026", 1);
    AddPayment("14/04/2026", "15/04/2026", 1);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 1);
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_TRUE(Books().isEmpty());
    });
}

TEST_F(DeletingTest, APaymentOfAnotherMemberDoesNotStopIt)
{
    AddMorningDelivery(1);
    AddPayment("15/04/2026", "15/04/2026", 2);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 1);
        EXPECT_TRUE(Books().isEmpty());
    });
}

TEST_F(DeletingTest, ANumberThatIsNotStoredOnlyClearsTheLine)
{
    AddMorningDelivery(1);
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}2{F10}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Books().size(), 1);
    });
}

TEST_F(DeletingTest, TheSameNumberOfAnotherShiftStays)
{
    AddMorningDelivery(1);
    for (const auto& [date, shift] : {std::pair("15/04/2026", "saMQyaakaL"), {"14/04/2026", "sakaL"}})
        AddDelivery(
            QString::fromLatin1(date), QString::fromLatin1(shift), 1, 1, "rama", "gaaya", 5, 4.5, 35, 175);
    InTheMorning([this](Clerk& clerk) {
        Delete(clerk, 1);
        EXPECT_EQ(Books().size(), 2);
    });
}

TEST_F(DeletingTest, WorksInTheMembersNumberOnly)
{
    AddMorningDelivery(1);
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "1{F10}");
        EXPECT_EQ(Books().size(), 1);
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
    });
}

TEST_F(DeletingTest, AFailureTakesTheWholeDeletionBack)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        gCn.RunScript("create trigger NoRoom before update on MembersMaster "
                      "begin select raise(abort, 'no room'); end");
        Delete(clerk, 1);
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Books().size(), 1);
    EXPECT_EQ(Copy().size(), 1);
}

}

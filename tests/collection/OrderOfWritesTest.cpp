#include "tests/collection/EachCounterTest.h"

namespace {

// The books themselves stop a write that comes before one it has to follow.
class OrderOfWritesTest : public EachCounterTest {
protected:
    // From now on `event` ("insert on T") is an error unless `condition` holds just before it.
    void Demand(const char* event, const char* condition)
    {
        gCn.RunScript(QStringLiteral("create trigger Demand%1 before %2 "
                                     "begin select raise(abort, 'too early: %2') where not (%3); end")
                          .arg(++m_demands)
                          .arg(QString::fromLatin1(event), QString::fromLatin1(condition)));
    }

    // The row that is written to the copy stands in the books, to the last figure.
    static constexpr const char* BooksHaveIt =
        "exists(select 1 from MilkCollections as b where b.CollectionNo=new.CollectionNo "
        "and b.CollectionDate=new.CollectionDate and b.CollectionTime=new.CollectionTime "
        "and b.MemberNo=new.MemberNo and b.Liters=new.Liters and b.Amount=new.Amount)";

    static constexpr const char* BooksHaveLostIt =
        "not exists(select 1 from MilkCollections as b where b.CollectionNo=old.CollectionNo)";

    static void ChangeTheLitres(Clerk& clerk) { Type(clerk, "1{ENTER}{ENTER}7{ENTER}{ENTER}{ENTER}{ENTER}"); }

    // A row that is no delivery, for the tidying to take out of the copy.
    void PlantARowToTidy() { Run("insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,0)"); }

private:
    int m_demands = 0;
};

INSTANTIATE_TEST_SUITE_P(AtEach, OrderOfWritesTest, Counters(), CounterName);

// The demands

TEST_P(OrderOfWritesTest, ACopyWrittenBeforeTheBooksWouldBeNoticed)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk&) {
        Demand("insert on MilkCollectionsTemp", BooksHaveIt);
        Demand("update on MilkCollectionsTemp", BooksHaveIt);
        Demand("delete on MilkCollectionsTemp", BooksHaveLostIt);
        for (const char* early : {"insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,2)",
                 "update MilkCollectionsTemp set Liters=7", "delete * from MilkCollectionsTemp"})
            EXPECT_THROW(Run(QString::fromLatin1(early)), RunTimeError) << early;
    });
    EXPECT_EQ(Copy(), Books());
}

// New and changed rows

TEST_P(OrderOfWritesTest, ANewRowIsInTheBooksBeforeItIsInTheCopy)
{
    InTheShift([this](Clerk& clerk) {
        Demand("insert on MilkCollectionsTemp", BooksHaveIt);
        Deliver(clerk, 1, "5", "4.5");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
}

TEST_P(OrderOfWritesTest, AChangedRowIsChangedInTheBooksBeforeTheCopy)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        Demand("update on MilkCollectionsTemp", BooksHaveIt);
        ChangeTheLitres(clerk);
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|7|4.5|35|245"}));
}

TEST_P(OrderOfWritesTest, ADeletedRowHasLeftTheBooksBeforeTheCopy)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        Demand("delete on MilkCollectionsTemp", BooksHaveLostIt);
        Type(clerk, "1{ENTER}{F10}");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Books(), QStringList());
    EXPECT_EQ(Copy(), QStringList());
}

// What follows the rows

TEST_P(OrderOfWritesTest, TheClosingLitresFollowTheNewRowsAndTheMoney)
{
    Set("PurchaseEntry", "Collection");
    InTheShift([this](Clerk& clerk) {
        Demand("update of ClosingBalance on MembersMaster",
            "exists(select 1 from MilkCollectionsTemp where MemberNo=new.MemberNo and Liters=5)");
        Demand("update of CowClosingLits on MembersMaster", "old.ClosingBalance=175");
        Deliver(clerk, 1, "5", "4.5");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(
        Rows("select ClosingBalance,CowClosingLits from MembersMaster where MemberNo=1"), Of({"175|5"}));
}

TEST_P(OrderOfWritesTest, TheClosingLitresFollowTheChangedRows)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        Demand("update of CowClosingLits on MembersMaster",
            "exists(select 1 from MilkCollectionsTemp where MemberNo=new.MemberNo and Liters=7)");
        ChangeTheLitres(clerk);
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(One("select CowClosingLits from MembersMaster where MemberNo=1"), "7");
}

TEST_P(OrderOfWritesTest, TheClosingLitresFollowTheDeletedRowsAndTheTidying)
{
    AddMorningDelivery(1);
    Run("update MembersMaster set CowClosingLits=5 where MemberNo=1");
    InTheShift([this](Clerk& clerk) {
        PlantARowToTidy();
        Demand("update of CowClosingLits on MembersMaster", "not exists(select 1 from MilkCollectionsTemp)");
        Type(clerk, "1{ENTER}{F10}");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(One("select CowClosingLits from MembersMaster where MemberNo=1"), "0");
}

TEST_P(OrderOfWritesTest, TheCopyIsTidiedWhenTheClosingLitresStand)
{
    InTheShift([this](Clerk& clerk) {
        PlantARowToTidy();
        Demand("delete on MilkCollectionsTemp",
            "old.CollectionNo=0 and exists(select 1 from MembersMaster where MemberNo=1 and "
            "CowClosingLits=5)");
        Deliver(clerk, 1, "5", "4.5");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
}

TEST_P(OrderOfWritesTest, TheReceiptIsStagedAfterTheCopyIsWrittenAndTidied)
{
    InTheShift([this](Clerk& clerk) {
        PlantARowToTidy();
        Demand("insert on MilkReceipt",
            "exists(select 1 from MilkCollectionsTemp as c where c.CollectionNo=new.CollectionNo "
            "and c.MemberNo=new.MemberNo and c.Liters=new.Liters) "
            "and not exists(select 1 from MilkCollectionsTemp where CollectionNo=0)");
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(One("select Liters from MilkReceipt"), "5");
        ChangeTheLitres(clerk);
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(One("select Liters from MilkReceipt"), "7");
}

}

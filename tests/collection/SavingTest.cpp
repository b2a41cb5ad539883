#include "tests/collection/CounterTest.h"

#include "collection/ClosingFigures.h"

namespace {

class SavingTest : public CounterTest {
protected:
    std::string MemberFigures(int member)
    {
        return Rows(QStringLiteral("select ClosingBalance,ClosingDorC,CowClosingLits,BuffClosingLits "
                                   "from MembersMaster where MemberNo=%1")
                        .arg(member))
            .value(0)
            .toStdString();
    }
};

TEST_F(SavingTest, ANewRowIsInTheBooksAndInTheCopy)
{
    InTheMorning([](Clerk& clerk) { Deliver(clerk, 1, "5.25", "4.5"); });
    for (const char* table : {"MilkCollections", "MilkCollectionsTemp"})
        EXPECT_EQ(Rows(QStringLiteral(
                           "select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                           "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime,SNF from ")
                      + QString::fromLatin1(table)),
            Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5.25|4.5|35|183.75|0|6.05|NULL"}))
            << table;
}

TEST_F(SavingTest, TheClockIsReadAtTheSave)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
        TheClock.Time.setTime(QTime(10, 31, 0));
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(One("select ActualCollectionTime from MilkCollections"), "10.31");
}

TEST_F(SavingTest, TheLineIsReadyForTheNextMember)
{
    InTheMorning([](Clerk& clerk) {
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        for (const char* field :
            {"txtMemberNo", "ComboMemberName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount"})
            EXPECT_EQ(Reads(clerk, field), "") << field;
        EXPECT_TRUE(CanEnter(clerk, "txtAnimal"));
        EXPECT_TRUE(clerk.ScreenName() == u"frmMilkCollections");
    });
}

TEST_F(SavingTest, AMorningOfDeliveriesIsNumberedInTurn)
{
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        Deliver(clerk, 2, "3.5", "8");
        DeliverOf(clerk, 3, 1, "2", "4.5");
        DeliverOf(clerk, 3, 2, "1", "8");
        const auto& counter = clerk.On<frmMilkCollections>();
        EXPECT_DOUBLE_EQ(counter.CowLitersTaken, 7);
        EXPECT_DOUBLE_EQ(counter.BuffLitersTaken, 4.5);
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    const QStringList rows = Of({"1|1|rama|gaaya|5|4.5|35|175", "2|2|saIta|mhOsa|3.5|8|49|171.5",
        "3|3|gaNaoSa|gaaya|2|4.5|35|70", "4|3|gaNaoSa|mhOsa|1|8|49|49"});
    EXPECT_EQ(Books(), rows);
    EXPECT_EQ(Copy(), rows);
}

TEST_F(SavingTest, ASecondCanOfTheSameAnimalIsADuplicate)
{
    InTheMorning([this](Clerk& clerk) {
        DeliverOf(clerk, 3, 1, "2", "4.5");
        DeliverOf(clerk, 3, 1, "1", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_TRUE(CanEnter(clerk, "txtAnimal"));
    });
    EXPECT_EQ(Books().size(), 1);
    EXPECT_EQ(Copy().size(), 1);
}

TEST_F(SavingTest, ASecondCanInTheOtherHalfOfTheDayIsNone)
{
    AddMorningDelivery(1);
    AtTheCounter([this](Clerk& clerk) {
        Type(clerk, "{ENTER}2{ENTER}");
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_EQ(Books().size(), 2);
}

TEST_F(SavingTest, WithRepeatedCollectionsASecondCanIsSaved)
{
    Set("RepeatCollection", " haoya ");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Deliver(clerk, 1, "1", "4.5");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_EQ(Books().size(), 2);
}

TEST_F(SavingTest, AnExistingRowIsChangedInBothTables)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    Run("update MilkCollections set MemberNo=2,MemberName='saIta',Animal='mhOsa',CompanyId=9 "
        "where CollectionNo=2");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}{ENTER}6.5{ENTER}8{ENTER}50{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        EXPECT_DOUBLE_EQ(clerk.On<frmMilkCollections>().BuffLitersTaken, 0);
    });
    const QStringList rows = Of({"1|1|rama|gaaya|5|4.5|35|175", "2|2|saIta|mhOsa|6.5|8|50|325"});
    EXPECT_EQ(Books(), rows);
    EXPECT_EQ(Copy(), rows);
    EXPECT_EQ(Rows("select CompanyId,ActualCollectionTime from MilkCollections order by CollectionNo"),
        Of({"1|5.55", "1|6.05"}));
}

TEST_F(SavingTest, AnExistingRowDoesNotCollideWithItself)
{
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Type(clerk, "1{ENTER}{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|3|4.5|35|105"}));
}

TEST_F(SavingTest, AChangeOfAnEarlierDayStaysOnThatDay)
{
    AddDelivery("02/04/2026", "saMQyaakaL", 1, 1, "rama", "gaaya", 5, 4.5, 35, 175);
    AddMorningDelivery(1);
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "02042026{ENTER}2{ENTER}1{ENTER}{ENTER}7{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Rows("select CollectionDate,CollectionTime,Liters from MilkCollections "
                   "order by CollectionDate"),
        Of({"02/04/2026|saMQyaakaL|7", "15/04/2026|sakaL|5"}));
}

TEST_F(SavingTest, ClosingLitresAreKeptUpByNewAndByChangedRows)
{
    Run("update MembersMaster set CowOpeningLits=100 where MemberNo=1");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "5.25", "4.5");
        EXPECT_EQ(MemberFigures(1), "0|C|105.25|0");
        Type(clerk, "1{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(MemberFigures(1), "0|C|104|0");
    });
}

TEST_F(SavingTest, TheClosingBalanceIsRaisedOnlyWhenPurchasesAreEnteredAtCollection)
{
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(MemberFigures(1), "0|C|2|0");
        Set("PurchaseEntry", " Collection ");
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(MemberFigures(2), "98|C|0|2");
    });
}

TEST_F(SavingTest, AChangedRowLeavesTheClosingBalanceAlone)
{
    Set("PurchaseEntry", "Collection");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Type(clerk, "1{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|4|4.5|35|140"}));
    EXPECT_EQ(MemberFigures(1), "70|C|4|0");
}

TEST_F(SavingTest, AMissingClosingBalanceStaysAtZeroThroughASave)
{
    Set("PurchaseEntry", "Collection");
    Run("update MembersMaster set ClosingBalance=null where MemberNo=1");
    InTheMorning([](Clerk& clerk) { Deliver(clerk, 1, "2", "4.5"); });
    EXPECT_EQ(MemberFigures(1), "0|D|2|0");
}

TEST_F(SavingTest, WithoutSettingsARowIsSavedWithoutBalance)
{
    Run("delete * from AutoSettings");
    InTheMorning([](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        Deliver(clerk, 1, "1", "4.5");
    });
    EXPECT_EQ(Books().size(), 2);
    EXPECT_EQ(MemberFigures(1), "0|C|3|0");
}

TEST_F(SavingTest, RowsNumberedZeroAreTidiedOutOfTheCopy)
{
    InTheMorning([this](Clerk& clerk) {
        Run("insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,0)");
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
    });
}

TEST_F(SavingTest, AnApostropheInAMembersNameFailsTheStatementAndChangesNothing)
{
    for (const char* tester : {"naahI", "haoya"}) {
        Set("AutoFat", tester);
        gCn.RunScript("update MembersMaster set MemberName='ra''ma' where MemberNo=1");
        InTheMorning([](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
            if (!clerk.ScreenName().isEmpty())
                Type(clerk, "4.5{ENTER}{ENTER}{ENTER}");
        });
        ASSERT_TRUE(Failure) << tester;
        EXPECT_TRUE(Failure->Statement().contains("ra'ma")) << Failure->what();
        EXPECT_TRUE(Books().isEmpty()) << tester;
        EXPECT_TRUE(Copy().isEmpty()) << tester;
    }
}

TEST_F(SavingTest, ANameThatReadsAsWordsOfTheStatementReachesNoOtherMember)
{
    // As the screen of the members takes it, and doubled once more.
    for (const char* name : {"x'' or ''a''=''a", "x'''' or ''''a''''=''''a"}) {
        for (const char* entry : {"Collection", "Payment"}) {
            Set("PurchaseEntry", entry);
            gCn.RunScript(QStringLiteral("update MembersMaster set MemberName='%1' where MemberNo=1")
                              .arg(QString::fromLatin1(name)));
            const QStringList before = Rows("select * from MembersMaster order by MemberNo");
            InTheMorning([](Clerk& clerk) { Deliver(clerk, 1, "2", "4.5"); });
            ASSERT_TRUE(Failure) << name << entry;
            EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
            EXPECT_FALSE(Failure->Statement().isEmpty());
            EXPECT_EQ(Rows("select * from MembersMaster order by MemberNo"), before);
            EXPECT_TRUE(Books().isEmpty()) << name << entry;
        }
    }
}

TEST_F(SavingTest, AFailureBetweenTheTwoTablesLeavesNeitherWithTheRow)
{
    InTheMorning([](Clerk& clerk) {
        gCn.RunScript("create trigger NoRoom before insert on MilkCollectionsTemp "
                      "begin select raise(abort, 'no room'); end");
        Deliver(clerk, 1, "2", "4.5");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_TRUE(Books().isEmpty());
    EXPECT_TRUE(Copy().isEmpty());
    EXPECT_EQ(MemberFigures(1), "0|C|0|0");
}

TEST_F(SavingTest, AFailureAfterTheRowsTakesThemBack)
{
    InTheMorning([](Clerk& clerk) {
        gCn.RunScript("create trigger NoRoom before update on MembersMaster "
                      "begin select raise(abort, 'no room'); end");
        Deliver(clerk, 1, "2", "4.5");
    });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Books().isEmpty());
    EXPECT_TRUE(Copy().isEmpty());
}

}

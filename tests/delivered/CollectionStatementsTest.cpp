#include "tests/delivered/StatementsTest.h"

namespace {

// The morning of 15/04/2026: three deliveries of company 1, one of company 2; one more in the evening and one
// on the day before.
class CollectionStatementsTest : public StatementsTest {
protected:
    CollectionStatementsTest()
    {
        AddMember(1, 5, "rama", "gaaya");
        AddMember(1, 7, "saIta", "mhOsa");
        AddMember(2, 5, "rama", "gaaya");
        AddDelivery(1, "14/04/2026", "sakaL", 9, 5, "rama", "gaaya", 8.5, 255);
        AddDelivery(1, "15/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
        AddDelivery(1, "15/04/2026", "sakaL", 2, 7, "saIta", "mhOsa", 2.25, 67.5);
        AddDelivery(1, "15/04/2026", "sakaL", 10, 5, "rama", "mhOsa", 4, 120);
        AddDelivery(2, "15/04/2026", "sakaL", 3, 5, "rama", "gaaya", 100, 3000);
        AddDelivery(1, "15/04/2026", "saMQyaakaL", 4, 5, "rama", "gaaya", 16, 480);
    }

    void LoadShift()
    {
        Run("delete * from MilkCollectionsTemp");
        EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections where "
                      "cstr(CollectionDate)=#04/15/2026# and CollectionTime='sakaL'"),
            4);
        EXPECT_EQ(Run("delete * from MilkCollectionsTemp where CollectionNo=0"), 0);
        EXPECT_EQ(Run("Delete * from MilkCollectionsTemp Where CompanyId=0"), 0);
    }

    // The numbers of the rows that a "SELECT *" answers, in its order.
    Lines Numbers(const std::string& rest)
    {
        Lines numbers;
        for (const std::string& line : Rows("SELECT * " + rest)) {
            std::size_t from = 0;
            for (int column = 0; column < 3; ++column)
                from = line.find('|', from) + 1;
            numbers.push_back(line.substr(from, line.find('|', from) - from));
        }
        return numbers;
    }
};

TEST_F(CollectionStatementsTest, AShiftIsLoadedIntoItsCopyAndNumberedOn)
{
    EXPECT_EQ(Row("SELECT max(CollectionNo) as MaxTrId FROM MilkCollections WHERE "
                  "cstr(CollectionDate)=#04/15/2026# and CollectionTime='sakaL'"),
        "10");
    EXPECT_EQ(Row("SELECT max(CollectionNo) as MaxTrId FROM MilkCollections WHERE "
                  "cstr(CollectionDate)=#04/16/2026# and CollectionTime='sakaL'"),
        "null");
    LoadShift();
    EXPECT_EQ(Row("SELECT max(CollectionNo) as MaxTrId FROM MilkCollectionsTemp WHERE "
                  "cstr(CollectionDate)=#04/15/2026# and CollectionTime='sakaL'"),
        "10");
    EXPECT_EQ(
        Row("SELECT max(CollectionNo) as MaxTrId FROM MilkCollectionsTemp WHERE CollectionDate=#04/15/2026# "
            "and CollectionTime='sakaL'"),
        "10");
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp order by CollectionNo desc").front(),
        "1|15/04/2026|sakaL|10|5|rama|mhOsa|4|4.5|30|120|0|6.05|null");
    EXPECT_EQ(Numbers("from MilkCollectionsTemp order by CollectionNo desc"), (Lines{"10", "3", "2", "1"}));
    EXPECT_EQ(
        Rows("select CompanyId,CollectionNo,CollectionDate,CollectionTime,MemberNo,MemberName,Animal,Liters,"
             "Fat,Rate,Amount,TranId,ActualCollectionTime from MilkCollectionsTemp order by CollectionNo")
            .front(),
        "1|1|15/04/2026|sakaL|5|rama|gaaya|1.5|4.5|30|45|0|6.05");
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp where CompanyId=1").size(), 3U);
}

TEST_F(CollectionStatementsTest, AShiftOfOneCompanyIsLoaded)
{
    EXPECT_EQ(Run("Insert Into MilkCollectionsTemp Select * From MilkCollections Where CompanyId=1 And "
                  "CollectionDate=#04/15/2026# And CollectionTime='sakaL'"),
        3);
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=2"), 1);
    EXPECT_EQ(Numbers("from MilkCollectionsTemp order by CollectionNo"), (Lines{"1", "2", "3", "10"}));
}

TEST_F(CollectionStatementsTest, TheEntryLineFindsItsRowItsMemberAndTheLastFat)
{
    LoadShift();
    EXPECT_EQ(Row("SELECT * FROM MilkCollectionsTemp where cstr(CollectionDate)=#04/15/2026# and "
                  "CollectionTime='sakaL' AND CollectionNo=2"),
        "1|15/04/2026|sakaL|2|7|saIta|mhOsa|2.25|4.5|30|67.5|0|6.05|null");
    EXPECT_EQ(Rows("SELECT * FROM MembersMaster where MemberNo=5").size(), 2U);
    EXPECT_EQ(
        Rows("SELECT MemberName FROM MembersMaster order by MemberName"), (Lines{"rama", "rama", "saIta"}));
    EXPECT_EQ(
        Rows(
            "select * from MilkCollections where CollectionDate<=#04/15/2026# and CollectionTime='sakaL' and "
            "Animal='gaaya' and MemberNo=5 and MemberName='rama' order by CollectionDate desc,"
            "CollectionNo desc")
            .front(),
        "2|15/04/2026|sakaL|3|5|rama|gaaya|100|4.5|30|3000|0|6.05|null");
    EXPECT_EQ(Row("SELECT * FROM MilkCollectionsTemp where CollectionDate=#04/15/2026# and "
                  "CollectionTime='sakaL' and "
                  "CollectionNo<>10 and MemberNo=5 and trim(Animal)='gaaya' and CompanyId=1"),
        "1|15/04/2026|sakaL|1|5|rama|gaaya|1.5|4.5|30|45|0|6.05|null");
    EXPECT_EQ(Rows("SELECT * FROM MilkCollectionsTemp where CollectionDate=#04/15/2026# and "
                   "CollectionTime='sakaL' and "
                   "CollectionNo<>3 and MemberNo=5 and trim(Animal)='gaaya'")
                  .size(),
        1U);
    EXPECT_EQ(Rows("SELECT * FROM MilkCollectionsTemp where CollectionDate=#04/15/2026# and "
                   "CollectionTime='sakaL' and "
                   "CollectionNo=2")
                  .size(),
        1U);
    EXPECT_EQ(Rows("SELECT * FROM MilkCollectionsTemp where CollectionDate=#04/15/2026# and "
                   "CollectionTime='sakaL' AND "
                   "MemberNo=5")
                  .size(),
        3U);
}

TEST_F(CollectionStatementsTest, ARowIsInsertedChangedAndDeleted)
{
    EXPECT_EQ(Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                  "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
                  "values(1,'15/04/2026','sakaL',"
                  "11,5,'rama','gaaya',1.125,4.3,24.35,27.39,0, '6.10')"),
        1);
    EXPECT_EQ(
        Row("select * from MilkCollections where CollectionDate=#04/15/2026# and CollectionTime='sakaL' and "
            "CollectionNo=11"),
        "1|15/04/2026|sakaL|11|5|rama|gaaya|1.125|4.3|24.35|27.39|0|6.10|null");
    EXPECT_EQ(
        Run("update MilkCollections set CompanyId=2,MemberNo=7,MemberName='saIta',Animal='mhOsa',Liters=2,"
            "Fat=7.1,Rate=40,Amount=80, ActualCollectionTime='6.20' where CollectionDate=#04/15/2026# and "
            "CollectionTime='sakaL' and CollectionNo=11"),
        1);
    EXPECT_EQ(
        Row("select * from MilkCollections where CollectionDate=#04/15/2026# and CollectionTime='sakaL' and "
            "CollectionNo=11"),
        "2|15/04/2026|sakaL|11|7|saIta|mhOsa|2|7.1|40|80|0|6.20|null");
    EXPECT_EQ(
        Run("delete * from MilkCollections where CollectionDate=#04/15/2026# and CollectionTime='sakaL' and "
            "CollectionNo=11"),
        1);
    EXPECT_EQ(Count("MilkCollections"), 6);
}

TEST_F(CollectionStatementsTest, TheMembersClosingFiguresFollow)
{
    EXPECT_EQ(Row("SELECT * FROM MembersMaster WHERE CompanyId=1 and trim(MemberName)='rama'").substr(0, 4),
        "1|5|");
    EXPECT_EQ(Run("update MembersMaster set ClosingBalance=147,ClosingDorC='C' where CompanyId=1 and "
                  "trim(MemberName)='rama'"),
        1);
    EXPECT_EQ(
        Row("Select CowOpeningLits,BuffOpeningLits From MembersMaster where CompanyId=1 And Memberno=5"),
        "109|111");
    EXPECT_EQ(
        Row("Select sum(Liters) as CowLiters from MilkCollections Where CompanyId=1 And Animal='gaaya' And "
            "MemberNo=5"),
        "26");
    EXPECT_EQ(
        Row("Select sum(Liters) as BuffLiters from MilkCollections Where CompanyId=1 And Animal='mhOsa' And "
            "MemberNo=5"),
        "4");
    EXPECT_EQ(Run("Update MembersMaster Set CowClosingLits=135,BuffClosingLits=115.125 where CompanyId=1 And "
                  "Memberno=5"),
        1);
    EXPECT_EQ(Row("select ClosingBalance,ClosingDorC,CowClosingLits,BuffClosingLits from MembersMaster where "
                  "CompanyId=1 and MemberNo=5"),
        "147|C|135|115.125");
    EXPECT_EQ(Row("select ClosingBalance,ClosingDorC,CowClosingLits,BuffClosingLits from MembersMaster where "
                  "CompanyId=2"),
        "102|D|110|112");
}

TEST_F(CollectionStatementsTest, APaymentHoldsADeletionUp)
{
    AddPayment(1, "15/04/2026", "15/04/2026", "16/04/2026", 1, 5, "rama");
    EXPECT_EQ(Rows("select * from MilkPayments where CompanyId=1 and FromDate>=#04/15/2026# and "
                   "ToDate<=#04/15/2026# and MemberNo=5")
                  .size(),
        1U);
    EXPECT_TRUE(Rows("select * from MilkPayments where CompanyId=1 and FromDate>=#04/16/2026# and "
                     "ToDate<=#04/16/2026# and MemberNo=5")
                    .empty());
}

TEST_F(CollectionStatementsTest, AMembersPeriodIsListedAndNumberedAnew)
{
    EXPECT_EQ(Rows("Select * from MembersMaster Where MemberNo=7").size(), 1U);
    EXPECT_EQ(Rows("Select * from MembersMaster Where MemberName='rama'").size(), 2U);
    EXPECT_EQ(Rows("Select * from MilkCollections where CollectionDate>=#04/14/2026# and "
                   "CollectionDate<=#04/15/2026# And MemberNo = 5 and companyid=1")
                  .size(),
        4U);
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections where "
                  "CollectionDate>=#04/14/2026# "
                  "and CollectionDate<=#04/15/2026# And MemberNo = 5 and companyid=1"),
        4);
    EXPECT_EQ(Rows("Select CollectionNo From MilkCollectionsTemp Order By "
                   "CollectionDate,CollectionTime,CollectionNo"),
        (Lines{"9", "4", "1", "10"}));
    EXPECT_EQ(
        Rows("Select * From MilkCollectionsTemp Order By CollectionDate,CollectionTime,CollectionNo").size(),
        4U);
    EXPECT_EQ(Run("Update MilkCollectionsTemp Set CollectionNo=2 Where CollectionDate=#04/15/2026# And "
                  "CollectionTime='saMQyaakaL' And CollectionNo=4"),
        1);
    EXPECT_EQ(Run("Delete * From ReportDates"), 0);
    EXPECT_EQ(
        Run("Insert Into ReportDates(CompanyId,FromDate,Todate) Values(1,'14/04/2026','15/04/2026')"), 1);
    EXPECT_EQ(Run("Delete * From MilkCollectionsTemp where companyId=0"), 0);
    EXPECT_EQ(Run("Delete * From ReportDates Where CompanyId=0"), 0);
    EXPECT_EQ(Row("select * from ReportDates"), "1|14/04/2026|15/04/2026");
}

TEST_F(CollectionStatementsTest, ADeliveryIsStagedForItsSlip)
{
    EXPECT_EQ(Run("insert into "
                  "MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
                  "Animal,Liters,Fat,Rate,Amount,ActualCollectionTime) "
                  "values(1,'15/04/2026','sakaL',1,5,'rama','gaaya',"
                  "1.5,4.5,30,45,'6.05')"),
        1);
    EXPECT_EQ(Run("delete * from MilkReceipt where CompanyId=0"), 0);
    EXPECT_EQ(Row("select * from MilkReceipt"), "1|15/04/2026|sakaL|1|5|rama|gaaya|1.5|4.5|30|45|6.05");
    EXPECT_EQ(Run("delete * from MilkReceipt"), 1);
}

TEST_F(CollectionStatementsTest, TheGateSortsAndSearches)
{
    LoadShift();
    for (const std::string column : {"Liters", "Amount"}) {
        EXPECT_EQ(
            Numbers("FROM MilkCollectionsTemp ORDER BY " + column + " DESC"), (Lines{"3", "10", "2", "1"}));
        EXPECT_EQ(
            Numbers("FROM MilkCollectionsTemp ORDER BY " + column + " ASC"), (Lines{"1", "2", "10", "3"}));
    }
    Run("update MilkCollectionsTemp set Fat=CollectionNo,Rate=20-CollectionNo");
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp ORDER BY Fat DESC"), (Lines{"10", "3", "2", "1"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp ORDER BY Fat ASC"), (Lines{"1", "2", "3", "10"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp ORDER BY Rate DESC"), (Lines{"1", "2", "3", "10"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp ORDER BY Rate ASC"), (Lines{"10", "3", "2", "1"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE MemberNo=5 ORDER BY CollectionNo DESC"),
        (Lines{"10", "3", "1"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE Liters=2.25 ORDER BY CollectionNo DESC"), (Lines{"2"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE Fat=3 ORDER BY CollectionNo DESC"), (Lines{"3"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE Rate=19 ORDER BY CollectionNo DESC"), (Lines{"1"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE Animal='mhOsa' ORDER BY CollectionNo DESC"),
        (Lines{"10", "2"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp WHERE left(MemberName,3)='saI' ORDER BY CollectionNo DESC"),
        (Lines{"2"}));
    EXPECT_EQ(Numbers("FROM MilkCollectionsTemp ORDER BY CollectionNo DESC"), (Lines{"10", "3", "2", "1"}));
}

TEST_F(CollectionStatementsTest, TheMaintenanceKeepsItsRowsByTheMembersKey)
{
    EXPECT_EQ(Rows("SELECT MemberName,Animal FROM MembersMaster WHERE  MemberNo=7"), (Lines{"saIta|mhOsa"}));
    EXPECT_EQ(Rows("SELECT * FROM MilkCollections WHERE CompanyId=1 AND MemberNo=5 AND "
                   "CollectionDate=#04/15/2026# AND "
                   "CollectionTime='sakaL' AND Animal='gaaya'")
                  .size(),
        1U);
    EXPECT_EQ(Row("SELECT MAX(CollectionNo) as mMaxNo FROM MilkCollections WHERE CompanyId=1 AND "
                  "CollectionDate=#04/15/2026#"),
        "10");
    EXPECT_EQ(
        Run("INSERT INTO MilkCollections (CompanyId,MemberNo,MemberName,Animal,CollectionDate,CollectionTime,"
            "CollectionNo,Liters,Fat,Rate,Amount) VALUES "
            "(1,5,'rama','gaaya','15/04/2026','sakaL',12,1.500,4.3,"
            "24.35,36.53)"),
        1);
    EXPECT_EQ(Row("SELECT * FROM MilkCollections WHERE CollectionNo=12 AND MemberNo=5 AND "
                  "CollectionDate=#04/15/2026#"),
        "1|15/04/2026|sakaL|12|5|rama|gaaya|1.5|4.3|24.35|36.53|null|null|null");
    EXPECT_EQ(Run("UPDATE MilkCollections SET Liters=2,Fat=4.5,Rate=30,Amount=60 WHERE CollectionNo=12 AND "
                  "CollectionDate=#04/15/2026# AND MemberNo=5 AND CollectionTime ='sakaL'AND Animal='gaaya'"),
        1);
    EXPECT_EQ(Run("UPDATE MilkCollections SET Liters=9,Fat=9,Rate=9,Amount=9 WHERE CollectionNo=12 AND "
                  "CollectionDate=#04/15/2026# AND MemberNo=5 AND CollectionTime ='sakaL'AND Animal='mhOsa'"),
        0);
    EXPECT_EQ(Row("SELECT Liters,Fat,Rate,Amount FROM MilkCollections WHERE CollectionNo=12"), "2|4.5|30|60");
    EXPECT_EQ(Rows("SELECT * FROM MilkCollections WHERE MemberNo=5").size(), 6U);
    EXPECT_EQ(Run(" DELETE * FROM MilkCollections WHERE CompanyId= 1 AND CollectionNo= 12 AND MemberNo=5 AND "
                  "CollectionTime='sakaL'"),
        1);
}

TEST_F(CollectionStatementsTest, TheSearchFindsTheRowsOfAMemberAndReprintsOne)
{
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollections where "
                  "cstr(CollectionDate)=#04/15/2026# and CollectionTime='sakaL' and MemberNo=5"),
        3);
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp").size(), 3U);
    EXPECT_EQ(Run("update MilkCollectionsTemp set CompanyId=1"), 3);
    EXPECT_EQ(Row("select * from MilkCollectionsTemp where CompanyId=1 and CollectionNo=3"),
        "1|15/04/2026|sakaL|3|5|rama|gaaya|100|4.5|30|3000|0|6.05|null");
    EXPECT_EQ(Run("insert into "
                  "MilkReceipt(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
                  "Animal,Liters,Fat,Rate,Amount) "
                  "values(1,'15/04/2026','sakaL',3,5,'rama','gaaya',100,4.5,30,3000)"),
        1);
    EXPECT_EQ(Row("select * from MilkReceipt"), "1|15/04/2026|sakaL|3|5|rama|gaaya|100|4.5|30|3000|null");
}

TEST_F(CollectionStatementsTest, TheAbsentMembersAreListed)
{
    EXPECT_EQ(Rows("SELECT MemberNo,MemberName FROM MilkCollections WHERE CollectionDate=#04/14/2026# AND "
                   "CollectionTime='sakaL'"),
        (Lines{"5|rama"}));
    EXPECT_TRUE(Rows("SELECT MemberNo,MemberName FROM MilkCollections WHERE CollectionDate=#04/16/2026# AND "
                     "CollectionTime='sakaL' AND MemberNo=5")
                    .empty());
    EXPECT_EQ(Run("INSERT INTO ShortMemberList(CompanyId,MemberNo,MemberName) VALUES(1, 5, 'rama')"), 1);
    EXPECT_EQ(Run("Delete * From ShortMemberList Where CompanyId=0"), 0);
    EXPECT_EQ(Rows("SELECT MemberNo,MemberName FROM ShortMemberList"), (Lines{"5|rama"}));
    EXPECT_EQ(Run("Delete * From ShortMemberList"), 1);
}

}

#include "tests/delivered/StatementsTest.h"

namespace {

// The morning of 15/04/2026: a sale for cash, a local one and one to the federation; one more in the evening
// and one of another company.
class SalesStatementsTest : public StatementsTest {
protected:
    SalesStatementsTest()
    {
        for (const std::string customer : {"1,1,'saMGa','daonhI','saMGa ivaËI',10.5,12.25,3,4",
                 "1,2,'ha^Tola','gaaya','sqaainak ivaËI',0,0,0,0",
                 "2,1,'saMGa','daonhI','saMGa ivaËI',0,0,0,0"})
            Run("Insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType "
                ",CowOpeningLits,"
                "CowClosingLits,BuffOpeningLits ,BuffClosingLits)values("
                + customer + ")");
        AddSale(1, "15/04/2026", "sakaL", "raoK", 1, 0, "raoK", "gaaya", 1.5, 72);
        AddSale(1, "15/04/2026", "sakaL", "sqaainak ivaËI", 2, 2, "ha^Tola", "gaaya", 2, 96);
        AddSale(1, "15/04/2026", "sakaL", "saMGa ivaËI", 10, 1, "saMGa", "mhOsa", 20.25, 972);
        AddSale(1, "15/04/2026", "saMQyaakaL", "saMGa ivaËI", 1, 1, "saMGa", "gaaya", 40, 1920);
        AddSale(2, "15/04/2026", "sakaL", "saMGa ivaËI", 3, 1, "saMGa", "gaaya", 80, 3840);
    }

    void LoadShift()
    {
        Run("delete * from MilkSalesTemp");
        EXPECT_EQ(Run("insert into MilkSalesTemp select * from MilkSales where CompanyId=1 and "
                      "SalesDate=#04/15/2026# "
                      "and SalesTime='sakaL' ORDER BY SalesNo"),
            3);
        EXPECT_EQ(Run("delete * from MilkSalesTemp where CompanyId=0"), 0);
    }
};

TEST_F(SalesStatementsTest, AShiftIsLoadedAndNumberedOn)
{
    EXPECT_EQ(Row("SELECT max(SalesNo) as MaxTrId FROM MilkSales WHERE cstr(SalesDate)=#04/15/2026# and "
                  "SalesTime='sakaL' "),
        "10");
    LoadShift();
    EXPECT_EQ(Rows("select * from MilkSalesTemp"),
        (Lines{"1|15/04/2026|sakaL|raoK|1|0|raoK|gaaya|1.5|4.2|48|72|2.5|8.5|4.3|40|99",
            "1|15/04/2026|sakaL|sqaainak ivaËI|2|2|ha^Tola|gaaya|2|4.2|48|96|3|8.5|4.3|40|99",
            "1|15/04/2026|sakaL|saMGa ivaËI|10|1|saMGa|mhOsa|20.25|4.2|48|972|21.25|8.5|4.3|40|99"}));
    EXPECT_EQ(Row("SELECT max(SalesNo) as MaxTrId FROM MilkSalesTemp WHERE SalesDate=#04/15/2026# and "
                  "SalesTime='sakaL'"),
        "10");
}

TEST_F(SalesStatementsTest, ASaleIsFoundByItsNumber)
{
    EXPECT_EQ(
        Row("SELECT * FROM MilkSales where cstr(SalesDate)=#04/15/2026# and SalesTime='sakaL' AND SalesNo=1"),
        "1|15/04/2026|sakaL|raoK|1|0|raoK|gaaya|1.5|4.2|48|72|2.5|8.5|4.3|40|99");
    EXPECT_EQ(
        Rows("SELECT * FROM MilkSales where SalesDate=#04/15/2026# and SalesTime='sakaL' and SalesNo=10")
            .size(),
        1U);
    EXPECT_EQ(Rows("SELECT CustomerName FROM CustomersMaster "), (Lines{"saMGa", "ha^Tola", "saMGa"}));
    EXPECT_EQ(Row("SELECT CustomerNo,CustomerType FROM CustomersMaster Where CustomerName='ha^Tola'"),
        "2|sqaainak ivaËI");
    EXPECT_EQ(Row("select SalesRateCow,SalesRateBuff from AutoSettings"), "48.00|58.00");
    AddDelivery(1, "15/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
    EXPECT_EQ(Row("select * from MilkCollections where CompanyId=1 AND CollectionDate=#04/15/2026# AND "
                  "Animal='gaaya' "
                  "AND CollectionTime='sakaL'"),
        "1|15/04/2026|sakaL|1|5|rama|gaaya|1.5|4.5|30|45|0|6.05|null");
}

TEST_F(SalesStatementsTest, ASaleIsChangedAndDeletedInBothTables)
{
    LoadShift();
    for (const std::string table : {"MilkSales", "MilkSalesTemp"}) {
        EXPECT_EQ(
            Run("update " + table
                + " set "
                  "CompanyId=1,CustomerNo=1,CustomerName='saMGa',Animal='mhOsa',Liters=3.125,Fat=7.1,Rate=58,"
                  "Amount=181.25,OurLiters=3,SNF=9,OurFat=7,OurRate=45.5,OurAmount=136.5 where "
                  "SalesDate=#04/15/2026# and SalesTime='sakaL' and SalesNo=1"),
            1);
        EXPECT_EQ(Row("select * from " + table + " where SalesNo=1 and SalesTime='sakaL'"),
            "1|15/04/2026|sakaL|raoK|1|1|saMGa|mhOsa|3.125|7.1|58|181.25|3|9|7|45.5|136.5");
        EXPECT_EQ(Run("delete * from " + table
                      + " where SalesDate=#04/15/2026# and SalesTime='sakaL' and SalesNo=1"),
            1);
    }
    EXPECT_EQ(Run("delete * from MilkSalestemp where CompanyId=0"), 0);
    EXPECT_EQ(Count("MilkSales"), 4);
    EXPECT_EQ(Count("MilkSalesTemp"), 2);
}

TEST_F(SalesStatementsTest, ASaleIsStagedForItsReceipt)
{
    LoadShift();
    EXPECT_EQ(Run("delete * from MilkSalesReceipt"), 0);
    EXPECT_EQ(Run("insert into MilkSalesReceipt select * from MilkSalesTemp where SalesDate=#04/15/2026# and "
                  "SalesTime='sakaL' and SalesNo=2"),
        1);
    EXPECT_EQ(Run("delete * from MilkSalesReceipt where CompanyId=0"), 0);
    EXPECT_EQ(Row("select * from MilkSalesReceipt"),
        "1|15/04/2026|sakaL|sqaainak ivaËI|2|2|ha^Tola|gaaya|2|4.2|48|96|3|8.5|4.3|40|99");
}

TEST_F(SalesStatementsTest, TheCustomersLitresFollow)
{
    EXPECT_EQ(
        Run("Update CustomersMaster Set CowClosinglits=52.25 Where CompanyId=1 and CustomerName='saMGa'"), 1);
    EXPECT_EQ(
        Run("Update CustomersMaster Set BuffClosinglits=24.25 Where CompanyId=1 and CustomerName='saMGa'"),
        1);
    EXPECT_EQ(
        Rows(
            "select CompanyId,CowClosingLits,BuffClosingLits from CustomersMaster where CustomerName='saMGa' "
            "order by CompanyId"),
        (Lines{"1|52.25|24.25", "2|0|0"}));
    EXPECT_EQ(
        Row("Select sum(Liters) as TLitersC From MilkSales Where CompanyId=1 and CustomerName='saMGa' and "
            "Animal='gaaya' "),
        "40");
    EXPECT_EQ(
        Row("Select sum(Liters) as TLitersM From MilkSales Where CompanyId=1 and CustomerName='saMGa' and "
            "Animal='mhOsa' "),
        "20.25");
    EXPECT_EQ(Rows("Select CowOpeningLits From CustomersMaster Where CustomerName='saMGa' ").front(), "10.5");
    EXPECT_EQ(Rows("Select BuffOpeningLits From CustomersMaster Where CustomerName='saMGa' ").front(), "3");
}

TEST_F(SalesStatementsTest, TheDayIsSummedByTypeAndAnimal)
{
    EXPECT_EQ(Rows("SELECT SalesType,Animal,Liters,Amount FROM MilkSales WHERE CompanyId=1 AND "
                   "SalesDate=#04/15/2026# "
                   "AND SalesTime='sakaL'"),
        (Lines{"raoK|gaaya|1.5|72", "sqaainak ivaËI|gaaya|2|96", "saMGa ivaËI|mhOsa|20.25|972"}));
}

}

#include "tests/delivered/StatementsTest.h"

namespace {

// The charts of rates: chosen, edited, saved, and the collections priced anew.
class ChartStatementsTest : public StatementsTest {
protected:
    void MakeChart()
    {
        Run("create table Fat150426(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
        EXPECT_EQ(Run("insert into Fat150426(Fat,CowRate,BuffRate) values(4.0,23.50,30.00)"), 1);
        EXPECT_EQ(Run("insert into Fat150426(Fat,CowRate,BuffRate) values(4.5,24.05,31.10)"), 1);
        EXPECT_EQ(Run("insert into Fat150426(Fat,CowRate,BuffRate) values(0.0,0.00,0.00)"), 1);
        EXPECT_EQ(Run("insert into Fat150426(Fat,CowRate,BuffRate) values(10.0,50.00,60.00)"), 1);
        EXPECT_EQ(Run("insert into FatDates(FromDate,FatFileName) values('15/04/2026','Fat150426')"), 1);
    }

    void TakeChart()
    {
        Run("Delete * From FatRates");
        EXPECT_EQ(Run("Insert Into Fatrates Select * From Fat150426"), 4);
        EXPECT_EQ(Run("Delete * From FatRates Where Fat=0"), 1);
    }
};

TEST_F(ChartStatementsTest, AChartHoldsItsNumbersAsShortestTexts)
{
    MakeChart();
    EXPECT_EQ(Rows("select * from Fat150426"), (Lines{"4|23.5|30", "4.5|24.05|31.1", "0|0|0", "10|50|60"}));
    EXPECT_EQ(Rows("select distinct typeof(Fat),typeof(CowRate),typeof(BuffRate) from Fat150426"),
        (Lines{"text|text|text"}));
    EXPECT_EQ(Row("select * from Fat150426 where Fat='4'"), "4|23.5|30");
    EXPECT_EQ(Row("select * from Fat150426 where Fat='4.5'"), "4.5|24.05|31.1");
    EXPECT_TRUE(Rows("select * from Fat150426 where Fat='4.0'").empty());
}

TEST_F(ChartStatementsTest, AChartIsFoundByItsDay)
{
    MakeChart();
    EXPECT_EQ(Rows("select * from FatDates order by FromDate"),
        (Lines{"01/04/2026|Fat010426", "15/04/2026|Fat150426"}));
    EXPECT_EQ(Row("Select max(FromDate) as mdate From FatDates"), "15/04/2026");
    EXPECT_EQ(Row("select * from FatDates where FromDate=#04/15/2026#"), "15/04/2026|Fat150426");
    EXPECT_EQ(Row("select * from FatDates where FromDate<#04/15/2026#"), "01/04/2026|Fat010426");
    EXPECT_EQ(Row("Select FatFileName  From Fatdates Where cstr(FromDate)='15/04/2026'"), "Fat150426");
    EXPECT_TRUE(Rows("Select FatFileName  From Fatdates Where cstr(FromDate)='14/04/2026'").empty());
}

TEST_F(ChartStatementsTest, TheWorkingChartIsTakenAndEditedByNumber)
{
    MakeChart();
    TakeChart();
    EXPECT_EQ(Rows("select Fat,BuffRate,CowRate from FatRates order by Fat"),
        (Lines{"4|30|23.5", "4.5|31.1|24.05", "10|60|50"}))
        << "in the order of the numbers";
    EXPECT_EQ(Row("SELECT * FROM FatRates where Fat=4.5"), "4.5|24.05|31.1");
    EXPECT_EQ(Run("UPDATE FatRates SET CowRate=24.35, BuffRate=31.5 WHERE Fat=4.5"), 1);
    EXPECT_EQ(Run("UPDATE FatRates SET CowRate=1, BuffRate=1 WHERE Fat=4.6"), 0);
    EXPECT_EQ(Run("Update FatRates Set CowRate=22.28,BuffRate=24.951 Where Fat=4"), 1);
    EXPECT_EQ(Run("DELETE * FROM FatRates WHERE FAT=0"), 0);
    EXPECT_EQ(Rows("Select * from FatRates"), (Lines{"4|22.28|24.951", "4.5|24.35|31.5", "10|50|60"}));
    EXPECT_EQ(Run("Update Autosettings Set BasicCowRate=5.57,BasicBuffRate=6"), 1);
    EXPECT_EQ(Row("Select BasicCowRate,BasicBuffRate From Autosettings"), "5.57|6");
}

TEST_F(ChartStatementsTest, AChartIsSavedOverInFullLength)
{
    MakeChart();
    TakeChart();
    Run("Update FatRates Set CowRate=23.951,BuffRate=25.0 Where Fat=4.5");
    EXPECT_EQ(Run("delete * from Fat150426"), 4);
    EXPECT_EQ(Run("insert into Fat150426 select * from FatRates"), 3);
    EXPECT_EQ(Rows("select * from Fat150426"), (Lines{"4|23.5|30", "4.5|23.951|25", "10|50|60"}));
    EXPECT_EQ(Row("select * from Fat150426 where Fat='10'"), "10|50|60");
    EXPECT_EQ(Run("delete * from FatRates"), 3);
    EXPECT_EQ(Run("insert into FatRates select * from Fat150426"), 3);
    EXPECT_EQ(Run("delete * from FatRates where Fat=0"), 0);
    EXPECT_EQ(
        Rows("select * from FatRates where Fat>4.4 and CowRate>23.9"), (Lines{"4.5|23.951|25", "10|50|60"}));
}

TEST_F(ChartStatementsTest, TheCollectionsFromADayOnArePricedAnew)
{
    AddDelivery(1, "14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 2, 60);
    AddDelivery(1, "15/04/2026", "sakaL", 1, 1, "rama", "gaaya", 2, 60);
    AddDelivery(1, "16/04/2026", "sakaL", 1, 1, "rama", "mhOsa", 2, 60);
    AddDelivery(2, "16/04/2026", "sakaL", 1, 1, "rama", "gaaya", 2, 60);
    AddPayment(1, "01/04/2026", "15/04/2026", "16/04/2026", 1, 1, "rama");
    EXPECT_EQ(
        Rows("select * from MilkCollections where CompanyId=1 and CollectionDate>=#04/15/2026#").size(), 2U);
    EXPECT_EQ(Rows("select * from MilkPayments where CompanyId=1 and ToDate>=#04/15/2026#").size(), 1U);
    EXPECT_TRUE(Rows("select * from MilkPayments where CompanyId=1 and ToDate>=#04/16/2026#").empty());
    EXPECT_EQ(
        Run("update MilkCollections set Rate=24.375 where CompanyId=1 and CollectionDate>=#04/15/2026# and "
            "Animal='gaaya' and Fat=4.5"),
        1);
    EXPECT_EQ(Run("update MilkCollections set Amount=Liters * Rate where CompanyId=1 and "
                  "CollectionDate>=#04/15/2026#"),
        2);
    EXPECT_EQ(Rows("select CompanyId,CollectionDate,Rate,Amount from MilkCollections"),
        (Lines{
            "1|14/04/2026|30|60", "1|15/04/2026|24.375|48.75", "1|16/04/2026|30|60", "2|16/04/2026|30|60"}));
}

}

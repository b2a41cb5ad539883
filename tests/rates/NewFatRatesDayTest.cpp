// The day of the chart, and which chart is taken under edit.

#include "tests/rates/NewFatRatesTest.h"

namespace {

class NewFatRatesDayTest : public NewFatRatesTest {
protected:
    // The day is refused without a message, and this is left in the field.
    void ExpectRefused(const char* keys, const char* left, const char* wanted)
    {
        Play([&](Clerk& clerk) {
            Type(clerk, "%d");
            Type(clerk, keys);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "frmNewFatRates") << keys;
            EXPECT_EQ(Focus(clerk), "maskDate") << keys;
            EXPECT_EQ(Reads(clerk, "maskDate"), left) << keys;
            EXPECT_EQ(Label(clerk, "lblGuide"), wanted) << keys;
            EXPECT_FALSE(CanEnter(clerk, "DataGridBuffRates"));
        });
        EXPECT_TRUE(WorkingChart().isEmpty()) << keys;
        EXPECT_FALSE(Failure);
    }
};

constexpr const char* DateWanted = "दिनांक असा टाका : 15/04/2026    Esc : बाहेर";

TEST_F(NewFatRatesDayTest, TheDayOfTheNewestChartIsShownAndProposed)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d");
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(Reads(clerk, "maskOldDate"), "01/07/2007");
        EXPECT_EQ(Reads(clerk, "maskDate"), "01/07/2007");
    });
}

TEST_F(NewFatRatesDayTest, TheNewestChartIsTakenWhateverTheDay)
{
    for (const char* day : {"01072007", "02072007", "15042026"}) {
        Run("delete * from FatRates");
        PlayOnChart(day, [](Clerk&) {});
        EXPECT_EQ(WorkingChart(), Chart("Fat010707")) << day;
        EXPECT_EQ(WorkingRow("4.5"), "4.5|30.45|35.45") << day;
    }
}

TEST_F(NewFatRatesDayTest, ARowOfFatZeroIsNotTaken)
{
    Run("insert into Fat010707(Fat,CowRate,BuffRate) values(0,1,2)");
    PlayOnChart("", [](Clerk&) {});
    EXPECT_EQ(WorkingChart().size(), 8);
    EXPECT_EQ(WorkingRow("0"), QString());
}

TEST_F(NewFatRatesDayTest, ADayBeforeTheNewestChartIsRefusedWithoutAWord)
{
    ExpectRefused("30062007", "30/06/2007", "01/07/2007 किंवा त्यानंतरचा दिनांक टाका    Alt+R : रद्द");
}

TEST_F(NewFatRatesDayTest, AnEmptyDayIsRefused)
{
    ExpectRefused("{BS}", "__/__/____", DateWanted);
}

TEST_F(NewFatRatesDayTest, WhatIsNoDayIsRefusedAndEmptied)
{
    for (const char* keys : {"31022008", "0107", "01132007", "31132007", "00000000"})
        ExpectRefused(keys, "__/__/____", DateWanted);
}

TEST_F(NewFatRatesDayTest, TheOldDayTakesNoKeys)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d+{TAB}");
        EXPECT_EQ(Focus(clerk), "maskOldDate");
        Type(clerk, "5{BS}{DEL}31122007");
        EXPECT_EQ(Reads(clerk, "maskOldDate"), "01/07/2007");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskDate");
    });
}

TEST_F(NewFatRatesDayTest, GoingBackThroughTheDayTakesTheNewestChartAnew)
{
    PlayOnChart("02072007", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(WorkingRow("4.5"), "4.5|20|30");
        Type(clerk, "+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "maskDate");
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(WorkingRow("4.5"), "4.5|30.45|35.45");
}

TEST_F(NewFatRatesDayTest, ASocietyWithoutAChartTakesAnyDayAndKeepsTheRowsThatItHas)
{
    Run("delete * from FatDates");
    Run("insert into FatRates(Fat,CowRate,BuffRate) values(4,20,30)");
    PlayOnChart("01012000", [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "maskOldDate"), "__/__/____");
        Type(clerk, "%s");
    });
    EXPECT_EQ(ChartDates(), QStringList("01/01/2000|Fat010100"));
    EXPECT_EQ(Chart("Fat010100"), QStringList("4|20|30"));
}

TEST_F(NewFatRatesDayTest, AChartWhoseTableIsGoneFailsItsStatementAndLeavesTheRows)
{
    Run("insert into FatRates(Fat,CowRate,BuffRate) values(4,20,30)");
    gCn.RunScript("drop table Fat010707");
    Play([](Clerk& clerk) { Type(clerk, "%d{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Statement(), "insert into FatRates select * from Fat010707");
    EXPECT_EQ(WorkingChart(), QStringList("4|20|30"));
}

}

// A chart is saved: as a new one, or over the newest.

#include "tests/rates/NewFatRatesTest.h"

#include "rates/LookupFatRate.h"

namespace {

class NewFatRatesSaveTest : public NewFatRatesTest { };

TEST_F(NewFatRatesSaveTest, TheDayAfterTheNewestChartMakesATableAndItsRow)
{
    PlayOnChart("02072007", [](Clerk& clerk) {
        Type(clerk, "%s");
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates") << "no deliveries, no question";
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
        EXPECT_EQ(Reads(clerk, "maskDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "maskOldDate"), "__/__/____");
        EXPECT_FALSE(CanEnter(clerk, "DataGridBuffRates"));
        EXPECT_FALSE(CanEnter(clerk, "cmdCancel"));
        EXPECT_TRUE(CanEnter(clerk, "cmdExit"));
        EXPECT_EQ(Focus(clerk), "cmdAdd");
    });
    EXPECT_EQ(
        ChartDates(), (QStringList{"01/04/2007|Fat010407", "01/07/2007|Fat010707", "02/07/2007|Fat020707"}));
    EXPECT_EQ(Chart("Fat020707"), Chart("Fat010707"));
    EXPECT_EQ(WorkingChart(), Chart("Fat010707")) << "the rows stay";
}

TEST_F(NewFatRatesSaveTest, TheDayOfTheNewestChartReplacesItWithoutANewRow)
{
    const QStringList older = Chart("Fat010407");
    PlayOnChart(
        "01072007", [](Clerk& clerk) { Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}%s"); });
    EXPECT_EQ(ChartDates().size(), 2);
    EXPECT_EQ(Chart("Fat010707").size(), 8);
    EXPECT_EQ(One("select CowRate from Fat010707 where Fat='4.5'"), "20");
    EXPECT_EQ(One("select BuffRate from Fat010707 where Fat='4.5'"), "30");
    EXPECT_EQ(One("select CowRate from Fat010707 where Fat='4'"), "30.4");
    EXPECT_EQ(Chart("Fat010407"), older);
}

TEST_F(NewFatRatesSaveTest, ANewChartHasTwoDecimalsAndTheRowsUnderEditAll)
{
    PlayOnChart("02072007", [](Clerk& clerk) { Type(clerk, "{F5}5.57{ENTER}5.57{ENTER}{ENTER}%s"); });
    EXPECT_EQ(WorkingRow("4.3"), "4.3|23.951|23.951");
    EXPECT_EQ(Chart("Fat020707"),
        (QStringList{"1|5.57|5.57", "4|22.28|22.28", "4.3|23.95|23.95", "4.4|24.51|24.51", "4.5|25.07|25.07",
            "4.6|25.62|25.62", "4.7|26.18|26.18", "30|167.1|167.1"}))
        << "in shortest form, halves away from zero";
}

TEST_F(NewFatRatesSaveTest, AChartThatIsReplacedKeepsAllDecimals)
{
    PlayOnChart("01072007", [](Clerk& clerk) { Type(clerk, "{F5}6{ENTER}5.57{ENTER}{ENTER}%s"); });
    EXPECT_EQ(One("select CowRate from Fat010707 where Fat='4.3'"), "23.951");
}

TEST_F(NewFatRatesSaveTest, AllIsTextInTheTableOfANewChart)
{
    PlayOnChart("02072007", [](Clerk& clerk) { Type(clerk, "%s"); });
    EXPECT_EQ(Rows("select distinct typeof(Fat),typeof(CowRate),typeof(BuffRate) from Fat020707"),
        QStringList("text|text|text"));
}

TEST_F(NewFatRatesSaveTest, ASavedChartIsInForceAtTheNextEntry)
{
    PlayOnChart(
        "02072007", [](Clerk& clerk) { Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}%s"); });
    EXPECT_DOUBLE_EQ(LookupFatRate(QDate(2007, 8, 15), 4.5, u"gaaya").rate, 20);
    EXPECT_DOUBLE_EQ(LookupFatRate(QDate(2007, 7, 1), 4.5, u"gaaya").rate, 30.45);
}

TEST_F(NewFatRatesSaveTest, AfterASaveTheNextChangeBeginsWithTheSavedChart)
{
    PlayOnChart("02072007", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}%s%d");
        EXPECT_EQ(Reads(clerk, "maskOldDate"), "02/07/2007");
        Type(clerk, "03072007{ENTER}%s");
        EXPECT_EQ(Chart("Fat030707"), Chart("Fat020707"));
    });
    EXPECT_EQ(ChartDates().size(), 4);
}

TEST_F(NewFatRatesSaveTest, AChartOfTheSameNameFailsItsStatementAndLeavesTheBooks)
{
    Run("create table Fat020707(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    Run("insert into Fat020707(Fat,CowRate,BuffRate) values(1,2,3)");
    const QStringList dates = ChartDates();
    PlayOnChart("02072007", [](Clerk& clerk) { Type(clerk, "%s"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_EQ(Failure->Statement(), "create table Fat020707(Fat TEXT,CowRate TEXT,BuffRate TEXT)");
    EXPECT_EQ(ChartDates(), dates);
    EXPECT_EQ(Chart("Fat020707"), QStringList("1|2|3"));
    EXPECT_EQ(WorkingChart(), Chart("Fat010707"));
}

}

#include "rates/LookupFatRate.h"

#include "platform/database/Sql.h"
#include "tests/support/SocietyTest.h"

namespace {

const QString Cow = "gaaya";
const QString Buffalo = "mhOsa";

// The charts of the first of April and of the first of July, told apart by their rates.
class LookupFatRateTest : public SocietyTest {
protected:
    LookupFatRateTest()
    {
        Run("delete * from FatDates");
        AddChart("01/04/2007", "Fat010407", 20);
        AddChart("01/07/2007", "Fat010707", 30);
    }

    // A chart of 4.0, 4.4, 4.5 and 30; a buffalo's rate is 5 more than a cow's.
    void AddChart(const QString& from, const QString& table, int cowRate)
    {
        Run(Sql(u"create table ", table, u"(Fat TEXT,CowRate TEXT,BuffRate TEXT)"));
        for (double fat : {4.0, 4.4, 4.5, 30.0})
            Run(Sql(u"insert into ", table, u"(Fat,CowRate,BuffRate) values(", fat, u",", cowRate + fat / 10,
                u",", cowRate + 5 + fat / 10, u")"));
        Run(Sql(u"insert into FatDates(FromDate,FatFileName) values('", from, u"','", table, u"')"));
    }

    static double RateOn(const QDate& date) { return LookupFatRate(date, 4.0, Cow).rate; }
    static FatRate InJuly(double fat, const QString& animal = Cow)
    {
        return LookupFatRate(QDate(2007, 7, 1), fat, animal);
    }
};

TEST_F(LookupFatRateTest, ADateOnWhichAnOlderChartBeginsGetsThatChart)
{
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 4, 1)), 20.4);
}

TEST_F(LookupFatRateTest, EveryOtherDateGetsTheNewestChartEvenBeforeItBegins)
{
    for (const QDate& date :
        {QDate(2007, 3, 31), QDate(2007, 4, 2), QDate(2007, 6, 30), QDate(2007, 7, 1), QDate(2007, 8, 15)})
        EXPECT_DOUBLE_EQ(RateOn(date), 30.4) << date.toString(Qt::ISODate).toStdString();
}

TEST_F(LookupFatRateTest, ChartsAreWalkedByDateAndNotAsTheyWereEntered)
{
    AddChart("01/01/2007", "Fat010107", 10);
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 8, 15)), 30.4);
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 1, 1)), 10.4);
}

TEST_F(LookupFatRateTest, AnOnlyChartHoldsForEveryDate)
{
    Run("delete * from FatDates where FatFileName='Fat010407'");
    EXPECT_DOUBLE_EQ(RateOn(QDate(2000, 1, 1)), 30.4);
    EXPECT_DOUBLE_EQ(RateOn(QDate(2030, 1, 1)), 30.4);
}

TEST_F(LookupFatRateTest, AChartSavedMeanwhileIsInForceAtTheNextCall)
{
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 8, 15)), 30.4);
    AddChart("01/08/2007", "Fat010807", 40);
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 8, 15)), 40.4);
    Run("update Fat010807 set CowRate='41.5' where Fat='4'");
    EXPECT_DOUBLE_EQ(RateOn(QDate(2007, 8, 15)), 41.5);
}

TEST_F(LookupFatRateTest, AWholeFatIsFoundWithoutItsDecimal)
{
    EXPECT_EQ(One("select count(*) from Fat010707 where Fat='4'"), "1");
    EXPECT_DOUBLE_EQ(InJuly(4.0).rate, 30.4);
    EXPECT_DOUBLE_EQ(InJuly(30.0).rate, 33.0);
}

TEST_F(LookupFatRateTest, AFatCountsToOneDecimal)
{
    EXPECT_DOUBLE_EQ(InJuly(4.46).rate, 30.45);
    EXPECT_DOUBLE_EQ(InJuly(4.44).rate, 30.44);
    EXPECT_DOUBLE_EQ(InJuly(4.45).rate, 30.45);
}

TEST_F(LookupFatRateTest, TheAnimalChoosesTheColumn)
{
    EXPECT_DOUBLE_EQ(InJuly(4.5, Cow).rate, 30.45);
    EXPECT_DOUBLE_EQ(InJuly(4.5, Buffalo).rate, 35.45);
}

TEST_F(LookupFatRateTest, AFatBetweenTheRowsOrBeyondThemHasTheRateZero)
{
    for (double fat : {4.2, 3.9, 30.1}) {
        const FatRate found = InJuly(fat);
        EXPECT_EQ(found.outcome, FatRate::Outcome::Priced) << fat;
        EXPECT_EQ(found.rate, 0) << fat;
    }
}

TEST_F(LookupFatRateTest, AnAnimalThatIsNeitherWordLeavesTheRateAsItWas)
{
    for (const QString& animal : QStringList{"daonhI", QString(), "Gaaya"})
        EXPECT_EQ(InJuly(4.5, animal).outcome, FatRate::Outcome::Unchanged) << animal.toStdString();
}

TEST_F(LookupFatRateTest, AMissingRowIsZeroForAnyAnimal)
{
    const FatRate found = InJuly(4.2, "daonhI");
    EXPECT_EQ(found.outcome, FatRate::Outcome::Priced);
    EXPECT_EQ(found.rate, 0);
}

TEST_F(LookupFatRateTest, NoChartsAtAllIsNoChart)
{
    Run("delete * from FatDates");
    EXPECT_EQ(InJuly(4.5).outcome, FatRate::Outcome::NoChart);
}

TEST_F(LookupFatRateTest, AChartWithoutATableNameIsNoChart)
{
    Run("update FatDates set FatFileName='' where FatFileName='Fat010707'");
    EXPECT_EQ(InJuly(4.5).outcome, FatRate::Outcome::NoChart);
    EXPECT_EQ(LookupFatRate(QDate(2007, 4, 1), 4.5, Cow).outcome, FatRate::Outcome::Priced);
}

TEST_F(LookupFatRateTest, AChartWhoseTableIsGoneIsARunTimeError)
{
    gCn.RunScript("drop table Fat010707");
    try {
        InJuly(4.5);
        FAIL() << "a missing chart was priced";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), RunTimeError::DatabaseFailure);
        EXPECT_EQ(error.Statement(), "select * from Fat010707 where Fat='4.5'");
    }
}

TEST_F(LookupFatRateTest, TheWorkingChartIsNeverRead)
{
    Run("insert into FatRates(Fat,CowRate,BuffRate) values(4.2,99,99)");
    EXPECT_EQ(InJuly(4.2).rate, 0);
}

}

// The rows of the chart under edit: one by one, with increments, and by a rate for each percent of fat.

#include "tests/rates/NewFatRatesTest.h"

namespace {

class NewFatRatesRowsTest : public NewFatRatesTest {
protected:
    // No script of these is broken off.
    void TearDown() override { EXPECT_FALSE(Failure); }

    static std::string Row(const Clerk& clerk)
    {
        return Reads(clerk, "txtFat") + '|' + Reads(clerk, "txtBuffRate") + '|' + Reads(clerk, "txtCowRate");
    }
};

constexpr const char* Go = "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}"; // from the buffalo's rate through cmdGo

TEST_F(NewFatRatesRowsTest, AFatShowsItsRatesAsTheyAreStored)
{
    Run("update Fat010707 set BuffRate='35',CowRate='30.4567' where Fat='4.5'");
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(Row(clerk), "4.5|35|30.4567");
        EXPECT_EQ(Focus(clerk), "txtBuffRate");
    });
}

TEST_F(NewFatRatesRowsTest, AFatWithoutARowBecomesZeroWithoutAWord)
{
    for (const char* keys : {"4.2", "31", "0.5", "", ".", "4.5.5"}) {
        PlayOnChart("", [keys](Clerk& clerk) {
            Type(clerk, keys);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
            EXPECT_EQ(Row(clerk), "0||") << keys;
            EXPECT_TRUE(CanEnter(clerk, "txtFat"));
        });
        EXPECT_EQ(WorkingChart(), Chart("Fat010707"));
    }
}

TEST_F(NewFatRatesRowsTest, LettersAndLongNumbersAreNotTaken)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4a-.e5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        clerk.Type(QString(400, u'9'));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBuffRate"), "999999999");
    });
}

TEST_F(NewFatRatesRowsTest, DownGoesATenthUpAndUpATenthDown)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.4{DOWN}");
        EXPECT_EQ(Row(clerk), "4.5|35.45|30.45");
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Row(clerk), "4.6|35.46|30.46");
        Type(clerk, "{UP}{UP}{UP}");
        EXPECT_EQ(Row(clerk), "4.3|35.43|30.43");
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_F(NewFatRatesRowsTest, TheKeysShowTheRatesWithTwoDecimals)
{
    Run("update Fat010707 set BuffRate='35',CowRate='30.4567' where Fat='4.5'");
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.4{DOWN}");
        EXPECT_EQ(Row(clerk), "4.5|35.00|30.46");
    });
}

TEST_F(NewFatRatesRowsTest, Fat30WithDownShows301WhichHasNoRow)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "30{DOWN}");
        EXPECT_EQ(Row(clerk), "30.1||") << "no rates";
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "30.1") << "no further";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Row(clerk), "0||");
    });
}

TEST_F(NewFatRatesRowsTest, Fat301WithUpIs30AndItsRates)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "30{DOWN}{UP}");
        EXPECT_EQ(Row(clerk), "30|38.00|33.00");
    });
}

TEST_F(NewFatRatesRowsTest, UpEndsBelowOne)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "1.1{UP}");
        EXPECT_EQ(Row(clerk), "1|35.10|30.10");
        Type(clerk, "{UP}{UP}{UP}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0.9");
    });
}

TEST_F(NewFatRatesRowsTest, TheKeysShowNoRatesBelowFatOneNorAboveThirtyThoughTheChartHasThem)
{
    Run("insert into Fat010707(Fat,CowRate,BuffRate) values(0.9,1,2)");
    Run("insert into Fat010707(Fat,CowRate,BuffRate) values(30.1,3,4)");
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "1.1{UP}{UP}");
        EXPECT_EQ(Row(clerk), "0.9|35.10|30.10") << "those of fat 1";
        Type(clerk, "30.1{UP}{DOWN}");
        EXPECT_EQ(Row(clerk), "30.1|38.00|33.00") << "those of fat 30";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Row(clerk), "30.1|4|3") << "on leaving the fat its row shows";
    });
}

TEST_F(NewFatRatesRowsTest, TheChartIsShownByFatInWhateverOrderItWasSaved)
{
    Run("delete * from Fat010707");
    for (const char* fat : {"10", "4.4", "4.3"})
        Run(QStringLiteral("insert into Fat010707(Fat,CowRate,BuffRate) values(%1,1,2)")
                .arg(QLatin1String(fat)));
    PlayOnChart("", [](Clerk& clerk) {
        const auto& rows = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridBuffRates"));
        EXPECT_EQ((QStringList{rows.Cell(0, 0), rows.Cell(1, 0), rows.Cell(2, 0)}),
            (QStringList{"4.3", "4.4", "10.0"}));
    });
}

TEST_F(NewFatRatesRowsTest, ARowOfFatZeroGoesWithTheNextRowThatIsKept)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}");
        Run("insert into FatRates(Fat,CowRate,BuffRate) values(0,1,2)");
        Type(clerk, Go);
        EXPECT_EQ(WorkingRow("0"), "");
        EXPECT_EQ(WorkingChart().size(), 8);
    });
}

TEST_F(NewFatRatesRowsTest, ARowOfFatZeroGoesWithTheRateForEachPercent)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Run("insert into FatRates(Fat,CowRate,BuffRate) values(0,1,2)");
        Type(clerk, "{F5}6{ENTER}5{ENTER}{ENTER}");
        EXPECT_EQ(WorkingRow("0"), "");
        EXPECT_EQ(WorkingChart().size(), 8);
    });
}

TEST_F(NewFatRatesRowsTest, GoProposesTheNextFatWithTheIncrementsAndTheyAddUp)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}.2{ENTER}.3{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Row(clerk), "4.6|30.2|20.3");
        EXPECT_EQ(Focus(clerk), "txtBuffRate");
        Type(clerk, Go);
        EXPECT_EQ(Row(clerk), "4.7|30.4|20.6");
        EXPECT_EQ(WorkingRow("4.4"), "4.4|30.44|35.44");
        EXPECT_EQ(WorkingRow("4.5"), "4.5|20|30");
        EXPECT_EQ(WorkingRow("4.6"), "4.6|20.3|30.2");
        EXPECT_EQ(WorkingRow("4.7"), "4.7|30.47|35.47");
    });
}

TEST_F(NewFatRatesRowsTest, AnOvertypedProposalIsWhereTheNextStepStarts)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}.2{ENTER}.3{ENTER}{ENTER}");
        Type(clerk, "31{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Row(clerk), "4.7|31.2|20.6");
    });
}

TEST_F(NewFatRatesRowsTest, GoOnAFatWithoutARowChangesNothing)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "4.7{ENTER}40{ENTER}30{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Row(clerk), "4.8|40|30") << "empty increments are 0";
        EXPECT_EQ(Reads(clerk, "txtBuffIncrement"), "0");
        EXPECT_EQ(Reads(clerk, "txtCowIncrement"), "0");
        const QStringList before = WorkingChart();
        Type(clerk, Go);
        EXPECT_EQ(Row(clerk), "4.9|40|30");
        EXPECT_EQ(WorkingChart(), before);
    });
}

TEST_F(NewFatRatesRowsTest, GoOnFatZeroDoesNothingButAskForTheFat)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "4.2{ENTER}50{ENTER}50{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Row(clerk), "0|50|50");
        EXPECT_EQ(WorkingChart(), Chart("Fat010707"));
    });
}

TEST_F(NewFatRatesRowsTest, ARateThatIsLeftIsItsNumberInShortestForm)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}030.50{ENTER}{BS}{ENTER}");
        EXPECT_EQ(Row(clerk), "4.5|30.5|0");
    });
}

TEST_F(NewFatRatesRowsTest, TheRateForEachPercentGivesAllRowsInFullAndIsRemembered)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "{F5}6.123{ENTER}5.57{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdFatdar");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_FALSE(CanEnter(clerk, "cmdFatdar")) << "the frame is closed";
        EXPECT_EQ(WorkingRow("4.3"), "4.3|23.951|26.3289");
    });
    EXPECT_EQ(WorkingChart(),
        (QStringList{"1|5.57|6.123", "4|22.28|24.492", "4.3|23.951|26.3289", "4.4|24.508|26.9412",
            "4.5|25.065|27.5535", "4.6|25.622|28.1658", "4.7|26.179|28.7781", "30|167.1|183.69"}));
    EXPECT_EQ(Rows("Select BasicCowRate,BasicBuffRate From Autosettings"), QStringList("5.57|6.123"));
}

TEST_F(NewFatRatesRowsTest, RatesOfManyDecimalsAreShownAndWrittenBackInFull)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "{F5}5.333333{ENTER}5.333333{ENTER}{ENTER}4.3{ENTER}");
        EXPECT_EQ(Row(clerk), "4.3|22.9333319|22.9333319");
        Type(clerk, Go);
        EXPECT_EQ(WorkingRow("4.3"), "4.3|22.9333319|22.9333319");
    });
}

TEST_F(NewFatRatesRowsTest, BasesOfManyDecimalsAreShownAndTakenInFull)
{
    Run("update AutoSettings set BasicCowRate=5.33333333333,BasicBuffRate=6.66666666667");
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "{F5}");
        EXPECT_EQ(Reads(clerk, "txtBasicBuffRate"), "6.66666666667");
        Type(clerk, "{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(WorkingRow("30"), "30|159.9999999999|200.0000000001");
    });
    EXPECT_EQ(Rows("Select BasicCowRate,BasicBuffRate From Autosettings"),
        QStringList("5.33333333333|6.66666666667"));
}

TEST_F(NewFatRatesRowsTest, TheRateForEachPercentWorksAtRestAndLeavesTheClerkAtRest)
{
    Run("insert into FatRates(Fat,CowRate,BuffRate) values(4.3,1,2)");
    Play([](Clerk& clerk) {
        Type(clerk, "{F5}6{ENTER}5.57{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
    });
    EXPECT_EQ(WorkingChart(), QStringList("4.3|23.951|25.8"));
}

}

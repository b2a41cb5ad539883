// What is open at rest and while a change is, the keys, and the ways out.

#include "tests/rates/NewFatRatesTest.h"

#include "core/preview/TemplateReport.h"

#include <QLabel>
#include <QTableView>

#include <utility>

namespace {

class NewFatRatesKeysTest : public NewFatRatesTest {
protected:
    // No script of these is broken off.
    void TearDown() override { EXPECT_FALSE(Failure); }

    static void ExpectRest(const Clerk& clerk)
    {
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&dr badla");
        for (const char* open : {"cmdAdd", "cmdExit"})
            EXPECT_TRUE(CanEnter(clerk, open)) << open;
        for (const char* closed :
            {"maskOldDate", "maskDate", "DataGridBuffRates", "txtFat", "txtBuffRate", "txtCowRate",
                "txtBuffIncrement", "txtCowIncrement", "cmdGo", "Command1", "cmdCancel", "cmdFatdar"})
            EXPECT_FALSE(CanEnter(clerk, closed)) << closed;
    }

    static void ExpectEmptied(const Clerk& clerk)
    {
        for (const char* date : {"maskOldDate", "maskDate"})
            EXPECT_EQ(Reads(clerk, date), "__/__/____") << date;
        for (const char* field :
            {"txtFat", "txtBuffRate", "txtCowRate", "txtBuffIncrement", "txtCowIncrement"})
            EXPECT_EQ(Reads(clerk, field), "") << field;
    }
};

TEST_F(NewFatRatesKeysTest, ItOpensAtRestWithTheWorkingDay)
{
    Play([](Clerk& clerk) {
        ExpectRest(clerk);
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(QString::fromStdString(Label(clerk, "lblTitle")).trimmed(), "फॅट दर बदल");
    });
}

TEST_F(NewFatRatesKeysTest, AChangeOpensTheFieldsAndClosesTheExit)
{
    PlayOnChart("", [](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&saovh");
        EXPECT_FALSE(CanEnter(clerk, "cmdExit"));
        for (const char* open :
            {"maskOldDate", "maskDate", "DataGridBuffRates", "txtFat", "txtBuffRate", "txtCowRate",
                "txtBuffIncrement", "txtCowIncrement", "cmdGo", "cmdAdd", "Command1", "cmdCancel"})
            EXPECT_TRUE(CanEnter(clerk, open)) << open;
    });
}

TEST_F(NewFatRatesKeysTest, TheChartShowsBuffaloBeforeCowWithTheirDecimals)
{
    PlayOnChart("", [](Clerk& clerk) {
        const auto& rows = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridBuffRates"));
        EXPECT_EQ(rows.Rows(), 8);
        EXPECT_EQ(rows.Cell(0, 0), "1.0");
        EXPECT_EQ(rows.Cell(4, 0), "4.5");
        EXPECT_EQ(rows.Cell(4, 1), "35.45");
        EXPECT_EQ(rows.Cell(4, 2), "30.45");
        EXPECT_EQ(rows.Cell(7, 1), "38.00");
    });
}

TEST_F(NewFatRatesKeysTest, TheChartPassesTheClerkOnToTheFat)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}");
        Press(clerk, "DataGridBuffRates");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_FALSE(IsShown(clerk, "lblExit"));
        EXPECT_FALSE(IsShown(clerk, "lblEsc"));
        EXPECT_EQ(Label(clerk, "lblExit"), Seen("iga`DmaQaUna baahor pDNyaasaazI").toStdString());
    });
}

TEST_F(NewFatRatesKeysTest, WhatStandsOnTheScreenIsNamedByItsCaption)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "{F5}");
        QStringList told;
        for (const QLabel* label : clerk.Top().findChildren<QLabel*>())
            if (label->isVisible())
                told.append(label->text());
        for (const char* caption : {"puvaI-cyaa drpHakacaa idnaaMk", "navaIna drpHakacaa idnaaMk",
                 "duQaacaa p`it f^T dr", "mhOsa dr $.", "gaaya dr $."})
            EXPECT_EQ(told.count(Seen(caption)), 1) << caption;
        const auto& chart = *static_cast<QTableView*>(clerk.Top().Find(u"DataGridBuffRates")->Widget());
        for (const auto& [column, heading] :
            {std::pair(0, "    f^T    "), {1, "    mhOsa   "}, {2, "    gaaya    "}})
            EXPECT_EQ(chart.model()->headerData(column, Qt::Horizontal).toString().trimmed(),
                Seen(heading).trimmed());
        for (const auto& [button, caption] : {std::pair("Command1", "irpaoT-"), {"cmdGo", " >"},
                 {"cmdFatdar", ">>"}, {"cmdCancel", "&r_"}, {"cmdExit", "&baahor"}})
            EXPECT_EQ(Reads(clerk, button), caption);
    });
}

TEST_F(NewFatRatesKeysTest, EnteringTheChartAgainKeepsWhatWasChanged)
{
    PlayOnChart("", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}");
        Press(clerk, "DataGridBuffRates");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(WorkingRow("4.5"), "4.5|20|30");
    });
}

TEST_F(NewFatRatesKeysTest, RatesThatWereMadeBeforeTheChartWasEnteredStay)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "%d{F5}6{ENTER}5.57{ENTER}{ENTER}");
        EXPECT_EQ(WorkingRow("4.3"), "4.3|23.951|25.8");
        Press(clerk, "DataGridBuffRates");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(WorkingRow("4.3"), "4.3|23.951|25.8");
    });
}

TEST_F(NewFatRatesKeysTest, ARateThatWasChangedWithoutTheChartBeingEnteredStays)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "%d+{TAB}");
        EXPECT_EQ(Focus(clerk), "maskOldDate");
        Press(clerk, "txtFat");
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}{ENTER}{ENTER}{ENTER}");
        Press(clerk, "DataGridBuffRates");
        EXPECT_EQ(WorkingRow("4.5"), "4.5|20|30");
    });
}

TEST_F(NewFatRatesKeysTest, TheRowOfTheFatIsTheCurrentOne)
{
    PlayOnChart("", [](Clerk& clerk) {
        const auto& rows = dynamic_cast<const DataGrid&>(*clerk.Top().Find(u"DataGridBuffRates"));
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(rows.CurrentRow(), 4);
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(rows.CurrentRow(), 5) << "that of 4.6";
    });
}

TEST_F(NewFatRatesKeysTest, CancelEmptiesTheRowsAndTheNextChangeTakesThemAgain)
{
    PlayOnChart("02072007", [this](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}30{ENTER}20{ENTER}1{ENTER}1{ENTER}{ENTER}");
        EXPECT_EQ(WorkingChart().size(), 8);
        Type(clerk, "%r");
        EXPECT_TRUE(WorkingChart().isEmpty());
        ExpectRest(clerk);
        ExpectEmptied(clerk);
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        Type(clerk, "%d{ENTER}");
        EXPECT_EQ(WorkingRow("4.5"), "4.5|30.45|35.45");
    });
    EXPECT_EQ(ChartDates().size(), 2);
}

TEST_F(NewFatRatesKeysTest, CancelLeavesABadDayByMouseAndByKey)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d30062007");
        Press(clerk, "cmdCancel");
        ExpectRest(clerk);
        Type(clerk, "%d30062007%r");
        ExpectRest(clerk);
        ExpectEmptied(clerk);
    });
}

TEST_F(NewFatRatesKeysTest, CancelFromTheDayNeverGoesThroughTheChart)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "%d%r");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_TRUE(WorkingChart().isEmpty());
        ExpectRest(clerk);
    });
}

TEST_F(NewFatRatesKeysTest, F5ShowsTheFrameWithTheBasesAndEscClosesItFirst)
{
    Run("update AutoSettings set BasicCowRate=5.57,BasicBuffRate=6.2");
    PlayOnChart("", [](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "txtBasicBuffRate"));
        Type(clerk, "{F5}");
        EXPECT_EQ(Focus(clerk), "txtBasicBuffRate");
        EXPECT_EQ(Reads(clerk, "txtBasicBuffRate"), "6.2");
        EXPECT_EQ(Reads(clerk, "txtBasicCowRate"), "5.57");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_FALSE(CanEnter(clerk, "txtBasicBuffRate"));
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(NewFatRatesKeysTest, F5LeadsFromTheDayStraightToTheFrame)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{F5}");
        EXPECT_EQ(Focus(clerk), "txtBasicBuffRate");
    });
    EXPECT_EQ(WorkingChart().size(), 8);
}

TEST_F(NewFatRatesKeysTest, BasesThatAreMissingAreZero)
{
    const auto expectZero = [this] {
        Play([](Clerk& clerk) {
            EXPECT_EQ(Reads(clerk, "txtBasicBuffRate"), "0");
            EXPECT_EQ(Reads(clerk, "txtBasicCowRate"), "0");
        });
    };
    Run("update AutoSettings set BasicCowRate=Null,BasicBuffRate=Null");
    expectZero();
    Run("delete * from AutoSettings");
    expectZero();
}

TEST_F(NewFatRatesKeysTest, EscClosesTheScreenWhileAChangeIsOpenAndTheExitAtRest)
{
    PlayOnChart("", [](Clerk& clerk) {
        Type(clerk, "%b");
        EXPECT_EQ(OnTop(clerk), "frmNewFatRates");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(WorkingChart().size(), 8);
    Play([](Clerk& clerk) {
        Type(clerk, "%b");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(NewFatRatesKeysTest, F2StartsTheCalculator)
{
    Play([](Clerk& clerk) { Type(clerk, "{F2}"); });
    EXPECT_EQ(TheCalculator.Started.size(), 1);
}

TEST_F(NewFatRatesKeysTest, TheChartUnderEditIsPrintedAsItStands)
{
    std::vector<TemplateReport::Run> runs;
    const auto engine =
        std::exchange(TemplateReport::Engine(), [&](const TemplateReport::Run& run) { runs.push_back(run); });
    PlayOnChart("02072007", [](Clerk& clerk) { Press(clerk, "Command1"); });
    TemplateReport::Engine() = engine;
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_TRUE(runs[0].fileName.endsWith("\\FatRateList.rpt"));
    EXPECT_EQ(runs[0].logon, "dsn=VetrolanDSN;pwd=Doodh#26");
    EXPECT_EQ(runs[0].formula, QString());
    EXPECT_EQ(runs[0].destination, ReportDestination::Window);
    EXPECT_EQ(WorkingChart(), Chart("Fat010707"));
}

}

#include "tests/collection/CounterTest.h"

#include <QHeaderView>
#include <QTableView>

namespace {

class ShiftViewTest : public CounterTest {
protected:
    void AddMilk(int number, const char* animal, double liters, double fat, int company = 1)
    {
        AddDelivery("15/04/2026", "sakaL", number, 3, "gaNaoSa", QString::fromLatin1(animal), liters, fat, 35,
            liters * 35);
        Run(QStringLiteral("update MilkCollections set CompanyId=%1 where CollectionNo=%2")
                .arg(company)
                .arg(number));
    }

    static std::string Totals(Clerk& clerk)
    {
        return Label(clerk, "lblTotalCowLiters") + '|' + Label(clerk, "lblTotalBuffLiters") + '|'
            + Label(clerk, "lblAvgCowFat") + '|' + Label(clerk, "lblAvgBuffFat");
    }

    static const DataGrid& Inwards(Clerk& clerk) { return Grid(clerk, "DataGridInwards"); }
};

TEST_F(ShiftViewTest, AnEmptyShiftShowsZeroesWithoutADivision)
{
    AtTheCounter([](Clerk& clerk) {
        EXPECT_EQ(Totals(clerk), "0.000|0.000|0.0|0.0");
        EXPECT_EQ(Inwards(clerk).Rows(), 0);
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Totals(clerk), "0.000|0.000|0.0|0.0");
        EXPECT_EQ(Inwards(clerk).Rows(), 0);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ShiftViewTest, OpeningAShiftShowsItsRowsWithTheNewestOnTop)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    AddMilk(3, "mhOsa", 2.5, 7.25);
    AddDelivery("15/04/2026", "saMQyaakaL", 9, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    InTheMorning([](Clerk& clerk) {
        ASSERT_EQ(Inwards(clerk).Rows(), 3);
        EXPECT_EQ(Line(Inwards(clerk), 0), "3|3|गणेश|म्हैस|2.500|7.25|35.00|87.50");
        EXPECT_EQ(Line(Inwards(clerk), 2), "1|1|राम|गाय|5.000|4.50|35.00|175.00");
    });
}

TEST_F(ShiftViewTest, TheListHasItsCaptionsAndWidthsAtBothCounters)
{
    AddMorningDelivery(1);
    const auto expect = [](Clerk& clerk) {
        const DataGrid& list = Inwards(clerk);
        EXPECT_EQ(Heads(list), "संकलन क्र.|मेम्बर नंबर|मेम्बरचे नांव|दूध|लिटर्स|फॅट|दर|रक्कम");
        EXPECT_EQ(Widths(list), (std::vector<int>{60, 66, 206, 46, 93, 80, 80})) << "900 twips are 60 pixels";
        EXPECT_GE(static_cast<QTableView*>(list.Widget())->columnWidth(7), 1300 / 15)
            << "it has what is left";
        EXPECT_EQ(Alignments(list), "llllrrrr");
    };
    InTheMorning(expect);
    AtTheGate(expect);
}

TEST_F(ShiftViewTest, TheTotalsHaveTheirCaptionsAtBothCounters)
{
    const auto expect = [](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTotalLitersTitle").text(), Seen("¹ ekUNa ilaTsa- ¹"));
        EXPECT_EQ(Label(clerk, "lblTotalLitersC"), "गाय");
        EXPECT_EQ(Label(clerk, "lblTotalLitersB"), "म्हैस");
        EXPECT_EQ(LabelOf(clerk, "Label4").text(), Seen("¹ sarasarI f^T ¹"));
    };
    InTheMorning(expect);
    AtTheGate(expect);
}

TEST_F(ShiftViewTest, AnAmountOfLakhsIsNotCutOff)
{
    AddMorningDelivery(1);
    Run("update MilkCollections set Liters=9999.999,Amount=1234567.89");
    const auto fits = [](Clerk& clerk) {
        const auto* view = static_cast<QTableView*>(Inwards(clerk).Widget());
        for (int column = 0; column < view->model()->columnCount(); ++column)
            EXPECT_GE(
                view->columnWidth(column), view->sizeHintForIndex(view->model()->index(0, column)).width())
                << column;
        EXPECT_EQ(view->horizontalHeader()->length(), view->viewport()->width());
    };
    InTheMorning(fits);
    AtTheGate(fits);
}

TEST_F(ShiftViewTest, ASaveAndADeletionShowAtOnce)
{
    InTheMorning([](Clerk& clerk) {
        Deliver(clerk, 1, "5.25", "4.5");
        ASSERT_EQ(Inwards(clerk).Rows(), 1);
        EXPECT_EQ(Line(Inwards(clerk), 0), "1|1|राम|गाय|5.250|4.50|35.00|183.75");
        EXPECT_EQ(Totals(clerk), "5.250|0.000|4.5|0.0");
        Deliver(clerk, 2, "2", "8");
        EXPECT_EQ(Inwards(clerk).Cell(0, 0), "2");
        EXPECT_EQ(Totals(clerk), "5.250|2.000|4.5|8.0");
        Type(clerk, "1{ENTER}{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Totals(clerk), "4.000|2.000|4.5|8.0");
        Type(clerk, "2{ENTER}{F10}");
        EXPECT_EQ(Inwards(clerk).Rows(), 1);
    });
}

TEST_F(ShiftViewTest, ADeletionTakesItsLitresAndLeavesTheAverageFat)
{
    AddMilk(1, "gaaya", 5, 4);
    AddMilk(2, "mhOsa", 2, 8);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "2{ENTER}{F10}");
        EXPECT_EQ(Totals(clerk), "5.000|0.000|4.0|8.0");
    });
}

TEST_F(ShiftViewTest, TheAverageFatIsWeightedByLitres)
{
    AddMilk(1, "gaaya", 9, 4);
    AddMilk(2, "gaaya", 1, 6);
    AddMilk(3, "mhOsa", 1, 7);
    AddMilk(4, "mhOsa", 3, 8);
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Totals(clerk), "10.000|4.000|4.2|7.8"); });
}

TEST_F(ShiftViewTest, LitresWithoutFatHaveAnAverageOfZero)
{
    AddMilk(1, "gaaya", 9, 0);
    AddMilk(2, "mhOsa", 3, 0);
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Totals(clerk), "9.000|3.000|0.0|0.0"); });
}

TEST_F(ShiftViewTest, TheListHasAllCompaniesAndTheTotalsTheSelectedOne)
{
    AddMilk(1, "gaaya", 9, 4);
    AddMilk(2, "gaaya", 5, 5, 2);
    InTheMorning([](Clerk& clerk) {
        EXPECT_EQ(Inwards(clerk).Rows(), 2);
        EXPECT_EQ(Totals(clerk), "9.000|0.000|4.0|0.0");
    });
}

TEST_F(ShiftViewTest, RowsNumberedZeroAndRowsOfNoCompanyStayOutOfTheCopy)
{
    AddMilk(0, "gaaya", 9, 4);
    AddMilk(1, "gaaya", 8, 4, 0);
    AddMilk(2, "gaaya", 5, 5);
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Inwards(clerk).Rows(), 1);
        EXPECT_EQ(Copy(), Of({"2|3|gaNaoSa|gaaya|5|5|35|175"}));
        EXPECT_EQ(Totals(clerk), "5.000|0.000|5.0|0.0");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
    });
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(ShiftViewTest, TheListCannotBeEnteredWhileTheShiftIsChosen)
{
    AtTheCounter([](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "DataGridInwards"));
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_TRUE(CanEnter(clerk, "DataGridInwards"));
        clerk.Press("maskDate");
        EXPECT_FALSE(CanEnter(clerk, "DataGridInwards"));
    });
}

}

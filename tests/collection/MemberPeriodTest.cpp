#include "tests/collection/MemberFrameTest.h"

#include <numeric>

namespace {

// What ">>" fetches: the member's rows of the period, their numbers and their sums.
class MemberPeriodTest : public MemberFrameTest {
protected:
    // The numbers of the list, from the top down.
    static std::vector<int> Numbers(Clerk& clerk)
    {
        std::vector<int> numbers;
        for (int row = 0; row < Milk(clerk).Rows(); ++row)
            numbers.push_back(Milk(clerk).Cell(row, 0).toInt());
        return numbers;
    }

    // Deliveries of member 3, one on each morning from 1900 on.
    static void AddMornings(int count)
    {
        gCn.RunScript(QStringLiteral(
            "with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
            "insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            "MemberName,Animal,Liters,Fat,Rate,Amount) "
            "select 1,date('1899-12-31','+'||i||' days'),'sakaL',1,3,'gaNaoSa','gaaya',1,4,30,30 from n")
                          .arg(count));
    }
};

TEST_F(MemberPeriodTest, ShowsTheMembersRowsOfThePeriodNumberedAnew)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        const DataGrid& grid = Milk(clerk);
        ASSERT_EQ(grid.Rows(), 4);
        EXPECT_EQ(Line(grid, 0), "1|13/04/2026|संध्याकाळ|गाय|5.000|5.00|35.00|175.50");
        EXPECT_EQ(Line(grid, 1), "2|13/04/2026|सकाळ|गाय|10.000|4.00|35.00|300.00");
        EXPECT_EQ(Line(grid, 2), "3|14/04/2026|संध्याकाळ|म्हैस|6.000|8.00|35.00|294.25");
        EXPECT_EQ(Line(grid, 3), "4|14/04/2026|सकाळ|म्हैस|2.000|7.00|35.00|90.00");
    });
    EXPECT_EQ(Books().size(), 5) << "only the copy is numbered anew";
    EXPECT_EQ(One("select max(CollectionNo) from MilkCollections"), "7");
}

TEST_F(MemberPeriodTest, TheSumsAreByAnimalAndHalfOfTheDay)
{
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Cow(clerk), "10.000|5.000|15.000|300.000|175.500|475.500|4.0|5.0|4.3|");
        EXPECT_EQ(Buff(clerk), "2.000|6.000|8.000|90.000|294.250|384.250|7.0|8.0|7.8|");
    });
}

TEST_F(MemberPeriodTest, AmountLabelsShowThreeDecimals)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}");
        for (const char* label : {"lblCowTotalM", "lblCowTotal"})
            EXPECT_EQ(Label(clerk, label), "175.000") << label;
        for (const char* label : {"lblCowTotalE", "lblBuffTotalM", "lblBuffTotalE", "lblBuffTotal"})
            EXPECT_EQ(Label(clerk, label), "0.000") << label;
    });
}

TEST_F(MemberPeriodTest, OneDeliveryIsOneRowNumberedOne)
{
    InTheFrame([](Clerk& clerk) {
        Type(clerk, "13042026{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}");
        ASSERT_EQ(Milk(clerk).Rows(), 1);
        EXPECT_EQ(Line(Milk(clerk), 0), "1|15/04/2026|सकाळ|गाय|5.000|4.50|35.00|175.00");
        EXPECT_EQ(Label(clerk, "lblCowAvgFatE"), "0.0");
    });
}

TEST_F(MemberPeriodTest, AMemberWithoutMilkInThePeriodIsToldAndNothingChanges)
{
    InTheFrame([this](Clerk& clerk) {
        Ask(clerk, "3");
        const QStringList before = Copy();
        clerk.Press("txtAccountId");
        Type(clerk, "{END}{BS}2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, Of({"No Records"}));
        EXPECT_EQ(Focus(clerk), "txtAccountId");
        EXPECT_EQ(Copy(), before);
        EXPECT_EQ(Milk(clerk).Rows(), 4);
    });
}

TEST_F(MemberPeriodTest, RowsOfAnotherCompanyStayOut)
{
    AddMilk("14/04/2026", "sakaL", 3, "gaaya", 1, 4, 35);
    Run("update MilkCollections set CompanyId=2 where CollectionNo=3");
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Milk(clerk).Rows(), 4);
    });
}

TEST_F(MemberPeriodTest, ARowNumberedZeroIsNumberedWithTheRest)
{
    AddMilk("14/04/2026", "sakaL", 0, "gaaya", 1, 4, 35);
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        ASSERT_EQ(Numbers(clerk), (std::vector<int>{1, 2, 3, 4, 5}));
        EXPECT_EQ(Line(Milk(clerk), 3), "4|14/04/2026|सकाळ|गाय|1.000|4.00|35.00|35.00");
    });
}

// The second of the 14th takes the number that the third has, and both are the next one then.
TEST_F(MemberPeriodTest, ARowAlreadyNumberedLikeALaterOneTakesPartTwice)
{
    AddMilk("14/04/2026", "sakaL", 4, "gaaya", 1, 4, 35);
    InTheFrame([](Clerk& clerk) {
        Ask(clerk, "3");
        EXPECT_EQ(Numbers(clerk), (std::vector<int>{1, 2, 3, 5, 5}));
    });
    EXPECT_EQ(Books().size(), 6) << "the numbers are for display";
}

TEST_F(MemberPeriodTest, TheRunningNumberHasSixteenBits)
{
    constexpr int highest = 32767;
    AddMornings(highest - 1);
    gCn.RunScript("create index Quicker on MilkCollectionsTemp (CollectionDate)");
    const auto wholeTime = [](Clerk& clerk) {
        Type(clerk, "01011900{ENTER}12042026{ENTER}3{ENTER}{ENTER}{ENTER}");
    };
    InTheFrame([&](Clerk& clerk) {
        wholeTime(clerk);
        std::vector<int> all(highest - 1);
        std::iota(all.begin(), all.end(), 1);
        EXPECT_EQ(Numbers(clerk), all);
    });
    EXPECT_FALSE(Failure);

    AddDelivery("12/04/2026", "sakaL", 1, 3, "gaNaoSa", "gaaya", 1, 4, 30, 30);
    InTheFrame(wholeTime);
    ASSERT_TRUE(Failure) << "there is no number after the highest one";
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(Copy().size(), 1) << "the copy is the shift's again";
}

}

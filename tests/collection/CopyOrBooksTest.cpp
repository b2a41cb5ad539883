// The books and the copy of the open shift differ: the back office has written to the books meanwhile. What a
// counter looks up in which of the two is the point here.

#include "tests/collection/EachCounterTest.h"

namespace {

class CopyOrBooksTest : public EachCounterTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_EQ(Error(), ""); }

    // A row that the back office enters while the shift is open: member 2, in the morning of the 15th.
    void EnterMeanwhile(int number, int member = 2)
    {
        AddDelivery("15/04/2026", "sakaL", number, member,
            member == 1 ? QStringLiteral("rama") : QStringLiteral("saIta"),
            member == 1 ? QStringLiteral("gaaya") : QStringLiteral("mhOsa"), 3, 8, 49, 147);
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, CopyOrBooksTest, Counters(), CounterName);

TEST_P(CopyOrBooksTest, ANewRowDoesNotOverwriteOneThatGotItsNumberMeanwhile)
{
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(1);
        Deliver(clerk, 1, "5", "4.5");
    });
    EXPECT_EQ(Error(), "");
    QStringList books = Books();
    books.sort();
    EXPECT_EQ(books, Of({"1|1|rama|gaaya|5|4.5|35|175", "1|2|saIta|mhOsa|3|8|49|147"}));
    EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
}

TEST_P(CopyOrBooksTest, ADuplicateIsSoughtInTheOpenShiftAsItWasLoaded)
{
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(7, 1);
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
    });
    EXPECT_EQ(Books().size(), 2);
}

TEST_P(CopyOrBooksTest, AfterASaveTheSeriesGoesOnFromTheCopy)
{
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(9);
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
    });
}

TEST_P(CopyOrBooksTest, AfterADeletionTheSeriesGoesOnFromTheCopy)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(9);
        Type(clerk, "2{ENTER}{F10}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
    });
}

TEST_P(CopyOrBooksTest, TheFirstNumberOfAShiftFollowsTheBooks)
{
    AddMorningDelivery(4);
    InTheShift([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5"); });
}

TEST_P(CopyOrBooksTest, ADeletionGoesByTheBooks)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}");
        Run("delete * from MilkCollectionsTemp");
        Type(clerk, "{F10}");
    });
    EXPECT_TRUE(Books().isEmpty());
}

TEST_P(CopyOrBooksTest, ANumberShowsNoRowThatTheCopyLacks)
{
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(7);
        Type(clerk, "7{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
    });
}

TEST_P(CopyOrBooksTest, F9FindsNoRowThatTheCopyLacks)
{
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(7);
        Type(clerk, "{ENTER}2{F9}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        EXPECT_TRUE(TheBox.Shown.isEmpty()) << "no search is opened";
    });
}

TEST_P(CopyOrBooksTest, TheTotalsAreThoseOfTheOpenShift)
{
    AddDelivery("14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 9, 4.5, 35, 315);
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        EnterMeanwhile(7);
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), Litres("5.00"));
        DeliverOf(clerk, 3, 1, "2", "4.5");
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), Litres("7.00"));
        EXPECT_EQ(Label(clerk, "lblTotalBuffLiters"), Litres("0.00"));
    });
}

}

#include "tests/collection/CounterTest.h"

#include "core/menu/Keys.h"

namespace {

class DateAndShiftTest : public CounterTest {
protected:
    void AddEveningDelivery()
    {
        AddDelivery("15/04/2026", "saMQyaakaL", 7, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    }
};

TEST_F(DateAndShiftTest, OpensWithTheWorkingDayAndTheWallClock)
{
    TheClock.Time.setTime(QTime(9, 5, 0));
    AtTheCounter([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        EXPECT_EQ(LabelOf(clerk, "lblActualCollectionTime").text(), "9.05");
        EXPECT_EQ(LabelOf(clerk, "lblCompanyTitle").text(), "श्री गणेश दूध संस्था");
        EXPECT_EQ(LabelOf(clerk, "lblAcYear").text(), "2026-2027");
    });
}

TEST_F(DateAndShiftTest, OpeningEmptiesTheCopyAndLeavesTheBooks)
{
    AddMorningDelivery(1);
    Run("insert into MilkCollectionsTemp select * from MilkCollections");
    AtTheCounter([this](Clerk&) {
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(Books().size(), 1);
    });
}

TEST_F(DateAndShiftTest, AtFirstOnlyDateAndShiftCanBeEntered)
{
    AtTheCounter([](Clerk& clerk) {
        EXPECT_TRUE(CanEnter(clerk, "maskDate"));
        EXPECT_TRUE(CanEnter(clerk, "txtTime"));
        for (const char* field : {"txtCollectionNo", "txtMemberNo", "ComboMemberName", "txtAnimal",
                 "txtLiters", "txtFat", "txtRate", "txtAmount", "cmdGo"})
            EXPECT_FALSE(CanEnter(clerk, field)) << field;
    });
}

TEST_F(DateAndShiftTest, TheShiftOpensTheNumberAndTheNumberTheRest)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_TRUE(CanEnter(clerk, "txtCollectionNo"));
        EXPECT_FALSE(CanEnter(clerk, "txtMemberNo"));
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        for (const char* field :
            {"txtMemberNo", "ComboMemberName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "cmdGo"})
            EXPECT_TRUE(CanEnter(clerk, field)) << field;
        EXPECT_FALSE(CanEnter(clerk, "txtAmount"));
    });
}

class BadDateTest : public DateAndShiftTest, public ::testing::WithParamInterface<const char*> { };

TEST_P(BadDateTest, KeepsTheFocusWithoutAMessage)
{
    AtTheCounter([this](Clerk& clerk) {
        clerk.Type("{BS}" + QString::fromLatin1(GetParam()));
        for (const char* away : {"{ENTER}", "+{TAB}"}) {
            Type(clerk, away);
            EXPECT_EQ(Focus(clerk), "maskDate");
        }
        clerk.Press("txtTime");
        EXPECT_EQ(Focus(clerk), "maskDate");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

INSTANTIATE_TEST_SUITE_P(
    Dates, BadDateTest, ::testing::Values("", "31022026", "25132026", "13252026", "00042026", "1504"));

TEST_F(DateAndShiftTest, ABadDateIsNotSelectedSoThatOneDigitMendsIt)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{BS}25132026{ENTER}");
        EXPECT_EQ(Reads(clerk, "maskDate"), "25/13/2026");
        Type(clerk, "{RIGHT}{RIGHT}{RIGHT}04{ENTER}");
        EXPECT_EQ(Reads(clerk, "maskDate"), "25/04/2026");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
}

TEST_F(DateAndShiftTest, AGoodDateIsSelectedAndTypedOver)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "01012031{ENTER}");
        EXPECT_EQ(Reads(clerk, "maskDate"), "01/01/2031");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
}

TEST_F(DateAndShiftTest, TheKeysOfTheShiftPutItsWordsAndAllOthersAreDropped)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(LabelOf(clerk, "lblFooter").text(), Seen("  1 ¹ sakaL    2 ¹ saMQyaakaL"));
        Type(clerk, "3a");
        EXPECT_EQ(Reads(clerk, "txtTime"), "");
        Type(clerk, "1");
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
        Type(clerk, "3a {BS}");
        EXPECT_EQ(Reads(clerk, "txtTime"), "sakaL");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtTime"), "saMQyaakaL");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(LabelOf(clerk, "lblFooter").text(), "↑ : आधीची नोंद    ↓ : पुढची नोंद");
    });
}

TEST_F(DateAndShiftTest, WithoutAShiftTheFocusStays)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        clerk.Press("txtCollectionNo");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
}

TEST_F(DateAndShiftTest, TheFirstNumberOfAShiftIsOne)
{
    AddEveningDelivery();
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1"); });
}

TEST_F(DateAndShiftTest, TheSeriesGoesOnFromTheHighestNumberOverAllCompanies)
{
    AddMorningDelivery(1);
    AddMorningDelivery(9);
    Run("update MilkCollections set CompanyId=2 where CollectionNo=9");
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "10"); });
}

TEST_F(DateAndShiftTest, TheCopyHoldsTheRowsOfTheShiftOnly)
{
    AddMorningDelivery(1);
    AddEveningDelivery();
    AddDelivery("14/04/2026", "sakaL", 3, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    AtTheCounter([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Copy(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        clerk.Press("txtTime");
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Copy(), Of({"7|2|saIta|mhOsa|2|8|49|98"}));
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "8");
    });
}

TEST_F(DateAndShiftTest, RowsNumberedZeroStayOutOfTheCopy)
{
    AddMorningDelivery(0);
    AddMorningDelivery(2);
    InTheMorning([this](Clerk&) {
        EXPECT_EQ(Copy().size(), 1);
        EXPECT_EQ(Books().size(), 2);
    });
}

TEST_F(DateAndShiftTest, ChangingTheDateOpensAnEarlierDay)
{
    AddMorningDelivery(4);
    AddDelivery("14/04/2026", "sakaL", 2, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    InTheMorning([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5");
        clerk.Press("maskDate");
        for (const char* field : {"txtCollectionNo", "txtMemberNo", "ComboMemberName", "txtAnimal",
                 "txtLiters", "txtFat", "txtRate", "cmdGo"})
            EXPECT_FALSE(CanEnter(clerk, field)) << field;
        Type(clerk, "14042026{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        EXPECT_EQ(Copy(), Of({"2|2|saIta|mhOsa|2|8|49|98"}));
        Deliver(clerk, 1, "1", "4.5");
    });
    EXPECT_EQ(One("select CollectionDate from MilkCollections where CollectionNo=3"), "14/04/2026");
}

TEST_F(DateAndShiftTest, ShiftTabFromTheShiftLeadsBackToTheDate)
{
    AddEveningDelivery();
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "maskDate");
        Type(clerk, "14042026{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
    });
}

TEST_F(DateAndShiftTest, FromTheDateShiftTabReachesTheButtonsAtTheSide)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "+{TAB}+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "cmdPrinterOnOff");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdPrinterOnOff"), "ip`MTr baMd");
    });
}

TEST_F(DateAndShiftTest, AShiftThatIsNoneHoldsTheFocusAgainstAStepBack)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{ENTER}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtTime");
    });
}

TEST_F(DateAndShiftTest, EscapeLeavesBooksAndCopyAsTheyAre)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}3{ESC}");
        EXPECT_TRUE(clerk.ScreenName().isEmpty());
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books().size(), 1);
    EXPECT_EQ(Copy().size(), 1);
}

TEST_F(DateAndShiftTest, TheCloseBoxLeavesBooksAndCopyAsTheyAre)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_TRUE(clerk.ScreenName().isEmpty());
    });
    EXPECT_EQ(Copy().size(), 1);
}

}

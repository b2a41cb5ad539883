// Two companies in one file: what a counter takes from both, and what from the selected one only.

#include "tests/collection/EachCounterTest.h"

#include "platform/database/Sql.h"

namespace {

class CounterCompaniesTest : public EachCounterTest {
protected:
    // No script of these is broken off, unless its test says so.
    void TearDown() override { EXPECT_EQ(Error(), ""); }

    // A delivery of member 1 in the morning of the 15th, in the books of the second company.
    void AddTheirDelivery(int number)
    {
        AddMorningDelivery(number);
        Run(Sql(u"update MilkCollections set CompanyId=2 where CollectionNo=", number));
    }

    void AddTheirMember(int number, const QString& name)
    {
        gAppState.gCompanyId = 2;
        AddMember(number, name, "gaaya");
        gAppState.gCompanyId = 1;
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterCompaniesTest, Counters(), CounterName);

// The rows of a shift are one series, whosesoever they are

TEST_P(CounterCompaniesTest, TheSeriesAndTheListHaveTheRowsOfBoth)
{
    AddTheirDelivery(7);
    InTheShift([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "8");
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1);
        EXPECT_EQ(Copy(), Books());
        Deliver(clerk, 2, "1", "8");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "9");
    });
}

TEST_P(CounterCompaniesTest, ARowOfTheOtherIsShownAndItsChangeMakesItOneOfThis)
{
    AddTheirDelivery(7);
    InTheShift([](Clerk& clerk) {
        Type(clerk, "7{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("5.00"));
        Type(clerk, "{ENTER}6{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    for (const char* table : {"MilkCollections", "MilkCollectionsTemp"})
        EXPECT_EQ(Rows(Sql(u"select CompanyId,CollectionNo,Liters from ", QString::fromLatin1(table))),
            Of({"1|7|6"}))
            << table;
}

TEST_P(CounterCompaniesTest, ARowOfTheOtherIsDeletedLikeAnyOther)
{
    AddTheirDelivery(7);
    AddTheirDelivery(8);
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "8{ENTER}{F10}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "8") << "the one after 7";
        EXPECT_EQ(Copy().size(), 1);
    });
    EXPECT_EQ(Books().size(), 1);
}

TEST_P(CounterCompaniesTest, ACanOfTheOtherMakesASecondOneADuplicate)
{
    AddTheirDelivery(7);
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(TheBox.Shown, Of({"Duplicate Record"}));
    });
    EXPECT_EQ(Books().size(), 1);
}

TEST_P(CounterCompaniesTest, F9FindsARowOfTheOther)
{
    AddTheirDelivery(7);
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F9}");
        EXPECT_EQ(clerk.ScreenName(), "frmSearchCollections");
        Type(clerk, "{ESC}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "7");
    });
}

TEST_P(CounterCompaniesTest, TheLastFatMayBeThatOfARowOfTheOther)
{
    AddTheirDelivery(7);
    Run("update MilkCollections set CollectionDate='14/04/2026',Fat=4.2");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.2");
    });
}

// Members

TEST_P(CounterCompaniesTest, MembersOfBothAreFoundByNumberAndByName)
{
    AddTheirMember(40, "paava-tI");
    InTheShift([](Clerk& clerk) {
        EXPECT_TRUE(
            dynamic_cast<NameCombo&>(*clerk.Top().Find(u"ComboMemberName")).Items().contains("paava-tI"));
        Type(clerk, "{ENTER}40{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "paava-tI");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "40");
        Type(clerk, "2{ENTER}4.5{ENTER}{ENTER}{ENTER}");
        Type(clerk, "{ENTER}{ENTER}paava-tI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "40");
    });
}

// What goes by the selected company

TEST_P(CounterCompaniesTest, TheTotalsAreThoseOfTheSelectedOne)
{
    AddMorningDelivery(1);
    AddTheirDelivery(2);
    Run("update MilkCollections set Liters=7,Fat=4 where CompanyId=2");
    InTheShift([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), Litres("5.00"));
        EXPECT_EQ(Label(clerk, "lblAvgCowFat"), "4.5");
    });
    gAppState.gCompanyId = 2;
    InTheShift([](Clerk& clerk) {
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), Litres("7.00"));
        EXPECT_EQ(Label(clerk, "lblAvgCowFat"), "4.0");
    });
}

TEST_P(CounterCompaniesTest, TheBalanceAndTheLitresAreRaisedInTheSelectedOne)
{
    AddTheirMember(1, "rama");
    Set("PurchaseEntry", "Collection");
    gAppState.gCompanyId = 2;
    InTheShift([](Clerk& clerk) { Deliver(clerk, 1, "2", "4.5"); });
    EXPECT_EQ(Rows("select CompanyId,ClosingBalance,CowClosingLits from MembersMaster "
                   "where MemberNo=1 order by CompanyId"),
        Of({"1|0|0", "2|70|2"}));
}

}

#include "tests/collection/EachCounterTest.h"

namespace {

// The keys that work anywhere on a counter.
class EachCounterKeysTest : public EachCounterTest {
protected:
    // With 5 litres of member 1 typed and not yet left.
    void AtTheLitres(const std::function<void(Clerk&)>& script)
    {
        InTheShift([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}5");
            script(clerk);
        });
    }

    static void ExpectTheLitres(Clerk& clerk)
    {
        EXPECT_EQ(clerk.ScreenName(), QLatin1String(GetParam()));
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, EachCounterKeysTest, Counters(), CounterName);

TEST_P(EachCounterKeysTest, F2StartsTheCalculatorInANormalWindow)
{
    AtTheLitres([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, Of({"C:\\Tarvel01\\Vetrolan\\calc.EXE normal"}));
        ExpectTheLitres(clerk);
    });
}

TEST_P(EachCounterKeysTest, F3OpensTheMembersAndTheEntryStays)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "{F3}");
        EXPECT_EQ(clerk.ScreenName(), "frmMembers");
        Type(clerk, "{ESC}");
        ExpectTheLitres(clerk);
    });
}

TEST_P(EachCounterKeysTest, F6OpensTheVouchersAndTheEntryStays)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "{F6}");
        EXPECT_EQ(clerk.ScreenName(), "frmUchalVouchers");
        Type(clerk, "{ESC}");
        ExpectTheLitres(clerk);
    });
}

TEST_P(EachCounterKeysTest, F12OpensTheKeyboardTutorAndTheEntryStays)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "{F12}");
        EXPECT_EQ(clerk.ScreenName(), "frmKeyboardTutor");
        Type(clerk, "{ESC}");
        ExpectTheLitres(clerk);
    });
}

class CounterKeysTest : public CounterTest {
protected:
    static constexpr const char* MemberLabels[] = {"lblF9", "lblSearch", "lblF7", "lblMilk"};
    static constexpr const char* DeleteLabels[] = {"lblF10", "lblDelete"};
};

TEST_F(CounterKeysTest, TheKeysOfTheMembersNumberAreShownThereOnly)
{
    InTheMorning([](Clerk& clerk) {
        for (const char* label : MemberLabels)
            EXPECT_FALSE(Shows(clerk, label)) << label;
        Type(clerk, "{ENTER}");
        for (const char* label : MemberLabels)
            EXPECT_TRUE(Shows(clerk, label)) << label;
        Type(clerk, "1{ENTER}");
        for (const char* label : MemberLabels)
            EXPECT_FALSE(Shows(clerk, label)) << label;
    });
}

TEST_F(CounterKeysTest, DeletingIsOfferedOnlyBesideAName)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        for (const char* label : DeleteLabels)
            EXPECT_FALSE(Shows(clerk, label)) << label;
        Type(clerk, "+{TAB}1{ENTER}");
        for (const char* label : DeleteLabels)
            EXPECT_TRUE(Shows(clerk, label)) << label;
        Type(clerk, "{ENTER}");
        for (const char* label : DeleteLabels)
            EXPECT_FALSE(Shows(clerk, label)) << label;
    });
}

TEST_F(CounterKeysTest, F9FillsTheLineWithTheMembersFirstRowAndOpensTheSearch)
{
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F9}");
        EXPECT_EQ(clerk.ScreenName(), "frmSearchCollections");
        EXPECT_EQ(gAppState.gCallerTag, "MC");
        Type(clerk, "{ESC}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.000");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175.00");
    });
}

TEST_F(CounterKeysTest, F9OnAMemberWithoutARowDoesNothing)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F9}");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_EQ(gAppState.gCallerTag, "N");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(CounterKeysTest, TheKeysOfTheMembersNumberDoNothingElsewhere)
{
    AddMorningDelivery(1);
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{F7}{F9}{F10}{F4}");
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_EQ(Books().size(), 1);
    });
}

}

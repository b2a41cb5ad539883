// What is saved fits together at every counter, whichever way leads to the button that saves.

#include "tests/collection/EachCounterTest.h"

#include "tests/support/FakeSerialPort.h"

namespace {

class CounterAmountTest : public EachCounterTest {
protected:
    // Plays with 2 litres of 4.5 entered for member 1 and priced at 70.00, and the focus on the rate.
    void WithAPricedLine(const std::function<void(Clerk&)>& script)
    {
        InTheShift([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}2{ENTER}4.5{ENTER}");
            ASSERT_EQ(Reads(clerk, "txtAmount"), "70.00");
            script(clerk);
        });
    }

    static void ChangeLiters(Clerk& clerk, const char* liters)
    {
        clerk.Press("txtLiters");
        Type(clerk, "{HOME}+{END}");
        Type(clerk, liters);
    }

    // A row of 5 litres of 4.5, called up at the fat while its tester is silent, and the fat emptied.
    void AtTheFatOfARow(const std::function<void(Clerk&)>& script)
    {
        AddMorningDelivery(1);
        gAppState.gWeighScale = "NO";
        gAppState.gAutoFat = "haoya";
        Set("AutoFat", "haoya");
        InTheShift([&](Clerk& clerk) {
            Type(clerk, "1{ENTER}{ENTER}{ENTER}0");
            ASSERT_EQ(Focus(clerk), "txtFat");
            script(clerk);
        });
    }

    FakeSerialPorts Ports;
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterAmountTest, Counters(), CounterName);

TEST_P(CounterAmountTest, LitresThatWereChangedAreSavedWithTheirOwnAmountByTheMouse)
{
    WithAPricedLine([this](Clerk& clerk) {
        ChangeLiters(clerk, "9");
        clerk.Press("cmdGo");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|9|4.5|35|315"}));
    });
}

TEST_P(CounterAmountTest, TheAmountRestsOnTheLitresAsTheFieldHasRoundedThem)
{
    WithAPricedLine([this](Clerk& clerk) {
        ChangeLiters(clerk, "8.9996");
        clerk.Press("cmdGo");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|9|4.5|35|315"}));
    });
}

TEST_P(CounterAmountTest, ARowWhoseLitresWereChangedIsSavedWithTheirOwnAmount)
{
    AddMorningDelivery(1);
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}");
        ChangeLiters(clerk, "9");
        clerk.Press("cmdGo");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|9|4.5|35|315"}));
    });
}

TEST_P(CounterAmountTest, AnEmptyLineGetsNoAmountFromTheButton)
{
    InTheShift([this](Clerk& clerk) {
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "");
        EXPECT_TRUE(Books().isEmpty());
    });
}

// The fat is left for the switch of its tester

TEST_P(CounterAmountTest, TheRateStaysAsItWasWhenTheFatIsLeftForItsSwitch)
{
    AtTheFatOfARow([](Clerk& clerk) {
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175.00");
    });
}

TEST_P(CounterAmountTest, TheSwitchLeadsBackToTheFatThatIsStillWanted)
{
    for (const char* control : {"cmdGo", "txtRate", "maskDate"}) {
        Run("delete * from MilkCollections");
        AtTheFatOfARow([&](Clerk& clerk) {
            clerk.Press("cmdAutoFat");
            clerk.Press(QString::fromLatin1(control));
            EXPECT_EQ(Focus(clerk), "txtFat") << control;
            EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"})) << control;
            clerk.Press("cmdAutoLiter");
            EXPECT_EQ(Focus(clerk), "txtFat") << "it is refused like any fat of 0 now";
        });
    }
}

}

#include "tests/collection/EachCounterTest.h"

namespace {

// Member 1 brought cow milk of fat 4.1 on the morning before.
class RefusedFatTest : public EachCounterTest {
protected:
    RefusedFatTest() { AddDelivery("14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4.1, 30, 150); }

    // With 2 litres of member 1 entered and the focus on the fat.
    void AtTheFat(const std::function<void(Clerk&)>& script)
    {
        InTheShift([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat");
            script(clerk);
        });
    }

    // What stands in the fat as it is entered.
    std::string Offered()
    {
        std::string offered;
        AtTheFat([&](Clerk& clerk) { offered = Reads(clerk, "txtFat"); });
        return offered;
    }
};

INSTANTIATE_TEST_SUITE_P(AtEach, RefusedFatTest, Counters(), CounterName);

// Refused

TEST_P(RefusedFatTest, AFatAboveThirtyStaysToBeMendedWhereTheLastOneWasOffered)
{
    AtTheFat([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.1");
        Type(clerk, "42{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "42.0");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_P(RefusedFatTest, AFatOfZeroStaysToBeMendedWhereTheLastOneWasOffered)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0.0");
    });
}

TEST_P(RefusedFatTest, ARefusedFatIsRefusedAgainWhileItStands)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "42{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "42.0");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtFat") << "there is no way back out of it either";
        EXPECT_EQ(Reads(clerk, "txtFat"), "42.0");
    });
}

TEST_P(RefusedFatTest, ARefusedFatIsTypedOverAndPriced)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "42{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
    });
}

TEST_P(RefusedFatTest, ANewVisitAfterARefusalOffersTheLastFatAgain)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "42{ENTER}4.5{ENTER}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.1");
    });
}

// Offered

TEST_P(RefusedFatTest, TheLastFatIsThatOfTheNumberUnderTheSameName)
{
    EXPECT_EQ(Offered(), "4.1");
    Run("update MilkCollections set MemberName='ramaa'");
    EXPECT_EQ(Offered(), "0") << "a number that has changed hands";
}

TEST_P(RefusedFatTest, TheLastFatIsOfferedOnlyWhereTheSettingDeniesATester)
{
    for (const char* tester : {"", " ", "haoya"}) {
        Set("AutoFat", tester);
        EXPECT_EQ(Offered(), "0") << '"' << tester << '"';
    }
    Run("update AutoSettings set AutoFat=null");
    EXPECT_EQ(Offered(), "0");
    Set("AutoFat", " naahI ");
    EXPECT_EQ(Offered(), "4.1");
}

}

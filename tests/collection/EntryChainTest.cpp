#include "tests/collection/CounterTest.h"

namespace {

class EntryChainTest : public CounterTest {
protected:
    // With member 1 named and the focus on the litres.
    void AtTheLitres(const std::function<void(Clerk&)>& script)
    {
        InTheMorning([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            script(clerk);
        });
    }

    // With 2 litres entered and the focus on the fat.
    void AtTheFat(const std::function<void(Clerk&)>& script)
    {
        AtTheLitres([&](Clerk& clerk) {
            Type(clerk, "2{ENTER}");
            script(clerk);
        });
    }
};

// Collection number

TEST_F(EntryChainTest, ANumberOfZeroClearsTheLineAndStays)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        clerk.Press("txtCollectionNo");
        Type(clerk, "{END}{BS}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        for (const char* field :
            {"txtMemberNo", "ComboMemberName", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount"})
            EXPECT_EQ(Reads(clerk, field), "") << field;
    });
}

TEST_F(EntryChainTest, ANumberBeyondTheSeriesSnapsBack)
{
    AddMorningDelivery(4);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "99{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5");
    });
}

TEST_F(EntryChainTest, ANumberInAGapOfTheSeriesSnapsBackToo)
{
    AddMorningDelivery(4);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5");
    });
}

TEST_F(EntryChainTest, OnlyDigitsAreTakenAsNumbers)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{BS}1a.-2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "1x.2");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "12");
    });
}

TEST_F(EntryChainTest, ArrowsWalkTheNumbersAndStopAtOne)
{
    AddMorningDelivery(2);
    InTheMorning([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        Type(clerk, "{UP}{UP}{UP}{UP}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
}

TEST_F(EntryChainTest, AnExistingNumberFillsTheLine)
{
    AddMorningDelivery(1);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{UP}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.000");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175.00");
    });
}

TEST_F(EntryChainTest, LeavingTheNumberReadsTheClock)
{
    InTheMorning([this](Clerk& clerk) {
        TheClock.Time.setTime(QTime(11, 5, 0));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(LabelOf(clerk, "lblActualCollectionTime").text(), "11.05");
    });
}

// Member by number and animal

TEST_F(EntryChainTest, AMemberOfOneAnimalSettlesTheAnimal)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
        EXPECT_FALSE(CanEnter(clerk, "txtAnimal"));
    });
}

TEST_F(EntryChainTest, AMemberOfBothLeavesTheAnimalToTheClerk)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        EXPECT_EQ(LabelOf(clerk, "lblFooter").text(), Seen("  1 ¹ gaaya    2 ¹ mhOsa"));
        Type(clerk, "3x");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
        Type(clerk, "1{BS}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(LabelOf(clerk, "lblFooter").text(), QString());
    });
}

TEST_F(EntryChainTest, AMemberOfBothKeepsTheAnimalThatStandsThere)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}2{ENTER}2");
        clerk.Press("txtMemberNo");
        Type(clerk, "{END}{BS}3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "gaNaoSa");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
    });
}

TEST_F(EntryChainTest, AnEmptyAnimalKeepsTheFocus)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
}

TEST_F(EntryChainTest, AnUnknownNumberIsEmptiedAndAskedForAgain)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}77{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_TRUE(Shows(clerk, "lblF9"));
    });
}

TEST_F(EntryChainTest, TheAnimalWithoutAMemberSendsTheFocusToTheMember)
{
    InTheMorning([](Clerk& clerk) {
        clerk.Press("txtAnimal");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal") << "the sending back must not swallow the next leaving";
    });
}

// Litres

TEST_F(EntryChainTest, LitresOfZeroKeepTheFocus)
{
    AtTheLitres([](Clerk& clerk) {
        for (const char* zero : {"{ENTER}", "0{ENTER}", "0.00{ENTER}", "..{ENTER}"}) {
            Type(clerk, zero);
            EXPECT_EQ(Focus(clerk), "txtLiters") << zero;
            EXPECT_EQ(Reads(clerk, "txtLiters"), "0.000") << zero;
        }
    });
}

TEST_F(EntryChainTest, LitresAreShownWithThreeDecimals)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "5.2555{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.256");
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_F(EntryChainTest, LitresTakeNineCharactersOfDigitsAndPoint)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "a12-34.567891");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "1234.5678");
    });
}

TEST_F(EntryChainTest, LitresWithoutAMemberAskForTheName)
{
    InTheMorning([](Clerk& clerk) {
        clerk.Press("txtLiters");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
    });
}

// Fat

TEST_F(EntryChainTest, AnEmptyFatStandsAtZero)
{
    AtTheFat([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0");
    });
}

TEST_F(EntryChainTest, AFatOfZeroOrAboveThirtyKeepsTheFocusWithoutAMessage)
{
    AtTheFat([this](Clerk& clerk) {
        for (const auto& [typed, shown] :
            {std::pair("0", "0.0"), {"30.1", "30.1"}, {"99", "99.0"}, {"30.04", "30.0"}}) {
            clerk.Type(QString::fromLatin1(typed) + "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat") << typed;
            EXPECT_EQ(Reads(clerk, "txtFat"), shown) << typed;
            EXPECT_EQ(Reads(clerk, "txtRate"), "") << typed;
        }
        EXPECT_EQ(clerk.ScreenName(), "frmMilkCollections");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(EntryChainTest, AFatOfExactlyThirtyIsPriced)
{
    Run("insert into Fat010426(Fat,CowRate,BuffRate) values(30,59.5,60)");
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "30.0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_EQ(Reads(clerk, "txtRate"), "59.50");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "119.00");
    });
}

TEST_F(EntryChainTest, AFatIsRoundedBeforeItIsPriced)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "4.46{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "70.00");
    });
}

TEST_F(EntryChainTest, TheAnimalDecidesTheRate)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}2{ENTER}2{ENTER}8{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "49.00");
    });
}

TEST_F(EntryChainTest, AFatThatTheChartLacksHasNoRateAndIsNotSaved)
{
    AtTheFat([this](Clerk& clerk) {
        Type(clerk, "20{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "0.00");
        EXPECT_EQ(Focus(clerk), "txtRate");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_TRUE(Books().isEmpty());
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(EntryChainTest, SavingWithoutAnAmountGoesBackToTheNumber)
{
    AtTheFat([this](Clerk& clerk) {
        Type(clerk, "20");
        clerk.Press("cmdGo");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "0.00");
        EXPECT_TRUE(Books().isEmpty());
    });
}

TEST_F(EntryChainTest, WithoutAChartTheLineIsGivenUpAndTheShiftOpenedAnew)
{
    AtTheFat([this](Clerk& clerk) {
        Run("delete * from FatDates");
        AddMorningDelivery(6);
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "7");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "txtFat"), "");
        EXPECT_EQ(Books().size(), 1);
    });
}

TEST_F(EntryChainTest, AChartWhoseTableIsGoneEndsTheProgram)
{
    AtTheFat([this](Clerk& clerk) {
        gCn.RunScript("drop table Fat010426");
        Type(clerk, "4.5{ENTER}");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
}

TEST_F(EntryChainTest, TheLastFatOfTheSameShiftAndAnimalIsOffered)
{
    const QString rama = "rama";
    const QString cow = "gaaya";
    AddDelivery("13/04/2026", "sakaL", 9, 1, rama, cow, 5, 3.1, 30, 150);
    AddDelivery("14/04/2026", "sakaL", 1, 1, rama, cow, 5, 4.1, 30, 150);
    AddDelivery("14/04/2026", "sakaL", 2, 1, rama, cow, 5, 4.2, 30, 150);
    AddDelivery("14/04/2026", "saMQyaakaL", 3, 1, rama, cow, 5, 4.9, 30, 150);
    AddDelivery("16/04/2026", "sakaL", 1, 1, rama, cow, 5, 5.9, 30, 150);
    AddDelivery("14/04/2026", "sakaL", 4, 1, rama, "mhOsa", 5, 8, 49, 245);
    AddDelivery("14/04/2026", "sakaL", 5, 2, "saIta", cow, 5, 6, 30, 150);
    AtTheFat([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.2");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_F(EntryChainTest, AnOfferedFatIsSelectedSoThatTypingReplacesIt)
{
    AddDelivery("14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4.2, 30, 150);
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "4.5");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

TEST_F(EntryChainTest, WithAFatTesterNoFatIsOffered)
{
    Set("AutoFat", "haoya");
    AddDelivery("14/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4.2, 30, 150);
    AtTheFat([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtFat"), "0"); });
}

TEST_F(EntryChainTest, AnExistingRowKeepsItsOwnFat)
{
    AddMorningDelivery(1);
    AddDelivery("15/04/2026", "sakaL", 2, 1, "rama", "gaaya", 5, 4.2, 30, 150);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

// Rate and amount

TEST_F(EntryChainTest, ARateOfExactlySixtyPasses)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}60.00{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        EXPECT_EQ(Reads(clerk, "txtRate"), "60.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "120.00");
    });
}

TEST_F(EntryChainTest, ARateOfZeroOrAboveSixtyKeepsTheFocus)
{
    AtTheFat([](Clerk& clerk) {
        Type(clerk, "4.5{ENTER}");
        for (const auto& [typed, rate, amount] :
            {std::tuple("60.01", "60.01", "120.02"), {"0", "0.00", "0.00"}, {"100", "100.00", "200.00"}}) {
            clerk.Type(QString::fromLatin1(typed) + "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtRate") << typed;
            EXPECT_EQ(Reads(clerk, "txtRate"), rate) << typed;
            EXPECT_EQ(Reads(clerk, "txtAmount"), amount) << typed;
        }
    });
}

TEST_F(EntryChainTest, ARateOverAFatThatRoundsToZeroIsNotTested)
{
    AtTheFat([this](Clerk& clerk) {
        Type(clerk, "0.04{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0.0");
        EXPECT_EQ(Reads(clerk, "txtRate"), "0.00");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_TRUE(Books().isEmpty());
    });
}

TEST_F(EntryChainTest, TheAmountRoundsHalfAPaisaUp)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "1.5{ENTER}4.5{ENTER}24.35{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "36.53");
    });
}

TEST_F(EntryChainTest, TheAmountGoesByTheRoundedFigures)
{
    AtTheLitres([](Clerk& clerk) {
        Type(clerk, "9.9995{ENTER}4.5{ENTER}33.335{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "10.000");
        EXPECT_EQ(Reads(clerk, "txtRate"), "33.34");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "333.40");
    });
}

TEST_F(EntryChainTest, TheColoursAreThoseOfTheCounter)
{
    InTheMorning([](Clerk& clerk) {
        const auto background = [&](const char* field) {
            return clerk.Top()
                .Find(QString::fromLatin1(field))
                ->Widget()
                ->palette()
                .color(QPalette::Base)
                .name();
        };
        EXPECT_EQ(background("txtCollectionNo"), "#ffc0c0");
        EXPECT_EQ(background("txtMemberNo"), "#afbfc9");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(background("txtCollectionNo"), "#afbfc9");
        EXPECT_EQ(background("txtMemberNo"), "#ffc0c0");
    });
}

}

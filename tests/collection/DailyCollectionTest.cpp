// The fields of the daily collection.

#include "tests/collection/DailyCollectionTest.h"

TEST_F(DailyCollectionTest, OpensIdleWithItsTitleAndNothingToEnter)
{
    InTheOffice([](Clerk& clerk) {
        ExpectIdle(clerk, "cmdAdd");
        EXPECT_EQ(clerk.Top().Title().Text(), "  raojacao saBaasadanausaar duQa saMklana");
        EXPECT_EQ(Label(clerk, "lblAcYear"), "2026-2027");
        EXPECT_FALSE(CanEnter(clerk, "DataGrid1"));
    });
}

TEST_F(DailyCollectionTest, AddingOpensAllFieldsAndOnlySaveAndCancel)
{
    Adding([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&saovh");
        for (const char* field : Fields)
            EXPECT_TRUE(CanEnter(clerk, field)) << field;
        for (const char* button : {"cmdModify", "cmdDelete", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, button)) << button;
        EXPECT_TRUE(CanEnter(clerk, "cmdAdd"));
        EXPECT_TRUE(CanEnter(clerk, "cmdCancel"));
    });
}

TEST_F(DailyCollectionTest, TheCalculatorAndTheKeyboardTutorAreAtHand)
{
    Adding([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, Of({"C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"}));
        Type(clerk, "{F12}");
        EXPECT_EQ(clerk.ScreenName(), "frmKeyboardTutor");
    });
}

TEST_F(DailyCollectionTest, EscClosesInEveryState)
{
    for (const char* keys : {"{ESC}", "%n{ESC}", "%d{ESC}", "%k{ESC}", "%n1{ENTER}{ESC}"})
        After(keys, [keys](Clerk& clerk) { EXPECT_EQ(clerk.ScreenName(), QString()) << keys; });
}

TEST_F(DailyCollectionTest, EscClearsTheFieldsBeforeItCloses)
{
    Failure = TheClerk.Play(
        [] {
            frmDailyCollection screen;
            screen.ShowModal();
            EXPECT_EQ(screen.Find(u"txtMemberNo")->Text(), QString());
            EXPECT_EQ(screen.Find(u"cmbMemberName")->Text(), QString());
        },
        [](Clerk& clerk) {
            Type(clerk, "%n1{ENTER}");
            ASSERT_EQ(Reads(clerk, "cmbMemberName"), "rama");
            Type(clerk, "{ESC}");
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
}

TEST_F(DailyCollectionTest, TheExitButtonClosesWhenIdle)
{
    After("%b", [](Clerk& clerk) { EXPECT_EQ(clerk.ScreenName(), QString()); });
}

// Member

TEST_F(DailyCollectionTest, ANumberShowsItsMemberAndHisAnimal)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbMemberName");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "saIta");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
    });
}

TEST_F(DailyCollectionTest, AnotherSpellingOfANameIsTheMember)
{
    AddMember(8, "maa$tI", "gaaya");
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}maarutI{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "maa$tI");
    });
}

TEST_F(DailyCollectionTest, ATextThatIsNoNumberIsEmptied)
{
    Adding([](Clerk& clerk) {
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"txtMemberNo")).SetText("1a"); });
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "");
        EXPECT_EQ(Focus(clerk), "cmbMemberName");
    });
}

TEST_F(DailyCollectionTest, AMemberOfBothLeavesTheAnimalToTheClerk)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "3{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
        Type(clerk, "+{TAB}1{ENTER}+{TAB}3{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "gaNaoSa");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya") << "what stands there is left";
    });
}

TEST_F(DailyCollectionTest, AnUnknownNumberShowsNoNameOfAnother)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "1{ENTER}+{TAB}77{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "77");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "");
    });
}

TEST_F(DailyCollectionTest, ANameFindsItsNumberAndItsAnimal)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}saIta{ENTER}");
        EXPECT_EQ(Focus(clerk), "MasKCollectionDate");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
    });
}

TEST_F(DailyCollectionTest, ANameCanBePickedFromTheListInOrder)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}{DOWN}{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
    });
}

TEST_F(DailyCollectionTest, ANameThatIsNobodysGivesWayToThatOfTheNumber)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "1{ENTER}raja{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "rama");
    });
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}raja{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "");
    });
}

TEST_F(DailyCollectionTest, TheNameTakesDigitsAndApostrophes)
{
    AddMember(8, "saIta 2");
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}s'a1I2ta");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "s'a1I2ta");
        Type(clerk, "^asaIta 2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
    });
}

TEST_F(DailyCollectionTest, AnApostropheInTheNameFailsTheSaveAndNothingIsWritten)
{
    gCn.RunScript("update MembersMaster set MemberName='ra''ma' where MemberNo=1");
    const QStringList before = Days();
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}ra'ma{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        Type(clerk, "15042026{ENTER}1{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
    EXPECT_TRUE(Failure->Statement().contains("'ra'ma'")) << Failure->what();
    EXPECT_EQ(Days(), before);
}

TEST_F(DailyCollectionTest, OfTwoNamesakesTheOneOfTheNumberStays)
{
    AddMember(8, "rama", "mhOsa");
    Adding([](Clerk& clerk) {
        Type(clerk, "8{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "8");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
    });
}

// Day

TEST_F(DailyCollectionTest, ABadDateKeepsTheFocusWithoutAMessage)
{
    for (const char* date : {"{ENTER}", "31022026{ENTER}", "25132026{ENTER}", "1504{ENTER}"}) {
        Adding([&](Clerk& clerk) {
            Type(clerk, "1{ENTER}{ENTER}");
            Type(clerk, date);
            EXPECT_EQ(Focus(clerk), "MasKCollectionDate") << date;
            EXPECT_EQ(clerk.ScreenName(), "frmDailyCollection");
            EXPECT_TRUE(TheBox.Shown.isEmpty());
        });
    }
}

TEST_F(DailyCollectionTest, TheShiftMustBeOneOfTheTwoWords)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        Type(clerk, "saka{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        Type(clerk, "sakaL{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "sakaL");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
}

TEST_F(DailyCollectionTest, TheShiftComesByItsFigureOrFromItsList)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}15042026{ENTER}2");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "saMQyaakaL");
        Type(clerk, "1");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "sakaL");
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "saMQyaakaL");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
}

TEST_F(DailyCollectionTest, TheSeriesOfADayRunsOverBothShiftsOfTheCompany)
{
    AddMorningDelivery(4);
    AddDelivery("15/04/2026", "saMQyaakaL", 6, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    AddDelivery("16/04/2026", "sakaL", 90, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo) "
        "values(2,'15/04/2026','sakaL',50)");
    AddingFor(3, [](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "7"); });
}

TEST_F(DailyCollectionTest, TheFirstNumberOfADayIsOne)
{
    AddingFor(3, [](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1"); });
}

// Milk

TEST_F(DailyCollectionTest, TheAnimalComesByItsKeysAndMustNotBeEmpty)
{
    AddingFor(3, [](Clerk& clerk) {
        Type(clerk, "{ENTER}3a{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        Type(clerk, "2");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "mhOsa");
        Type(clerk, "1{BS}x");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
    });
}

TEST_F(DailyCollectionTest, WithoutLitresTheFocusStaysAndTheyAreNotReformatted)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "0.000{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "{HOME}+{END}5.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.5");
    });
}

TEST_F(DailyCollectionTest, LitresWithoutAnAnimalGoBackToIt)
{
    AddingFor(3, [](Clerk& clerk) {
        clerk.Press("txtLiters");
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
}

TEST_F(DailyCollectionTest, FatWithoutLitresGoesBackToThem)
{
    AddingFor(1, [](Clerk& clerk) {
        clerk.Press("txtFat");
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        Type(clerk, "1.2.3{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat") << "they begin with a number";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters") << "but they are none";
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
    });
}

TEST_F(DailyCollectionTest, AFatThatIsNoneBecomesZeroAndHoldsTheFocus)
{
    for (const char* fat : {"{BS}", "0.0", ".", "4.5.1"}) {
        AddingFor(1, [&](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}5{ENTER}");
            Type(clerk, fat);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat") << fat;
            EXPECT_EQ(Reads(clerk, "txtFat"), "0") << fat;
        });
    }
}

TEST_F(DailyCollectionTest, AFatOfThirtyPassesAndOneAboveIsReformattedAndHoldsTheFocus)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}");
        for (const auto& [typed, shown] : {std::pair("30.14{ENTER}", "30.1"), {"30.04{ENTER}", "30.0"}}) {
            Type(clerk, typed);
            EXPECT_EQ(Focus(clerk), "txtFat") << typed;
            EXPECT_EQ(Reads(clerk, "txtFat"), shown);
            EXPECT_EQ(Reads(clerk, "txtRate"), "0") << "nothing is priced";
        }
        Type(clerk, "30{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtFat"), "30.0");
    });
}

TEST_F(DailyCollectionTest, TheFatIsPricedByTheChartAndGoesOnToTheSaveButton)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5.25{ENTER}4.46{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "183.75");
    });
}

TEST_F(DailyCollectionTest, ShiftTabLeadsBackThroughTheFigures)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        for (const char* field : {"txtAmount", "txtRate", "txtFat", "txtLiters", "txtAnimal"}) {
            Type(clerk, "+{TAB}");
            EXPECT_EQ(Focus(clerk), field);
        }
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175.00");
    });
}

TEST_F(DailyCollectionTest, WithoutAChartTheFocusStaysAndTheSharedFlagIsSet)
{
    Run("delete * from FatDates");
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(gAppState.gCallerTag, "1");
        EXPECT_EQ(Reads(clerk, "txtRate"), "0");
    });
}

TEST_F(DailyCollectionTest, ARateHasNoUpperLimitAndLeadsToTheSaveButton)
{
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        Type(clerk, "60.01{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtRate"), "60.01");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "300.05");
        Type(clerk, "+{TAB}+{TAB}.{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "0");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "0.00");
    });
}

TEST_F(DailyCollectionTest, TheAmountCanBeOvertyped)
{
    AddingFor(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}+{TAB}170{ENTER}{ENTER}");
        EXPECT_EQ(Days(), Of({"15/04/2026|sakaL|1|1|gaaya|5|4.5|35|170"}));
        Type(clerk, "5{ENTER}4.5{ENTER}+{TAB}.{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "0");
    });
}

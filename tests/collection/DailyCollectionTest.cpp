// The fields of the daily collection and the adding of rows.

#include "DailyCollectionTest.h"

TEST_F(DailyCollectionTest, OpensIdleWithItsTitleAndNothingToEnter)
{
    InTheOffice([](Clerk& clerk) {
        ExpectIdle(clerk, "cmdAdd");
        EXPECT_EQ(clerk.Top().Title().Text(), QStringLiteral("  raojacao saBaasadanausaar duQa saMklana"));
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
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
    });
}

TEST_F(DailyCollectionTest, EscClosesInEveryState)
{
    for (const char* keys : {"{ESC}", "%n{ESC}", "%d{ESC}", "%k{ESC}", "%n1{ENTER}{ESC}"})
        After(keys, [keys](Clerk& clerk) { EXPECT_EQ(clerk.ScreenName(), QString()) << keys; });
}

TEST_F(DailyCollectionTest, EscClearsTheFieldsBeforeItCloses)
{
    TheClerk.Play(
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

TEST_F(DailyCollectionTest, ATextThatIsNoNumberIsEmptied)
{
    Adding([](Clerk& clerk) {
        clerk.Do(
            [&] { dynamic_cast<Field&>(*clerk.Top().Find(u"txtMemberNo")).SetText(QStringLiteral("1a")); });
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

TEST_F(DailyCollectionTest, ApostrophesAndDigitsAreDroppedFromTheName)
{
    Adding([](Clerk& clerk) {
        Type(clerk, "{ENTER}s'a1I2ta");
        EXPECT_EQ(Reads(clerk, "cmbMemberName"), "saIta");
    });
}

TEST_F(DailyCollectionTest, OfTwoNamesakesTheOneOfTheNumberStays)
{
    AddMember(8, QStringLiteral("rama"), QStringLiteral("mhOsa"));
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
            EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmDailyCollection"));
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
    AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("saMQyaakaL"), 6, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    AddDelivery(QStringLiteral("16/04/2026"), QStringLiteral("sakaL"), 90, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    Run(QStringLiteral("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo) "
                       "values(2,'15/04/2026','sakaL',50)"));
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
        clerk.Press(QStringLiteral("txtLiters"));
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
    });
}

TEST_F(DailyCollectionTest, FatWithoutLitresGoesBackToThem)
{
    AddingFor(1, [](Clerk& clerk) {
        clerk.Press(QStringLiteral("txtFat"));
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
        Type(clerk, "{ENTER}{ENTER}5{ENTER}30.14{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "30.1");
        EXPECT_EQ(Reads(clerk, "txtRate"), "0") << "nothing is priced";
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
    Run(QStringLiteral("delete * from FatDates"));
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(gAppState.gCallerTag, QStringLiteral("1"));
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

// Saving

TEST_F(DailyCollectionTest, ASaveWritesTheRowAndNothingBesideIt)
{
    const QString members = QStringLiteral("select MemberNo,ClosingBalance,ClosingDorC,CowClosingLits,"
                                           "BuffClosingLits from MembersMaster");
    Set("PurchaseEntry", "Collection");
    const QStringList before = Rows(members);
    AddingFor(1, [&](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5.250{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Rows(QStringLiteral("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                                      "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime "
                                      "from MilkCollections")),
            Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5.25|4.5|35|183.75|NULL|NULL"}));
        EXPECT_EQ(Rows(members), before);
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(One(QStringLiteral("select count(*) as n from MilkReceipt")), QStringLiteral("0"));
        EXPECT_TRUE(Printed.empty());
    });
}

TEST_F(DailyCollectionTest, AfterASaveTheNextDayIsReadyAtTheLitres)
{
    AddDelivery(QStringLiteral("16/04/2026"), QStringLiteral("saMQyaakaL"), 3, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&saovh");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "cmbCollectionTime"), "sakaL");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "gaaya");
        EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "16/04/2026");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "4") << "the series of the next day, both shifts together";
        for (const char* figure : {"txtLiters", "txtFat", "txtRate", "txtAmount"})
            EXPECT_EQ(Reads(clerk, figure), "") << figure;
    });
}

TEST_F(DailyCollectionTest, TheLastDayOfAMonthStepsIntoTheNext)
{
    After("%n1{ENTER}{ENTER}29042026{ENTER}1{ENTER}{ENTER}{ENTER}", [this](Clerk& clerk) {
        Type(clerk, "1{ENTER}4.5{ENTER}{ENTER}2{ENTER}4.5{ENTER}{ENTER}3{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Days(),
            Of({"29/04/2026|sakaL|1|1|gaaya|1|4.5|35|35", "30/04/2026|sakaL|1|1|gaaya|2|4.5|35|70",
                "01/05/2026|sakaL|1|1|gaaya|3|4.5|35|105"}));
        EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "02/05/2026");
    });
}

TEST_F(DailyCollectionTest, ASecondRowOfOneShiftAndAnimalIsRefusedWhateverTheSettingSays)
{
    AddMorningDelivery(9);
    for (const char* repeat : {"haoya", "naahI"}) {
        Set("RepeatCollection", repeat);
        TheBox.Shown.clear();
        AddingFor(1, [&](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}6{ENTER}4.5{ENTER}{ENTER}");
            EXPECT_EQ(TheBox.Shown, Of({"Duplicate record not allowed"}));
            EXPECT_EQ(Focus(clerk), "cmdAdd");
            EXPECT_EQ(Reads(clerk, "txtLiters"), "6");
            EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "15/04/2026");
            EXPECT_EQ(Books().size(), 1) << repeat;
        });
    }
}

TEST_F(DailyCollectionTest, TheOtherAnimalAndTheOtherShiftAreNoDuplicates)
{
    for (const char* keys :
        {"1{ENTER}{ENTER}1{ENTER}", "1{ENTER}{ENTER}2{ENTER}", "2{ENTER}{ENTER}1{ENTER}"}) {
        After("%n3{ENTER}{ENTER}15042026{ENTER}", [&](Clerk& clerk) {
            Type(clerk, keys);
            Type(clerk, "5{ENTER}8{ENTER}{ENTER}");
        });
    }
    EXPECT_TRUE(TheBox.Shown.isEmpty());
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(DailyCollectionTest, ARowEnteredHereIsNotInTheCountersCopyUntilItsShiftIsLoaded)
{
    AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("sakaL"), 4, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    InTheMorning([this](Clerk&) { EXPECT_EQ(Copy(), Books()); });
    const QStringList before = Copy();
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    EXPECT_EQ(Books().size(), 2);
    EXPECT_EQ(Copy(), before);
    InTheMorning([this](Clerk&) {
        EXPECT_EQ(Copy().size(), 2);
        EXPECT_EQ(Copy(), Books());
    });
}

TEST_F(DailyCollectionTest, ACounterThatStaysOpenDoesNotSeeARowEnteredHereUntilItsShiftIsLeftAgain)
{
    AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("sakaL"), 4, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    InTheMorning([this](Clerk& clerk) {
        const QStringList before = Copy();
        OverTheCounter(
            clerk, "%n1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}{ESC}");
        ASSERT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections"));
        ASSERT_EQ(Books().size(), 2);
        const auto expectUnseen = [&](const char* when) {
            EXPECT_EQ(Copy(), before) << when;
            EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1) << when;
            EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "0.000") << when;
        };
        expectUnseen("as the counter comes back");
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "") << "number 5 is no row of the shift that is open";
        clerk.Press(QStringLiteral("txtCollectionNo"));
        expectUnseen("after a look at its number");
        clerk.Press(QStringLiteral("txtTime"));
        expectUnseen("before the shift is left");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Copy(), Books());
        EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 2);
        EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "5.000");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6");
    });
}

TEST_F(DailyCollectionTest, TheCountersSeriesContinuesFromANumberMadeHere)
{
    AddDelivery(QStringLiteral("15/04/2026"), QStringLiteral("saMQyaakaL"), 4, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "6"); });
}

TEST_F(DailyCollectionTest, AnEarlySaveGoesToTheFieldThatIsMissing)
{
    const std::pair<const char*, const char*> early[] = {{"%s", "txtMemberNo"},
        {"77{ENTER}%s", "cmbMemberName"}, {"1{ENTER}%s", "MasKCollectionDate"},
        {"3{ENTER}{ENTER}15042026{ENTER}1{ENTER}{BS}%s", "txtCollectionNo"},
        {"3{ENTER}{ENTER}15042026{ENTER}1{ENTER}%s", "txtAnimal"},
        {"1{ENTER}{ENTER}15042026{ENTER}1{ENTER}%s", "txtLiters"},
        {"1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}5%s", "txtFat"}};
    for (const auto& [keys, field] : early) {
        Adding([&](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Focus(clerk), field) << keys;
        });
        EXPECT_FALSE(Failure) << keys;
    }
    EXPECT_TRUE(Books().isEmpty());
}

TEST_F(DailyCollectionTest, AStatementThatFailsChangesNothing)
{
    AddMember(5, QStringLiteral("o''k"), QStringLiteral("gaaya"));
    AddingFor(5, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Books().isEmpty());
}

// The number of a new row

TEST_F(DailyCollectionTest, ADayOrShiftThatCameAfterTheNumberGetsItsOwnBeforeTheRowIsSaved)
{
    AddDelivery(QStringLiteral("18/04/2026"), QStringLiteral("sakaL"), 4, 2, QStringLiteral("saIta"),
        QStringLiteral("mhOsa"), 2, 8, 49, 98);
    AddingFor(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        for (int step = 0; step < 8; ++step)
            Type(clerk, "+{TAB}");
        ASSERT_EQ(Focus(clerk), "MasKCollectionDate");
        Type(clerk, "18042026%s");
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        EXPECT_EQ(Books().size(), 1);
        Type(clerk, "%s");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "5");
        EXPECT_EQ(Focus(clerk), "txtFat") << "the other day has its own rate";
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(
            Days(), Of({"18/04/2026|sakaL|4|2|mhOsa|2|8|49|98", "18/04/2026|sakaL|5|1|gaaya|5|4.5|35|175"}));
    });
}

TEST_F(DailyCollectionTest, ATypedNumberStandsForTheDayThatItWasTypedFor)
{
    AddingFor(1, [this](Clerk& clerk) {
        Type(clerk, "40{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Days(), Of({"15/04/2026|sakaL|40|1|gaaya|5|4.5|35|175"}));
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        Type(clerk, "1");
        Change(clerk, "MasKCollectionDate", "20042026");
        Change(clerk, "txtCollectionNo", "7{ENTER}{ENTER}6{ENTER}4.5{ENTER}{ENTER}");
        ASSERT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Days(),
            Of({"15/04/2026|sakaL|40|1|gaaya|5|4.5|35|175", "20/04/2026|sakaL|7|1|gaaya|6|4.5|35|210"}));
        Type(clerk, "1");
        Change(clerk, "MasKCollectionDate", "22042026");
        Change(clerk, "txtLiters", "5{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        EXPECT_EQ(Books().size(), 2);
    });
}

TEST_F(DailyCollectionTest, TheDayOfAPickedRowHasThatRowsNumberAndAnotherDayHasNot)
{
    AddMorningDelivery(5);
    Adding([](Clerk& clerk) {
        Type(clerk, "1{F5}{ENTER}{ENTER}");
        ASSERT_EQ(Reads(clerk, "txtLiters"), "5");
        Type(clerk, "%s");
        EXPECT_NE(Focus(clerk), "cmbCollectionTime") << "its number is its own";
    });
    EXPECT_EQ(TheBox.Shown, Of({"Duplicate record not allowed"}));
    Adding([this](Clerk& clerk) {
        Type(clerk, "1{F5}{ENTER}{ENTER}");
        Change(clerk, "MasKCollectionDate", "17042026%s");
        EXPECT_EQ(Focus(clerk), "cmbCollectionTime");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "1");
        EXPECT_EQ(Books().size(), 1);
    });
}

TEST_F(DailyCollectionTest, ANumberBeyondTheCountersIsNotSaved)
{
    for (const char* number : {"0", "32767", "99999", "123456"}) {
        AddingFor(1, [&](Clerk& clerk) {
            Type(clerk, number);
            Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtCollectionNo") << number;
            EXPECT_EQ(Label(clerk, "lblGuide"), "1 ते 32766");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), number);
            EXPECT_TRUE(Books().isEmpty()) << number;
        });
    }
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "32766{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    EXPECT_EQ(Days(), Of({"15/04/2026|sakaL|32766|1|gaaya|5|4.5|35|175"}));
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "32767"); });
    EXPECT_FALSE(Failure) << "the counter opens the shift";
}

TEST_F(DailyCollectionTest, ANumberBeyondTheCountersThatIsInTheBooksCanBeDeletedHere)
{
    AddMorningDelivery(123456);
    After("%k1{ENTER}{ENTER}15042026{ENTER}1{ENTER}123456{ENTER}", [this](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        Type(clerk, "{ENTER}");
        EXPECT_TRUE(Books().isEmpty());
    });
}

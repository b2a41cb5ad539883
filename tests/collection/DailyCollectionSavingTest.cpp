// The saving of new rows of the daily collection, and their numbers.

#include "tests/collection/DailyCollectionTest.h"

// Saving

TEST_F(DailyCollectionTest, ASaveWritesTheRowAndNothingBesideIt)
{
    const QString members = "select MemberNo,ClosingBalance,ClosingDorC,CowClosingLits,"
                            "BuffClosingLits from MembersMaster";
    Set("PurchaseEntry", "Collection");
    const QStringList before = Rows(members);
    AddingFor(1, [&](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5.250{ENTER}4.5{ENTER}{ENTER}");
        EXPECT_EQ(Rows("select CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                       "MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime "
                       "from MilkCollections"),
            Of({"1|15/04/2026|sakaL|1|1|rama|gaaya|5.25|4.5|35|183.75|NULL|NULL"}));
        EXPECT_EQ(Rows(members), before);
        EXPECT_TRUE(Copy().isEmpty());
        EXPECT_EQ(One("select count(*) as n from MilkReceipt"), "0");
        EXPECT_TRUE(Printed.empty());
    });
}

TEST_F(DailyCollectionTest, AfterASaveTheNextDayIsReadyAtTheLitres)
{
    AddDelivery("16/04/2026", "saMQyaakaL", 3, 2, "saIta", "mhOsa", 2, 8, 49, 98);
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
    AddDelivery("15/04/2026", "sakaL", 4, 2, "saIta", "mhOsa", 2, 8, 49, 98);
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
    AddDelivery("15/04/2026", "sakaL", 4, 2, "saIta", "mhOsa", 2, 8, 49, 98);
    InTheMorning([this](Clerk& clerk) {
        const QStringList before = Copy();
        OverTheCounter(
            clerk, "%n1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}{ESC}");
        ASSERT_EQ(clerk.ScreenName(), "frmMilkCollections");
        ASSERT_EQ(Books().size(), 2);
        const auto expectUnseen = [&](const char* when) {
            EXPECT_EQ(Copy(), before) << when;
            EXPECT_EQ(Grid(clerk, "DataGridInwards").Rows(), 1) << when;
            EXPECT_EQ(Label(clerk, "lblTotalCowLiters"), "0.000") << when;
        };
        expectUnseen("as the counter comes back");
        Type(clerk, "5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "") << "number 5 is no row of the shift that is open";
        clerk.Press("txtCollectionNo");
        expectUnseen("after a look at its number");
        clerk.Press("txtTime");
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
    AddDelivery("15/04/2026", "saMQyaakaL", 4, 2, "saIta", "mhOsa", 2, 8, 49, 98);
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
    AddMember(5, "ok", "gaaya");
    gCn.RunScript("update MembersMaster set MemberName='o''k' where MemberNo=5");
    AddingFor(5, [](Clerk& clerk) { Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Books().isEmpty());
}

// The number of a new row

TEST_F(DailyCollectionTest, ADayOrShiftThatCameAfterTheNumberGetsItsOwnBeforeTheRowIsSaved)
{
    AddDelivery("18/04/2026", "sakaL", 4, 2, "saIta", "mhOsa", 2, 8, 49, 98);
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
            EXPECT_EQ(Label(clerk, "lblGuide"), "हा क्रमांक चालत नाही : 1 ते 32766    Alt+R : रद्द");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), number);
            EXPECT_TRUE(Books().isEmpty()) << number;
        });
    }
    AddingFor(1, [](Clerk& clerk) { Type(clerk, "32766{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}"); });
    EXPECT_EQ(Days(), Of({"15/04/2026|sakaL|32766|1|gaaya|5|4.5|35|175"}));
    InTheMorning([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "32767"); });
    EXPECT_FALSE(Failure) << "the counter opens the shift";
}

TEST_F(DailyCollectionTest, ANumberThatTheScreenHasProposedItselfIsSaved)
{
    for (const int highest : {32766, 123456}) {
        Run("delete * from MilkCollections");
        AddDelivery("15/04/2026", "saMQyaakaL", highest, 2, "saIta", "mhOsa", 2, 8, 49, 98);
        AddingFor(1, [&](Clerk& clerk) {
            const std::string proposed = std::to_string(highest + 1);
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), proposed);
            Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}{ENTER}");
            EXPECT_EQ(Days().last().toStdString(), "15/04/2026|sakaL|" + proposed + "|1|gaaya|5|4.5|35|175");
        });
    }
}

TEST_F(DailyCollectionTest, ASaveThatIsRefusedSaysWhatIsWanted)
{
    const std::pair<const char*, const char*> refused[] = {{"%s", "मेम्बर नंबर टाका    Alt+R : रद्द"},
        {"77{ENTER}%s", "नाव टाका, किंवा ↓ ने यादीतून निवडा    Alt+R : रद्द"},
        {"1{ENTER}%s", "दिनांक असा टाका : 15/04/2026    Esc : बाहेर"},
        {"1{ENTER}{ENTER}15042026{ENTER}%s", "1 : सकाळ    2 : संध्याकाळ    Esc : बाहेर"},
        {"3{ENTER}{ENTER}15042026{ENTER}1{ENTER}{BS}%s", "संकलन क्रमांक टाका    Alt+R : रद्द"},
        {"3{ENTER}{ENTER}15042026{ENTER}1{ENTER}40000%s", "हा क्रमांक चालत नाही : 1 ते 32766    Alt+R : रद्द"},
        {"3{ENTER}{ENTER}15042026{ENTER}1{ENTER}%s", "1 : गाय    2 : म्हैस    Esc : बाहेर"},
        {"1{ENTER}{ENTER}15042026{ENTER}1{ENTER}%s", "लिटर टाका : 0 पेक्षा जास्त    Alt+R : रद्द"},
        {"1{ENTER}{ENTER}15042026{ENTER}1{ENTER}{ENTER}{ENTER}5%s", "फॅट टाका : 0.1 ते 30.0    Alt+R : रद्द"}};
    for (const auto& [keys, guide] : refused)
        Adding([&, keys = keys, guide = guide](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Label(clerk, "lblGuide"), guide) << keys;
        });
    for (const auto& [field, keys, guide] :
        {std::tuple("txtLiters", "9%s", "नोंद बदलली : Enter ने दर व रक्कम पुन्हा काढा, मग सेव्ह"),
            std::tuple(
                "MasKCollectionDate", "18042026%s", "दिनांक किंवा वेळ बदलली : Enter ने नवा क्रमांक, मग सेव्ह")})
        AddingFor(1, [&, field = field, keys = keys, guide = guide](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
            Change(clerk, field, keys);
            EXPECT_EQ(Label(clerk, "lblGuide"), guide);
        });
    EXPECT_TRUE(Books().isEmpty());
}

TEST_F(DailyCollectionTest, AFieldThatKeepsTheFocusSaysWhatItWants)
{
    const std::pair<const char*, const char*> kept[] = {
        {"{ENTER}{ENTER}0{ENTER}", "लिटर टाका : 0 पेक्षा जास्त    Alt+R : रद्द"},
        {"{ENTER}{ENTER}5{ENTER}0{ENTER}", "फॅट टाका : 0.1 ते 30.0    Alt+R : रद्द"},
        {"{ENTER}{ENTER}5{ENTER}31{ENTER}", "फॅट टाका : 0.1 ते 30.0    Alt+R : रद्द"}};
    for (const auto& [keys, guide] : kept)
        AddingFor(1, [&, keys = keys, guide = guide](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(Label(clerk, "lblGuide"), guide) << keys;
        });
    Run("delete * from FatDates");
    AddingFor(1, [](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}5{ENTER}4.5{ENTER}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "फॅट दराचा तक्ता नाही    Alt+R : रद्द");
    });
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

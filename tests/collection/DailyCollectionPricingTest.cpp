// What the daily collection saves fits together. Rows of other companies, and the title in each mode.

#include "tests/collection/DailyCollectionTest.h"

namespace {

class DailyCollectionPricingTest : public DailyCollectionTest {
protected:
    // Plays with 5 litres of 4.5 entered and priced at 175.00, and the focus on the save button.
    void WithAPricedRow(int member, const std::function<void(Clerk&)>& script)
    {
        AddingFor(member, [&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}5{ENTER}4.5{ENTER}");
            ASSERT_EQ(Focus(clerk), "cmdAdd");
            ASSERT_EQ(Reads(clerk, "txtAmount"), "175.00");
            script(clerk);
        });
    }

    // Plays with number 5 of the 15th loaded for a change, and the focus on its animal.
    void ChangingARow(const std::function<void(Clerk&)>& script)
    {
        After("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}5{ENTER}", script);
    }

    // The row that is keyed by WithAPricedRow, or changed by ChangingARow.
    QStringList Figures() { return Rows("select Liters,Fat,Rate,Amount from MilkCollections"); }
};

}

TEST_F(DailyCollectionPricingTest, LitresThatCameAfterTheAmountArePricedBeforeTheyAreSaved)
{
    for (bool byMouse : {false, true}) {
        Run("delete * from MilkCollections");
        WithAPricedRow(1, [&](Clerk& clerk) {
            Change(clerk, "txtLiters", "9");
            byMouse ? clerk.Press("cmdAdd") : Type(clerk, "%s");
            EXPECT_EQ(Focus(clerk), "txtFat");
            EXPECT_TRUE(Books().isEmpty());
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "cmdAdd");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Figures(), Of({"9|4.5|35|315"}));
        });
    }
}

TEST_F(DailyCollectionPricingTest, AnotherDayOrAnimalIsPricedBeforeItIsSaved)
{
    for (const auto& [field, keys] :
        {std::pair("MasKCollectionDate", "17042026{ENTER}{ENTER}"), std::pair("txtAnimal", "2")}) {
        WithAPricedRow(3, [&, field = field, keys = keys](Clerk& clerk) {
            Change(clerk, field, keys);
            Type(clerk, "%s");
            EXPECT_EQ(Focus(clerk), "txtFat") << field;
            EXPECT_TRUE(Books().isEmpty()) << field;
        });
    }
}

TEST_F(DailyCollectionPricingTest, AFatOrARateIsPricedOnBeingLeftForTheSaveButton)
{
    for (const auto& [field, keys, saved] :
        {std::tuple("txtFat", "4.6", "5|4.6|35.12|175.6"), std::tuple("txtRate", "36", "5|4.5|36|180")}) {
        Run("delete * from MilkCollections");
        WithAPricedRow(1, [&, field = field, keys = keys](Clerk& clerk) {
            Change(clerk, field, keys);
            Type(clerk, "%s");
        });
        EXPECT_EQ(Figures(), Of({saved}));
    }
}

TEST_F(DailyCollectionPricingTest, AFatThatWasEnteredBeforeItsDayIsPricedBeforeItIsSaved)
{
    Adding([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}");
        Change(clerk, "txtLiters", "5{ENTER}4.5{ENTER}");
        ASSERT_EQ(Focus(clerk), "MasKCollectionDate");
        Type(clerk, "15042026{ENTER}1{ENTER}%s");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_TRUE(Books().isEmpty());
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Figures(), Of({"5|4.5|35|175"}));
    });
}

TEST_F(DailyCollectionPricingTest, AnAmountTypedAfterTheFiguresStaysAsTyped)
{
    WithAPricedRow(1, [this](Clerk& clerk) {
        Change(clerk, "txtLiters", "9");
        Change(clerk, "txtAmount", "300%s");
        EXPECT_EQ(Figures(), Of({"9|4.5|35|300"}));
    });
}

TEST_F(DailyCollectionPricingTest, AnAmountTypedBeforeTheFiguresDoesNot)
{
    WithAPricedRow(1, [this](Clerk& clerk) {
        Change(clerk, "txtAmount", "300");
        Change(clerk, "txtLiters", "9%s");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_TRUE(Books().isEmpty());
    });
}

// Changing a row

TEST_F(DailyCollectionPricingTest, ChangedLitresArePricedBeforeTheyAreSaved)
{
    for (bool byMouse : {false, true}) {
        Run("delete * from MilkCollections");
        AddMorningDelivery(5);
        ChangingARow([&](Clerk& clerk) {
            Change(clerk, "txtLiters", "9");
            byMouse ? clerk.Press("cmdModify") : Type(clerk, "%s");
            EXPECT_EQ(Focus(clerk), "txtFat");
            EXPECT_EQ(Figures(), Of({"5|4.5|35|175"}));
            Type(clerk, "{ENTER}{ENTER}{ENTER}");
            ExpectIdle(clerk, "cmdModify");
            EXPECT_EQ(Figures(), Of({"9|4.5|35|315"}));
        });
    }
}

TEST_F(DailyCollectionPricingTest, ARowIsSavedAsItStoodAndWithTheAmountThatIsTyped)
{
    AddMorningDelivery(5);
    Run("update MilkCollections set Amount=171");
    ChangingARow([](Clerk& clerk) {
        Type(clerk, "%s");
        ExpectIdle(clerk, "cmdModify");
    });
    EXPECT_EQ(Figures(), Of({"5|4.5|35|171"}));
    ChangingARow([](Clerk& clerk) { Change(clerk, "txtAmount", "170%s"); });
    EXPECT_EQ(Figures(), Of({"5|4.5|35|170"}));
}

// Other companies

TEST_F(DailyCollectionPricingTest, ARowOfAnotherCompanyIsNoDuplicate)
{
    AddMorningDelivery(5);
    Run("update MilkCollections set CompanyId=2");
    WithAPricedRow(1, [this](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_EQ(
        Rows("select CompanyId,CollectionNo from MilkCollections order by CompanyId"), Of({"1|1", "2|5"}));
}

TEST_F(DailyCollectionPricingTest, ARowOfAnotherCompanyIsShownAndChangedLikeAnyOther)
{
    AddMorningDelivery(5);
    Run("update MilkCollections set CompanyId=2");
    ChangingARow([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
        Type(clerk, "{ENTER}6{ENTER}4.5{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Rows("select CompanyId,Liters,Amount from MilkCollections"), Of({"2|6|210"}));
}

// Title

TEST_F(DailyCollectionPricingTest, TheTitleTellsTheModeAndCancelTakesItBack)
{
    const std::pair<const char*, QString> titles[] = {
        {"%n", " navaIna roka^D-"}, {"%d", " roka^D-maQyao badla"}, {"%k", " roka^D- KaoDNao"}};
    const QString idle = "  raojacao saBaasadanausaar duQa saMklana";
    for (const auto& [keys, title] : titles) {
        After(keys, [&, words = title](Clerk& clerk) {
            EXPECT_EQ(clerk.Top().Title().Text(), QString(idle + words));
            EXPECT_EQ(Label(clerk, "lblTitle"), Seen(idle + words).toStdString());
            Type(clerk, "%r");
            EXPECT_EQ(clerk.Top().Title().Text(), idle);
        });
    }
}

#include "CounterTest.h"

#include "ScreenDirectory.h"

namespace {

// A screen that a key of the counter opens.
class frmOpened final : public Screen {
public:
    explicit frmOpened(const char* name) : Screen(name) { }
};

class CounterKeysTest : public CounterTest {
protected:
    static void Register(const char* name)
    {
        ScreenDirectory::Add(QString::fromLatin1(name), [name] { return std::make_unique<frmOpened>(name); });
    }

    static constexpr const char* MemberLabels[] = {"lblF9", "lblSearch", "lblF7", "lblMilk"};
    static constexpr const char* DeleteLabels[] = {"lblF10", "lblDelete"};
};

TEST_F(CounterKeysTest, F2StartsTheCalculatorInANormalWindow)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, Of({"C:\\Tarvel01\\Vetrolan\\calc.EXE normal"}));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
}

TEST_F(CounterKeysTest, F12OpensTheKeyboardTutor)
{
    AtTheCounter([](Clerk& clerk) {
        Type(clerk, "{F12}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
    });
}

TEST_F(CounterKeysTest, AScreenThatIsNotThereIsAMessageThatNamesItsEntry)
{
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}{F6}");
        ASSERT_EQ(TheBox.Shown.size(), 1);
        EXPECT_TRUE(TheBox.Shown[0].contains(Seen(QStringLiteral("]cala naaoMd"))));
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(CounterKeysTest, F3OpensTheMembersAndTheEntryStays)
{
    Register("frmMembers");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}5{F3}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMembers"));
        Type(clerk, "{ESC}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5");
    });
}

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
    Register("frmSearchCollections");
    AddMorningDelivery(1);
    AddMorningDelivery(2);
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F9}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmSearchCollections"));
        EXPECT_EQ(gAppState.gCallerTag, QStringLiteral("MC"));
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
    Register("frmSearchCollections");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{F9}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections"));
        EXPECT_EQ(gAppState.gCallerTag, QStringLiteral("N"));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
}

TEST_F(CounterKeysTest, TheKeysOfTheMembersNumberDoNothingElsewhere)
{
    AddMorningDelivery(1);
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{F7}{F9}{F10}{F4}");
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMilkCollections"));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
        EXPECT_EQ(Books().size(), 1);
    });
}

}

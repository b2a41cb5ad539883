#include "tests/journeys/Actions.h"
#include "tests/journeys/ProgramTest.h"

#include "collection/frmMilkCollections.h"

namespace {

// What a clerk, a child or a cat can type at the counter. The books of FillBooks; each test says what they
// are after it.
class CounterHostileTest : public ProgramTest {
protected:
    CounterHostileTest()
    {
        FillBooks();
        gAppState.gAppDate = QDate(2026, 4, 15);
    }

    // Plays on the counter with the morning open and the focus on the number.
    void InTheMorning(const std::function<void(Clerk&)>& script)
    {
        On<frmMilkCollections>([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            script(clerk);
        });
    }

    void OnTheDate(const std::function<void(Clerk&)>& script) { On<frmMilkCollections>(script); }

    QStringList Books() { return Rows("select * from MilkCollections"); }

    // Types all kinds of letters and signs into the field in focus, and expects it to stay as it is.
    static void ExpectLettersDropped(Clerk& clerk, const char* field)
    {
        ASSERT_EQ(Focus(clerk), field);
        const std::string before = Reads(clerk, field);
        Type(clerk, "abcXYZeE-,;:/'\"#*&!?=_ कखग");
        EXPECT_EQ(Reads(clerk, field), before) << field;
        EXPECT_EQ(Focus(clerk), field);
    }

    // Keys a date over the one that is proposed, and expects the focus to be held.
    void ExpectDateRefused(const char* keys, const char* shown)
    {
        const QStringList before = Books();
        OnTheDate([&](Clerk& clerk) {
            Type(clerk, keys);
            for (const char* way : {"{ENTER}", "{TAB}", "+{TAB}"}) {
                Type(clerk, way);
                EXPECT_EQ(Focus(clerk), "maskDate") << way;
                EXPECT_EQ(Reads(clerk, "maskDate"), shown);
            }
            EXPECT_FALSE(clerk.CanEnter("txtCollectionNo"));
        });
        EXPECT_FALSE(Failure);
        EXPECT_EQ(Books(), before);
    }
};

constexpr const char* ToFat = "{ENTER}3{ENTER}1{ENTER}5{ENTER}";

}

TEST_F(CounterHostileTest, LettersAreDroppedInEveryNumberField)
{
    InTheMorning([](Clerk& clerk) {
        ExpectLettersDropped(clerk, "txtCollectionNo");
        Type(clerk, "{ENTER}");
        ExpectLettersDropped(clerk, "txtMemberNo");
        Type(clerk, "3{ENTER}1{ENTER}");
        ExpectLettersDropped(clerk, "txtLiters");
        Type(clerk, "5{ENTER}");
        ExpectLettersDropped(clerk, "txtFat");
        Type(clerk, "4.5{ENTER}");
        ExpectLettersDropped(clerk, "txtRate");
        Type(clerk, "{ENTER}{ENTER}");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books().size(), 4);
}

TEST_F(CounterHostileTest, LettersAreDroppedInTheDateAndTheChoices)
{
    OnTheDate([](Clerk& clerk) {
        Type(clerk, "abc'#*");
        EXPECT_EQ(Reads(clerk, "maskDate"), "15/04/2026");
        Type(clerk, "{ENTER}xyz3890'{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTime");
        Type(clerk, "1{ENTER}{ENTER}3{ENTER}xyz3890'{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAnimal");
        EXPECT_EQ(Reads(clerk, "txtAnimal"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, AMemberBeyondTheLastNumberIsNobody)
{
    const QStringList before = AllRows();
    QStringList opened;
    InTheMorning([&](Clerk& clerk) {
        opened = AllRows();
        for (const char* number : {"32767", "32768", "65537", "99999999", "4294967297"}) {
            clerk.Type(QStringLiteral("{ENTER}%1{ENTER}").arg(QLatin1String(number)));
            EXPECT_EQ(Reads(clerk, "txtMemberNo"), "") << number;
            EXPECT_EQ(Reads(clerk, "ComboMemberName"), "") << number;
            EXPECT_EQ(Focus(clerk), "txtMemberNo") << number;
            Type(clerk, "+{TAB}");
        }
    });
    EXPECT_FALSE(Failure);
    EXPECT_NE(before, opened) << "the shift's copy was filled";
    EXPECT_EQ(Difference(opened, AllRows()), "");
}

TEST_F(CounterHostileTest, ANumberBeyondTheSeriesSnapsBack)
{
    InTheMorning([](Clerk& clerk) {
        for (const char* number : {"4", "32768", "99999999", "0"}) {
            clerk.Type(QLatin1String(number) + "{ENTER}");
            EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3") << number;
            if (Focus(clerk) != "txtCollectionNo")
                Type(clerk, "+{TAB}");
        }
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, TheThirtyFirstOfFebruaryIsRefused)
{
    ExpectDateRefused("31022026", "31/02/2026");
}

TEST_F(CounterHostileTest, AThirteenthMonthIsRefused)
{
    ExpectDateRefused("25132026", "25/13/2026");
}

TEST_F(CounterHostileTest, ADayInTheMonthsPlaceIsRefused)
{
    ExpectDateRefused("13252026", "13/25/2026");
}

TEST_F(CounterHostileTest, AnEmptyMaskIsRefused)
{
    ExpectDateRefused("{DEL}", "__/__/____");
}

TEST_F(CounterHostileTest, AHalfDateIsRefused)
{
    ExpectDateRefused("1504", "15/04/____");
}

TEST_F(CounterHostileTest, LitresHaveNineCharactersAtMost)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1{ENTER}");
        clerk.Type(QString(400, u'9'));
        EXPECT_EQ(Reads(clerk, "txtLiters"), "999999999");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, FourHundredDigitsOfFatAreAnOverflow)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, ToFat);
        clerk.Type(QString(400, u'9') + "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(CounterHostileTest, ThreeHundredDigitsOfFatAreRefused)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, ToFat);
        clerk.Type(QString(300, u'9') + "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "175.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, FourHundredDigitsOfRateAreAnOverflow)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, ToFat);
        Type(clerk, "4.5{ENTER}");
        clerk.Type(QString(400, u'1') + "{ENTER}");
    });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::Overflow);
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(CounterHostileTest, FourHundredDigitsOfANumberAreAnOverflow)
{
    for (const char* way : {"", "{ENTER}"}) {
        InTheMorning([way](Clerk& clerk) {
            Type(clerk, way);
            clerk.Type(QString(400, u'7') + "{ENTER}");
        });
        ASSERT_TRUE(Failure) << way;
        EXPECT_EQ(Failure->Number(), RunTimeError::Overflow) << way;
    }
    EXPECT_EQ(Books().size(), 3);
}

TEST_F(CounterHostileTest, ThreeHundredDigitsOfANumberAreNobodys)
{
    InTheMorning([](Clerk& clerk) {
        clerk.Type(QString(300, u'7') + "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        clerk.Type(QString(300, u'7') + "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, ManyPointsReadAsFarAsTheyAreANumber)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}3{ENTER}1{ENTER}5.5.5.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.500");
        Type(clerk, "...{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0.0");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(CounterHostileTest, AnApostropheInANameIsDroppedAndAThousandLettersFindNobody)
{
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}ra'm'1a");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        clerk.Type(QString(1000, u'k'));
        EXPECT_EQ(clerk.Reads("ComboMemberName").size(), 1004);
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMilkCollections");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books().size(), 3);
}

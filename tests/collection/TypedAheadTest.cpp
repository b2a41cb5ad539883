#include "tests/collection/CounterTest.h"

#include "core/start/Program.h"

namespace {

// A clerk who types on without looking up: the keys wait for the counter, not the clerk for the counter.
class TypedAheadTest : public CounterTest {
protected:
    TypedAheadTest()
    {
        for (const int number : {4, 6, 7})
            AddMember(number, QStringLiteral("rama %1").arg(number), "gaaya");
        ShowBoxesInTheWindow(); // where one waits for a key
    }

    // A box that a failing test leaves open would wait for ever.
    static void CloseBox(Clerk& clerk)
    {
        while (IsBoxUp(clerk))
            Type(clerk, "{ENTER}");
    }

    static bool IsBoxUp(const Clerk& clerk) { return clerk.ScreenName() == u"frmPlainBox"; }
};

TEST_F(TypedAheadTest, WhatWasTypedBehindADuplicateIsThrownAwayAndNoOthersRowIsTouched)
{
    Set("RepeatCollection", "naahI");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 4, "5", "4.5");
        Deliver(clerk, 6, "6", "4.5");
        const QStringList before = Books();
        ASSERT_EQ(before.size(), 2);
        clerk.TypeAhead("{ENTER}4{ENTER}5{ENTER}4.0{ENTER}{ENTER}{ENTER}"
                        "{ENTER}2{ENTER}7{ENTER}6.5{ENTER}{ENTER}{ENTER}");
        EXPECT_TRUE(IsBoxUp(clerk)) << "the refusal waits to be read";
        EXPECT_EQ(Books(), before);
        Type(clerk, "{ENTER}");
        EXPECT_FALSE(IsBoxUp(clerk)) << "one Enter closes it";
        CloseBox(clerk);
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_EQ(Books(), before);
    });
}

TEST_F(TypedAheadTest, TheNoticeOfAnEmptyNameTakesNoneOfTheKeysBehindIt)
{
    InTheMorning([](Clerk& clerk) {
        clerk.TypeAhead("{ENTER}{ENTER}{ENTER}{ENTER}4{ENTER}5{ENTER}");
        EXPECT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
    });
}

TEST_F(TypedAheadTest, AShiftTypedInOneGoIsTakenKeyByKey)
{
    Set("RepeatCollection", "haoya");
    AtTheCounter([this](Clerk& clerk) {
        QString keys = "{ENTER}1{ENTER}";
        for (int row = 1; row <= 20; ++row)
            keys += QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}4.5{ENTER}{ENTER}{ENTER}")
                        .arg(row % 2 == 0 ? 4 : 6)
                        .arg(row);
        clerk.TypeAhead(keys);
        CloseBox(clerk);
        const QStringList books = Books();
        ASSERT_EQ(books.size(), 20);
        EXPECT_EQ(books.first(), "1|6|rama 6|gaaya|1|4.5|35|35");
        EXPECT_EQ(books.last(), "20|4|rama 4|gaaya|20|4.5|35|700");
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
    });
}

TEST_F(TypedAheadTest, WhatIsTypedAheadOfAnotherScreenReachesIt)
{
    InTheMorning([](Clerk& clerk) {
        clerk.TypeAhead("{ENTER}4{ENTER}{F12}abc");
        EXPECT_EQ(clerk.ScreenName(), "frmKeyboardTutor");
        EXPECT_EQ(Reads(clerk, "txtEnglish"), "abc");
        CloseBox(clerk);
    });
}

}

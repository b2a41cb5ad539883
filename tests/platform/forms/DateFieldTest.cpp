#include "platform/forms/DateField.h"
#include "tests/platform/forms/FieldTest.h"

namespace {

class DateFieldTest : public FieldTest<DateField> {
protected:
    static std::unique_ptr<DateField> Make(Screen* screen)
    {
        return std::make_unique<DateField>(screen, "maskDate");
    }

    // Types from where the clerk comes in: the whole mask is selected.
    std::string Entered(DateField& field, const char* keys, const char* before = "")
    {
        Do([&] {
            field.SetText(Q(before));
            field.SelectAll();
        });
        Type(keys);
        return Text(field);
    }

    void ExpectTyped(const std::vector<std::pair<const char*, const char*>>& cases, const char* before = "")
    {
        With(Make, [&](DateField& field) {
            for (const auto& [keys, mask] : cases)
                EXPECT_EQ(Entered(field, keys, before), mask) << "after " << keys;
        });
    }
};

TEST_F(DateFieldTest, TheEmptyMask)
{
    With(Make, [&](DateField& field) {
        EXPECT_EQ(Text(field), "__/__/____");
        EXPECT_TRUE(field.IsEmptyMask());
        EXPECT_FALSE(field.HoldsDate());
        EXPECT_FALSE(field.IsEmpty());
        EXPECT_THROW(field.Date(), RunTimeError);
    });
}

TEST_F(DateFieldTest, DigitsFillTheMaskAndStepOverTheSlashes)
{
    ExpectTyped({{"1", "1_/__/____"}, {"15", "15/__/____"}, {"150", "15/0_/____"}, {"1504", "15/04/____"},
        {"150420", "15/04/20__"}, {"15042026", "15/04/2026"}});
}

TEST_F(DateFieldTest, SlashPointAndDashMayBeTypedToo)
{
    ExpectTyped({{"15/04/2026", "15/04/2026"}, {"15.04.2026", "15/04/2026"}, {"15-04-2026", "15/04/2026"}});
}

TEST_F(DateFieldTest, ASlashEndsADayOrAMonthEarly)
{
    ExpectTyped({{"1/4/2026", "01/04/2026"}, {"1/12/2026", "01/12/2026"}, {"12/4/2026", "12/04/2026"},
        {"1.4.2026", "01/04/2026"}, {"1/", "01/__/____"}, {"1//", "01/__/____"}, {"1/4/", "01/04/____"}});
}

TEST_F(DateFieldTest, ASlashWithNothingBeforeItIsDropped)
{
    ExpectTyped({{"/", "__/__/____"}, {"{Home}{Right}/", "__/__/____"}, {"1/4/20/26", "01/04/2026"}});
}

TEST_F(DateFieldTest, ASlashInsideAFullPartOnlyStepsOn)
{
    With(Make,
        [&](DateField& field) { EXPECT_EQ(Entered(field, "{Home}{Right}/11", "15/04/2026"), "15/11/2026"); });
}

TEST_F(DateFieldTest, TypingPastTheEndIsDropped)
{
    ExpectTyped({{"150420267", "15/04/2026"}, {"15042026{End}9", "15/04/2026"}});
}

TEST_F(DateFieldTest, LettersAreDroppedAndLeaveTheSelectionAlone)
{
    ExpectTyped({{"1a5 b0'4x2026", "15/04/2026"}});
    With(Make, [&](DateField& field) {
        EXPECT_EQ(Entered(field, "a /", "15/04/2026"), "15/04/2026");
        EXPECT_EQ(Selected(field), "15/04/2026");
    });
}

TEST_F(DateFieldTest, TypingOverTheSelectedDateBeginsAnew)
{
    ExpectTyped({{"2", "2_/__/____"}, {"1/5/2026", "01/05/2026"}}, "15/04/2026");
}

TEST_F(DateFieldTest, EntrySelectsTheWholeMask)
{
    With(Make, [&](DateField& field) {
        Type("15042026");
        EnterAnew();
        EXPECT_EQ(Selected(field), "15/04/2026");
        Type("3");
        EXPECT_EQ(Text(field), "3_/__/____");
    });
}

TEST_F(DateFieldTest, BackspaceStepsBackOverTheSlashes)
{
    ExpectTyped({{"15042026{BS}", "15/04/202_"}, {"150{BS}", "15/__/____"}, {"15{BS}", "1_/__/____"},
        {"15{BS}{BS}", "__/__/____"}, {"15{BS}{BS}{BS}", "__/__/____"}, {"1504{BS}6", "15/06/____"},
        {"15042026{BS}{BS}{BS}{BS}{BS}{BS}{BS}{BS}", "__/__/____"}});
}

TEST_F(DateFieldTest, BackspaceAndDeleteEmptyASelection)
{
    ExpectTyped(
        {{"{BS}", "__/__/____"}, {"{DEL}", "__/__/____"}, {"{Home}+{Right}+{Right}{DEL}", "__/04/2026"},
            {"{Home}+{Right}+{Right}{BS}31", "31/04/2026"}},
        "15/04/2026");
}

TEST_F(DateFieldTest, DeleteErasesForwardsOverTheSlashes)
{
    ExpectTyped({{"{Home}{DEL}", "_5/04/2026"}, {"{Home}{DEL}{DEL}{DEL}", "__/_4/2026"},
                    {"{End}{DEL}", "15/04/2026"}, {"{Home}{Right}{Right}{DEL}", "15/_4/2026"}},
        "15/04/2026");
}

TEST_F(DateFieldTest, HomeEndLeftAndRightMoveWithoutChange)
{
    ExpectTyped({{"{Home}2", "25/04/2026"}, {"{End}{Left}7", "15/04/2027"}, {"{Home}{Right}6", "16/04/2026"},
                    {"{Home}{Right}{Right}1", "15/14/2026"}, {"{Home}{Left}3", "35/04/2026"}},
        "15/04/2026");
}

TEST_F(DateFieldTest, PastingADateAsItIsSpoken)
{
    With(Make, [&](DateField& field) {
        for (const char* spoken : {"1/4/2026", "01/04/2026", "1-4-2026", " 01042026\n", "१/४/२०२६"}) {
            Entered(field, "", "15/12/2025");
            Paste(spoken);
            EXPECT_EQ(Text(field), "01/04/2026") << spoken;
        }
        Entered(field, "", "15/12/2025");
        Paste("none");
        EXPECT_EQ(Text(field), "15/12/2025");
    });
}

TEST_F(DateFieldTest, DevanagariDigitsBecomeWesternOnes)
{
    ExpectTyped({{"१५०४२०२६", "15/04/2026"}});
    With(Make, [&](DateField& field) {
        Do([&] { field.SelectAll(); });
        Compose("१/४/२०२६");
        EXPECT_EQ(Text(field), "01/04/2026");
    });
}

TEST_F(DateFieldTest, OnlyADateOfTheCalendarIsADate)
{
    With(Make, [&](DateField& field) {
        const auto holds = [&](const char* keys) {
            Entered(field, keys);
            return field.HoldsDate();
        };
        EXPECT_TRUE(holds("28022026"));
        EXPECT_TRUE(holds("29022028"));
        for (const char* wrong :
            {"31022026", "29022026", "25132026", "13252026", "00042026", "15002026", "1504", "1504202"})
            EXPECT_FALSE(holds(wrong)) << wrong;
        Entered(field, "31022026");
        EXPECT_THROW(field.Date(), RunTimeError);
    });
}

TEST_F(DateFieldTest, APressOfTheMouseSelectsItAllSoThatADateIsTypedAnew)
{
    With(Make, [&](DateField& field) {
        Do([&] { field.SetText("15/04/2026"); });
        for (const char* before : {"{TAB}", "", "{Home}{Right}"}) {
            Type(before);
            TheClerk.Press("maskDate");
            EXPECT_EQ(Selected(field), Text(field)) << "after " << before;
            Type("14042026");
            EXPECT_EQ(Text(field), "14/04/2026") << "after " << before;
        }
    });
}

TEST_F(DateFieldTest, ADateIsSetAndReadBack)
{
    With(Make, [&](DateField& field) {
        Do([&] { field.SetDate(QDate(2026, 4, 1)); });
        EXPECT_EQ(Text(field), "01/04/2026");
        EXPECT_EQ(field.Date(), QDate(2026, 4, 1));
        Do([&] { field.SetDate(QDate()); });
        EXPECT_TRUE(field.IsEmptyMask());
        Do([&] { field.SetText("1/4/26"); });
        EXPECT_TRUE(field.IsEmptyMask()) << "a text that isn't in the mask's form";
    });
}

TEST_F(DateFieldTest, APartlyTypedDateIsNeitherEmptyNorADate)
{
    With(Make, [&](DateField& field) {
        Entered(field, "15");
        EXPECT_FALSE(field.IsEmptyMask());
        EXPECT_FALSE(field.HoldsDate());
    });
}

TEST_F(DateFieldTest, ADateThatIsRefusedIsKeptForMendingWhereTheScreenWantsIt)
{
    With(Make, [&](DateField& field) {
        Entered(field, "31042026");
        EnterAnew();
        EXPECT_EQ(Selected(field), "31/04/2026") << "as it is without being asked";
        Do([&] { field.KeepForMending(); });
        EnterAnew();
        EXPECT_EQ(Selected(field), "");
        Type("30");
        EXPECT_EQ(Text(field), "30/04/2026") << "the caret stands before it";
        EnterAnew();
        EXPECT_EQ(Selected(field), "30/04/2026") << "a date is selected";
    });
}

}

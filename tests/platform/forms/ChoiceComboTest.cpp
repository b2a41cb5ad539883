#include "platform/forms/ChoiceCombo.h"
#include "tests/platform/forms/FieldTest.h"

#include <QListView>

namespace {

class ChoiceComboTest : public FieldTest<ChoiceCombo> {
protected:
    static std::unique_ptr<ChoiceCombo> Make(Screen* screen)
    {
        return std::make_unique<ChoiceCombo>(
            screen, "ComboReceipt", QStringList{"naahI", "f@t sËIna", "haoya"});
    }

    void WithWords(const std::function<void(ChoiceCombo&)>& script) { With(Make, script); }

    static QListView& List(const ChoiceCombo& combo) { return *combo.Owner().findChild<QListView*>(); }

    // A press and its release in the middle of a place.
    void Press(QWidget& widget, const QPointF& at)
    {
        Do([&] {
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(&widget, &event);
            }
        });
    }

    void PressRow(const ChoiceCombo& combo, int row)
    {
        const QListView& list = List(combo);
        Press(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center());
    }
};

TEST_F(ChoiceComboTest, BeginsEmptyWithItsListClosed)
{
    WithWords([&](ChoiceCombo& combo) {
        EXPECT_EQ(Text(combo), "");
        EXPECT_FALSE(combo.HoldsAWord());
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_FALSE(List(combo).isVisible());
    });
}

TEST_F(ChoiceComboTest, ADigitChoosesByPlaceAndKeepsTheFocus)
{
    WithWords([&](ChoiceCombo& combo) {
        EXPECT_EQ(Typed(combo, "1"), "naahI");
        EXPECT_EQ(Typed(combo, "2"), "f@t sËIna");
        EXPECT_EQ(Seen(combo), Shivaji(u"f@t sËIna").Seen().toStdString());
        EXPECT_EQ(Typed(combo, "13"), "haoya");
        EXPECT_EQ(FocusName(), "ComboReceipt");
        EXPECT_TRUE(combo.HoldsAWord());
    });
}

TEST_F(ChoiceComboTest, ADevanagariDigitCountsAsWell)
{
    WithWords([&](ChoiceCombo& combo) { EXPECT_EQ(Composed(combo, "३"), "haoya"); });
}

TEST_F(ChoiceComboTest, DigitsWithoutAWordAndOtherKeysAreDropped)
{
    WithWords([&](ChoiceCombo& combo) {
        EXPECT_EQ(Typed(combo, "2049xn.{DOWN}{UP}{HOME}"), "f@t sËIna");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(Pasted(combo, "haoya"), "");
    });
}

TEST_F(ChoiceComboTest, WordsBeyondTheDigitsArePickedFromTheList)
{
    WithWords([&](ChoiceCombo& combo) {
        combo.SetDigits(2);
        EXPECT_EQ(Typed(combo, "23"), "f@t sËIna");
        Press(*combo.Widget(), combo.Widget()->rect().center());
        EXPECT_TRUE(combo.IsDroppedDown());
        PressRow(combo, 2);
        EXPECT_EQ(Text(combo), "haoya");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(FocusName(), "ComboReceipt");
    });
}

TEST_F(ChoiceComboTest, BackspaceAndDeleteEmptyIt)
{
    WithWords([&](ChoiceCombo& combo) {
        EXPECT_EQ(Typed(combo, "1{BS}"), "");
        EXPECT_EQ(Typed(combo, "1{DEL}"), "");
    });
}

TEST_F(ChoiceComboTest, AltDownOpensTheListAndTheArrowsWalkIt)
{
    WithWords([&](ChoiceCombo& combo) {
        Type("1%{DOWN}");
        EXPECT_TRUE(combo.IsDroppedDown());
        EXPECT_EQ(List(combo).currentIndex().row(), 0);
        Type("{DOWN}");
        EXPECT_EQ(Text(combo), "f@t sËIna");
        EXPECT_EQ(List(combo).currentIndex().row(), 1);
        Type("{DOWN}{DOWN}");
        EXPECT_EQ(Text(combo), "haoya") << "the last word is the end";
        Type("{UP}{UP}{UP}");
        EXPECT_EQ(Text(combo), "naahI") << "the first word is the end";
        Type("%{UP}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(Text(combo), "naahI");
    });
}

TEST_F(ChoiceComboTest, ADigitAndLeavingCloseTheList)
{
    WithWords([&](ChoiceCombo& combo) {
        Type("%{DOWN}2");
        EXPECT_FALSE(combo.IsDroppedDown());
        Type("%{DOWN}{ENTER}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(FocusName(), "next");
        EXPECT_EQ(Text(combo), "f@t sËIna");
    });
}

TEST_F(ChoiceComboTest, ASecondPressOfTheMouseClosesTheList)
{
    WithWords([&](ChoiceCombo& combo) {
        Press(*combo.Widget(), {20, 5});
        EXPECT_TRUE(combo.IsDroppedDown());
        Press(*combo.Widget(), {20, 5});
        EXPECT_FALSE(combo.IsDroppedDown());
    });
}

TEST_F(ChoiceComboTest, ForTheMouseOnlyItDropsEveryKeyButEnter)
{
    WithWords([&](ChoiceCombo& combo) {
        combo.SetMouseOnly(true);
        combo.SetText("naahI");
        Type("2{BS}{DEL}%{DOWN}");
        Compose("२");
        EXPECT_EQ(Text(combo), "naahI");
        EXPECT_FALSE(combo.IsDroppedDown());
        Press(*combo.Widget(), {20, 5});
        PressRow(combo, 1);
        EXPECT_EQ(Text(combo), "f@t sËIna");
        Type("{ENTER}");
        EXPECT_EQ(FocusName(), "next");
    });
}

TEST_F(ChoiceComboTest, ATextFromOutsideNeedNotBeOneOfTheWords)
{
    WithWords([&](ChoiceCombo& combo) {
        Do([&] { combo.SetText("saovh"); });
        EXPECT_EQ(Text(combo), "saovh");
        EXPECT_FALSE(combo.HoldsAWord());
        Type("%{DOWN}{DOWN}");
        EXPECT_EQ(Text(combo), "naahI") << "the walk begins before the first word";
    });
}

TEST_F(ChoiceComboTest, OtherWordsReplaceTheList)
{
    WithWords([&](ChoiceCombo& combo) {
        Do([&] { combo.SetWords({"saovh"}); });
        EXPECT_EQ(Typed(combo, "1"), "saovh");
        EXPECT_EQ(Typed(combo, "2"), "");
        EXPECT_EQ(List(combo).model()->rowCount(), 1);
    });
}

TEST_F(ChoiceComboTest, TellsThatItsTextHasChanged)
{
    WithWords([&](ChoiceCombo& combo) {
        int told = 0;
        combo.TextChanged = [&told] { ++told; };
        Type("1");
        EXPECT_EQ(told, 1);
        Type("1");
        EXPECT_EQ(told, 1) << "the same word again is no change";
        Type("{BS}");
        EXPECT_EQ(told, 2);
    });
}

TEST_F(ChoiceComboTest, EscClosesTheListAndNothingElse)
{
    WithWords([&](ChoiceCombo& combo) {
        Type("2%{DOWN}{ESC}");
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(FocusName(), "ComboReceipt");
        EXPECT_EQ(Text(combo), "f@t sËIna");
        Type("{ESC}");
        EXPECT_EQ(ScreenName(), "");
    });
}

}

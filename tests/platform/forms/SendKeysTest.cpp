#include "tests/platform/forms/FormsTest.h"

#include "platform/forms/NameCombo.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

// A stroke as a test writes it: modifiers, key, text.
std::string Written(const KeyStroke& stroke)
{
    std::string written;
    if (stroke.modifiers.testFlag(Qt::ShiftModifier))
        written += "Shift+";
    if (stroke.modifiers.testFlag(Qt::ControlModifier))
        written += "Ctrl+";
    if (stroke.modifiers.testFlag(Qt::AltModifier))
        written += "Alt+";
    written += QKeySequence(stroke.key).toString().toStdString();
    return stroke.text.isEmpty() ? written : written + "=" + stroke.text.toStdString();
}

std::string Parsed(const char* keys)
{
    std::string all;
    for (const KeyStroke& stroke : ParseKeys(Q(keys)))
        all += (all.empty() ? "" : " ") + Written(stroke);
    return all;
}

TEST(ParseKeysTest, LettersAndFiguresAreThemselves)
{
    EXPECT_EQ(Parsed("aZ7.*"), "A=a Z=Z 7=7 .=. *=*");
    EXPECT_EQ(Parsed(""), "");
    EXPECT_EQ(Parsed("क"), Written({0x0915, {}, "क"}));
}

TEST(ParseKeysTest, NamesInAnySpelling)
{
    EXPECT_EQ(Parsed("{TAB}{ENTER}{ESC}{HOME}{END}"), "Tab Return Esc Home End");
    EXPECT_EQ(Parsed("{Left}{right}{UP}{Down}{BS}{Del}{PgUp}{PGDN}"),
        "Left Right Up Down Backspace Del PgUp PgDown");
    EXPECT_EQ(Parsed("{F1}{f2}{F12}"), "F1 F2 F12");
}

TEST(ParseKeysTest, SignsBeforeAKeyAreModifiersOfThatKeyOnly)
{
    EXPECT_EQ(Parsed("+{End}a"), "Shift+End A=a");
    EXPECT_EQ(Parsed("^c%{Down}%{B}"), "Ctrl+C=c Alt+Down Alt+B=B");
    EXPECT_EQ(Parsed("+^%x"), "Shift+Ctrl+Alt+X=x");
    EXPECT_EQ(Parsed("+{TAB}{TAB}"), "Shift+Backtab Tab");
}

TEST(ParseKeysTest, SignsInBracesAreThemselves)
{
    EXPECT_EQ(Parsed("{+}{^}{%}{{}{}}{F}"), "+=+ ^=^ %=% {={ }=} F=F");
}

class SendKeysTest : public FormsTest {
protected:
    void AtDesk(const std::function<void(Desk&)>& setUp, const std::function<void(Desk&)>& script)
    {
        Open<Desk>(setUp, script);
        EXPECT_FALSE(Failure);
    }

    static std::string A(const Desk& desk) { return desk.txtA.Text().toStdString(); }
    static std::string B(const Desk& desk) { return desk.txtB.Text().toStdString(); }
    static std::string C(const Desk& desk) { return desk.txtC.Text().toStdString(); }
};

TEST_F(SendKeysTest, KeysWaitUntilTheRunningEventHasEnded)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("F2", [&] {
                SendKeys("1{TAB}2");
                desk.Tell("sent");
            });
        },
        [&](Desk& desk) {
            desk.Happened();
            Type("{F2}");
            EXPECT_EQ(desk.Happened(), "F2 sent -txtA +txtB");
            EXPECT_EQ(A(desk), "1");
            EXPECT_EQ(B(desk), "2");
        });
}

TEST_F(SendKeysTest, TheOrderIsKeptAlsoForWhatTheKeysThemselvesSend)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("F2", [] {
                SendKeys("1{TAB}");
                SendKeys("3");
            });
            desk.Also("+txtB", [] { SendKeys("4"); });
        },
        [&](Desk& desk) {
            Type("{F2}");
            EXPECT_EQ(A(desk), "1");
            EXPECT_EQ(B(desk), "34");
        });
}

TEST_F(SendKeysTest, KeysGoToWhoeverHoldsTheFocusThen)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("-txtA", [&] {
                SendKeys("9");
                desk.txtC.SetFocus();
            });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(A(desk) + B(desk), "");
            EXPECT_EQ(C(desk), "9");
        });
}

TEST_F(SendKeysTest, ATabSentWhileLeavingMovesOnFromTheDestination)
{
    AtDesk([](Desk& desk) { desk.Also("-txtA", [] { SendKeys("{TAB}"); }); },
        [&](Desk& desk) {
            desk.Happened();
            Type("{ENTER}");
            EXPECT_EQ(desk.Happened(), "-txtA +txtB -txtB +txtC");
        });
}

TEST_F(SendKeysTest, KeysSentInGotFocusEditTheFieldJustEntered)
{
    AtDesk(
        [](Desk& desk) {
            desk.txtB.SetText("250");
            desk.Also("+txtB", [] { SendKeys("{Home}+{Right}7"); });
        },
        [&](Desk& desk) {
            Type("{TAB}");
            EXPECT_EQ(B(desk), "750");
        });
}

TEST_F(SendKeysTest, KeysSentWhileLoadingAreTypedWhenTheScreenStands)
{
    AtDesk([](Desk& desk) { desk.Also("load", [] { SendKeys("1{TAB}2"); }); },
        [&](Desk& desk) {
            EXPECT_EQ(desk.Happened(), "load +txtA shown -txtA +txtB");
            EXPECT_EQ(A(desk), "1");
            EXPECT_EQ(B(desk), "2");
        });
}

TEST_F(SendKeysTest, KeysSentByTheHandlerThatThenOpensADialogWaitForThatHandler)
{
    AtDesk(
        [](Desk& desk) {
            desk.Also("F2", [] {
                SendKeys("6");
                ShowTestNotice();
            });
        },
        [&](Desk& desk) {
            Type("{F2}");
            EXPECT_EQ(ScreenName(), "Notice");
            EXPECT_EQ(A(desk), "");
            Type("{TAB}8");
            EXPECT_EQ(TheClerk.Reads("txtNote").toStdString(), "8");
            Type("{TAB}{ENTER}");
            EXPECT_EQ(A(desk), "6");
        });
}

TEST_F(SendKeysTest, KeysSentInADialogAreTypedThere)
{
    AtDesk([](Desk& desk) { desk.Also("F2", ShowTestNotice); },
        [&](Desk& desk) {
            Type("{F2}");
            Do([] { SendKeys("{TAB}42"); });
            EXPECT_EQ(TheClerk.Reads("txtNote").toStdString(), "42");
            EXPECT_EQ(A(desk), "");
        });
}

TEST_F(SendKeysTest, WhatADialogLeavesUntypedGoesToTheScreenBelow)
{
    AtDesk([](Desk& desk) { desk.Also("F2", ShowTestNotice); },
        [&](Desk& desk) {
            Type("{F2}");
            Do([] { SendKeys("{ENTER}42"); });
            EXPECT_EQ(ScreenName(), "Desk");
            EXPECT_EQ(A(desk), "42");
        });
}

TEST_F(SendKeysTest, KeysForAScreenThatClosesAndForNobodyAreLost)
{
    AtDesk([](Desk& desk) { desk.Also("F2", [] { SendKeys("{ESC}1"); }); },
        [&](Desk&) {
            Type("{F2}");
            EXPECT_EQ(ScreenName(), "");
            Do([] { SendKeys("2"); });
        });
    Open<Desk>([](Desk&) {}, [&](Desk& desk) { EXPECT_EQ(A(desk), ""); });
}

TEST_F(SendKeysTest, AltAndALetterInBracesPressTheButton)
{
    AtDesk([](Desk& desk) { desk.Also("F2", [] { SendKeys("%{S}"); }); },
        [&](Desk& desk) {
            desk.Happened();
            Type("{F2}");
            EXPECT_EQ(desk.Happened(), "F2 -txtA +cmdGo !cmdGo");
        });
}

TEST_F(SendKeysTest, AltDownOpensTheListOfAComboJustEntered)
{
    class ComboScreen : public Screen {
    public:
        ComboScreen() : Screen("Combo")
        {
            ComboName.SetItems({"rama", "sauroSa"});
            // Asked for twice, as a field does that refuses and is then entered anew.
            ComboName.GotFocus = [] { SendKeys("%{Down}"); };
            txtNo.LostFocus = [] { SendKeys("%{Down}"); };
        }
        NumberField txtNo{this, "txtNo", NumberField::Digits::Whole};
        NameCombo ComboName{this, "ComboName"};
    };
    Open<ComboScreen>([](ComboScreen&) {},
        [&](ComboScreen& screen) {
            Type("{TAB}");
            EXPECT_TRUE(screen.ComboName.IsDroppedDown());
            EXPECT_EQ(screen.ComboName.Text().toStdString(), "");
        });
}

}

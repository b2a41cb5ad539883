#include "tests/support/SocietyTest.h"

#include "core/menu/Keys.h"
#include "core/preview/ReportPreview.h"

#include <QKeyEvent>

namespace {

// A screen that keeps which of its keys were answered.
class frmKeys final : public Screen {
public:
    frmKeys() : Screen("frmKeys") { }

    // What is answered to a key, and by which function.
    std::string Answer(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_told = "nothing";
        const bool answered = Keys::Answer(*this, MyKeys(), QKeyEvent(QEvent::KeyPress, key, modifiers));
        EXPECT_EQ(answered, m_told != "nothing");
        return m_told;
    }

private:
    static std::vector<KeyHint> MyKeys()
    {
        using S = frmKeys;
        const Caption any = Plain(u"something");
        return {{"F3", any, &S::TellOn}, {"Shift+F3", any, &S::TellBack}, {"Ctrl+PgDn", any, &S::TellPage},
            {"Ctrl+S", any, &S::TellSave},
            {"↑ ↓ ← →", any, {&S::TellUp, &S::TellDown, &S::TellLeft, &S::TellRight}},
            {"+", any, &S::TellLarger}, {"−", any, &S::TellSmaller}, {"Enter", any, &S::TellEnter},
            {"Esc", any}};
    }

    void TellOn() { m_told = "on"; }
    void TellBack() { m_told = "back"; }
    void TellPage() { m_told = "page"; }
    void TellSave() { m_told = "save"; }
    void TellUp() { m_told = "up"; }
    void TellDown() { m_told = "down"; }
    void TellLeft() { m_told = "left"; }
    void TellRight() { m_told = "right"; }
    void TellLarger() { m_told = "larger"; }
    void TellSmaller() { m_told = "smaller"; }
    void TellEnter() { m_told = "enter"; }

    std::string m_told;
};

using KeysTest = SocietyTest;

}

TEST_F(KeysTest, AKeyWithAModifierIsAnsweredWhereItIsHeld)
{
    frmKeys screen;
    EXPECT_EQ(screen.Answer(Qt::Key_PageDown, Qt::ControlModifier), "page");
    EXPECT_EQ(screen.Answer(Qt::Key_PageDown), "nothing");
    EXPECT_EQ(screen.Answer(Qt::Key_S, Qt::ControlModifier), "save");
    EXPECT_EQ(screen.Answer(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier), "save");
    EXPECT_EQ(screen.Answer(Qt::Key_S), "nothing");
}

TEST_F(KeysTest, OfTwoKeysTheOneThatNamesTheModifierIsMeant)
{
    frmKeys screen;
    EXPECT_EQ(screen.Answer(Qt::Key_F3), "on");
    EXPECT_EQ(screen.Answer(Qt::Key_F3, Qt::ShiftModifier), "back");
    EXPECT_EQ(screen.Answer(Qt::Key_F3, Qt::ControlModifier), "on");
}

TEST_F(KeysTest, EachOfSeveralKeysHasAFunctionOfItsOwn)
{
    frmKeys screen;
    EXPECT_EQ(screen.Answer(Qt::Key_Up), "up");
    EXPECT_EQ(screen.Answer(Qt::Key_Down), "down");
    EXPECT_EQ(screen.Answer(Qt::Key_Left), "left");
    EXPECT_EQ(screen.Answer(Qt::Key_Right, Qt::KeypadModifier), "right");
}

TEST_F(KeysTest, BothEntersAreOneKeyAndSoArePlusAndTheKeyBelowIt)
{
    frmKeys screen;
    EXPECT_EQ(screen.Answer(Qt::Key_Return), "enter");
    EXPECT_EQ(screen.Answer(Qt::Key_Enter, Qt::KeypadModifier), "enter");
    EXPECT_EQ(screen.Answer(Qt::Key_Plus, Qt::ShiftModifier), "larger");
    EXPECT_EQ(screen.Answer(Qt::Key_Equal), "larger");
    EXPECT_EQ(screen.Answer(Qt::Key_Minus), "smaller");
}

TEST_F(KeysTest, AKeyThatIsOnlyToldIsNotAnswered)
{
    frmKeys screen;
    EXPECT_EQ(screen.Answer(Qt::Key_Escape), "nothing");
    EXPECT_EQ(screen.Answer(Qt::Key_F4), "nothing");
}

TEST_F(KeysTest, EveryKeyOfThePreviewIsAnsweredWhereItIsDeclaredButEscWhichTheScreenHas)
{
    QStringList told;
    for (const Keys::Place& place : frmReportPreview::KeyPlaces())
        for (const KeyHint& hint : place.keys)
            if (hint.pressed.AreNone())
                told.append(hint.key);
    EXPECT_EQ(told, QStringList("Esc"));
}

#include "tests/support/SocietyTest.h"
#include "tests/support/StandInScreens.h"

#include "core/menu/KeyboardTutor.h"
#include "core/menu/Keys.h"
#include "core/menu/MainMenu.h"
#include "core/messages/Narrations.h"
#include "core/start/AppDate.h"

#include <QRegularExpression>

namespace {

bool IsFunctionKey(const QString& key)
{
    static const QRegularExpression functionKey("^F\\d+$");
    return functionKey.match(key).hasMatch();
}

// The function keys that a screen's list names.
QStringList Listed(const QString& screen)
{
    QStringList keys;
    for (const KeyHint& hint : Keys::Of(screen))
        if (IsFunctionKey(hint.key))
            keys.append(hint.key);
    return keys;
}

class KeySheetTest : public SocietyTest {
protected:
    // The function keys of F1 to F12 that a screen answers: another screen opens, a box is shown, or the
    // calculator starts. `open` shows the screen; `arrive` are the keys that lead to it.
    QStringList Answered(const QString& screen, const std::function<void()>& open, const QString& arrive = {})
    {
        QStringList answered;
        for (int number = 1; number <= 12; ++number) {
            const QString key = QStringLiteral("F%1").arg(number);
            TheBox.Shown.clear();
            TheCalculator.Started.clear();
            Failure = TheClerk.Play(open, [&](Clerk& clerk) {
                clerk.Type(arrive);
                ASSERT_EQ(clerk.ScreenName(), screen);
                clerk.Type(QStringLiteral("{%1}").arg(key));
                if (clerk.ScreenName() != screen || !TheBox.Shown.isEmpty()
                    || !TheCalculator.Started.isEmpty())
                    answered.append(key);
            });
        }
        return answered;
    }

    template <class S, class... Arguments> QStringList Answered(const QString& screen, Arguments... arguments)
    {
        return Answered(screen, [&] {
            S shown(arguments...);
            shown.ShowModal();
        });
    }

private:
    StandInScreens m_screens{{"frmUchalVouchers", "frmAutoSettings", "frmCollectionGate"}};
};

}

TEST_F(KeySheetTest, TheMenusStripNamesItsSixFunctionKeys)
{
    QStringList strip;
    for (const KeyHint& hint : Keys::Of("MainMenuFrm"))
        if (IsFunctionKey(hint.key))
            strip.append(hint.key + u' ' + hint.action.Text());
    EXPECT_EQ(strip,
        QStringList({"F2 k^la@yaulaoTr", "F4 ]cala naaoMd", "F7 Aa^Tao saoTIMgja", "F8 dUQa saMklana",
            "F9 dUQa ivaËI", "F12 kIbaaoD- TyaUTr"}));
}

TEST_F(KeySheetTest, OfTheMenusKeysTheOneThatDoesNothingIsNotLit)
{
    for (const KeyHint& hint : Keys::Of("MainMenuFrm"))
        EXPECT_EQ(hint.lit, hint.key != u"F9") << hint.key.toStdString();
    Failure = TheClerk.Play(
        [] {
            MainMenuFrm menu;
            menu.ShowModal();
        },
        [](Clerk& clerk) {
            Type(clerk, "{ENTER}{ENTER}");
            QStringList dull;
            for (const QWidget* key : clerk.Top().findChildren<QWidget*>())
                if (!key->isEnabled() && !key->accessibleName().isEmpty())
                    dull.append(key->accessibleName());
            EXPECT_EQ(dull, QStringList("F9 " + Seen("dUQa ivaËI")));
        });
}

TEST_F(KeySheetTest, TheMenuAnswersTheFunctionKeysOfItsStripAndNoOthersAndF9DoesNothing)
{
    const QString menu = "MainMenuFrm";
    QStringList expected = Listed(menu);
    ASSERT_EQ(expected.removeAll("F9"), 1);
    EXPECT_EQ(Answered(
                  menu,
                  [] {
                      MainMenuFrm shown;
                      shown.ShowModal();
                  },
                  "{ENTER}{ENTER}"),
        expected);
}

TEST_F(KeySheetTest, TheSmallScreensAnswerTheFunctionKeysOfTheirStripsAndNoOthers)
{
    EXPECT_EQ(Listed("frmNarrations"), QStringList("F12"));
    EXPECT_EQ(Answered<frmNarrations>("frmNarrations", Plain(u"नाव")), Listed("frmNarrations"));
    EXPECT_EQ(Answered<frmAppDate>("frmAppDate"), Listed("frmAppDate"));
    EXPECT_EQ(Answered<frmKeyboardTutor>("frmKeyboardTutor"), Listed("frmKeyboardTutor"));
}

TEST_F(KeySheetTest, AnUnknownPlaceIsABug)
{
    EXPECT_DEBUG_DEATH(Keys::Of("frmNowhere"), "frmNowhere");
}

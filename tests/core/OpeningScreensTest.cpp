#include "SocietyTest.h"

#include "AppDate.h"
#include "Look.h"
#include "OpeningScreens.h"

#include <QPixmap>

namespace {

class OpeningScreens : public SocietyTest {
protected:
    void Start(const std::function<void(Clerk&)>& script)
    {
        Failure = TheClerk.Play([] { ShowOpeningScreens(); }, script);
    }

    static QColor Background(Clerk& clerk, const QString& control)
    {
        return clerk.Top().Find(control)->Widget()->palette().color(QPalette::Active, QPalette::Button);
    }
};

}

TEST_F(OpeningScreens, ComeInTheirOrderUpToTheDateOverTheMenu)
{
    Start([](Clerk& clerk) {
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmAbout"));
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmTip"));
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmAppDate"));
        clerk.Type(QStringLiteral("{ENTER}{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("MainMenuFrm"));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(OpeningScreens, ExitOnTheTitleEndsTheProgram)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("%x"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreens, TheCloseBoxOfTheTitleActsAsExit)
{
    Start([](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreens, RejectOnTheCautionEndsTheProgram)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}%r"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreens, TheCautionColoursAcceptGreenAndRejectRedOnFocus)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdOk"));
        EXPECT_EQ(Background(clerk, QStringLiteral("cmdOk")), QColor(0x00, 0xFF, 0x00));
        clerk.Type(QStringLiteral("{TAB}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("Command1"));
        EXPECT_EQ(Background(clerk, QStringLiteral("Command1")), QColor(0xFF, 0x00, 0x00));
        EXPECT_EQ(Background(clerk, QStringLiteral("cmdOk")), QColor(0xB4, 0xC4, 0xCD));
    });
}

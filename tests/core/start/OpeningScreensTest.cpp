#include "tests/support/SocietyTest.h"

#include "core/start/AppDate.h"
#include "core/start/OpeningScreens.h"
#include "tests/core/ScreenFace.h"

#include <QPixmap>

namespace {

class OpeningScreensTest : public SocietyTest {
protected:
    void Start(const std::function<void(Clerk&)>& script)
    {
        Failure = TheClerk.Play([] { ShowOpeningScreens(); }, script);
    }
};

}

TEST_F(OpeningScreensTest, ComeInTheirOrderUpToTheDateOverTheMenu)
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

TEST_F(OpeningScreensTest, ExitOnTheTitleEndsTheProgram)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("%x"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreensTest, TheCloseBoxOfTheTitleActsAsExit)
{
    Start([](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreensTest, RejectOnTheCautionEndsTheProgram)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}%r"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
}

TEST_F(OpeningScreensTest, TheCautionColoursAcceptGreenAndRejectRedOnFocus)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdOk"));
        EXPECT_EQ(BackgroundOf(clerk, "cmdOk"), QColor(0x00, 0xFF, 0x00));
        clerk.Type(QStringLiteral("{TAB}"));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("Command1"));
        EXPECT_EQ(BackgroundOf(clerk, "Command1"), QColor(0xFF, 0x00, 0x00));
        EXPECT_EQ(BackgroundOf(clerk, "cmdOk"), QColor(0xB4, 0xC4, 0xCD));
    });
}

TEST_F(OpeningScreensTest, TheTitleScreenNamesTheSystemAndVersion1WithOkAndExit)
{
    Start([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), Seen(QStringLiteral(" dUQa saMklana saa^FTvaoAr")));
        EXPECT_EQ(LabelOf(clerk, "lblVersion"), QStringLiteral("Version 1.0"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdOK")), QStringLiteral("OK"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdExit")), QStringLiteral("E&xit"));
    });
}

TEST_F(OpeningScreensTest, TheCautionReadsAsItIsWordedBesideAPicture)
{
    Start([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), QStringLiteral(" Caution !"));
        EXPECT_EQ(LabelOf(clerk, "lblTip").split(QStringLiteral("\n\n")),
            QStringList({QStringLiteral(" It is necessary that You should take BACKUP of Company Data "
                                        "frequently on ReWritable CD (Recommended)"),
                QStringLiteral("We have given the facility to take the backup on Hard Disk / Floppy and CD "
                               "also ( with the help of CD Writer)"),
                QStringLiteral("We (Developer) will not take any responsibility for the loss of data.")}));
        EXPECT_EQ(clerk.Reads(QStringLiteral("Command1")), QStringLiteral("&Reject"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdOk")), QStringLiteral("&Accept"));
        const QList<QLabel*> labels = clerk.Top().findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
            [](const QLabel* label) { return !label->pixmap(Qt::ReturnByValue).isNull(); }));
    });
}

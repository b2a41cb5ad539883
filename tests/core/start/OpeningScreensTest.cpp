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
        EXPECT_EQ(OnTop(clerk), "frmAbout");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmTip");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmAppDate");
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "MainMenuFrm");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(OpeningScreensTest, ExitOnTheTitleEndsTheProgram)
{
    Start([](Clerk& clerk) {
        Type(clerk, "%x");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(OpeningScreensTest, TheCloseBoxOfTheTitleActsAsExit)
{
    Start([](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(OpeningScreensTest, RejectOnTheCautionEndsTheProgram)
{
    Start([](Clerk& clerk) {
        Type(clerk, "{ENTER}%r");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(OpeningScreensTest, TheCautionColoursAcceptGreenAndRejectRedOnFocus)
{
    Start([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdOk");
        EXPECT_EQ(BackgroundOf(clerk, "cmdOk"), QColor(0x00, 0xFF, 0x00));
        Type(clerk, "{TAB}");
        EXPECT_EQ(Focus(clerk), "Command1");
        EXPECT_EQ(BackgroundOf(clerk, "Command1"), QColor(0xFF, 0x00, 0x00));
        EXPECT_EQ(BackgroundOf(clerk, "cmdOk"), QColor(0xB4, 0xC4, 0xCD));
    });
}

TEST_F(OpeningScreensTest, TheTitleScreenNamesTheSystemAndVersion1WithOkAndExit)
{
    Start([](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), Seen(" dUQa saMklana saa^FTvaoAr"));
        EXPECT_EQ(LabelOf(clerk, "lblVersion"), "Version 1.0");
        EXPECT_EQ(Reads(clerk, "cmdOK"), "OK");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "E&xit");
    });
}

TEST_F(OpeningScreensTest, TheCautionReadsAsItIsWordedBesideAPicture)
{
    Start([](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), " Caution !");
        EXPECT_EQ(LabelOf(clerk, "lblTip").split("\n\n"),
            QStringList({" It is necessary that You should take BACKUP of Company Data "
                         "frequently on ReWritable CD (Recommended)",
                "We have given the facility to take the backup on Hard Disk / Floppy and CD "
                "also ( with the help of CD Writer)",
                "We (Developer) will not take any responsibility for the loss of data."}));
        EXPECT_EQ(Reads(clerk, "Command1"), "&Reject");
        EXPECT_EQ(Reads(clerk, "cmdOk"), "&Accept");
        const QList<QLabel*> labels = clerk.Top().findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
            [](const QLabel* label) { return !label->pixmap(Qt::ReturnByValue).isNull(); }));
    });
}

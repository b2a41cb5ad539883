#include "core/messages/PlainBox.h"

#include "core/messages/Messages.h"
#include "core/start/Program.h"
#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/ProgramWindow.h"
#include "tests/core/QueuedKeys.h"
#include "tests/core/ScreenFace.h"
#include "tests/support/SocietyTest.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

class PlainBoxTest : public SocietyTest {
protected:
    PlainBoxTest() { ShowBoxesInTheWindow(); }

    // Tells a text and plays on its box.
    void Tell(
        const QString& text, const std::function<void(Clerk&)>& script, const QString& title = QString())
    {
        Failure = TheClerk.Play([&] { ShowPlain(text, title); }, script);
    }

    // What the label of the box reads, without the places where its lines may break.
    static QString TextOf(Clerk& clerk) { return LabelOf(clerk, "lblText").remove(QChar(0x200B)); }

    static QRect PlaceOf(Clerk& clerk) { return clerk.Top().geometry(); }

    // A label or a button lies on the card as a whole.
    static void ExpectWhole(Clerk& clerk, const QWidget& part)
    {
        const Screen& card = clerk.Top();
        EXPECT_TRUE(card.rect().contains(QRect(part.mapTo(&card, QPoint()), part.size())));
    }
};

}

TEST_F(PlainBoxTest, ShowsTheTextAsItStandsAboveOneButton)
{
    const QString text = "a < b & <b>c</b> R&D\nsecond line";
    Tell(text, [&](Clerk& clerk) {
        EXPECT_EQ(OnTop(clerk), "frmPlainBox");
        EXPECT_EQ(LabelOf(clerk, "lblText"), text);
        ASSERT_EQ(clerk.Top().Controls().size(), 1);
        EXPECT_EQ(Reads(clerk, "cmdOk"), "ठीक");
        EXPECT_EQ(Focus(clerk), "cmdOk");
    });
}

TEST_F(PlainBoxTest, ItIsACardOfTheOneWindowOverTheDimmedScreen)
{
    Failure = TheClerk.Play([] { ShowNotice(Plain(u"प्रश्न")); },
        [](Clerk& clerk) {
            clerk.Do([] { ShowPlain("Duplicate Record"); });
            EXPECT_EQ(OnTop(clerk), "frmPlainBox");
            EXPECT_TRUE(clerk.Top().IsCard());
            EXPECT_EQ(clerk.Top().window(), &ProgramWindow::Current());
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "frmMessages");
        });
}

TEST_F(PlainBoxTest, ItsTitleIsTheOneAskedForBlanksAndAllOrElseTheNameOfTheProgram)
{
    Tell("Access Granted", [](Clerk& clerk) {
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), "Vetrolan");
        EXPECT_EQ(ProgramWindow::Current().windowTitle(), "Vetrolan");
    });
    Tell(
        "Records Not Available",
        [](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblTitle"), " Cash Book");
            EXPECT_EQ(ProgramWindow::Current().windowTitle(), "Cash Book");
        },
        " Cash Book");
}

TEST_F(PlainBoxTest, EnterSpaceEscAndTheCloseBoxCloseIt)
{
    for (const char* key : {"{ENTER}", " ", "{ESC}"})
        Tell("Access Granted", [key](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(key));
            EXPECT_EQ(OnTop(clerk), "") << key;
        });
    Tell("Access Granted", [](Clerk& clerk) {
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(PlainBoxTest, OtherKeysLeaveItStanding)
{
    Tell("Access Granted", [this](Clerk& clerk) {
        Type(clerk, "a1{TAB}{UP}{F2}{F12}");
        EXPECT_EQ(OnTop(clerk), "frmPlainBox");
        EXPECT_EQ(Focus(clerk), "cmdOk");
        EXPECT_TRUE(TheCalculator.Started.isEmpty());
    });
}

TEST_F(PlainBoxTest, KeysThatWereTypedAheadOfItAreThrownAwayAndSoAreThoseOfAKeyThatIsHeldDown)
{
    Failure = TheClerk.Play(
        [] {
            QueueKeys(QStringLiteral("{ENTER}").repeated(5));
            ShowPlain("Duplicate Record");
        },
        [](Clerk& clerk) {
            ASSERT_EQ(OnTop(clerk), "frmPlainBox");
            clerk.Do([] {
                QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
                QCoreApplication::sendEvent(ModalStack::Current().Top()->KeyTarget(), &held);
            });
            EXPECT_EQ(OnTop(clerk), "frmPlainBox");
        });
}

TEST_F(PlainBoxTest, AFewWordsStandLarge)
{
    Tell("Duplicate Record", [](Clerk& clerk) {
        const auto* text = clerk.Top().findChild<QLabel*>("lblText");
        EXPECT_EQ(text->font().pixelSize(), Look::PaintedFont(Look::Size::Large).pixelSize());
    });
}

TEST_F(PlainBoxTest, AnErrorWithALongStatementIsReadWholeInASmallWindow)
{
    const QString error = "हिशेबाच्या वहीत लिहिता आले नाही. डिस्क भरली आहे. जागा करा आणि पुन्हा सुरू करा. "
                          "शेवटची नोंद राहिली का ते पाहा.\nRun-time error '3050'\n"
        + QStringLiteral("insert into MilkCollections(CompanyId) values(1) ").repeated(10);
    for (const QSize window : {QSize(1024, 600), QSize(1366, 768), QSize(3840, 2160)})
        Tell(error, [&](Clerk& clerk) {
            clerk.Do([window] { ProgramWindow::Current().resize(window); });
            EXPECT_EQ(TextOf(clerk), error);
            EXPECT_TRUE(ProgramWindow::Current().rect().contains(PlaceOf(clerk)));
            const auto* text = clerk.Top().findChild<QLabel*>("lblText");
            EXPECT_GE(text->height(), text->heightForWidth(text->width())) << window.width();
            ExpectWhole(clerk, *text);
            ExpectWhole(clerk, *clerk.Top().Find(u"cmdOk")->Widget());
        });
}

TEST_F(PlainBoxTest, ALongTextWithoutBlanksIsBrokenIntoLines)
{
    const QString name(1000, u'x');
    Tell(name, [&](Clerk& clerk) {
        EXPECT_EQ(TextOf(clerk), name);
        EXPECT_TRUE(ProgramWindow::Current().rect().contains(PlaceOf(clerk)));
        ExpectWhole(clerk, *clerk.Top().findChild<QLabel*>("lblText"));
        const QLabel& text = *clerk.Top().findChild<QLabel*>("lblText");
        EXPECT_GE(text.width() * text.height() / text.fontMetrics().height(),
            text.fontMetrics().horizontalAdvance(name))
            << "all of its lines have room";
    });
}

TEST_F(PlainBoxTest, TheEndOfAVeryLongTextIsLeftOutAndTheBoxSaysSo)
{
    const QString statement = QStringLiteral("insert ").repeated(100000);
    Tell(statement, [&](Clerk& clerk) {
        const QString shown = TextOf(clerk);
        EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
        EXPECT_TRUE(statement.startsWith(shown.chopped(1)));
        EXPECT_GT(shown.size(), 700);
        ExpectWhole(clerk, *clerk.Top().findChild<QLabel*>("lblText"));
        ExpectWhole(clerk, *clerk.Top().Find(u"cmdOk")->Widget());
    });
}

#include "core/messages/InputBox.h"

#include "core/start/Program.h"
#include "platform/forms/ProgramWindow.h"
#include "tests/core/QueuedKeys.h"
#include "tests/core/ScreenFace.h"
#include "tests/support/SocietyTest.h"

#include <QApplication>
#include <QLineEdit>

namespace {

class InputBoxTest : public SocietyTest {
protected:
    InputBoxTest() { ShowBoxesInTheWindow(); }

    // What the prompt answers when the script has played on it.
    QString Answer(const std::function<void(Clerk&)>& script, const QString& title = {})
    {
        QString answer = "none";
        Failure = TheClerk.Play(
            [&] { answer = World::Current().inputBox->Ask("Enter Folder Name", "Backup", title); }, script);
        return answer;
    }

    QString AnswerTo(const char* keys)
    {
        return Answer([keys](Clerk& clerk) {
            clerk.Type(QString::fromLatin1(keys));
            EXPECT_EQ(OnTop(clerk), "") << keys;
        });
    }
};

}

TEST_F(InputBoxTest, ProposesAnAnswerInItsLine)
{
    Answer([](Clerk& clerk) {
        EXPECT_EQ(OnTop(clerk), "frmInputBox");
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), "Vetrolan");
        EXPECT_EQ(LabelOf(clerk, "lblPrompt"), "Enter Folder Name");
        EXPECT_EQ(Focus(clerk), "txtAnswer");
        EXPECT_EQ(Reads(clerk, "cmdOk"), "ठीक");
        EXPECT_EQ(Reads(clerk, "cmdCancel"), "रद्द");
        const auto* line = clerk.Top().findChild<QLineEdit*>();
        EXPECT_EQ(line->selectedText(), "Backup");
        EXPECT_EQ(line->accessibleName(), "Enter Folder Name");
    });
}

TEST_F(InputBoxTest, ItIsACardOfTheOneWindow)
{
    Answer([](Clerk& clerk) {
        EXPECT_TRUE(clerk.Top().IsCard());
        EXPECT_EQ(clerk.Top().window(), &ProgramWindow::Current());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
}

TEST_F(InputBoxTest, EnterInTheLineOrOnTheButtonTakesWhatStandsThere)
{
    EXPECT_EQ(AnswerTo("{ENTER}"), "Backup");
    EXPECT_EQ(AnswerTo("{TAB}{ENTER}"), "Backup");
    EXPECT_EQ(AnswerTo("{TAB} "), "Backup");
}

TEST_F(InputBoxTest, WhatIsTypedReplacesWhatIsProposedAndLosesTheBlanksAtItsEnds)
{
    EXPECT_EQ(AnswerTo(" a b {ENTER}"), "a b");
}

TEST_F(InputBoxTest, EscTheSecondButtonAndTheCloseBoxAnswerNothing)
{
    EXPECT_EQ(AnswerTo("ab{ESC}"), QString());
    EXPECT_EQ(AnswerTo("ab{TAB}{TAB}{ENTER}"), QString());
    EXPECT_EQ(Answer([](Clerk& clerk) { clerk.CloseBox(); }), QString());
}

TEST_F(InputBoxTest, ItBearsTheTitleThatIsAskedFor)
{
    Answer([](Clerk& clerk) { EXPECT_EQ(LabelOf(clerk, "lblTitle"), "Backup"); }, "Backup");
}

TEST_F(InputBoxTest, KeysThatWereTypedAheadOfItAreThrownAway)
{
    QueueKeys(QStringLiteral("{ENTER}").repeated(5));
    Answer([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), "frmInputBox"); });
}

TEST_F(InputBoxTest, AWordThatAnInputMethodWroteAheadOfItIsThrownAwayToo)
{
    QueueComposed("कराड");
    const QString answer = Answer([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtAnswer"), "Backup");
        clerk.Do([] { QueueComposed("मसूर"); });
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(answer, "मसूर");
}

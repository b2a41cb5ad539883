#include "tests/support/SocietyTest.h"

#include "core/messages/Messages.h"
#include "core/messages/Narrations.h"
#include "platform/forms/ModalStack.h"
#include "tests/core/QueuedKeys.h"
#include "tests/core/ScreenFace.h"

#include <QKeyEvent>

namespace {

class MessagesTest : public SocietyTest {
protected:
    bool m_answer = false;
    QString m_narration; // what the last prompt has kept for its caller
    QString m_field; // what its field held when it closed

    void AskOf(const std::function<void(Clerk&)>& script)
    {
        Failure =
            TheClerk.Play([this] { m_answer = Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ")); }, script);
    }

    void NoticeOf(const std::function<void(Clerk&)>& script)
    {
        Failure = TheClerk.Play([] { ShowNotice(Shivaji(u"yaa naavaacao roka^D- Agaaodrca Aaho")); }, script);
    }

    void PromptOf(const std::function<void(Clerk&)>& script)
    {
        Failure = TheClerk.Play(
            [this] {
                frmNarrations prompt(Plain(u"नाव"));
                prompt.ShowModal();
                m_narration = prompt.Narration;
                m_field = prompt.Find(u"txtNarration")->Text();
            },
            script);
    }
};

}

TEST_F(MessagesTest, AQuestionOffersYesAndNoAndANoticeOnlyToGoOn)
{
    AskOf([](Clerk& clerk) {
        EXPECT_TRUE(CanEnter(clerk, "cmdOkYes"));
        EXPECT_TRUE(CanEnter(clerk, "cmdCancelNo"));
        EXPECT_FALSE(CanEnter(clerk, "cmdExit"));
        EXPECT_EQ(Focus(clerk), "cmdOkYes");
    });
    NoticeOf([](Clerk& clerk) {
        EXPECT_FALSE(CanEnter(clerk, "cmdOkYes"));
        EXPECT_FALSE(CanEnter(clerk, "cmdCancelNo"));
        EXPECT_TRUE(CanEnter(clerk, "cmdExit"));
    });
}

TEST_F(MessagesTest, TheButtonsReadHaoyaNaahiAndPuzo)
{
    AskOf([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdOkYes"), "&haoya");
        EXPECT_EQ(Reads(clerk, "cmdCancelNo"), "&naahI");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "puZo");
        EXPECT_EQ(LabelOf(clerk, "lblMessages"), Seen("roka^D- na@kI badlaayacao ka Æ"));
    });
}

TEST_F(MessagesTest, AQuestionThatDestroysIsANoOnEnter)
{
    frmMessages::MessageAnswer = 1;
    bool answer = true;
    Failure = TheClerk.Play([&] { answer = Ask(Shivaji(u"roka^D- na@kI KaoDayacao ka Æ"), OnEnter::No); },
        [](Clerk& clerk) {
            EXPECT_EQ(Focus(clerk), "cmdCancelNo");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "");
        });
    EXPECT_FALSE(answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 0);
}

TEST_F(MessagesTest, APlainQuestionIsReadAsItIsWrittenAndSoIsAPlainNotice)
{
    Failure = TheClerk.Play([] { Ask(Plain(u"Are You Sure to Save ?")); },
        [](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblMessages"), "Are You Sure to Save ?");
            Type(clerk, "{ENTER}");
        });
    Failure = TheClerk.Play([] { ShowNotice(Plain(u"Saved")); },
        [](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblMessages"), "Saved");
            Type(clerk, "{ENTER}");
        });
}

TEST_F(MessagesTest, KeysThatWereTypedAheadOfAQuestionOrANoticeAreThrownAway)
{
    for (const char* keys : {"{ENTER}{ENTER}", "%h", "{ESC}", "{TAB}{ENTER}"}) {
        frmMessages::MessageAnswer = 0;
        Failure = TheClerk.Play(
            [&] {
                QueueKeys(QString::fromLatin1(keys));
                m_answer = Ask(Shivaji(u"roka^D- na@kI badlaayacao ka Æ"));
            },
            [keys](Clerk& clerk) {
                EXPECT_EQ(OnTop(clerk), "frmMessages") << keys;
                EXPECT_EQ(Focus(clerk), "cmdOkYes") << keys;
                Type(clerk, "%n");
                EXPECT_EQ(OnTop(clerk), "") << keys;
            });
        EXPECT_FALSE(m_answer) << keys;
    }
}

TEST_F(MessagesTest, AKeyThatIsHeldDownAnswersNothing)
{
    AskOf([](Clerk& clerk) {
        clerk.Do([] {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(ModalStack::Current().Top()->KeyTarget(), &held);
        });
        EXPECT_EQ(OnTop(clerk), "frmMessages");
    });
}

TEST_F(MessagesTest, TheKeysOfTheCaptionsAnswer)
{
    AskOf([](Clerk& clerk) { Type(clerk, "%h"); });
    EXPECT_TRUE(m_answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 1);
    AskOf([](Clerk& clerk) { Type(clerk, "%n"); });
    EXPECT_FALSE(m_answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 0);
}

TEST_F(MessagesTest, ANoticeLeavesTheAnswerAsTheLastQuestionLeftIt)
{
    AskOf([](Clerk& clerk) { Type(clerk, "{ENTER}"); });
    NoticeOf([](Clerk& clerk) { Type(clerk, "{ENTER}"); });
    EXPECT_EQ(frmMessages::MessageAnswer, 1);
}

TEST_F(MessagesTest, ClosedByItsCloseBoxNoAnswerIsSetAndNothingIsAgreedTo)
{
    AskOf([](Clerk& clerk) { Type(clerk, "%h"); });
    AskOf([](Clerk& clerk) { clerk.CloseBox(); });
    EXPECT_EQ(frmMessages::MessageAnswer, 1) << "as the last question left it";
    EXPECT_FALSE(m_answer);
    AskOf([](Clerk& clerk) { Type(clerk, "{ESC}"); });
    EXPECT_FALSE(m_answer);
}

TEST_F(MessagesTest, ThePromptKeepsWhatWasTypedOnLeavingAndOnPuzo)
{
    PromptOf([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "txtNarration");
        EXPECT_EQ(LabelOf(clerk, "lblMessage"), "नाव");
        Type(clerk, "rama{ENTER}");
        EXPECT_EQ(clerk.On<frmNarrations>().Narration, "rama");
        EXPECT_EQ(Reads(clerk, "cmdExit"), "puZo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(m_narration, "rama");
    EXPECT_EQ(m_field, "rama");
}

TEST_F(MessagesTest, WhatWasTypedBehindTheEndOfAPromptAnswersNoBoxThatComesUpThen)
{
    for (const bool isPlain : {false, true}) {
        TheBox.Shown.clear();
        Failure = TheClerk.Play(
            [&] {
                frmNarrations prompt(Plain(u"नाव"));
                prompt.ShowModal();
                if (isPlain)
                    ShowPlain("text");
                else
                    m_answer = Ask(Plain(u"प्रश्न"));
                frmNarrations next(Plain(u"नाव"));
                next.ShowModal();
                m_field = next.Find(u"txtNarration")->Text();
            },
            [&](Clerk& clerk) {
                clerk.TypeAhead("{ESC}%hrama");
                if (!isPlain) {
                    EXPECT_EQ(OnTop(clerk), "frmMessages") << "nothing has answered it";
                    Type(clerk, "%n");
                }
                EXPECT_EQ(Reads(clerk, "txtNarration"), "");
                clerk.CloseBox();
            });
        EXPECT_FALSE(m_answer);
        EXPECT_EQ(m_field, QString());
    }
    EXPECT_EQ(TheBox.Shown.size(), 1);
}

TEST_F(MessagesTest, EscClearsThePromptAndClosesItAndTheCloseBoxClosesWithoutClearing)
{
    PromptOf([](Clerk& clerk) {
        Type(clerk, "rama{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(m_field, QString());
    EXPECT_EQ(m_narration, QString());
    PromptOf([](Clerk& clerk) {
        Type(clerk, "rama");
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(m_field, "rama");
    EXPECT_EQ(m_narration, QString()) << "the field was never left";
}

TEST_F(MessagesTest, ThePromptOpensTheKeyboardTutorWithF12)
{
    PromptOf([](Clerk& clerk) {
        Type(clerk, "{F12}");
        EXPECT_EQ(OnTop(clerk), "frmKeyboardTutor");
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmNarrations");
    });
}

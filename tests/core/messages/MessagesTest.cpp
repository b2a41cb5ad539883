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
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("cmdOkYes")));
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("cmdCancelNo")));
        EXPECT_FALSE(clerk.CanEnter(QStringLiteral("cmdExit")));
        EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdOkYes"));
    });
    NoticeOf([](Clerk& clerk) {
        EXPECT_FALSE(clerk.CanEnter(QStringLiteral("cmdOkYes")));
        EXPECT_FALSE(clerk.CanEnter(QStringLiteral("cmdCancelNo")));
        EXPECT_TRUE(clerk.CanEnter(QStringLiteral("cmdExit")));
    });
}

TEST_F(MessagesTest, TheButtonsReadHaoyaNaahiAndPuzo)
{
    AskOf([](Clerk& clerk) {
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdOkYes")), QStringLiteral("&haoya"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdCancelNo")), QStringLiteral("&naahI"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdExit")), QStringLiteral("puZo"));
        EXPECT_EQ(LabelOf(clerk, "lblMessages"), Seen(QStringLiteral("roka^D- na@kI badlaayacao ka Æ")));
    });
}

TEST_F(MessagesTest, AQuestionThatDestroysIsANoOnEnter)
{
    frmMessages::MessageAnswer = 1;
    bool answer = true;
    Failure = TheClerk.Play([&] { answer = Ask(Shivaji(u"roka^D- na@kI KaoDayacao ka Æ"), OnEnter::No); },
        [](Clerk& clerk) {
            EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdCancelNo"));
            clerk.Type(QStringLiteral("{ENTER}"));
            EXPECT_EQ(clerk.ScreenName(), QString());
        });
    EXPECT_FALSE(answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 0);
}

TEST_F(MessagesTest, APlainQuestionIsReadAsItIsWrittenAndSoIsAPlainNotice)
{
    Failure = TheClerk.Play([] { Ask(Plain(u"Are You Sure to Save ?")); },
        [](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblMessages"), QStringLiteral("Are You Sure to Save ?"));
            clerk.Type(QStringLiteral("{ENTER}"));
        });
    Failure = TheClerk.Play([] { ShowNotice(Plain(u"Saved")); },
        [](Clerk& clerk) {
            EXPECT_EQ(LabelOf(clerk, "lblMessages"), QStringLiteral("Saved"));
            clerk.Type(QStringLiteral("{ENTER}"));
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
                EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMessages")) << keys;
                EXPECT_EQ(clerk.Focus(), QStringLiteral("cmdOkYes")) << keys;
                clerk.Type(QStringLiteral("%n"));
                EXPECT_EQ(clerk.ScreenName(), QString()) << keys;
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
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMessages"));
    });
}

TEST_F(MessagesTest, TheKeysOfTheCaptionsAnswer)
{
    AskOf([](Clerk& clerk) { clerk.Type(QStringLiteral("%h")); });
    EXPECT_TRUE(m_answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 1);
    AskOf([](Clerk& clerk) { clerk.Type(QStringLiteral("%n")); });
    EXPECT_FALSE(m_answer);
    EXPECT_EQ(frmMessages::MessageAnswer, 0);
}

TEST_F(MessagesTest, ANoticeLeavesTheAnswerAsTheLastQuestionLeftIt)
{
    AskOf([](Clerk& clerk) { clerk.Type(QStringLiteral("{ENTER}")); });
    NoticeOf([](Clerk& clerk) { clerk.Type(QStringLiteral("{ENTER}")); });
    EXPECT_EQ(frmMessages::MessageAnswer, 1);
}

TEST_F(MessagesTest, ClosedByItsCloseBoxNoAnswerIsSetAndNothingIsAgreedTo)
{
    AskOf([](Clerk& clerk) { clerk.Type(QStringLiteral("%h")); });
    AskOf([](Clerk& clerk) { clerk.CloseBox(); });
    EXPECT_EQ(frmMessages::MessageAnswer, 1) << "as the last question left it";
    EXPECT_FALSE(m_answer);
    AskOf([](Clerk& clerk) { clerk.Type(QStringLiteral("{ESC}")); });
    EXPECT_FALSE(m_answer);
}

TEST_F(MessagesTest, ThePromptKeepsWhatWasTypedOnLeavingAndOnPuzo)
{
    PromptOf([](Clerk& clerk) {
        EXPECT_EQ(clerk.Focus(), QStringLiteral("txtNarration"));
        EXPECT_EQ(LabelOf(clerk, "lblMessage"), QStringLiteral("नाव"));
        clerk.Type(QStringLiteral("rama{ENTER}"));
        EXPECT_EQ(clerk.On<frmNarrations>().Narration, QStringLiteral("rama"));
        EXPECT_EQ(clerk.Reads(QStringLiteral("cmdExit")), QStringLiteral("puZo"));
        clerk.Type(QStringLiteral("{ENTER}"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(m_narration, QStringLiteral("rama"));
    EXPECT_EQ(m_field, QStringLiteral("rama"));
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
                    ShowPlain(QStringLiteral("text"));
                else
                    m_answer = Ask(Plain(u"प्रश्न"));
                frmNarrations next(Plain(u"नाव"));
                next.ShowModal();
                m_field = next.Find(u"txtNarration")->Text();
            },
            [&](Clerk& clerk) {
                clerk.TypeAhead(QStringLiteral("{ESC}%hrama"));
                if (!isPlain) {
                    EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmMessages")) << "nothing has answered it";
                    clerk.Type(QStringLiteral("%n"));
                }
                EXPECT_EQ(clerk.Reads(QStringLiteral("txtNarration")), QString());
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
        clerk.Type(QStringLiteral("rama{ESC}"));
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(m_field, QString());
    EXPECT_EQ(m_narration, QString());
    PromptOf([](Clerk& clerk) {
        clerk.Type(QStringLiteral("rama"));
        clerk.CloseBox();
        EXPECT_EQ(clerk.ScreenName(), QString());
    });
    EXPECT_EQ(m_field, QStringLiteral("rama"));
    EXPECT_EQ(m_narration, QString()) << "the field was never left";
}

TEST_F(MessagesTest, ThePromptOpensTheKeyboardTutorWithF12)
{
    PromptOf([](Clerk& clerk) {
        clerk.Type(QStringLiteral("{F12}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmKeyboardTutor"));
        clerk.Type(QStringLiteral("{ESC}"));
        EXPECT_EQ(clerk.ScreenName(), QStringLiteral("frmNarrations"));
    });
}

#pragma once

#include "core/messages/BoxScreen.h"
#include "platform/forms/Button.h"

// What Enter answers to a question.
enum class OnEnter { Yes, No };

// The program's own message dialog: a notice to go on from, or a question.
class frmMessages final : public BoxScreen {
public:
    enum class Mode { Notice, Question };

    frmMessages(Mode mode, const Caption& message, OnEnter onEnter = OnEnter::Yes);

    // The answer to the last question: 1 for yes, 0 for no. A notice, and a dialog that is closed without
    // an answer, leave it as it was.
    static int MessageAnswer;

    // Whether one of the buttons was pressed.
    bool Answered() const { return m_answered; }

private:
    Label lblMessages{this, "lblMessages"};
    Label lblMessage2{this, "lblMessage2"};
    Button cmdOkYes{this, "cmdOkYes", Shivaji(u"&haoya"), &frmMessages::cmdOkYes_Click};
    Button cmdCancelNo{this, "cmdCancelNo", Shivaji(u"&naahI"), &frmMessages::cmdCancelNo_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"puZo"), &frmMessages::cmdExit_Click};

    void Load() override;
    void cmdOkYes_Click();
    void cmdCancelNo_Click();
    void cmdExit_Click();
    void Dismiss();

    OnEnter m_onEnter;
    bool m_answered = false;
};

// Shows a notice, Shivaji(u"…") or Plain(u"…"), and returns when the clerk has gone on.
void ShowNotice(const Caption& notice);

// Asks a question; true only for a pressed yes. A dialog closed without an answer is a no. A question that
// destroys something is asked with OnEnter::No: one Enter too many changes nothing then.
bool Ask(const Caption& question, OnEnter onEnter = OnEnter::Yes);

// The plain box: for the few messages in English, and for what the program itself has to say.
// An empty title is the program's name.
void ShowPlain(const QString& text, const QString& title = {});

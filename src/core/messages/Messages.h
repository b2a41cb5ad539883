#pragma once

#include "core/messages/BoxScreen.h"
#include "platform/forms/Button.h"

// What Enter answers if the clerk doesn't move the focus.
enum class OnEnter { Yes, No };

// The program's own message dialog: a notice, or a question to be answered with yes or no.
class frmMessages final : public BoxScreen {
public:
    enum class Mode { Notice, Question };

    frmMessages(Mode mode, const Caption& message, OnEnter onEnter = OnEnter::Yes);

    // The answer to the last question: 1 for yes, 0 for no. A notice doesn't change it, nor does a question
    // that is closed without an answer.
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

// Shows a notice, Shivaji(u"…") or Plain(u"…"); returns when the clerk closes it.
void ShowNotice(const Caption& notice);

// Asks a question; true only if yes was pressed. Use OnEnter::No where a yes destroys something, so that one
// Enter too many does no harm.
bool Ask(const Caption& question, OnEnter onEnter = OnEnter::Yes);

// The plain box, for the few messages in English and for those of the program itself.
// An empty title is the program's name.
void ShowPlain(const QString& text, const QString& title = {});

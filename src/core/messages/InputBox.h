#pragma once

#include "core/messages/BoxScreen.h"
#include "platform/forms/Button.h"
#include "platform/forms/Field.h"
#include "platform/shell/World.h"

// Asks for a line of plain letters. Enter accepts it, Esc leaves.
class frmInputBox final : public BoxScreen {
public:
    // An empty title is the program's name; `proposed` is in the line at first.
    frmInputBox(const QString& prompt, const QString& proposed, const QString& title);

    // What was entered, trimmed; empty if the clerk left without an answer.
    QString Answer;

private:
    Label lblTitle{this, "lblTitle"};
    Label lblPrompt{this, "lblPrompt"};
    PlainField txtAnswer{this, "txtAnswer"};
    Button cmdOk{this, "cmdOk", Plain(u"ठीक"), &frmInputBox::cmdOk_Click};
    Button cmdCancel{this, "cmdCancel", Plain(u"रद्द"), &frmInputBox::cmdCancel_Click};

    void Enter() override { TakeAnswer(); }
    void TakeAnswer();
    void cmdOk_Click();
    void cmdCancel_Click();
};

// Asks each question with a frmInputBox.
class InputBoxCards final : public InputBox {
public:
    QString Ask(const QString& prompt, const QString& proposed = {}, const QString& title = {}) override;
};

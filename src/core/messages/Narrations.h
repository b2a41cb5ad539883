#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Screen.h"
#include "platform/forms/TextField.h"

// The one-line prompt: asks, and keeps what was typed for the caller to read.
class frmNarrations final : public Screen {
public:
    explicit frmNarrations(const Caption& prompt);

    // What was typed, once the field was left or the button pressed.
    QString Narration;

private:
    Label lblMessage{this, "lblMessage"};
    TextField txtNarration{this, "txtNarration", &frmNarrations::txtNarration_LostFocus};
    Button cmdExit{this, "cmdExit", Shivaji(u"puZo"), &frmNarrations::cmdExit_Click};

    bool KeyDown(const QKeyEvent& key) override;
    void Escape() override;
    void txtNarration_LostFocus();
    void cmdExit_Click();
};

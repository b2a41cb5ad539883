#pragma once

#include "core/menu/Keys.h"
#include "platform/forms/Button.h"
#include "platform/forms/Screen.h"
#include "platform/forms/TextField.h"

// Asks for one line of text, which the caller reads afterwards.
class frmNarrations final : public Screen {
public:
    explicit frmNarrations(const Caption& prompt);

    static Keys::Place KeyPlace();

    // What was typed, set when the field is left or the button is pressed.
    QString Narration;

private:
    Label lblMessage{this, "lblMessage"};
    TextField txtNarration{this, "txtNarration", &frmNarrations::txtNarration_LostFocus};
    Button cmdExit{this, "cmdExit", Shivaji(u"puZo"), &frmNarrations::cmdExit_Click};

    bool KeyDown(const QKeyEvent& key) override;
    void Escape() override;
    void ShowTutor();
    void txtNarration_LostFocus();
    void cmdExit_Click();
};

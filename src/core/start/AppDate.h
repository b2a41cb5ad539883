#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/Screen.h"

// Asks for the working day that the entry screens propose. It proposes the last day worked on.
class frmAppDate final : public Screen {
public:
    frmAppDate();

private:
    Label lblTitle{this, "lblTitle"};
    Label lblDate{this, "lblDate", Shivaji(u"idnaaMk")};
    DateField MaskAppDate{this, "MaskAppDate", &frmAppDate::MaskAppDate_LostFocus};
    Button cmdExit{this, "cmdExit", Shivaji(u"puZo"), &frmAppDate::cmdExit_Click};

    int DateBad = 0; // 1 while the date in the field is invalid

    void Load() override;
    void Escape() override;
    void MaskAppDate_GotFocus();
    void MaskAppDate_LostFocus();
    void cmdExit_Click();
};

#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Screen.h"

// The title screen.
class frmAbout final : public Screen {
public:
    frmAbout();

    // Whether the clerk wants to go on.
    bool Accepted() const { return m_accepted; }

private:
    Label lblTitle{this, "lblTitle"};
    Label lblSystem{this, "lblSystem", Shivaji(u" dUQa saMklana va vyavasqaapna p`NaalaI")};
    Label lblVersion{this, "lblVersion", Plain(u"Version 1.0")};
    Button cmdOK{this, "cmdOK", Plain(u"OK"), &frmAbout::cmdOK_Click};
    Button cmdExit{this, "cmdExit", Plain(u"E&xit"), &frmAbout::cmdExit_Click};

    void cmdOK_Click();
    void cmdExit_Click();

    bool m_accepted = false;
};

// The caution notice. Its buttons alone have colours of their own: green to go on, red to turn back.
class frmTip final : public Screen {
public:
    frmTip();
    bool Accepted() const { return m_accepted; }

private:
    Label lblTitle{this, "lblTitle"};
    Label lblTip{this, "lblTip"};
    Button cmdOk{this, "cmdOk", Plain(u"&Accept"), &frmTip::cmdOk_Click};
    Button Command1{this, "Command1", Plain(u"&Reject"), &frmTip::Command1_Click};

    void cmdOk_Click();
    void Command1_Click();

    bool m_accepted = false;
};

// The title, the caution and the menu, one after the other, as long as the clerk goes on.
void ShowOpeningScreens();

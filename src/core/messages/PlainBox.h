#pragma once

#include "core/messages/BoxScreen.h"
#include "platform/forms/Button.h"
#include "platform/shell/World.h"

// The plain box: a text and a button. Enter, Space and Esc close it.
class frmPlainBox final : public BoxScreen {
public:
    // An empty title is the program's name. A text that is too long for any card is cut, with a mark at its
    // end.
    frmPlainBox(const QString& text, const QString& title);

private:
    Label lblTitle{this, "lblTitle"};
    Label lblText{this, "lblText"};
    Button cmdOk{this, "cmdOk", Plain(u"ठीक"), &frmPlainBox::cmdOk_Click};

    void ShowText(const QString& text);
    void cmdOk_Click();
};

// Shows each text in a frmPlainBox.
class PlainBoxCards final : public MessageBox {
public:
    void Show(const QString& text, const QString& title = {}) override;
};

#pragma once

#include "core/messages/BoxScreen.h"
#include "platform/forms/Button.h"
#include "platform/shell/World.h"

// The plain box: one text as it stands, one button. Enter, Space and Esc close it.
class frmPlainBox final : public BoxScreen {
public:
    // An empty title is the program's name. Of a text that no card can hold the end is left out, with a mark.
    frmPlainBox(const QString& text, const QString& title);

private:
    Label lblTitle{this, "lblTitle"};
    Label lblText{this, "lblText"};
    Button cmdOk{this, "cmdOk", Plain(u"ठीक"), &frmPlainBox::cmdOk_Click};

    void ShowText(const QString& text);
    void cmdOk_Click();
};

// Tells each text on a frmPlainBox.
class PlainBoxCards final : public MessageBox {
public:
    void Show(const QString& text, const QString& title = {}) override;
};

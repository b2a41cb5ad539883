#pragma once

#include "platform/forms/Control.h"

// A check box with its caption. Space or the mouse changes it; Enter moves on to the next control.
class CheckBox final : public Control {
public:
    CheckBox(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    // The clerk has changed it.
    Event Click;

    bool Checked() const;
    void SetChecked(bool checked);
    const Caption& Shown() const { return m_caption; }

    // "1" if it is checked, else "0".
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    Caption m_caption;
};

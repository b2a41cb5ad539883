#pragma once

#include "platform/forms/Control.h"

// A box to tick, beside its caption. Space or the mouse turns it; Enter goes on to the next control.
class CheckBox final : public Control {
public:
    CheckBox(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    // The clerk has turned it.
    Event Click;

    bool Checked() const;
    void SetChecked(bool checked);
    const Caption& Shown() const { return m_caption; }

    // Its value: "1" with the tick, "0" without.
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;

private:
    Caption m_caption;
};

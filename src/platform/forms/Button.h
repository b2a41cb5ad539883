#pragma once

#include "platform/forms/Control.h"

// A button. Its caption is the state of the screen: a handler reads it to know what the press means.
class Button final : public Control {
public:
    Button(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    Event Click;

    // The caption as the system spells it, '&' included.
    QString Text() const override { return m_caption.Text(); }
    const Caption& Shown() const { return m_caption; }
    void SetCaption(const Caption& caption);
    bool Reads(QStringView stored) const { return m_caption.Text() == stored; }

    // Runs Click, if the button can take the focus.
    void Press();

    // A mouse press on a Cancel button leaves the field before it without its validation; by its key the
    // field is validated, and left whatever comes of it.
    bool Cancels() const { return m_cancels; }
    void SetCancels(bool cancels) { m_cancels = cancels; }

protected:
    bool KeyPress(const QKeyEvent& key) override;
    QChar Mnemonic() const override { return m_caption.Mnemonic(); }
    void AnswerMnemonic() override { Press(); }

private:
    Caption m_caption;
    bool m_cancels = false;
};

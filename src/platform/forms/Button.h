#pragma once

#include "platform/forms/Control.h"

// A button. Its caption also tells the screen what a press means: handlers read it.
class Button final : public Control {
public:
    Button(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    Event Click;

    // The caption as it is stored, with its '&'.
    QString Text() const override { return m_caption.Text(); }
    const Caption& Shown() const { return m_caption; }
    void SetCaption(const Caption& caption);
    bool Reads(QStringView stored) const { return m_caption.Text() == stored; }

    // Runs Click if the button is enabled and visible.
    void Press();

    // A mouse press on a Cancel button skips the LostFocus of the field that is left. Its key runs the
    // LostFocus, but leaves the field even if that refuses.
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

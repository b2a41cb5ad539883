#pragma once

#include "platform/forms/Control.h"

#include <initializer_list>
#include <vector>

class OptionGroup;

// One of a group of options, of which at most one is chosen. Space, the mouse or Alt with its letter chooses
// it; the arrow keys choose its neighbour; Enter moves on to the next control. Tab stops only at the chosen
// one.
class OptionButton final : public Control {
public:
    OptionButton(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    // The clerk has chosen it.
    Event Click;

    bool Chosen() const;

    // Chooses this option instead of the one that was chosen, without running Click.
    void Choose();
    const Caption& Shown() const { return m_caption; }

    // "1" if it is chosen, else "0".
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void ShowFocus(bool held) override;
    QChar Mnemonic() const override { return m_caption.Mnemonic(); }
    void AnswerMnemonic() override { Press(); }

private:
    friend class OptionGroup;

    void Press();
    void Show(bool chosen);

    Caption m_caption;
    OptionGroup* m_group = nullptr;
};

// The options of one choice. Declare it in the screen after its options.
class OptionGroup {
public:
    OptionGroup(std::initializer_list<OptionButton*> options);

    // The chosen option; null if none is chosen.
    OptionButton* Chosen() const { return m_chosen; }

    // Chooses none of them.
    void Clear();

private:
    friend class OptionButton;

    void Choose(OptionButton& option);
    OptionButton* Neighbour(const OptionButton& from, int step) const;

    std::vector<OptionButton*> m_options;
    OptionButton* m_chosen = nullptr;
};

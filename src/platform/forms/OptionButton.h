#pragma once

#include "platform/forms/Control.h"

#include <initializer_list>
#include <vector>

class OptionGroup;

// One of a group of options, of which at most one is chosen. Space, the mouse or Alt and its letter choose
// it, the arrows choose its neighbour; Enter goes on to the next control. Tab stops at the chosen one only.
class OptionButton final : public Control {
public:
    OptionButton(Screen* screen, const char* name, const Caption& caption, const Handler& click = {});

    // The clerk has chosen it.
    Event Click;

    bool Chosen() const;

    // Chooses it in place of the one before it, without Click.
    void Choose();
    const Caption& Shown() const { return m_caption; }

    // Its value: "1" when it is chosen, else "0".
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

// The options that stand for one choice. It is a member of the screen, declared after its options.
class OptionGroup {
public:
    OptionGroup(std::initializer_list<OptionButton*> options);

    // The chosen option; null before one is.
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

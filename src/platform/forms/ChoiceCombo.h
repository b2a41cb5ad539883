#pragma once

#include "platform/forms/DropList.h"
#include "platform/forms/Field.h"

#include <QStringList>

// A field for one of a few fixed words, with a drop-down list. A digit chooses the word at that place. A
// mouse press or Alt+Down opens the list, in which the mouse, Up and Down choose; Esc closes it. Backspace
// and Delete empty the field. All other keys are ignored.
class ChoiceCombo final : public Field {
public:
    // `words` as they are stored, in the order of their digits.
    ChoiceCombo(
        Screen* screen, const char* name, const QStringList& words = {}, const Handler& lostFocus = {});

    const QStringList& Words() const { return m_words; }
    void SetWords(const QStringList& words);

    // How many words, counted from the first, can be chosen by a digit; the others only from the list. By
    // default the first nine.
    void SetDigits(int count) { m_digits = count; }

    // Ignores every key, so that only the mouse can choose.
    void SetMouseOnly(bool only) { m_mouseOnly = only; }

    // Whether the text is one of the words.
    bool HoldsAWord() const { return m_words.contains(m_word); }

    QString Text() const override { return m_word; }
    void SetText(const QString& word) override;

    bool IsDroppedDown() const { return m_list.IsOpen(); }
    void DropDown(bool open);

protected:
    bool KeyPress(const QKeyEvent& key) override;
    bool KeyBeforeScreen(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    void ShowFocus(bool held) override;
    void MouseDone() override;

private:
    void Choose(QChar digit);
    void Walk(int step);

    QStringList m_words;
    QString m_word;
    int m_digits = 9;
    bool m_mouseOnly = false;
    DropList m_list;
};

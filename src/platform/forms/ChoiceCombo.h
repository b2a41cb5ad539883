#pragma once

#include "platform/forms/DropList.h"
#include "platform/forms/Field.h"

#include <QStringList>

// A field with a few fixed words and a list of them that drops below it. A digit chooses a word by its place;
// a press of the mouse or Alt+Down opens the list, where the mouse, Up and Down pick; Esc closes it
// and nothing else. Backspace and Delete empty the field. All other keys are dropped.
class ChoiceCombo final : public Field {
public:
    // `words` as the system spells them, in the order of their digits.
    ChoiceCombo(
        Screen* screen, const char* name, const QStringList& words = {}, const Handler& lostFocus = {});

    const QStringList& Words() const { return m_words; }
    void SetWords(const QStringList& words);

    // How many of the words have a digit, from the first; the others are picked from the list. All that have
    // a place from 1 to 9 do unless this is told.
    void SetDigits(int count) { m_digits = count; }

    // Drops every key, so that only the mouse picks.
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

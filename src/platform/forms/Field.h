#pragma once

#include "platform/forms/Control.h"

#include <optional>

class QLineEdit;

// A one-line entry field. When it gets the focus it selects its whole text.
class Field : public Control {
public:
    Field(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The text was changed by the clerk or by the screen.
    Event TextChanged;

    // Sets the text in the form that Text returns and statements use.
    virtual void SetText(const QString& text) = 0;
    void Clear() { SetText({}); }
    bool IsEmpty() const { return Text().isEmpty(); }

    // Selects the whole text.
    virtual void SelectAll();

    // The greatest number of characters that can be typed; 0 for no limit. A number that the screen shows may
    // be longer.
    virtual void SetMaxLength(int characters);

    void SetAlignRight();

    // The text as it is shown.
    QString Seen() const;

protected:
    QLineEdit& Line() const;

    // Shows a text, with the caret behind it and nothing selected. On a hidden panel the text is kept until
    // it is seen, since to lay it out takes longer than all else that a change does: a run over many members
    // changes forty figures for each of them.
    void PutIntoLine(const QString& seen);
    void SetUnseen(bool unseen) override;
    void ShowFocus(bool held) override;
    bool KeepsPress(bool entering) override;

    // Whether a second press of the mouse places the caret. In a field of figures each press selects
    // everything.
    virtual bool CaretByMouse() const { return false; }

    // Runs TextChanged if the text differs from `before`.
    void TellChange(const QString& before) const;

    // Copies the shown text to the clipboard if the key asks for that; returns whether it did.
    bool CopyKey(const QKeyEvent& key) const;

private:
    bool m_wasPressed = false; // by the mouse, since it got the focus
    bool m_isUnseen = false;
    std::optional<QString> m_kept; // what is shown as soon as it is seen
};

// A number: takes digits and, if it has decimals, a point. All other keys are ignored.
class NumberField : public Field {
public:
    enum class Digits { Whole, Decimals };

    // With a pattern for Format, such as u"#####0.000", in which it shows its number. How many # stand before
    // the point doesn't limit what can be typed.
    NumberField(Screen* screen, const char* name, QStringView pattern, const Handler& lostFocus = {});

    // Without a pattern: numbers are shown in their shortest form.
    NumberField(Screen* screen, const char* name, Digits digits, const Handler& lostFocus = {});

    QString Text() const override;
    void SetText(const QString& text) override;
    void SetMaxLength(int characters) override { m_maxLength = characters; }

    void SetPattern(QStringView pattern) { m_pattern = pattern.toString(); }

    // Takes the small letter n, too. It isn't part of the number: a text that n begins has the value 0, and
    // Reformat drops it.
    void TakeLetterN() { m_takesN = true; }

    // The number that the text begins with; 0 if it begins with none.
    double Value() const;

    // Whether the whole text is a number.
    bool HoldsNumber() const;

    // Shows a number by the pattern.
    void Show(double value);

    // Shows what was typed by the pattern, and returns the number as it was typed.
    double Reformat();

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;

private:
    QString FigureOf(const QString& text, bool keypad) const;

    Digits m_digits;
    QString m_pattern;
    int m_maxLength = 0;
    bool m_takesN = false;
};

// A whole number, such as that of a member.
class WholeField final : public NumberField {
public:
    WholeField(Screen* screen, const char* name, const Handler& lostFocus = {})
        : NumberField(screen, name, Digits::Whole, lostFocus)
    {
    }
};

// A field for one of a few fixed words. A digit chooses its word, Backspace empties the field unless it is
// locked, and all other keys are ignored. Its guide names each digit with its word, unless the screen sets
// another.
class ChoiceField : public Field {
public:
    struct Choice {
        QChar digit;
        QString word; // as it is stored
    };

    ChoiceField(Screen* screen, const char* name, std::vector<Choice> choices, const Handler& lostFocus = {});

    // The guide of such a choice, as it is stored: "1 ¹ gaaya    2 ¹ mhOsa".
    static QString GuideTo(const std::vector<Choice>& choices);

    // Keys can't empty a locked field.
    void SetLocked(bool locked) { m_locked = locked; }

    QString Text() const override { return m_word; }
    void SetText(const QString& word) override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;

private:
    void Choose(QChar digit);

    std::vector<Choice> m_choices;
    QString m_word;
    bool m_locked = false;
};

// A text in Latin letters, such as the English side of the keyboard tutor.
class PlainField final : public Field {
public:
    PlainField(Screen* screen, const char* name);

    // The clerk has changed the text.
    Event Change;

    QString Text() const override;
    void SetText(const QString& text) override;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    bool CaretByMouse() const override { return true; }
};

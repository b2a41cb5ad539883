#pragma once

#include "platform/forms/Control.h"

class QLineEdit;

// A one-line entry field. On taking the focus it selects its whole text, whether by key or by mouse.
class Field : public Control {
public:
    Field(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The text has changed, by a key of the clerk or by the screen.
    Event TextChanged;

    // The text as it goes into statements.
    virtual void SetText(const QString& text) = 0;
    void Clear() { SetText({}); }
    bool IsEmpty() const { return Text().isEmpty(); }

    // Selects the whole text.
    virtual void SelectAll();

    // The longest text that can be typed; 0 is no limit.
    virtual void SetMaxLength(int characters);

    void SetAlignRight();

    // What the eye meets in the field.
    QString Seen() const;

protected:
    QLineEdit& Line() const;
    void ShowFocus(bool held) override;
    bool KeepsPress(bool entering) override;

    // Whether the mouse may put the caret into the text, from its second press on. A field of figures is
    // typed anew as a whole: each press selects it.
    virtual bool CaretByMouse() const { return false; }

    // Runs TextChanged if the text isn't what it was before.
    void TellChange(const QString& before) const;

    // Copies what is seen; true if the key asked for it.
    bool CopyKey(const QKeyEvent& key) const;

private:
    bool m_wasPressed = false; // by the mouse, since the focus came
};

// A number as the clerk types it: digits, and where it has decimals a point. All other keys are dropped.
class NumberField : public Field {
public:
    enum class Digits { Whole, Decimals };

    // With a pattern of Format, such as u"#####0.000", in which the field shows its number. The # before the
    // point set no limit.
    NumberField(Screen* screen, const char* name, QStringView pattern, const Handler& lostFocus = {});

    // Without one: it shows a number in its shortest form.
    NumberField(Screen* screen, const char* name, Digits digits, const Handler& lostFocus = {});

    QString Text() const override;
    void SetText(const QString& text) override;

    void SetPattern(QStringView pattern) { m_pattern = pattern.toString(); }

    // The number that the text begins with; 0 if it begins with none.
    double Value() const;

    // Whether the text is a number and nothing else.
    bool HoldsNumber() const;

    // Shows a number in the pattern.
    void Show(double value);

    // Writes what was typed in the pattern. Returns the number as it was typed.
    double Reformat();

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;

private:
    Digits m_digits;
    QString m_pattern;
};

// A number without decimals, such as that of a member.
class WholeField final : public NumberField {
public:
    WholeField(Screen* screen, const char* name, const Handler& lostFocus = {})
        : NumberField(screen, name, Digits::Whole, lostFocus)
    {
    }
};

// A field with a few fixed words. A digit puts its word in place; Backspace empties the field unless it is
// locked; all other keys are dropped.
class ChoiceField : public Field {
public:
    struct Choice {
        QChar digit;
        QString word; // as the system spells it
    };

    ChoiceField(Screen* screen, const char* name, std::vector<Choice> choices, const Handler& lostFocus = {});

    // A locked field is never emptied by a key.
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

// A text in plain letters, such as the English side of the keyboard aid.
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

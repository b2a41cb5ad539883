#pragma once

#include "platform/forms/Field.h"

#include <QDate>

// A date field with the mask "##/##/####" (dd/MM/yyyy); empty it reads "__/__/____". Digits fill the mask
// from left to right. '/', '.' and '-' end the day or the month early, so that 1/4/2026 can be typed as it is
// spoken.
class DateField final : public Field {
public:
    DateField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The mask with what has been typed into it.
    QString Text() const override;

    // Takes a text in the form of the mask; the empty text empties it.
    void SetText(const QString& text) override;
    void SetDate(const QDate& date);

    // Whether the text is a valid date.
    bool HoldsDate() const;
    bool IsEmptyMask() const;

    // Returns whether the text is a valid date. If not, it moves the focus back to this field, and the guide
    // label shows `wanted`.
    bool InsistOnDate(const Caption& wanted = {});

    // The date; it is a type mismatch error if the text isn't one.
    QDate Date() const;

    // From now on a text that is no date isn't selected when the field takes the focus: the caret stands
    // before it, so that the next key mends it and doesn't wipe it out.
    void KeepForMending() { m_keepsForMending = true; }

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;
    void ShowFocus(bool held) override;

private:
    bool m_keepsForMending = false;

    void TypeDigit(QChar digit);
    void EndPart();
    void Erase(bool backwards);
    void EraseSelection();
    void Put(int at, QChar c);
};

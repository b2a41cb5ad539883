#pragma once

#include "platform/forms/Field.h"

#include <QDate>

// A date in the mask "##/##/####", read as dd/MM/yyyy; empty it reads "__/__/____". Digits fill the mask
// from left to right and step over the slashes; '/', '.' and '-' end a part early, so that 1/4/2026 can be
// typed as it is spoken.
class DateField final : public Field {
public:
    DateField(Screen* screen, const char* name, const Handler& lostFocus = {});

    // The mask with what has been typed into it.
    QString Text() const override;

    // A text in the mask's form; the empty text empties the mask.
    void SetText(const QString& text) override;
    void SetDate(const QDate& date);

    // Whether the mask holds a date of the calendar.
    bool HoldsDate() const;
    bool IsEmptyMask() const;

    // Whether the mask holds a date; unless it does, the focus goes back to it, and the guide label says what
    // is wanted.
    bool InsistOnDate(const Caption& wanted = {});

    // The date in the mask; a mask that holds none is a type mismatch error.
    QDate Date() const;

protected:
    bool KeyPress(const QKeyEvent& key) override;
    void Insert(const QString& text) override;

private:
    void TypeDigit(QChar digit);
    void EndPart();
    void Erase(bool backwards);
    void EraseSelection();
    void Put(int at, QChar c);
};

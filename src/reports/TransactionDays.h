#pragma once

#include "platform/forms/DateField.h"
#include "platform/forms/Layout.h"

// The days of a report, from one to another. A text that is no date is emptied and keeps the focus; for an
// empty end the day of the newest transaction is proposed.
class TransactionDays {
    Screen* m_screen;

public:
    explicit TransactionDays(Screen* screen);

    DateField maskFromDate{m_screen, "maskFromDate", {this, &TransactionDays::maskFromDate_LostFocus}};
    DateField maskToDate{m_screen, "maskToDate", {this, &TransactionDays::maskToDate_LostFocus}};

    // Whether both are dates; if not, the first that isn't has the focus.
    bool Hold();

    QDate From() const { return maskFromDate.Date(); }
    QDate To() const { return maskToDate.Date(); }

    // Puts what it asks for into a form.
    void AddTo(Layout::Form& form);

private:
    void maskFromDate_LostFocus();
    void maskToDate_GotFocus();
    void maskToDate_LostFocus();
};

#pragma once

#include "payments/PaymentOf.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"

class QHBoxLayout;

// The days of one member's payment: its period, and the date of the bill with the bill's number.
class PaymentDays {
    Screen* m_screen;

public:
    explicit PaymentDays(Screen* screen);

    DateField maskFromDate{m_screen, "maskFromDate", {this, &PaymentDays::maskFromDate_LostFocus}};
    DateField maskToDate{m_screen, "maskToDate", {this, &PaymentDays::maskToDate_LostFocus}};
    DateField MaskBillDate{m_screen, "MaskBillDate", {this, &PaymentDays::MaskBillDate_LostFocus}};
    WholeField txtBillNo{m_screen, "txtBillNo"};

    // Whether the settings say how long a period is, so that its last day follows from its first.
    static bool IsDerived();

    // Whether a period may begin on the day of the field. If not, the field keeps the focus, and the guide
    // line says what it wants.
    static bool InsistOnFirstDay(DateField& from);

    // Sets the last day of the period, and the date of the bill to it.
    void DerivePeriodEnd();

    // Sets the bill's number to the next one of its date; each date has a series of its own.
    void NextBillNo();

    // Whether what can be entered of them are dates; the focus goes to the first that is none.
    bool InsistOnDates();

    // Whose payment it is then. The period must be dates; the date of the bill may be none yet.
    PaymentOf Of(double memberNo) const;

    void Clear();

    // The fields in a row, for the members' part of the screen to go on with.
    QHBoxLayout* Row();

private:
    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void MaskBillDate_LostFocus();
};

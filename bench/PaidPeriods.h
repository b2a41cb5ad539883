#pragma once

#include <QDate>

// Gives a society of the bench, whose books are open, the vouchers of all its months and the payments of all
// its periods of ten days but the last month's: each member takes advances every month, pays them back from
// every payment, and some bring money besides. Its settings let a payment do as much as possible.
void FillPayments(const QDate& firstDay);

// A period that is paid, and the one after all payments.
inline const QDate PaidFrom(2027, 2, 11);
inline const QDate PaidTo(2027, 2, 20);
inline const QDate UnpaidFrom(2027, 3, 1);
inline const QDate UnpaidTo(2027, 3, 10);

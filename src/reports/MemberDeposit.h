#pragma once

#include <QDate>

// What was kept back from a member as a deposit on his milk, by the details of his payments. The paise that
// go to the deposit are not part of it.
namespace MemberDeposit {

// In the accounting year, before a payment date.
double Before(double memberNo, const QDate& paymentDate);

// On a payment date.
double On(double memberNo, const QDate& paymentDate);

}

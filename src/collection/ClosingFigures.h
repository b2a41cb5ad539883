#pragma once

#include <QString>

// The running figures of a member that the counters keep up.

enum class PostAction { Add, Del };

// Puts a delivery's amount (in rupees) on the member's closing balance, or takes it off. The balance is
// payable ("C") above 0 and else due ("D"). A member without a closing balance gets 0, whatever the amount;
// a name that no member has changes nothing.
void PostClosingBalance(QStringView name, double amount, PostAction action);

// Sets the member's closing litres to the opening litres and all deliveries since, in single precision.
void RefreshClosingLitres(double memberNo);

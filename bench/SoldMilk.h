#pragma once

#include <QDate>

// Gives a society of the bench, whose books are open, customers, and the sales of all its days: in each shift
// eight of them, for cash, to customers, and to the federation, which is the debtor of the accounts. A bonus
// can be worked out, too.
void FillSales(const QDate& firstDay);

// The customers of local sale have numbers above that of the federation, 1.
inline constexpr int Customers = 40;

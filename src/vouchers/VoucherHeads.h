#pragma once

#include "vouchers/Voucher.h"

// The heads of the advance that is being entered, in TransactionsDetailsTemp.
namespace VoucherHeads {

// Whether there are any.
bool Any();

// The rupees under a head; nothing if it isn't there.
std::optional<double> AmountOf(const QString& head);

// The rupees under all of them.
double Total();

// Adds a head, or gives it another amount.
void Put(const Voucher& voucher, const QString& head, double amount);

// Takes them from a voucher of the books.
void Load(const Voucher& voucher);

// Drops them. The caller may have opened a transaction that they go with.
void Clear();

}

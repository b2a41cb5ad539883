#pragma once

// What is done to a voucher.
enum class VoucherMove { Add, Mod, Del };

// Moves a member's closing balance and advance by a voucher of `amount` rupees: positive for an advance,
// negative for a receipt. `oldAmount` is the positive amount that a voucher had before a change; a receipt's
// is not negated, so that changing one moves the balance by the sum of both. The caller opens the
// transaction.
void MoveMemberVoucherBalance(double memberNo, double amount, VoucherMove move, double oldAmount = 0);

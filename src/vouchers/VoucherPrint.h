#pragma once

struct Voucher;

// Each asks whether a saved voucher is to be printed and for whom, keeps the name and the amount in words
// with it, and shows it on its template.
void PrintVoucher(const Voucher& advance);
void PrintReceipt(const Voucher& receipt);

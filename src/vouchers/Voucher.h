#pragma once

#include "platform/database/Sql.h"
#include "vouchers/VoucherKind.h"

#include <optional>

// A voucher as the books hold it: a row of TransactionsMaster, with the heads of an advance in
// TransactionsDetails, or the row of a receipt in AdvanceReceipt. The caller opens the transaction.
struct Voucher {
    const VoucherKind* kind = &AdvanceVoucher;
    QString tranDate; // dd/MM/yyyy
    double tranId = 0;
    double memberNo = 0; // 0 if nobody has the name any more
    QString memberName;
    double amount = 0; // rupees

    bool IsReceipt() const { return kind == &ReceiptVoucher; }

    // One more than the highest number of the date, whatever its kind.
    static double NextNo(const QString& tranDate);

    // Whether a voucher of any kind has this number on the date.
    static bool IsThere(const QString& tranDate, double tranId);

    // The voucher of this kind with the number on the date, or without a number the first of the date.
    static std::optional<Voucher> Find(
        const VoucherKind& kind, const QString& tranDate, std::optional<double> tranId);

    // Writes the voucher with what stands in TransactionsDetailsTemp as its heads.
    void Insert() const;

    // Replaces member, amount and heads of the voucher that has this date and number.
    void Update() const;

    void Delete() const;

    // The condition that finds it in the tables of vouchers.
    SqlText OfItself() const;

private:
    void FindMember();
    void InsertDetails() const;
    void DeleteDetails() const;
};

#pragma once

#include "society/Words.h"

// What tells the two kinds of a member's vouchers apart, in the books and in the look-up.
struct VoucherKind {
    QStringView type; // TranType
    QStringView billNo;
    QStringView narration;
    QStringView reportMode; // how the look-up is asked for them
};

// An advance, given to a member.
inline constexpr VoucherKind AdvanceVoucher{
    Word::PaymentVoucher,
    Word::Uchal,
    u"]cala idlaI.", // उचल दिली
    u"U",
};

// Money that a member gives back.
inline constexpr VoucherKind ReceiptVoucher{
    Word::ReceiptVoucher,
    Word::UchalJama,
    u"]cala jamaa JaalaI.", // उचल जमा झाली
    u"UR",
};

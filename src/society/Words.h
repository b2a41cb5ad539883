#pragma once

#include "core/state/ShiftWords.h"

// The words of the trade as the books hold them, in the system's encoding; the comments give their reading.
// Word::Morning and Word::Evening come from core.
namespace Word {

inline constexpr QStringView Cow = u"gaaya"; // गाय
inline constexpr QStringView Buffalo = u"mhOsa"; // म्हैस
inline constexpr QStringView Both = u"daonhI"; // दोन्ही
inline constexpr QStringView Cash = u"raoK"; // रोख
inline constexpr QStringView Bank = u"ba^nk"; // बॅन्क
inline constexpr QStringView LocalSale = u"sqaainak ivaËI"; // स्थानिक विक्री
inline constexpr QStringView FederationSale = u"saMGa ivaËI"; // संघ विक्री
inline constexpr QStringView Federation = u"saMGa"; // संघ
inline constexpr QStringView Yes = u"haoya"; // होय
inline constexpr QStringView No = u"naahI"; // नाही

// The heads that an advance can be given under; the first is also what the whole is called.
inline constexpr QStringView Uchal = u"]cala"; // उचल
inline constexpr QStringView Khadya = u"KaV"; // खाद्य
inline constexpr QStringView Kirana = u"ikraNaa maalaÀroSana"; // किराणा माल/रेशन
inline constexpr QStringView OtherUchal = u"[tr"; // इतर
inline constexpr QStringView UchalJama = u"]cala jamaa"; // उचल जमा

// The kinds of a voucher: money that goes out, and money that comes in.
inline constexpr QStringView PaymentVoucher = u"pomaonT"; // पेमेन्ट
inline constexpr QStringView ReceiptVoucher = u"irsaIT"; // रिसीट

// The kinds of a transaction that is milk sold or bought.
inline constexpr QStringView CashSale = u"raoK ivaËI"; // रोख विक्री
inline constexpr QStringView CreditSale = u"]Qaar ivaËI"; // उधार विक्री
inline constexpr QStringView CashPurchase = u"raoK KrodI"; // रोख खरेदी
inline constexpr QStringView CreditPurchase = u"]Qaar KrodI"; // उधार खरेदी

// The heads of deposits, and in Latin letters those of an advance that comes back: kept from a payment, or
// by a voucher.
inline constexpr QStringView CowThev = u"gaaya zova"; // गाय ठेव
inline constexpr QStringView BuffThev = u"mhOsa zova"; // म्हैस ठेव
inline constexpr QStringView Thev = u"zova"; // ठेव
inline constexpr QStringView UchalKapat = u"Uchal Kapat"; // उचल कपात
inline constexpr QStringView UchalReceipt = u"Uchal Receipt"; // उचल जमा

// What stays unpaid from before a period, among the heads of a payment.
inline constexpr QStringView PreviousBalance = u"maagaIla baakI"; // मागील बाकी

}

// Whether a text is one of the two shifts of a day.
inline bool IsShift(QStringView time)
{
    return time == Word::Morning || time == Word::Evening;
}

// Whether a text is one of the two kinds of milk.
inline bool IsAnimal(QStringView animal)
{
    return animal == Word::Cow || animal == Word::Buffalo;
}

#pragma once

#include "tools/reckoning/Compared.h"
#include "tools/reckoning/VoucherReckoning.h"

// The book of an account worked out a second time from the vouchers: each row with the balance before and
// after it, in exact decimals. What the account is debited is less, what it is credited is more; nothing and
// less than nothing is on the debit side.
class LedgerReckoning {
public:
    // The opening of the year with its sign, and the side that is written beside it.
    LedgerReckoning(const QString& account, Exact opening, const QString& side)
        : m_account(account)
        , m_opening(opening)
        , m_side(side)
    {
    }

    // What is staged for a range of days, beside what the vouchers say.
    Compared Comparison(
        const std::vector<VoucherReckoning::Posting>& postings, const QDate& from, const QDate& to) const;

    // The balance behind all of them.
    Exact Closing(const std::vector<VoucherReckoning::Posting>& postings) const;

private:
    Exact Effect(const VoucherReckoning::Posting& posting) const;

    QString m_account;
    Exact m_opening;
    QString m_side;
};

#include "tools/reckoning/LedgerReckoning.h"

#include <algorithm>

namespace {

Exact WithoutSign(Exact figure)
{
    return figure < Exact() ? -figure : figure;
}

QString SideOf(Exact balance)
{
    return balance > Exact() ? QStringLiteral("C") : QStringLiteral("D");
}

}

Exact LedgerReckoning::Effect(const VoucherReckoning::Posting& posting) const
{
    Exact effect;
    if (posting.debit == m_account)
        effect = effect - posting.amount;
    if (posting.credit == m_account)
        effect += posting.amount;
    return effect;
}

Exact LedgerReckoning::Closing(const std::vector<VoucherReckoning::Posting>& postings) const
{
    Exact balance = m_opening;
    for (const VoucherReckoning::Posting& posting : postings)
        balance += Effect(posting);
    return balance;
}

// The total of a row is the greater of the day's sums up to it; each begins with the balance brought forward,
// if that is on its side.
Compared LedgerReckoning::Comparison(
    const std::vector<VoucherReckoning::Posting>& postings, const QDate& from, const QDate& to) const
{
    QStringList lines;
    Exact balance = m_opening;
    QString side = m_side;
    QDate day;
    Exact debits;
    Exact credits;
    for (const VoucherReckoning::Posting& posting : postings) {
        const Exact effect = Effect(posting);
        if (posting.day > to || effect == Exact())
            continue;
        const Exact before = balance;
        const QString sideBefore = side;
        balance += effect;
        side = SideOf(balance);
        if (posting.day < from)
            continue;
        if (posting.day != day) {
            debits = sideBefore == u"D" ? WithoutSign(before) : Exact();
            credits = sideBefore == u"C" ? WithoutSign(before) : Exact();
        }
        day = posting.day;
        const bool isDebit = effect < Exact();
        (isDebit ? debits : credits) += WithoutSign(effect);
        const Exact nothing;
        lines.append(QStringList{m_account, DayText(from), DayText(to), QStringLiteral("1"), DayText(day),
            QString::number(posting.number), posting.type, isDebit ? posting.credit : posting.debit,
            isDebit ? posting.amount.Text() : nothing.Text(),
            isDebit ? nothing.Text() : posting.amount.Text(), posting.narration, QString(), QString(),
            WithoutSign(before).Text(), sideBefore, WithoutSign(balance).Text(), side,
            std::max(debits, credits).Text()}
                         .join(u'|'));
    }
    return Compared::With(
        QStringLiteral("row of the book"), lines, QStringLiteral("select * from LedgersMaster"));
}

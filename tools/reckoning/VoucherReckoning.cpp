#include "tools/reckoning/VoucherReckoning.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <algorithm>
#include <tuple>

QString DayText(const QDate& day)
{
    return day.toString(QStringLiteral("dd/MM/yyyy"));
}

QString MoneyRow::Line(int shownNumber) const
{
    return QStringList{QStringLiteral("1"), DayText(day), QString::number(shownNumber),
        QString::number(member), type, amount.Text()}
        .join(u'|');
}

Exact VoucherReckoning::Voucher::Amount() const
{
    Exact sum;
    for (const auto& [head, amount] : heads)
        sum += amount;
    return sum;
}

void VoucherReckoning::ReadMembers()
{
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext())
        m_names[static_cast<int>(row[u"MemberNo"].Number())] = row[u"MemberName"].Text();
}

void VoucherReckoning::ReadVouchers()
{
    for (Recordset row(gCn, QStringLiteral("select * from TransactionsMaster")); !row.Eof(); row.MoveNext())
        m_vouchers.push_back({row[u"TranDate"].Date(), static_cast<int>(row[u"TranId"].Number()), 0,
            row[u"TranType"].Text() == u"irsaIT", {}});
    for (Voucher& voucher : m_vouchers) {
        for (Recordset row(gCn,
                 voucher.isReceipt
                     ? QStringLiteral("select * from AdvanceReceipt where AdvanceType='Uchal Receipt'")
                     : QStringLiteral("select * from TransactionsDetails"));
             !row.Eof(); row.MoveNext()) {
            if (row[u"TranDate"].Date() != voucher.day
                || static_cast<int>(row[u"TranId"].Number()) != voucher.number)
                continue;
            voucher.member = static_cast<int>(row[u"MemberNo"].Number());
            voucher.heads.emplace_back(row[u"AdvanceType"].Text(), Exact::Of(row[u"Amount"].Number()));
        }
        m_moved[voucher.member] += voucher.isReceipt ? -voucher.Amount() : voucher.Amount();
    }
    ListRows();
}

void VoucherReckoning::Forget(int member)
{
    m_names.erase(member);
    m_moved.erase(member);
    std::erase_if(m_vouchers, [member](const Voucher& voucher) { return voucher.member == member; });
    ListRows();
}

// All vouchers of a date are numbered together.
int VoucherReckoning::NextNumber(const QDate& day) const
{
    int highest = 0;
    for (const Voucher& voucher : m_vouchers)
        if (voucher.day == day)
            highest = std::max(highest, voucher.number);
    return highest + 1;
}

void VoucherReckoning::Give(int member, const QDate& day, const Heads& heads)
{
    m_vouchers.push_back({day, NextNumber(day), member, false, heads});
    m_moved[member] += m_vouchers.back().Amount();
    ListRows();
}

void VoucherReckoning::TakeIn(int member, const QDate& day, Exact amount)
{
    m_vouchers.push_back({day, NextNumber(day), member, true, {{QStringLiteral("Uchal Receipt"), amount}}});
    m_moved[member] += -amount;
    ListRows();
}

std::size_t VoucherReckoning::LastAt(bool isReceipt) const
{
    std::size_t last = m_vouchers.size();
    for (std::size_t at = 0; at < m_vouchers.size(); ++at)
        if (m_vouchers[at].isReceipt == isReceipt
            && (last == m_vouchers.size()
                || std::tie(m_vouchers[at].day, m_vouchers[at].number)
                    > std::tie(m_vouchers[last].day, m_vouchers[last].number)))
            last = at;
    return last;
}

// Of a voucher that gets another member, only the new one's balances move.
void VoucherReckoning::ChangeLastAdvance(int member, const QString& head, Exact amount)
{
    Voucher& voucher = Last(false);
    const Exact before = voucher.Amount();
    const auto same = std::find_if(
        voucher.heads.begin(), voucher.heads.end(), [&](const auto& other) { return other.first == head; });
    if (same == voucher.heads.end())
        voucher.heads.emplace_back(head, amount);
    else
        same->second = amount;
    voucher.member = member;
    m_moved[member] += voucher.Amount() - before;
    ListRows();
}

// The amount before counts with the wrong sign.
void VoucherReckoning::ChangeLastReceipt(Exact amount)
{
    Voucher& voucher = Last(true);
    m_moved[voucher.member] += -amount - voucher.Amount();
    voucher.heads.front().second = amount;
    ListRows();
}

void VoucherReckoning::Delete(const Voucher& voucher)
{
    m_moved[voucher.member] += voucher.isReceipt ? voucher.Amount() : -voucher.Amount();
    m_vouchers.erase(m_vouchers.begin() + (&voucher - m_vouchers.data()));
    ListRows();
}

void VoucherReckoning::ListRows()
{
    m_given.clear();
    m_back.clear();
    for (const Voucher& voucher : m_vouchers)
        for (const auto& [type, amount] : voucher.heads)
            (voucher.isReceipt ? m_back : m_given)[voucher.member].push_back(
                {voucher.day, voucher.member, type, amount, voucher.number});
}

Exact VoucherReckoning::Moved(int member) const
{
    const auto moved = m_moved.find(member);
    return moved == m_moved.end() ? Exact() : moved->second;
}

std::vector<VoucherReckoning::Posting> VoucherReckoning::Postings() const
{
    const QString cash = QStringLiteral("raoK");
    std::vector<Posting> postings;
    for (const Voucher& voucher : m_vouchers) {
        const QString& name = m_names.at(voucher.member);
        if (voucher.isReceipt)
            postings.push_back({voucher.day, voucher.number, QStringLiteral("irsaIT"), cash, name,
                voucher.Amount(), QStringLiteral("]cala jamaa"), QStringLiteral("]cala jamaa JaalaI.")});
        else
            postings.push_back({voucher.day, voucher.number, QStringLiteral("pomaonT"), name, cash,
                voucher.Amount(), QStringLiteral("]cala"), QStringLiteral("]cala idlaI.")});
    }
    std::sort(postings.begin(), postings.end(), [](const Posting& one, const Posting& other) {
        return std::tie(one.day, one.number) < std::tie(other.day, other.number);
    });
    return postings;
}

QStringList VoucherReckoning::Masters() const
{
    QStringList lines;
    for (const Posting& posting : Postings())
        lines.append(QStringList{QStringLiteral("1"), DayText(posting.day), QString::number(posting.number),
            posting.type, posting.debit, posting.credit, posting.amount.Text(), posting.billNo,
            posting.narration}
                         .join(u'|'));
    lines.sort();
    return lines;
}

const std::vector<MoneyRow>& VoucherReckoning::RowsOf(const RowsByMember& rows, int member)
{
    static const std::vector<MoneyRow> none;
    const auto found = rows.find(member);
    return found == rows.end() ? none : found->second;
}

QStringList VoucherReckoning::LinesOf(const RowsByMember& rows)
{
    QStringList lines;
    for (const auto& [member, ofMember] : rows)
        for (const MoneyRow& row : ofMember)
            lines.append(row.Line(row.number));
    lines.sort();
    return lines;
}

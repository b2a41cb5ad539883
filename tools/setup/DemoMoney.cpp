#include "tools/setup/DemoMoney.h"

#include "platform/text/Numbers.h"
#include "tools/setup/DemoPeople.h"
#include "tools/setup/SocietyRows.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

namespace {

constexpr qint64 DepositPaise = 50; // a litre, as in the delivered settings

enum Head { Advance, Feed, Groceries, Previous, Other, Heads };
constexpr std::array<QStringView, Heads> HeadNames{
    u"]cala", u"KaV", u"ikraNaa maalaÀroSana", u"maagaIla baakI", u"[tr"};

using HeadSums = std::array<qint64, Heads>; // in paise

HeadSums SumsOf(const DemoVoucher& voucher)
{
    return {voucher.advance, voucher.feed, voucher.groceries, 0, voucher.other};
}

qint64 Total(const HeadSums& sums)
{
    return std::accumulate(sums.begin(), sums.end(), qint64{0});
}

QString Rupees(qint64 paise)
{
    return paise < 0 ? QString(u'-' % Decimal(-paise, 2)) : Decimal(paise, 2);
}

qint64 Deposit(qint64 millilitres)
{
    return AmountInPaise(millilitres, DepositPaise);
}

qint64 WholeRupees(qint64 paise)
{
    return paise / 100 * 100;
}

// Writes the rows, and knows the numbers that the screens would have given them.
class MoneyRows {
public:
    MoneyRows(const QDate& first, const QDate& paidFrom, const QDate& paidTo)
        : m_first(first)
        , m_from(paidFrom)
        , m_to(paidTo)
    {
    }

    void Give(const DemoVoucher& voucher)
    {
        const QDate day = m_first.addDays(voucher.day - 1);
        const HeadSums sums = SumsOf(voucher);
        const int number = AddMaster(day, voucher.member, Total(sums),
            {QStringLiteral("pomaonT"), QStringLiteral("]cala"), QStringLiteral("]cala idlaI.")});
        for (std::size_t head = 0; head < Heads; ++head)
            if (sums.at(head) != 0)
                AddHead(
                    u"TransactionsDetails", day, number, voucher.member, HeadNames.at(head), sums.at(head));
        Move(voucher.member, -Total(sums), Total(sums), 0, 0);
    }

    void TakeBack(const DemoReceipt& receipt)
    {
        const QDate day = m_first.addDays(receipt.day - 1);
        const int number = AddMaster(day, receipt.member, receipt.paise,
            {QStringLiteral("irsaIT"), QStringLiteral("]cala jamaa"), QStringLiteral("]cala jamaa JaalaI.")});
        AddHead(u"AdvanceReceipt", day, number, receipt.member, u"Uchal Receipt", receipt.paise);
        Move(receipt.member, receipt.paise, -receipt.paise, 0, 0);
    }

    void Pay(int member, const DemoMilk& milk)
    {
        const qint64 cowDeposit = Deposit(milk.cowMillilitres);
        const qint64 buffaloDeposit = Deposit(milk.buffaloMillilitres);
        const qint64 most = milk.cowPaise + milk.buffaloPaise - cowDeposit - buffaloDeposit;
        const qint64 previous = PreviousOf(member);
        const HeadSums heads = HeadsOf(member, previous);
        const qint64 owed = Total(heads);
        const bool capped = WholeRupees(owed) > most;
        const qint64 uchal = WholeRupees(capped ? most : owed);
        const qint64 net = most - (capped ? uchal : owed); // the heads' paise are kept back too
        if (owed > uchal)
            m_currentBalance = owed - uchal;

        ++m_bills;
        AddPayment(member, milk, {cowDeposit, buffaloDeposit, uchal, net, previous});
        for (std::size_t head = 0; head < Heads; ++head)
            if (heads.at(head) != 0)
                AddHead(u"MilkPaymentsDetails", m_to, 0, member, HeadNames.at(head), heads.at(head));
        if (cowDeposit > 0)
            AddHead(u"MilkPaymentsDetails", m_to, 0, member, u"gaaya zova", cowDeposit);
        if (buffaloDeposit > 0)
            AddHead(u"MilkPaymentsDetails", m_to, 0, member, u"mhOsa zova", buffaloDeposit);
        if (uchal != 0)
            AddHead(u"AdvanceReceipt", m_to, m_bills + 1, member, u"Uchal Kapat", uchal);
        Move(member, uchal - net - cowDeposit - buffaloDeposit, -uchal, cowDeposit, buffaloDeposit);
    }

    const QString& Script() const { return m_script; }

private:
    struct Texts {
        QString type;
        QString billNo;
        QString narration;
    };

    struct Figures {
        qint64 cowDeposit = 0;
        qint64 buffaloDeposit = 0;
        qint64 uchal = 0;
        qint64 net = 0;
        qint64 previous = 0;
    };

    static QString Day(const QDate& day) { return Quoted(day.toString(Qt::ISODate)); }

    void Insert(const QString& into, const QStringList& values)
    {
        m_script += QStringLiteral("insert into ") % into % QStringLiteral(" values(") % values.join(u',')
            % QStringLiteral(");");
    }

    // Advances and receipts have one series of numbers, which begins anew each day.
    int AddMaster(const QDate& day, int member, qint64 paise, const Texts& texts)
    {
        const QString name = Quoted(DemoMembers.at(static_cast<std::size_t>(member - 1)).name);
        const bool given = texts.type == u"pomaonT";
        const int number = ++m_numbers[day];
        Insert(QStringLiteral("TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                              "CAccountName,Amount,BillNo,Narration)"),
            {QStringLiteral("1"), Day(day), QString::number(number), Quoted(texts.type),
                given ? name : Quoted(u"raoK"), given ? Quoted(u"raoK") : name, Rupees(paise),
                Quoted(texts.billNo), Quoted(texts.narration)});
        return number;
    }

    void AddHead(QStringView table, const QDate& day, int number, int member, QStringView head, qint64 paise)
    {
        Insert(table % QStringLiteral("(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount)"),
            {QStringLiteral("1"), Day(day), QString::number(number), QString::number(member), Quoted(head),
                Rupees(paise)});
    }

    void AddPayment(int member, const DemoMilk& milk, const Figures& f)
    {
        const bool cow = milk.cowMillilitres != 0;
        const bool buffalo = milk.buffaloMillilitres != 0;
        const QString previous = Rupees(f.previous);
        Insert(QStringLiteral(
                   "MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,Animal,"
                   "Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,TotalUchal,ThevKapatCow,"
                   "ThevKapatBuff,LitersCow,LitersBuff,CowAmount,BuffAmount,FixedKapat,PreviousAdvance)"),
            {QStringLiteral("1"), Day(m_from), Day(m_to), Day(m_to), QString::number(m_bills),
                QString::number(member), Quoted(DemoMembers.at(static_cast<std::size_t>(member - 1)).name),
                Quoted(cow && buffalo ? u"daonhI"
                        : cow         ? u"gaaya"
                                      : u"mhOsa"),
                Decimal(milk.cowMillilitres + milk.buffaloMillilitres, 3),
                Rupees(milk.cowPaise + milk.buffaloPaise), Rupees(f.cowDeposit + f.buffaloDeposit + f.uchal),
                Rupees(f.net), previous, Rupees(m_currentBalance), Rupees(f.uchal), Rupees(f.cowDeposit),
                Rupees(f.buffaloDeposit), Decimal(milk.cowMillilitres, 3),
                Decimal(milk.buffaloMillilitres, 3), Rupees(milk.cowPaise), Rupees(milk.buffaloPaise),
                QStringLiteral("0"), previous});
    }

    void Move(int member, qint64 balance, qint64 uchal, qint64 cowDeposit, qint64 buffaloDeposit)
    {
        const auto moved = [](QStringView column, qint64 paise) -> QString {
            return column % QStringLiteral("=round(") % column % u'+' % Rupees(paise) % QStringLiteral(",2)");
        };
        m_script += QStringLiteral("update MembersMaster set ")
            % QStringList{moved(u"ClosingBalance", balance), moved(u"ClosingUchal", uchal),
                moved(u"CowClosingThev", cowDeposit), moved(u"BuffClosingThev", buffaloDeposit)}
                  .join(u',')
            % QStringLiteral(" where MemberNo=") % QString::number(member) % u';';
    }

    qint64 PreviousOf(int member) const
    {
        qint64 previous = 0;
        for (const DemoVoucher& voucher : DemoVouchers)
            if (voucher.member == member && m_first.addDays(voucher.day - 1) < m_from)
                previous += Total(SumsOf(voucher));
        for (const DemoReceipt& receipt : DemoReceipts)
            if (receipt.member == member && m_first.addDays(receipt.day - 1) < m_from)
                previous -= receipt.paise;
        return previous;
    }

    // What is owed by head, less what came back in the period.
    HeadSums HeadsOf(int member, qint64 previous) const
    {
        HeadSums sums{};
        sums.at(Previous) = previous;
        for (const DemoVoucher& voucher : DemoVouchers)
            if (voucher.member == member && IsInPeriod(voucher.day))
                for (std::size_t head = 0; head < Heads; ++head)
                    sums.at(head) += SumsOf(voucher).at(head);
        for (const DemoReceipt& receipt : DemoReceipts)
            if (receipt.member == member && IsInPeriod(receipt.day)) {
                qint64 left = receipt.paise;
                for (qint64& sum : sums) {
                    const qint64 taken = std::min(sum, left);
                    sum -= taken;
                    left -= taken;
                }
            }
        return sums;
    }

    bool IsInPeriod(int day) const
    {
        const QDate date = m_first.addDays(day - 1);
        return date >= m_from && date <= m_to;
    }

    QDate m_first;
    QDate m_from;
    QDate m_to;
    std::map<QDate, int> m_numbers;
    int m_bills = 0;
    qint64 m_currentBalance = 0; // kept from one payment to the next where nothing stays owed
    QString m_script;
};

}

QString DemoMoney::Script(const std::vector<DemoMilk>& milk) const
{
    MoneyRows rows(m_first, PaidFrom(), PaidTo());
    for (const DemoVoucher& voucher : DemoVouchers)
        rows.Give(voucher);
    for (const DemoReceipt& receipt : DemoReceipts)
        rows.TakeBack(receipt);
    int member = 0;
    for (const DemoMilk& given : milk) {
        ++member;
        if (given.cowMillilitres + given.buffaloMillilitres != 0)
            rows.Pay(member, given);
    }
    return rows.Script();
}

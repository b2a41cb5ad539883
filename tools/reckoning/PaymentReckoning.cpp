#include "tools/reckoning/PaymentReckoning.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"

#include <algorithm>

namespace {

const QString PreviousHead = QStringLiteral("maagaIla baakI");
const QString OtherHead = QStringLiteral("[tr");
const QString AdvanceHead = QStringLiteral("]cala");
const QString RecoveryType = QStringLiteral("Uchal Kapat");
const QString CowDeposit = QStringLiteral("gaaya zova");
const QString BuffDeposit = QStringLiteral("mhOsa zova");
const QString PaiseDeposit = QStringLiteral("zova");

// In the order in which a payment writes them.
const QStringList PeriodHeads = {
    AdvanceHead, QStringLiteral("KaV"), QStringLiteral("ikraNaa maalaÀroSana"), PreviousHead, OtherHead};

constexpr double MostOfASingle = 65536; // what it holds to the paisa

QStringList Sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

// Both days count; without a first one, all up to the last.
Exact SumOf(const std::vector<MoneyRow>& rows, int member, const QDate& from, const QDate& to)
{
    Exact sum;
    for (const MoneyRow& row : rows)
        if (row.member == member && (from.isNull() || row.day >= from) && row.day <= to)
            sum += row.amount;
    return sum;
}

}

// The raw rows

void PaymentReckoning::ReadSettings(bool byInstallments)
{
    const Recordset settings(gCn, QStringLiteral("select * from AutoSettings"));
    m_cowRate = Exact::Of(settings[u"ThevKapatCow"].Number());
    m_buffRate = Exact::Of(settings[u"ThevKapatBuff"].Number());
    m_fixed = Exact::Of(settings[u"FixedKapat"].Number());
    m_paise = settings[u"DecimalPayment"].Text();
    m_installments.reset();
    if (!byInstallments)
        return;
    m_installments.emplace();
    for (Recordset row(gCn, QStringLiteral("select * from InstallmentTable")); !row.Eof(); row.MoveNext())
        m_installments->emplace(
            static_cast<int>(row[u"MemberNo"].Number()), Exact::Of(row[u"Kapat"].Number()));
}

void PaymentReckoning::ReadMembers()
{
    Vouchers.ReadMembers();
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext())
        m_closing[static_cast<int>(row[u"MemberNo"].Number())] = {Exact::Of(row[u"ClosingBalance"].Number()),
            Exact::Of(row[u"CowClosingThev"].Number()), Exact::Of(row[u"BuffClosingThev"].Number()),
            Exact::Of(row[u"ClosingUchal"].Number())};
}

void PaymentReckoning::ReadOpening()
{
    Vouchers.ReadMembers();
    Vouchers.ReadVouchers();
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext())
        m_closing[static_cast<int>(row[u"MemberNo"].Number())] = {Exact::Of(row[u"OpeningBalance"].Number()),
            Exact::Of(row[u"CowOpeningThev"].Number()), Exact::Of(row[u"BuffOpeningThev"].Number()),
            Exact::Of(row[u"OpeningUchal"].Number())};
}

void PaymentReckoning::AddMember(int member, const QString& name, const Columns& closing)
{
    Vouchers.AddMember(member, name);
    m_closing[member] = closing;
}

void PaymentReckoning::Forget(int member)
{
    Vouchers.Forget(member);
    m_closing.erase(member);
    std::erase_if(m_payments, [member](const Payment& payment) { return payment.member == member; });
    for (std::vector<Row>* rows : {&m_details, &m_recoveries})
        std::erase_if(*rows, [member](const Row& row) { return row.member == member; });
}

// Some days around the period are read, too, and left out here: where it begins and ends is not asked of the
// books.
void PaymentReckoning::ReadMilk(const Period& period)
{
    constexpr int around = 12;
    const QString first = period.from.addDays(-around).toString(QStringLiteral("MM/dd/yyyy"));
    const QString last = period.to.addDays(around).toString(QStringLiteral("MM/dd/yyyy"));
    m_deliveries.clear();
    for (Recordset row(gCn,
             QStringLiteral(
                 "select * from MilkCollections where CollectionDate>=#%1# and CollectionDate<=#%2#")
                 .arg(first, last));
         !row.Eof(); row.MoveNext())
        m_deliveries.push_back({row[u"CollectionDate"].Date(), static_cast<int>(row[u"MemberNo"].Number()),
            row[u"Animal"].Text(), Exact::Of(row[u"Liters"].Number()), Exact::Of(row[u"Amount"].Number())});
}

Exact PaymentReckoning::Milk(
    Exact Delivery::*figure, int member, const Period& period, const char* animal) const
{
    Exact sum;
    for (const Delivery& delivery : m_deliveries)
        if (delivery.member == member && delivery.day >= period.from && delivery.day <= period.to
            && delivery.animal == QLatin1String(animal))
            sum += delivery.*figure;
    return sum;
}

// The heads

// What was given in the period by head, and what was unpaid before it.
std::map<QString, Exact> PaymentReckoning::SumsOf(int member, const Period& period) const
{
    std::map<QString, Exact> sums;
    Exact& previous = sums[PreviousHead];
    for (const Row& given : Vouchers.Given(member)) {
        if (given.day < period.from)
            previous += given.amount;
        else if (given.day <= period.to)
            sums[given.type] += given.amount;
    }
    for (const Row& back : Vouchers.Back(member))
        if (back.day < period.from)
            previous += -back.amount;
    for (const Row& back : m_recoveries)
        if (back.member == member && back.day < period.from)
            previous += -back.amount;
    return sums;
}

PaymentReckoning::Heads PaymentReckoning::HeadsOf(int member, const Period& period) const
{
    Heads heads;
    std::map<QString, Exact> sums = SumsOf(member, period);
    heads.previous = sums[PreviousHead];
    for (const QString& head : PeriodHeads)
        if (head == AdvanceHead ? sums[head] != Exact() : sums[head] > Exact())
            heads.rows.push_back({period.bill, member, head, sums[head], 0});
    if (period.bill >= period.from && period.bill <= period.to)
        TakeReceiptsOff(heads.rows, member, period);
    if (m_fixed != Exact()) {
        const auto other = std::find_if(
            heads.rows.begin(), heads.rows.end(), [](const Row& head) { return head.type == OtherHead; });
        if (other == heads.rows.end())
            heads.rows.push_back({period.bill, member, OtherHead, m_fixed, 0});
        else
            other->amount += m_fixed;
    }

    for (const Row& head : heads.rows)
        heads.owed += head.amount;
    InsistOn(heads.owed < Exact::Of(MostOfASingle), QStringLiteral("single precision rounds what is owed"));
    heads.deducted = heads.owed;
    if (!m_installments || !m_installments->contains(member))
        return heads;
    const Exact installment = m_installments->at(member);
    if (heads.owed >= installment)
        heads.deducted = installment + m_fixed;
    if (heads.owed > installment)
        heads.owed = installment + m_fixed;
    return heads;
}

// What came back during the period: from the advance first, though it be a credit.
void PaymentReckoning::TakeReceiptsOff(std::vector<Row>& heads, int member, const Period& period) const
{
    Exact left;
    bool some = false;
    for (const Row& back : Vouchers.Back(member)) {
        if (back.day < period.from || back.day > period.to)
            continue;
        left += back.amount;
        some = true;
    }
    if (!some)
        return;
    for (auto head = heads.begin(); head != heads.end();) {
        if (left == Exact() && head->type != AdvanceHead)
            return;
        if (head->amount > left) {
            head->amount = head->amount - left;
            return;
        }
        left = left - head->amount;
        head = heads.erase(head);
    }
}

// The payments

int PaymentReckoning::NextNumber(const QDate& bill) const
{
    int highest = 0;
    for (const Payment& payment : m_payments)
        if (payment.period.bill == bill)
            highest = std::max(highest, payment.number);
    return highest + 1;
}

// The milk of a payment, without what is deducted from it.
PaymentReckoning::Payment PaymentReckoning::MilkOf(int member, const Period& period) const
{
    Payment milk;
    milk.period = period;
    milk.member = member;
    milk.fixed = m_fixed;
    milk.cowLitres = Milk(&Delivery::litres, member, period, "gaaya");
    milk.buffLitres = Milk(&Delivery::litres, member, period, "mhOsa");
    milk.cowAmount = Milk(&Delivery::amount, member, period, "gaaya").ToThePaisa();
    milk.buffAmount = Milk(&Delivery::amount, member, period, "mhOsa").ToThePaisa();
    milk.amount = milk.cowAmount + milk.buffAmount;
    milk.animal = milk.buffLitres == Exact() ? QStringLiteral("gaaya")
        : milk.cowLitres == Exact()          ? QStringLiteral("mhOsa")
                                             : QStringLiteral("daonhI");
    milk.cowDeposit = milk.cowLitres.Times(m_cowRate);
    milk.buffDeposit = milk.buffLitres.Times(m_buffRate);
    return milk;
}

Exact PaymentReckoning::Proposed(int member, const Period& period) const
{
    const Payment milk = MilkOf(member, period);
    const Exact owed = HeadsOf(member, period).owed;
    const Exact most = milk.amount - milk.cowDeposit - milk.buffDeposit;
    return owed - owed.Paise() > most ? most - most.Paise() : owed - owed.Paise();
}

// What is keyed is held to what the milk and the old balance bring, even to less than nothing if more came
// back than was ever given.
void PaymentReckoning::Pay(int member, const Period& period, const Keyed& keyed)
{
    Payment paid = MilkOf(member, period);
    paid.number = NextNumber(period.bill);
    paid.name = Vouchers.NameOf(member);

    const Heads heads = HeadsOf(member, period);
    const Exact most = paid.amount - paid.cowDeposit - paid.buffDeposit;
    paid.previous = heads.previous;
    paid.uchal = Proposed(member, period);
    const bool isCapped = heads.owed - heads.owed.Paise() > most;
    if (keyed.cowDeposit)
        paid.cowDeposit = *keyed.cowDeposit;
    if (keyed.uchal) {
        InsistOn(*keyed.uchal <= heads.owed, QStringLiteral("more is taken than is owed"));
        const Exact taken = std::min(*keyed.uchal, most + heads.previous);
        paid.uchal = taken - taken.Paise();
    }
    const bool isEdited = keyed.cowDeposit || keyed.uchal;
    const Exact deposits = paid.cowDeposit + paid.buffDeposit;
    paid.net = paid.amount - deposits - (isCapped || isEdited ? paid.uchal : heads.deducted);
    const Exact paise = paid.net.Paise();
    if (m_paise != u"PayIt")
        paid.net = paid.net - paise;
    if (heads.owed > paid.uchal)
        m_currentBalance = heads.owed - paid.uchal;
    paid.current = m_currentBalance;

    m_payments.push_back(paid);
    m_details.insert(m_details.end(), heads.rows.begin(), heads.rows.end());
    if (paid.cowDeposit > Exact())
        m_details.push_back({period.bill, member, CowDeposit, paid.cowDeposit, 0});
    if (paid.buffDeposit > Exact())
        m_details.push_back({period.bill, member, BuffDeposit, paid.buffDeposit, 0});
    if (m_paise == u"AddThev" && paise > Exact())
        m_details.push_back({period.bill, member, PaiseDeposit, paise, 0});
    if (paid.uchal != Exact())
        m_recoveries.push_back({period.bill, member, RecoveryType, paid.uchal - m_fixed, paid.number + 1});
    MoveClosing(paid, 1);
}

// A first day that lies in a period that is paid for is paid for.
bool PaymentReckoning::IsPaid(int member, const Period& period) const
{
    return std::any_of(m_payments.begin(), m_payments.end(), [&](const Payment& payment) {
        return payment.member == member && payment.period.from <= period.from
            && payment.period.to >= period.from;
    });
}

PaymentReckoning::Passed PaymentReckoning::PayMany(int first, int last, const Period& period)
{
    Passed passed;
    for (int member = first; member <= last; ++member) {
        const Payment milk = MilkOf(member, period);
        if (!m_closing.contains(member))
            continue;
        if (IsPaid(member, period))
            passed.paidBefore.push_back(member);
        else if (milk.cowLitres + milk.buffLitres == Exact())
            passed.withoutMilk.push_back(member);
        else
            Pay(member, period);
    }
    return passed;
}

void PaymentReckoning::MoveClosing(const Payment& payment, int sign)
{
    const auto move = [sign](Exact& column, Exact by) { column += sign > 0 ? by : -by; };
    Columns& columns = m_closing[payment.member];
    move(columns.balance, payment.uchal - payment.net - payment.cowDeposit - payment.buffDeposit);
    move(columns.cow, payment.cowDeposit);
    move(columns.buff, payment.buffDeposit);
    move(columns.uchal, -payment.uchal);
}

void PaymentReckoning::TakeBack(int member, const QDate& from)
{
    const auto taken = std::find_if(m_payments.begin(), m_payments.end(),
        [&](const Payment& payment) { return payment.member == member && payment.period.from == from; });
    InsistOn(taken != m_payments.end(), QStringLiteral("there is no payment to take back"));
    const Payment payment = *taken;
    m_payments.erase(taken);
    MoveClosing(payment, -1);
    std::erase_if(
        m_recoveries, [&](const Row& row) { return row.member == member && row.day == payment.period.bill; });
    std::erase_if(m_details, [&](const Row& row) {
        return row.member == member && row.day >= payment.period.from && row.day <= payment.period.to;
    });
}

Exact PaymentReckoning::Owed(int member, const QDate& at) const
{
    return Given(member, QDate(), at) - CameBack(member, QDate(), at);
}

Exact PaymentReckoning::Given(int member, const QDate& from, const QDate& to) const
{
    return SumOf(Vouchers.Given(member), member, from, to);
}

Exact PaymentReckoning::CameBack(int member, const QDate& from, const QDate& to) const
{
    return SumOf(Vouchers.Back(member), member, from, to) + SumOf(m_recoveries, member, from, to);
}

PaymentReckoning::Year PaymentReckoning::YearOf(int member) const
{
    Year year;
    for (const Payment& payment : m_payments)
        if (payment.member == member)
            year.paid += payment.net;
    for (const Row& row : m_details) {
        if (row.member != member)
            continue;
        if (row.type == CowDeposit)
            year.cowDeposits += row.amount;
        else if (row.type == BuffDeposit)
            year.buffDeposits += row.amount;
        else if (row.type == PaiseDeposit)
            year.paiseDeposits += row.amount;
    }
    for (const Row& row : Vouchers.Given(member))
        year.given += row.amount;
    for (const Row& row : Vouchers.Back(member))
        year.receipts += row.amount;
    for (const Row& row : m_recoveries)
        if (row.member == member)
            year.recoveries += row.amount;
    return year;
}

// What has to stand in the books

QStringList PaymentReckoning::Payments() const
{
    QStringList lines;
    for (const Payment& p : m_payments)
        lines.append(QStringList{QStringLiteral("1"), DayText(p.period.from), DayText(p.period.to),
            DayText(p.period.bill), QString::number(p.number), QString::number(p.member), p.name, p.animal,
            (p.cowLitres + p.buffLitres).Text(), p.amount.Text(),
            (p.cowDeposit + p.buffDeposit + p.uchal).Text(), p.net.Text(), p.previous.Text(),
            p.current.Text(), p.uchal.Text(), p.cowDeposit.Text(), p.buffDeposit.Text(), p.cowLitres.Text(),
            p.buffLitres.Text(), p.cowAmount.Text(), p.buffAmount.Text(), p.fixed.Text(), p.previous.Text()}
                         .join(u'|'));
    return Sorted(lines);
}

QStringList PaymentReckoning::Details() const
{
    QStringList lines;
    for (const Row& row : m_details)
        lines.append(row.Line(0));
    return Sorted(lines);
}

QStringList PaymentReckoning::Recoveries() const
{
    QStringList lines;
    for (const Row& row : m_recoveries)
        lines.append(row.Line(row.number));
    return Sorted(lines);
}

QStringList PaymentReckoning::Closing() const
{
    QStringList lines;
    for (const auto& [member, columns] : m_closing) {
        const Exact moved = Vouchers.Moved(member);
        const Exact balance = columns.balance - moved;
        InsistOn(balance < Exact::Of(MostOfASingle) && -balance < Exact::Of(MostOfASingle),
            QStringLiteral("single precision rounds a closing balance"));
        lines.append(QStringList{QString::number(member), balance.Text(), columns.cow.Text(),
            columns.buff.Text(), (columns.uchal + moved).Text()}
                         .join(u'|'));
    }
    return Sorted(lines);
}

std::vector<Compared> PaymentReckoning::Comparison() const
{
    const auto with = [](const char* what, const QStringList& reckoned, const char* query,
                          std::initializer_list<int> singles = {}) {
        return Compared::With(
            QString::fromLatin1(what), reckoned, QString::fromLatin1(query), Singles(singles));
    };
    constexpr int previousBalance = 12;
    constexpr int previousAdvance = 22;
    constexpr int amount = 5;
    return {
        with("payment", Payments(), "select * from MilkPayments", {previousBalance, previousAdvance}),
        with("head or deposit", Details(), "select * from MilkPaymentsDetails", {amount}),
        with("recovery", Recoveries(), "select * from AdvanceReceipt where AdvanceType='Uchal Kapat'"),
        with("receipt", Vouchers.Receipts(), "select * from AdvanceReceipt where AdvanceType<>'Uchal Kapat'"),
        with("voucher", Vouchers.Masters(),
            "select CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount,BillNo,Narration "
            "from TransactionsMaster"),
        with("head of a voucher", Vouchers.Details(), "select * from TransactionsDetails"),
        with("closing columns", Closing(),
            "select MemberNo,ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from MembersMaster",
            {1, 2, 3, 4}),
    };
}

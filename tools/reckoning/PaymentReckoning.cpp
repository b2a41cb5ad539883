#include "tools/reckoning/PaymentReckoning.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr std::int64_t One = 100000;
constexpr std::int64_t Paisa = One / 100;
constexpr int InvalidCall = 5;

const QString PreviousHead = QStringLiteral("maagaIla baakI");
const QString OtherHead = QStringLiteral("[tr");
const QString AdvanceHead = QStringLiteral("]cala");
const QString RecoveryType = QStringLiteral("Uchal Kapat");

// In the order in which a payment writes them.
const QStringList PeriodHeads = {
    AdvanceHead, QStringLiteral("KaV"), QStringLiteral("ikraNaa maalaÀroSana"), PreviousHead, OtherHead};

QString Day(const QDate& day)
{
    return day.toString(QStringLiteral("dd/MM/yyyy"));
}

// What the reckoning can't work out would be no proof of anything.
void Insist(bool holds, const QString& otherwise)
{
    if (!holds)
        throw RunTimeError(InvalidCall, QStringLiteral("The reckoning: ") + otherwise);
}

QStringList Sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

}

Exact Exact::Of(double figure)
{
    const double units = std::round(figure * One);
    Insist(std::abs(figure * One - units) < 1e-3,
        QStringLiteral("%1 has more than five decimals").arg(figure, 0, 'g', 17));
    return Exact(static_cast<std::int64_t>(units));
}

Exact Exact::Times(Exact rate) const
{
    const std::int64_t product = m_units / (One / 1000) * (rate.m_units / Paisa); // in hundred-thousandths
    return Exact(product).ToThePaisa();
}

Exact Exact::ToThePaisa() const
{
    const std::int64_t half = m_units < 0 ? -Paisa / 2 : Paisa / 2;
    return Exact((m_units + half) / Paisa * Paisa);
}

Exact Exact::Paise() const
{
    return Exact(std::abs(m_units) % One);
}

QString Exact::Text() const
{
    QString text = QString::number(std::abs(m_units) / One);
    QString decimals = QString::number(std::abs(m_units) % One).rightJustified(5, u'0');
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    if (!decimals.isEmpty())
        text += u'.' + decimals;
    return m_units < 0 ? u'-' + text : text;
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

void PaymentReckoning::ReadClosing()
{
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext())
        m_closing[static_cast<int>(row[u"MemberNo"].Number())] = {Exact::Of(row[u"ClosingBalance"].Number()),
            Exact::Of(row[u"CowClosingThev"].Number()), Exact::Of(row[u"BuffClosingThev"].Number()),
            Exact::Of(row[u"ClosingUchal"].Number())};
}

void PaymentReckoning::ReadOpening()
{
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext()) {
        const int member = static_cast<int>(row[u"MemberNo"].Number());
        Exact owed;
        for (const Row& given : RowsOf("TransactionsDetails", member))
            owed += given.amount;
        for (const Row& back : RowsOf("AdvanceReceipt", member))
            owed = owed - back.amount;
        m_closing[member] = {Exact::Of(row[u"OpeningBalance"].Number()) - owed,
            Exact::Of(row[u"CowOpeningThev"].Number()), Exact::Of(row[u"BuffOpeningThev"].Number()),
            Exact::Of(row[u"OpeningUchal"].Number()) + owed};
    }
}

// The recoveries in the books are left out: they are those that are to be checked.
std::vector<PaymentReckoning::Row> PaymentReckoning::RowsOf(const char* table, int member)
{
    std::vector<Row> rows;
    for (Recordset row(gCn, QStringLiteral("select * from ") + QLatin1String(table)); !row.Eof();
         row.MoveNext())
        if (static_cast<int>(row[u"MemberNo"].Number()) == member
            && row[u"AdvanceType"].Text() != RecoveryType)
            rows.push_back({row[u"TranDate"].Date(), member, row[u"AdvanceType"].Text(),
                Exact::Of(row[u"Amount"].Number()), 0});
    return rows;
}

Exact PaymentReckoning::Milk(const char* column, int member, const Period& period, const char* animal)
{
    Exact sum;
    for (Recordset row(gCn, QStringLiteral("select * from MilkCollections")); !row.Eof(); row.MoveNext()) {
        const QDate day = row[u"CollectionDate"].Date();
        if (static_cast<int>(row[u"MemberNo"].Number()) == member && day >= period.from && day <= period.to
            && row[u"Animal"].Text() == QLatin1String(animal))
            sum += Exact::Of(row[QString::fromLatin1(column)].Number());
    }
    return sum;
}

// The heads

PaymentReckoning::Heads PaymentReckoning::HeadsOf(int member, const Period& period) const
{
    Heads heads;
    std::map<QString, Exact> sums;
    for (const Row& given : RowsOf("TransactionsDetails", member)) {
        if (given.day < period.from)
            heads.previous += given.amount;
        else if (given.day <= period.to)
            sums[given.type] += given.amount;
    }
    for (const Row& back : RowsOf("AdvanceReceipt", member))
        if (back.day < period.from)
            heads.previous = heads.previous - back.amount;
    for (const Row& back : m_recoveries)
        if (back.member == member && back.day < period.from)
            heads.previous = heads.previous - back.amount;
    sums[PreviousHead] = heads.previous;

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
    Insist(heads.owed < Exact::Of(100000), QStringLiteral("single precision rounds what is owed"));
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
    for (const Row& back : RowsOf("AdvanceReceipt", member)) {
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

void PaymentReckoning::Pay(int member, const Period& period, const std::optional<Exact>& uchal)
{
    Payment paid;
    paid.period = period;
    paid.number = NextNumber(period.bill);
    paid.member = member;
    paid.fixed = m_fixed;
    paid.cowLitres = Milk("Liters", member, period, "gaaya");
    paid.buffLitres = Milk("Liters", member, period, "mhOsa");
    paid.cowAmount = Milk("Amount", member, period, "gaaya").ToThePaisa();
    paid.buffAmount = Milk("Amount", member, period, "mhOsa").ToThePaisa();
    paid.amount = paid.cowAmount + paid.buffAmount;
    paid.animal = paid.buffLitres == Exact() ? QStringLiteral("gaaya")
        : paid.cowLitres == Exact()          ? QStringLiteral("mhOsa")
                                             : QStringLiteral("daonhI");
    paid.cowDeposit = paid.cowLitres.Times(m_cowRate);
    paid.buffDeposit = paid.buffLitres.Times(m_buffRate);
    for (Recordset row(gCn, QStringLiteral("select * from MembersMaster")); !row.Eof(); row.MoveNext())
        if (static_cast<int>(row[u"MemberNo"].Number()) == member)
            paid.name = row[u"MemberName"].Text();

    const Heads heads = HeadsOf(member, period);
    const Exact deposits = paid.cowDeposit + paid.buffDeposit;
    const Exact most = paid.amount - deposits;
    paid.previous = heads.previous;
    paid.uchal = heads.owed - heads.owed.Paise();
    Exact deducted = heads.deducted + deposits;
    if (paid.uchal > most) {
        paid.uchal = most - most.Paise();
        deducted = paid.uchal + deposits;
    }
    if (uchal) {
        Insist(*uchal <= heads.owed, QStringLiteral("more is taken than is owed"));
        paid.uchal = *uchal - uchal->Paise();
        deducted = paid.uchal + deposits;
    }
    paid.net = paid.amount - deducted;
    const Exact paise = paid.net.Paise();
    if (m_paise != u"PayIt")
        paid.net = paid.net - paise;
    if (heads.owed > paid.uchal)
        m_currentBalance = heads.owed - paid.uchal;
    paid.current = m_currentBalance;

    m_payments.push_back(paid);
    m_details.insert(m_details.end(), heads.rows.begin(), heads.rows.end());
    if (paid.cowDeposit > Exact())
        m_details.push_back({period.bill, member, QStringLiteral("gaaya zova"), paid.cowDeposit, 0});
    if (paid.buffDeposit > Exact())
        m_details.push_back({period.bill, member, QStringLiteral("mhOsa zova"), paid.buffDeposit, 0});
    if (m_paise == u"AddThev" && paise > Exact())
        m_details.push_back({period.bill, member, QStringLiteral("zova"), paise, 0});
    if (paid.uchal != Exact())
        m_recoveries.push_back({period.bill, member, RecoveryType, paid.uchal - m_fixed, paid.number + 1});
    MoveClosing(paid, 1);
}

void PaymentReckoning::PayMany(int first, int last, const Period& period)
{
    for (int member = first; member <= last; ++member) {
        const bool isPaid = std::any_of(m_payments.begin(), m_payments.end(), [&](const Payment& payment) {
            return payment.member == member && payment.period.from <= period.from
                && payment.period.to >= period.from;
        });
        const Exact litres =
            Milk("Liters", member, period, "gaaya") + Milk("Liters", member, period, "mhOsa");
        if (!isPaid && litres != Exact())
            Pay(member, period);
    }
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
    Insist(taken != m_payments.end(), QStringLiteral("there is no payment to take back"));
    const Payment payment = *taken;
    m_payments.erase(taken);
    MoveClosing(payment, -1);
    std::erase_if(
        m_recoveries, [&](const Row& row) { return row.member == member && row.day == payment.period.bill; });
    std::erase_if(m_details, [&](const Row& row) {
        return row.member == member && row.day >= payment.period.from && row.day <= payment.period.to;
    });
}

Exact PaymentReckoning::Owed(int member) const
{
    Exact owed;
    for (const Row& given : RowsOf("TransactionsDetails", member))
        owed += given.amount;
    for (const Row& back : RowsOf("AdvanceReceipt", member))
        owed = owed - back.amount;
    for (const Row& back : m_recoveries)
        if (back.member == member)
            owed = owed - back.amount;
    return owed;
}

// What has to stand in the books

QStringList PaymentReckoning::Payments() const
{
    QStringList lines;
    for (const Payment& p : m_payments)
        lines.append(QStringList{QStringLiteral("1"), Day(p.period.from), Day(p.period.to),
            Day(p.period.bill), QString::number(p.number), QString::number(p.member), p.name, p.animal,
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
        lines.append(QStringLiteral("1|%1|0|%2|%3|%4")
                         .arg(Day(row.day), QString::number(row.member), row.type, row.amount.Text()));
    return Sorted(lines);
}

QStringList PaymentReckoning::Recoveries() const
{
    QStringList lines;
    for (const Row& row : m_recoveries)
        lines.append(QStringLiteral("1|%1|%2|%3|%4|%5")
                         .arg(Day(row.day), QString::number(row.number), QString::number(row.member),
                             row.type, row.amount.Text()));
    return Sorted(lines);
}

QStringList PaymentReckoning::Closing() const
{
    QStringList lines;
    for (const auto& [member, columns] : m_closing)
        lines.append(QStringLiteral("%1|%2|%3|%4|%5")
                         .arg(QString::number(member), columns.balance.Text(), columns.cow.Text(),
                             columns.buff.Text(), columns.uchal.Text()));
    return Sorted(lines);
}

#include "tests/journeys/PaymentYear.h"

#include "collection/frmMilkCollections.h"
#include "payments/frmInstallment.h"
#include "payments/frmNewMilkPayment.h"
#include "platform/database/Sql.h"
#include "society/PaymentPeriod.h"
#include "society/Words.h"
#include "vouchers/frmUchalVouchers.h"

#include <algorithm>
#include <array>

namespace {

constexpr int NoMember = 7; // a gap in the numbers
const QDate YearStart(2026, 4, 1);

std::string Joined(const QStringList& lines)
{
    return lines.join(u'\n').toStdString();
}

}

PaymentYear::PaymentYear(int members, unsigned seed) : PaymentYear(seed)
{
    for (int number = 1; static_cast<int>(m_members.size()) < members; ++number)
        if (number != NoMember)
            m_members.push_back(number);
    for (const int member : m_members)
        AddMember(member, QString("naava") + QChar(u'a' + member % 26) + QChar(u'a' + member / 26));
    Run("update MembersMaster set ClosingBalance=MemberNo*100.25,CowClosingThev=MemberNo,"
        "BuffClosingThev=MemberNo*2,ClosingUchal=MemberNo*50.5");
    Reckoning.ReadMembers();
}

void PaymentYear::PlayPeriod(const Manner& manner)
{
    const QDate from = m_periods == 0 ? YearStart : m_period.to.addDays(1);
    const QDate to = PaymentPeriod::EndOf(from, gAppState.gPaymentDuration);
    m_period = {from, to, to};
    SCOPED_TRACE("the period from " + from.toString(Qt::ISODate).toStdString());
    SetManner(manner);
    BringMilk(manner.isMilkKeyed);
    KeyVouchers();
    if (manner.byInstallments)
        KeyInstallments();
    Reckoning.ReadSettings(manner.byInstallments);
    Reckoning.ReadMilk(m_period);
    PaySome();
    PayTheRest();
    ExpectAgreement();
    ExpectOwedIsGivenLessReceived();
    ++m_periods;
}

// In every fifth period nothing fixed is deducted.
void PaymentYear::SetManner(const Manner& manner)
{
    SetDeductions(manner.paise);
    Run(QString("update AutoSettings set FixedKapat=%1")
            .arg(QLatin1String(m_periods % 5 == 4 ? "0" : "5.50")));
    Run(QString("update CompanySelected set CostCenter=%1").arg(manner.byInstallments ? -1 : 0));
}

void PaymentYear::SetDeductions(const char* paise)
{
    Run(QString("update AutoSettings set ThevKapatCow=0.35,ThevKapatBuff=0.55,DecimalPayment='%1'")
            .arg(QLatin1String(paise)));
}

QDate PaymentYear::ThrowDay()
{
    if (m_periods == 0 && Throw(2) == 0)
        return m_period.from.addDays(-1 - Throw(20));
    return m_period.from.addDays(Throw(12) - 2);
}

// Each stops for two periods and comes back.
bool PaymentYear::Brings(int member) const
{
    return (m_periods + member) % 9 > 1;
}

std::vector<int> PaymentYear::ThrowPayees(int count)
{
    std::vector<int> payees;
    for (const int member : m_members)
        if (Brings(member))
            payees.push_back(member);
    std::shuffle(payees.begin(), payees.end(), m_dice);
    payees.resize(static_cast<std::size_t>(count));
    return payees;
}

// The milk

void PaymentYear::BringMilk(bool isKeyed)
{
    for (QDate day = m_period.from; day <= m_period.to; day = day.addDays(1))
        for (const int time : {1, 2}) {
            if (isKeyed) {
                KeyShift(day, time);
                continue;
            }
            int number = 0;
            for (const int member : m_members)
                if (Brings(member) && Throw(10) > 0)
                    LayDelivery(member, day, time == 1 ? u"sakaL" : u"saMQyaakaL", ++number);
        }
}

// As the counter stores it.
void PaymentYear::LayDelivery(int member, const QDate& day, QStringView time, int number)
{
    const bool isCow = member % 3 == 0 || (member % 3 == 1 && time == u"sakaL");
    const double litres = (400 + Throw(2100)) / 1000.0;
    const double rate = isCow ? 31.75 : 46.35;
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
        Values(1, day, time, number, member, Reckoning.Vouchers.NameOf(member), isCow ? u"gaaya" : u"mhOsa",
            litres, isCow ? 4.2 : 7.1, rate, Val(Format(litres * rate, u"0.00")), 0),
        u")"));
}

void PaymentYear::KeyShift(const QDate& day, int time)
{
    On<frmMilkCollections>([&](Clerk& clerk) {
        clerk.Type(QString("%1{ENTER}%2{ENTER}").arg(Typed(day)).arg(time));
        ASSERT_EQ(Focus(clerk), "txtCollectionNo");
        for (const int member : m_members)
            if (Brings(member) && Throw(10) > 0) {
                const bool isCow = member % 3 == 0 || (member % 3 == 1 && time == 1);
                clerk.Type(QString("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}{ENTER}{ENTER}")
                               .arg(QString::number(member), isCow ? "1" : "2",
                                   QString::number((400 + Throw(2100)) / 1000.0), isCow ? "4.2" : "7.1"));
            }
    });
    EXPECT_FALSE(Failure);
}

// The vouchers

void PaymentYear::KeyVouchers()
{
    const int members = static_cast<int>(m_members.size());
    On<frmUchalVouchers>([&](Clerk& clerk) {
        for (int voucher = 0; voucher < members / 2; ++voucher)
            GiveAdvance(clerk, ThrowMember(), ThrowDay());
        ChangeVouchers(clerk);
        Press(clerk, "OptPaymentEntry");
        Press(clerk, "Command1");
        for (int voucher = 0; voucher < members / 6 + 1; ++voucher)
            TakeReceipt(clerk, ThrowMember(), ThrowDay());
        ChangeReceipts(clerk);
    });
    EXPECT_FALSE(Failure);
}

// Of one head or two. The one who owes more than his milk brings is the last.
void PaymentYear::GiveAdvance(Clerk& clerk, int member, const QDate& day, const char* printing)
{
    static const std::array<QString, 4> all = {"]cala", "KaV", "ikraNaa maalaÀroSana", "[tr"};
    VoucherReckoning::Heads heads;
    const int first = Throw(4);
    for (int head = 0; head <= Throw(2); ++head)
        heads.emplace_back(all[static_cast<std::size_t>((first + head) % 4)],
            ThrowPaise(member == m_members.back() ? 300000 : 40000));
    QString keys = QString("%n%1{ENTER}{ENTER}%2{ENTER}{ENTER}").arg(Typed(day), QString::number(member));
    for (const auto& [head, amount] : heads)
        keys += QString("%1{ENTER}%2{ENTER}{ENTER}").arg(head, amount.Text());
    clerk.Type(keys + "{F4}{ENTER}" + QString::fromUtf8(printing));
    Reckoning.Vouchers.Give(member, day, heads);
}

void PaymentYear::TakeReceipt(Clerk& clerk, int member, const QDate& day)
{
    const Exact amount = ThrowPaise(20000);
    clerk.Type(QString("%n%1{ENTER}{ENTER}%2{ENTER}{ENTER}%3{ENTER}{ENTER}%n")
                   .arg(Typed(day), QString::number(member), amount.Text()));
    Reckoning.Vouchers.TakeIn(member, day, amount);
}

// The last of the list is changed, at times to another member; in some periods it is deleted then.
void PaymentYear::ChangeVouchers(Clerk& clerk)
{
    const Exact amount = ThrowPaise(30000);
    const int member = m_periods % 4 == 1 ? ThrowMember() : Reckoning.Vouchers.MemberOfLastAdvance();
    clerk.Type(QString("%d{END}{ENTER}%1{ENTER}{ENTER}KaV{ENTER}%2{ENTER}{ENTER}{F4}{ENTER}%h%n")
                   .arg(QString::number(member), amount.Text()));
    Reckoning.Vouchers.ChangeLastAdvance(member, "KaV", amount);
    if (m_periods % 3 == 1) {
        Type(clerk, "%k{END}{ENTER}{ENTER}%h");
        Reckoning.Vouchers.DeleteLastAdvance();
    }
}

void PaymentYear::ChangeReceipts(Clerk& clerk)
{
    if (m_periods % 3 == 0) {
        const Exact amount = ThrowPaise(10000);
        clerk.Type(QString("%d{END}{ENTER}{ENTER}{ENTER}%1{ENTER}{ENTER}%h").arg(amount.Text()));
        Reckoning.Vouchers.ChangeLastReceipt(amount);
    } else if (m_periods % 3 == 2) {
        Type(clerk, "%k{END}{ENTER}{ENTER}%h");
        Reckoning.Vouchers.DeleteLastReceipt();
    }
}

// The list of installments is written at first, and then one figure of it is changed.
void PaymentYear::KeyInstallments()
{
    const bool isFirst = One("select count(*) from InstallmentTable") == "0";
    On<frmInstallment>([&](Clerk& clerk) {
        if (!isFirst) {
            clerk.Type(QString("{RIGHT}{RIGHT}%1{ENTER}").arg(20 + Throw(200)));
            return;
        }
        for (const int member : m_members)
            if (member % 2 == 0)
                clerk.Type(QString("%1{ENTER}{ENTER}%2.5{ENTER}").arg(member).arg(30 + Throw(300)));
    });
    EXPECT_FALSE(Failure);
}

// The payments

void PaymentYear::OnOnePayment(const std::function<void(Clerk&)>& script)
{
    Reckoning.OpenScreen();
    On<frmNewMilkPayment>([&](Clerk& clerk) {
        Type(clerk, "{DOWN}{ENTER}{ENTER}");
        script(clerk);
    });
    EXPECT_FALSE(Failure);
}

void PaymentYear::Pay(
    Clerk& clerk, int member, const PaymentReckoning::Period& period, const PaymentReckoning::Keyed& keyed)
{
    clerk.Type(QString("%n%1{ENTER}%2{ENTER}%3{ENTER}")
                   .arg(Typed(period.from), Typed(period.bill), QString::number(member)));
    if (keyed.cowDeposit)
        clerk.Type(QString("{ENTER}%1").arg(keyed.cowDeposit->Text()));
    if (keyed.uchal)
        clerk.Type(QString("{ENTER}{ENTER}{ENTER}%1{ENTER}").arg(keyed.uchal->Text()));
    Type(clerk, "%s%h");
    Reckoning.Pay(member, period, keyed);
}

void PaymentYear::TakeBack(Clerk& clerk, int member)
{
    clerk.Type(QString("%k%1{ENTER}%2{ENTER}{ENTER}").arg(Typed(m_period.from), QString::number(member)));
    Reckoning.TakeBack(member, m_period.from);
}

// One as it is proposed, one with half of the deduction, one with a deposit of the clerk's own, one on a day
// behind the period; one is taken back and paid again with no deduction, and one is left for the run.
void PaymentYear::PaySome()
{
    const std::vector<int> payees = ThrowPayees(5);
    PaymentReckoning::Period later = m_period;
    later.bill = m_period.to.addDays(2);
    OnOnePayment([&](Clerk& clerk) {
        Pay(clerk, payees[0], m_period);
        Pay(clerk, payees[1], m_period,
            {.cowDeposit = {}, .uchal = Reckoning.Proposed(payees[1], m_period).Half()});
        TakeBack(clerk, payees[0]);
        Pay(clerk, payees[0], m_period, {.cowDeposit = {}, .uchal = Exact()});
        Pay(clerk, payees[2], m_period, {.cowDeposit = Exact::OfPaise(1234), .uchal = {}});
        Pay(clerk, payees[3], later);
        Pay(clerk, payees[4], m_period);
        TakeBack(clerk, payees[4]);
    });
    ExpectAgreement();
}

// And afterwards one of them is taken back for good in some periods.
void PaymentYear::PayTheRest()
{
    Reckoning.OpenScreen();
    TheBox.Shown.clear();
    On<frmNewMilkPayment>([&](Clerk& clerk) {
        clerk.Type(QString("{DOWN}{DOWN}{ENTER}%1{ENTER}{ENTER}1{ENTER}%2{ENTER}{ENTER}")
                       .arg(Typed(m_period.from), QString::number(m_members.back())));
    });
    EXPECT_FALSE(Failure);
    const PaymentReckoning::Passed passed = Reckoning.PayMany(1, m_members.back(), m_period);
    EXPECT_EQ(passed.paidBefore.size(), 4U);
    QStringList told;
    for (const int member : passed.paidBefore)
        told.append(
            QString("Milk Payments for this member and milk collection period already exist  MemberNo:%1")
                .arg(member));
    EXPECT_EQ(Joined(TheBox.Shown), Joined(told));
    QStringList without;
    for (const int member : passed.withoutMilk)
        without.append(QString::number(member));
    EXPECT_EQ(Joined(Rows("select MemberNo from ShortMemberList order by MemberNo")), Joined(without));
    EXPECT_FALSE(without.isEmpty());

    if (m_periods % 2 == 1)
        OnOnePayment([&](Clerk& clerk) { TakeBack(clerk, ThrowPayees(1).front()); });
}

// What has to hold

void PaymentYear::ExpectAgreement()
{
    for (const Compared& rows : Reckoning.Comparison())
        Expect(rows);
    EXPECT_EQ(
        One("select count(*) from TransactionsMaster where RsInWords is not null or Printname is not null "
            "or Narration2 is not null or Narration3 is not null"),
        QString::number(m_printed));
    ExpectSumsOfYears();
}

void PaymentYear::Expect(const Compared& rows)
{
    EXPECT_EQ(Joined(rows.Differences()), "");
}

// Those that the engine keeps are those of the rows.
void PaymentYear::ExpectSumsOfYears()
{
    std::map<QString, double> sums;
    for (const char* table : {"TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails"})
        for (Recordset row(gCn, QString("select * from ") + table); !row.Eof(); row.MoveNext()) {
            const QString head = row[u"AdvanceType"].Text();
            const QString year = QString("%1 of %2 in %3, %4")
                                     .arg(table, row[u"MemberNo"].Text())
                                     .arg(row[u"TranDate"].Date().year())
                                     .arg(head == Word::CowThev || head == Word::BuffThev);
            sums[year] += row[u"Amount"].Number();
        }
    for (Recordset row(gCn, QStringLiteral("select * from YearSums")); !row.Eof(); row.MoveNext())
        sums[QString("%1 of %2 in %3, %4")
                 .arg(row[u"Entries"].Text(), row[u"MemberNo"].Text(), row[u"Year"].Text(),
                     row[u"Deposit"].Text())] -= row[u"Amount"].Number();
    for (Recordset row(gCn, QStringLiteral("select * from TransactionsMaster")); !row.Eof(); row.MoveNext()) {
        const int year = row[u"TranDate"].Date().year();
        sums[QString("account %1 in %2").arg(row[u"DAccountName"].Text()).arg(year)] -=
            row[u"Amount"].Number();
        sums[QString("account %1 in %2").arg(row[u"CAccountName"].Text()).arg(year)] +=
            row[u"Amount"].Number();
    }
    for (Recordset row(gCn, QStringLiteral("select * from AccountYearSums")); !row.Eof(); row.MoveNext())
        sums[QString("account %1 in %2").arg(row[u"AccountName"].Text(), row[u"Year"].Text())] -=
            row[u"Amount"].Number();
    for (const auto& [year, left] : sums)
        EXPECT_NEAR(left, 0, 0.0001) << year.toStdString();
}

void PaymentYear::ExpectOwedIsGivenLessReceived()
{
    std::map<int, Exact> before;
    std::map<int, Exact> atItsEnd;
    for (const auto& [table, isGiven] : {std::pair("TransactionsDetails", true), {"AdvanceReceipt", false}})
        for (Recordset row(gCn, QString("select * from ") + table); !row.Eof(); row.MoveNext()) {
            const int member = static_cast<int>(row[u"MemberNo"].Number());
            const Exact amount = Exact::Of(row[u"Amount"].Number());
            if (row[u"TranDate"].Date() < m_period.from)
                before[member] += isGiven ? amount : -amount;
            if (row[u"TranDate"].Date() <= m_period.to)
                atItsEnd[member] += isGiven ? amount : -amount;
        }
    for (const int member : m_members)
        EXPECT_EQ(Reckoning.Owed(member, m_period.to).Text(), atItsEnd[member].Text()) << member;
    int payments = 0;
    for (Recordset row(gCn, Sql(u"select * from MilkPayments where FromDate=", SqlDay(m_period.from)));
         !row.Eof(); row.MoveNext(), ++payments) {
        const int member = static_cast<int>(row[u"MemberNo"].Number());
        EXPECT_EQ(Format(row[u"PreviousBalance"].Number(), u"0.00"),
            Format(before[member].Text().toDouble(), u"0.00"))
            << member;
    }
    EXPECT_GT(payments, 3);
}

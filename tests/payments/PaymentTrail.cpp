#include "tests/payments/PaymentTrail.h"

#include "core/state/AppState.h"
#include "payments/Installments.h"
#include "platform/database/Recordset.h"
#include "platform/text/Dates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <tuple>

namespace {

// To the paisa, as long as single precision holds the figure so.
double Near(double figure)
{
    return std::max(0.005, std::abs(figure) * 1e-6);
}

double Sum(QStringView table, const SqlText& rows)
{
    return Recordset(gCn, Sql(u"select sum(Amount) as TAmount from ", table, rows))[u"TAmount"].Number();
}

double Paise(double rupees)
{
    return rupees - std::floor(rupees);
}

}

int PaymentTrail::Follow()
{
    const Payments now = Read();
    int come = 0;
    for (const auto& [key, payment] : m_payments)
        if (!now.contains(key)) {
            TakeBack(payment);
            ++TakenBack;
        }
    for (const auto& [key, payment] : now)
        if (!m_payments.contains(key)) {
            Pay(payment);
            ++come;
        }
    m_payments = now;
    Saved += come;
    return come;
}

void PaymentTrail::ExpectBooks() const
{
    ExpectAlike(m_recoveries, RowsOf(u"AdvanceReceipt", u" where AdvanceType='Uchal Kapat'"));
    ExpectAlike(m_details, RowsOf(u"MilkPaymentsDetails", u""));
    for (Recordset member(gCn, u"select MemberNo from MembersMaster"); !member.Eof(); member.MoveNext()) {
        const int number = static_cast<int>(member[u"MemberNo"].Number());
        double recovered = 0;
        for (const Row& row : m_recoveries)
            recovered += row.member == number ? row.amount : 0;
        const SqlText his = Sql(u" where MemberNo=", number);
        const double received = Sum(u"AdvanceReceipt", Sql(his, u" and AdvanceType='Uchal Receipt'"));
        const double given = Sum(u"TransactionsDetails", his);
        EXPECT_NEAR(given - Sum(u"AdvanceReceipt", his), given - received - recovered, Near(recovered))
            << number;
    }
}

void PaymentTrail::ExpectBalances() const
{
    const double near = std::max(0.02, m_largest * 1e-5);
    for (Recordset member(gCn, u"select * from MembersMaster"); !member.Eof(); member.MoveNext()) {
        const int number = static_cast<int>(member[u"MemberNo"].Number());
        Payment all;
        for (const auto& [key, payment] : m_payments)
            if (payment.member == number)
                for (double Payment::*figure :
                    {&Payment::kapat, &Payment::net, &Payment::uchal, &Payment::cow, &Payment::buff})
                    all.*figure += payment.*figure;
        EXPECT_NEAR(member[u"ClosingUchal"].Number(), -all.uchal, near) << number;
        EXPECT_NEAR(member[u"CowClosingThev"].Number(), all.cow, near) << number;
        EXPECT_NEAR(member[u"BuffClosingThev"].Number(), all.buff, near) << number;
        EXPECT_NEAR(member[u"ClosingBalance"].Number(), all.uchal - all.net - all.cow - all.buff, near)
            << number;
        EXPECT_NEAR(all.kapat, all.uchal + all.cow + all.buff, near) << number;
    }
}

PaymentTrail::Payments PaymentTrail::Read()
{
    Payments payments;
    for (Recordset row(gCn, u"select * from MilkPayments"); !row.Eof(); row.MoveNext()) {
        const auto number = [&](QStringView column) { return row[column].Number(); };
        const Payment payment{static_cast<int>(number(u"MemberNo")), row[u"FromDate"].Date(),
            row[u"ToDate"].Date(), row[u"PaymentDate"].Date(), static_cast<int>(number(u"TranId")),
            number(u"Amount"), number(u"Kapat"), number(u"NetAmount"), number(u"TotalUchal"),
            number(u"ThevKapatCow"), number(u"ThevKapatBuff"), number(u"FixedKapat"),
            number(u"PreviousAdvance")};
        payments[{payment.member, payment.from}] = payment;
    }
    return payments;
}

// As they stand in the books, those of the heads in one.
std::vector<PaymentTrail::Row> PaymentTrail::RowsOf(QStringView table, const SqlText& which)
{
    std::vector<Row> rows;
    for (Recordset row(gCn, Sql(u"select * from ", table, which)); !row.Eof(); row.MoveNext()) {
        QString type = row[u"AdvanceType"].Text();
        if (!type.endsWith(u"zova") && type != u"Uchal Kapat")
            type.clear();
        Add(rows,
            {static_cast<int>(row[u"MemberNo"].Number()), row[u"TranDate"].Date(),
                static_cast<int>(row[u"TranId"].Number()), type, row[u"Amount"].Number()});
    }
    return rows;
}

bool PaymentTrail::AreAlike(const Row& one, const Row& other)
{
    return std::tie(one.member, one.day, one.number, one.type)
        == std::tie(other.member, other.day, other.number, other.type);
}

void PaymentTrail::Add(std::vector<Row>& rows, const Row& added)
{
    for (Row& row : rows)
        if (AreAlike(row, added)) {
            row.amount += added.amount;
            return;
        }
    rows.push_back(added);
}

void PaymentTrail::ExpectAlike(const std::vector<Row>& wanted, const std::vector<Row>& found)
{
    EXPECT_EQ(found.size(), wanted.size());
    for (const Row& row : wanted) {
        const auto same = std::ranges::find_if(found, [&](const Row& other) { return AreAlike(row, other); });
        ASSERT_NE(same, found.end()) << row.member << " on " << DateText(row.day).toStdString() << " number "
                                     << row.number << ' ' << row.type.toStdString();
        EXPECT_NEAR(same->amount, row.amount, Near(row.amount)) << row.type.toStdString();
    }
}

// What was given before or in a period, less what came back then, recoveries as they stood at that time.
double PaymentTrail::Owed(const Payment& payment) const
{
    const SqlText before = Sql(u" where MemberNo=", payment.member, u" and TranDate<", SqlDay(payment.from));
    double owed = Sum(u"TransactionsDetails", before)
        - Sum(u"AdvanceReceipt", Sql(before, u" and AdvanceType='Uchal Receipt'"));
    for (const Row& row : m_recoveries)
        if (row.member == payment.member && row.day < payment.from)
            owed -= row.amount;
    return owed;
}

double PaymentTrail::HeadsOf(const Payment& payment) const
{
    const SqlText within = Sql(u" where MemberNo=", payment.member, u" and TranDate>=", SqlDay(payment.from),
        u" and TranDate<=", SqlDay(payment.to));
    double heads = std::max(Owed(payment), 0.0) + Sum(u"TransactionsDetails", within);
    if (payment.bill >= payment.from && payment.bill <= payment.to)
        heads -= Sum(u"AdvanceReceipt", Sql(within, u" and AdvanceType='Uchal Receipt'"));
    return std::max(heads, 0.0) + payment.fixed;
}

void PaymentTrail::Pay(const Payment& payment)
{
    for (const double figure : {payment.amount, payment.uchal, payment.cow, payment.buff, payment.net})
        m_largest = std::max(m_largest, std::abs(figure));
    EXPECT_NEAR(payment.previous, Owed(payment), Near(payment.previous));
    const auto detail = [&](const QString& type, double amount) {
        if (amount > 0)
            Add(m_details, {payment.member, payment.bill, 0, type, amount});
    };
    const double heads = HeadsOf(payment);
    detail({}, heads);
    detail(QStringLiteral("gaaya zova"), payment.cow);
    detail(QStringLiteral("mhOsa zova"), payment.buff);
    detail(QStringLiteral("zova"), PaiseToDeposit(payment, heads));
    if (payment.uchal != 0)
        Add(m_recoveries,
            {payment.member, payment.bill, payment.number + 1, QStringLiteral("Uchal Kapat"),
                payment.uchal - payment.fixed});
}

// What an installment in place of the heads leaves out: its paise. One of just the heads has the fixed
// deduction in the sum, but not in what is proposed.
double PaymentTrail::LeftByInstallment(const Payment& payment, double heads)
{
    const double installment = InstallmentOf(payment.member).value_or(heads + 1);
    if (std::abs(heads - installment) < Near(heads))
        return installment + payment.fixed - std::floor(heads + Near(0));
    return heads > installment ? Paise(installment + payment.fixed) : 0;
}

// What of the milk is neither deducted nor paid out: the paise. A deduction that the clerk has left as it was
// proposed leaves out the paise of the heads, too, or those of the installment in their place.
double PaymentTrail::PaiseToDeposit(const Payment& payment, double heads) const
{
    double had = 0;
    for (const Row& row : m_details)
        if (row.member == payment.member && row.day == payment.bill && row.type == u"zova")
            had = row.amount;
    const double paise = Sum(u"MilkPaymentsDetails",
                             Sql(u" where MemberNo=", payment.member, u" and TranDate=", SqlDay(payment.bill),
                                 u" and AdvanceType='zova'"))
        - had;
    EXPECT_GE(paise, -Near(0));
    EXPECT_LT(paise, 1);
    const double rest = payment.amount - payment.kapat - payment.net - paise;
    EXPECT_TRUE(std::abs(rest) < Near(0) || std::abs(rest - Paise(heads)) < Near(heads)
        || std::abs(rest - LeftByInstallment(payment, heads)) < Near(heads))
        << rest;
    return paise;
}

// All recoveries of the bill's date go, and the details by the days of the period.
void PaymentTrail::TakeBack(const Payment& payment)
{
    std::erase_if(m_recoveries,
        [&](const Row& row) { return row.member == payment.member && row.day == payment.bill; });
    std::erase_if(m_details, [&](const Row& row) {
        return row.member == payment.member && row.day >= payment.from && row.day <= payment.to;
    });
}

#include "bench/FloorRegister.h"

#include "bench/CounterPlay.h"

#include <utility>

FloorRegister::FloorRegister(
    PaymentRegister::Kind kind, std::string from, std::string to, std::string yearBegins)
    : m_kind(kind)
    , m_from(std::move(from))
    , m_to(std::move(to))
    , m_yearBegins(std::move(yearBegins))
{
}

void FloorRegister::Stage(int members)
{
    using Kind = PaymentRegister::Kind;
    Require(m_any.Bind(m_from, m_to, 1, members).Finds(), "There are payments.");
    m_begin.Run();
    for (FloorStatement& empty : m_empty)
        empty.Run();
    m_copyMilk.Bind(m_from, m_to, 1, members).Run();
    Require(m_company.Finds(), "There is a company.");
    m_copyPayments.Bind(m_from, m_to, 1, members).Run();
    const std::vector<Payment> payments = ReadPayments();
    m_summary.Begin();
    for (const Payment& payment : payments) {
        if (m_kind == Kind::Payments) {
            StagePayment(payment);
            m_summary.Stage(payment.member, m_from, m_to);
        } else if (m_kind == Kind::Deposits) {
            StageDeposit(payment);
        } else {
            StageAdvance(payment);
        }
    }
    if (m_kind == Kind::Payments)
        for (const Payment& payment : payments)
            AddPreviousBalance(payment);
    m_dates.Bind(m_from, m_to).Run();
    m_tidy.Run();
    m_commit.Run();
}

std::vector<FloorRegister::Payment> FloorRegister::ReadPayments()
{
    std::vector<Payment> payments;
    while (m_payments.Step())
        payments.push_back({std::string(m_payments.TextAt(0)), m_payments.NumberAt(1),
            static_cast<int>(m_payments.NumberAt(2)), std::string(m_payments.TextAt(3)),
            std::string(m_payments.TextAt(4)), m_payments.NumberAt(5), m_payments.NumberAt(6),
            m_payments.NumberAt(7), m_payments.NumberAt(8), m_payments.NumberAt(9), m_payments.NumberAt(10),
            m_payments.NumberAt(11)});
    m_payments.Reset();
    return payments;
}

void FloorRegister::StagePayment(const Payment& payment)
{
    const double cow = m_litres.Bind(payment.member, "gaaya").Number();
    const double buff = m_litres.Bind(payment.member, "mhOsa").Number();
    const double deposit = m_depositOn.Bind(payment.member, payment.date).Number();
    m_payment
        .Bind(m_from, m_to, payment.date, payment.tranId, payment.member, payment.name, payment.animal, cow,
            buff, payment.amount, deposit, payment.kapat, payment.net,
            payment.previous + payment.previousAdvance, payment.current + payment.previousAdvance,
            payment.kapat - payment.deposit, payment.previousAdvance)
        .Run();
}

void FloorRegister::AddPreviousBalance(const Payment& payment)
{
    double unpaid = 0;
    bool isThere = false;
    for (m_unpaid.Bind(payment.date, payment.member); m_unpaid.Step(); isThere = true)
        unpaid += m_unpaid.NumberAt(0);
    m_unpaid.Reset();
    if (isThere)
        m_addUnpaid.Bind(unpaid, payment.member).Run();
}

void FloorRegister::StageDeposit(const Payment& payment)
{
    const double on = m_depositOn.Bind(payment.member, payment.date).Number();
    Require(m_opening.Bind(payment.member).Step(), "The member is there.");
    double before = m_opening.NumberAt(0) + m_opening.NumberAt(1);
    m_opening.Reset();
    before += m_depositBefore.Bind(payment.member, m_yearBegins, payment.date).Number();
    m_deposit
        .Bind(m_from, m_to, payment.date, payment.tranId, payment.member, payment.name, on, before,
            before + on, payment.kapat - payment.deposit, payment.previousAdvance)
        .Run();
}

void FloorRegister::StageAdvance(const Payment& payment)
{
    const double given = m_given.Bind(payment.member, m_from).Number();
    const double received = m_received.Bind(payment.member, m_from).Number();
    const double previous = given - received - m_headsBefore.Bind(payment.member, m_from).Number();
    const double current = m_headsOn.Bind(payment.member, payment.date).Number();
    const double kapat = payment.kapat - payment.deposit;
    m_advance
        .Bind(m_from, m_to, payment.date, payment.tranId, payment.member, payment.name, current, previous,
            previous - kapat, kapat, payment.previousAdvance)
        .Run();
}

FloorBalances::FloorBalances(Kind kind, std::string from, std::string to)
    : m_kind(kind)
    , m_from(std::move(from))
    , m_to(std::move(to))
{
}

void FloorBalances::Stage(int members)
{
    Require(m_members.Bind(1, members).Finds(), "There are members.");
    m_begin.Run();
    for (FloorStatement& empty : m_empty)
        empty.Run();
    std::vector<std::pair<int, std::string>> people;
    for (m_members.Bind(1, members); m_members.Step();)
        people.emplace_back(static_cast<int>(m_members.NumberAt(0)), m_members.TextAt(1));
    m_members.Reset();
    for (const auto& [member, name] : people) {
        double first = 0;
        double second = 0;
        if (m_kind == Kind::Advances) {
            first = m_given.Bind(m_to, member).Number();
            second = m_received.Bind(m_to, member).Number();
        } else {
            m_deposits.Bind(m_from, m_to, member).Step();
            first = m_deposits.NumberAt(0);
            second = m_deposits.NumberAt(1);
            m_deposits.Reset();
        }
        m_insert
            .Bind(m_from, m_to, m_to, member, name, m_kind == Kind::Deposits ? first + second : 0.0, first,
                second, first - second)
            .Run();
    }
    (m_kind == Kind::Advances ? m_dropAdvances : m_dropDeposits).Run();
    m_tidy.Run();
    m_dates.Bind(m_from, m_to).Run();
    m_commit.Run();
}

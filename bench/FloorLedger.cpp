#include "bench/FloorLedger.h"

#include "bench/CounterPlay.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

constexpr double Parts = 10000;

enum Column {
    TranDate = 1,
    TranId,
    TranType,
    Debited,
    Credited,
    Amount,
    Narration = 8,
    Narration2 = 11,
    Narration3
};
constexpr int OpeningBalance = 5; // of the account

double Rupees(long long parts)
{
    return static_cast<double>(std::llabs(parts)) / Parts;
}

}

FloorLedger::FloorLedger(std::string account, std::string from, std::string to)
    : m_account(std::move(account))
    , m_from(std::move(from))
    , m_to(std::move(to))
{
}

void FloorLedger::Stage()
{
    m_begin.Run();
    Require(m_opening.Bind(m_account).Step(), "The account is there.");
    m_balance = std::llround(m_opening.NumberAt(OpeningBalance) * Parts);
    m_opening.Reset();
    const std::string year = m_from.substr(0, 4);
    Require(m_years.Bind(m_account, year).Step(), "A sum is always one row.");
    m_balance += std::llround(m_years.NumberAt(1) * Parts);
    m_years.Reset();
    const std::string yearBegins = year + "-01-01";
    for (m_before.Bind(m_account, m_account, yearBegins, m_from); m_before.Step();)
        Take(m_before);
    m_before.Reset();
    m_empty.Run();
    m_day.clear();
    for (m_rows.Bind(m_account, m_account, m_from, m_to); m_rows.Step();)
        StageLine();
    m_rows.Reset();
    m_tidy.Run();
    m_commit.Run();
}

void FloorLedger::Take(FloorStatement& row)
{
    const long long amount = std::llround(row.NumberAt(Amount) * Parts);
    if (row.TextAt(Debited) == m_account) {
        m_balance -= amount;
        m_debits += amount;
    }
    if (row.TextAt(Credited) == m_account) {
        m_balance += amount;
        m_credits += amount;
    }
}

void FloorLedger::BeginDay()
{
    m_debits = std::max(-m_balance, 0LL);
    m_credits = std::max(m_balance, 0LL);
}

void FloorLedger::StageLine()
{
    const std::string_view day = m_rows.TextAt(TranDate);
    if (day != m_day) {
        BeginDay();
        m_day = day;
    }
    const double opening = Rupees(m_balance);
    const std::string_view openingSide = Side();
    Take(m_rows);
    const bool isCredit = m_rows.TextAt(Credited) == m_account;
    const double amount = m_rows.NumberAt(Amount);
    m_insert
        .Bind(m_account, m_from, m_to, m_day, m_rows.NumberAt(TranId), m_rows.TextAt(TranType),
            m_rows.TextAt(isCredit ? Debited : Credited), isCredit ? 0 : amount, isCredit ? amount : 0,
            m_rows.TextAt(Narration), m_rows.TextAt(Narration2), m_rows.TextAt(Narration3), opening,
            openingSide, Rupees(m_balance), Side(), Rupees(std::max(m_debits, m_credits)))
        .Run();
}

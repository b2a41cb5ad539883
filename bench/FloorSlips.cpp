#include "bench/FloorSlips.h"

#include "bench/CounterPlay.h"

#include <QDate>

#include <utility>

namespace {

constexpr std::array<std::string_view, 2> Animals{"gaaya", "mhOsa"};
constexpr std::string_view Morning = "sakaL";
constexpr int HeadColumn = 4; // of the details
constexpr int AmountColumn = 5;

QDate Day(const std::string& iso)
{
    return QDate::fromString(QString::fromStdString(iso), Qt::ISODate);
}

std::string Iso(const QDate& day)
{
    return day.toString(Qt::ISODate).toStdString();
}

}

void FloorSummary::Begin()
{
    m_heads.clear();
    while (m_types.Step())
        m_heads.emplace_back(m_types.TextAt(2), m_types.NumberAt(1));
    m_types.Reset();
}

void FloorSummary::Stage(int member, const std::string& from, const std::string& to)
{
    double other = 0;
    double uchal = 0;
    double khadya = 0;
    double kirana = 0;
    m_details.Bind(member, from, to);
    while (m_details.Step()) {
        const double amount = m_details.NumberAt(AmountColumn);
        for (const auto& [head, type] : m_heads) {
            if (head != m_details.TextAt(HeadColumn))
                continue;
            if (type == 0)
                khadya += amount;
            else if (head == "[tr")
                other += amount;
            else if (head == "]cala")
                uchal += amount;
            else
                kirana += amount;
        }
    }
    m_details.Reset();
    m_insert.Bind(member, other, uchal, khadya, kirana).Run();
}

FloorSlips::FloorSlips(std::string from, std::string to, std::string yearBegins)
    : m_from(std::move(from))
    , m_to(std::move(to))
    , m_yearBegins(std::move(yearBegins))
    , m_dayCount(static_cast<int>(Day(m_from).daysTo(Day(m_to))) + 1)
{
}

void FloorSlips::Stage(int members)
{
    Require(m_onDate.Bind(m_to).Finds() && m_any.Bind(m_to, 1, members).Finds(), "There are payments.");
    Require(m_settings.Finds(), "There are settings.");
    m_begin.Run();
    for (FloorStatement& empty : m_empty)
        empty.Run();
    m_copyPayments.Bind(m_to, 1, members).Run();
    const std::vector<Payment> payments = ReadPayments();
    Require(m_company.Finds(), "There is a company.");
    m_copyMilk.Bind(m_from, m_to, 1, members).Run();
    m_summary.Begin();
    for (const Payment& payment : payments) {
        StageDays(payment);
        m_summary.Stage(payment.member, payment.from, payment.to);
        StageKapat(payment);
        LookAtDays(payment);
        StageDeposit(payment);
        if (payment.litresCow <= 0)
            m_removeAnimal.Bind(payment.from, payment.to, payment.member, Animals[0]).Run();
        if (payment.litresBuff <= 0)
            m_removeAnimal.Bind(payment.from, payment.to, payment.member, Animals[1]).Run();
    }
    m_commit.Run();
}

std::vector<FloorSlips::Payment> FloorSlips::ReadPayments()
{
    std::vector<Payment> payments;
    while (m_payments.Step())
        payments.push_back({static_cast<int>(m_payments.NumberAt(0)), std::string(m_payments.TextAt(1)),
            std::string(m_payments.TextAt(2)), std::string(m_payments.TextAt(3)), m_payments.NumberAt(4),
            m_payments.NumberAt(5)});
    m_payments.Reset();
    return payments;
}

FloorSlips::Days FloorSlips::ReadDays(const Payment& payment)
{
    Days days(static_cast<std::size_t>(m_dayCount));
    const int first = std::stoi(m_from.substr(8));
    m_milk.Bind(payment.member);
    while (m_milk.Step()) {
        const int at = std::stoi(std::string(m_milk.TextAt(0).substr(8))) - first;
        const std::size_t animal = m_milk.TextAt(3) == Animals[0] ? 0 : 1;
        const std::size_t shift = m_milk.TextAt(1) == Morning ? 0 : 1;
        Delivery& delivery = days.at(static_cast<std::size_t>(at)).at(animal).at(shift);
        if (!delivery.isThere)
            delivery = {true, m_milk.NumberAt(4), m_milk.NumberAt(5), m_milk.NumberAt(6), m_milk.NumberAt(7)};
    }
    m_milk.Reset();
    return days;
}

std::string FloorSlips::DayAt(std::size_t at) const
{
    const QDate from = Day(m_from);
    return Iso(from.addDays(static_cast<qint64>(at)));
}

void FloorSlips::StageDays(const Payment& payment)
{
    const Days days = ReadDays(payment);
    for (std::size_t at = 0; at < days.size(); ++at) {
        const std::string day = DayAt(at);
        for (std::size_t animal = 0; animal < Animals.size(); ++animal) {
            const auto& [morning, evening] = days[at][animal];
            m_line
                .Bind(day, payment.member, payment.name, Animals[animal], morning.litres, morning.fat,
                    morning.rate, morning.amount, evening.litres, evening.fat, evening.rate, evening.amount)
                .Run();
        }
    }
}

void FloorSlips::StageKapat(const Payment& payment)
{
    Require(m_payment.Bind(m_to, payment.member).Step(), "The member is paid.");
    const double fixedKapat = m_payment.NumberAt(0);
    const double previousAdvance = m_payment.NumberAt(1);
    m_payment.Reset();
    const double previous = PreviousBalance(payment.member, previousAdvance);
    double uchal = 0;
    double khadya = 0;
    double kirana = 0;
    double other = 0;
    m_details.Bind(m_to, payment.member);
    while (m_details.Step()) {
        const std::string_view type = m_details.TextAt(0);
        const double amount = m_details.NumberAt(1);
        if (type == "]cala")
            uchal = amount;
        else if (type == "KaV")
            khadya = amount;
        else if (type == "ikraNaa maalaÀroSana")
            kirana = amount;
        else if (type == "[tr")
            other = amount - fixedKapat;
    }
    m_details.Reset();
    const std::array<std::pair<std::string_view, double>, 11> lines{
        {{"maagaIla baakI", previous}, {"]cala", uchal}, {"KaV", khadya}, {"ikraNaa maalaÀroSana", kirana},
            {"[tr", other}, {"isqar kpat", fixedKapat}, {"", 0}, {"", 0}, {"", 0}, {"", 0}, {"", 0}}};
    for (std::size_t at = 0; at < lines.size(); ++at)
        m_kapat.Bind(payment.member, DayAt(at), lines[at].first, lines[at].second).Run();
}

double FloorSlips::PreviousBalance(int member, double previousAdvance)
{
    double balance = previousAdvance;
    const std::string since = Iso(Day(m_to).addDays(-9));
    m_receipts.Bind(since, m_to, member);
    while (m_receipts.Step())
        balance -= m_receipts.NumberAt(0);
    m_receipts.Reset();
    return balance;
}

// Nothing has to be filled up: there are ten days of each animal.
void FloorSlips::LookAtDays(const Payment& payment)
{
    for (const std::string_view animal : Animals) {
        int days = 0;
        m_daysOf.Bind(payment.member, animal);
        while (m_daysOf.Step())
            days += m_daysOf.TextAt(0).empty() ? 0 : 1;
        m_daysOf.Reset();
        Require(days == m_dayCount, "Each day of an animal has its line.");
    }
}

void FloorSlips::StageDeposit(const Payment& payment)
{
    const double before = m_depositBefore.Bind(payment.member, m_yearBegins, m_to).Number();
    const double on = m_depositOn.Bind(payment.member, m_to).Number();
    m_setDeposit.Bind(before, on, before + on, payment.member).Run();
}

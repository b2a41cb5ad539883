#include "bench/FloorPayment.h"

#include "bench/CounterPlay.h"

#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr double FixedKapat = 5;
constexpr int TypeColumn = 4; // of the heads and of the receipts
constexpr int AmountColumn = 5;

struct Head {
    std::string_view type;
    int place = 0;
};
constexpr std::array Heads{Head{"]cala", 1}, Head{"KaV", 2}, Head{"ikraNaa maalaÀroSana", 3},
    Head{"maagaIla baakI", 0}, Head{"[tr", 4}};

double Paise(double rupees)
{
    return std::round(rupees * 100) / 100;
}

double AsSingle(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

}

FloorPayment::FloorPayment(std::string from, std::string to)
    : m_from(std::move(from))
    , m_to(std::move(to)) { }

void FloorPayment::WorkOut(int member)
{
    m_member = member;
    Require(m_findMember.Bind(m_member).Step(), "The member is there.");
    m_name = m_findMember.TextAt(0);
    m_findMember.Reset();
    Require(!m_paid.Bind(m_member, m_from, m_from).Finds(), "The period isn't paid yet.");
    m_begin.Run();
    Reckon();
    m_commit.Run();
}

void FloorPayment::Pay(int member)
{
    m_member = member;
    Require(m_findMember.Bind(m_member).Step(), "The member is there.");
    m_name = m_findMember.TextAt(0);
    m_findMember.Reset();
    m_bill = m_highestBill.Bind(m_to).Number() + 1;
    Require(!m_paid.Bind(m_member, m_from, m_from).Finds(), "The period isn't paid yet.");
    m_begin.Run();
    Reckon();
    Post();
    m_commit.Run();
}

void FloorPayment::Reckon()
{
    ReadMilk();
    m_emptyCopy.Run();
    m_copy.Bind(m_member, m_from, m_to).Run();
    BuildHeads();
    SummariseDeductions();
}

void FloorPayment::ReadMilk()
{
    m_cowLitres = m_litres.Bind(m_member, m_from, m_to, "gaaya").Number();
    m_buffLitres = m_litres.Bind(m_member, m_from, m_to, "mhOsa").Number();
    m_cowAmount = Paise(m_amount.Bind(m_member, m_from, m_to, "gaaya").Number());
    m_buffAmount = Paise(m_amount.Bind(m_member, m_from, m_to, "mhOsa").Number());
    m_depositRates.Step();
    m_cowDeposit = Paise(m_cowLitres * m_depositRates.NumberAt(0));
    m_buffDeposit = Paise(m_buffLitres * m_depositRates.NumberAt(1));
    m_depositRates.Reset();
}

void FloorPayment::BuildHeads()
{
    m_emptyHeads.Run();
    m_given.Bind(m_member, m_from, m_to).Run();
    m_previous = Paise(AsSingle(m_givenBefore.Bind(m_member, m_from).Number())
        - AsSingle(m_receivedBefore.Bind(m_member, m_from).Number()));
    if (m_previous != 0)
        AddHead(0, "maagaIla baakI", m_previous);
    ConsolidateHeads();
    TakeOffReceipts();
    const double fixedKapat = AddFixedKapat();
    m_outstanding = m_sumOfHeads.Number();
    Require(fixedKapat == FixedKapat && m_outstanding > 0, "The member owes something.");
    m_tidyHeads.Run();
    m_uchal = std::floor(Paise(m_outstanding));
}

void FloorPayment::AddHead(int place, std::string_view type, double amount)
{
    m_addHead.Bind(m_to, place, m_member, type, amount).Run();
}

void FloorPayment::ConsolidateHeads()
{
    std::array<double, Heads.size()> sums{};
    while (m_heads.Step())
        for (std::size_t i = 0; i < Heads.size(); ++i)
            if (m_heads.TextAt(TypeColumn) == Heads[i].type)
                sums[i] = Paise(sums[i] + m_heads.NumberAt(AmountColumn));
    m_heads.Reset();
    m_emptyHeads.Run();
    for (std::size_t i = 0; i < Heads.size(); ++i)
        if (sums[i] > 0)
            AddHead(Heads[i].place, Heads[i].type, sums[i]);
}

// Here the advance is always more than what came back.
void FloorPayment::TakeOffReceipts()
{
    double left = 0;
    for (m_received.Bind(m_member, m_from, m_to); m_received.Step();)
        left += m_received.NumberAt(AmountColumn);
    m_received.Reset();
    if (left == 0)
        return;
    Require(m_advance.Bind(m_member, m_from, m_to).Step(), "There is an advance.");
    const double advance = m_advance.NumberAt(AmountColumn);
    m_advance.Reset();
    Require(advance > left, "The advance is more than what came back.");
    m_lowerHead.Bind(advance - left, m_member, m_from, m_to, "]cala").Run();
}

double FloorPayment::AddFixedKapat()
{
    const double fixedKapat = m_fixedKapat.Number();
    Require(!m_other.Bind(m_member, m_to).Finds(), "There is no other head.");
    AddHead(10, "[tr", fixedKapat);
    return fixedKapat;
}

void FloorPayment::SummariseDeductions()
{
    const double heads = Paise(m_sumOfAllHeads.Number());
    const double deposits = m_cowDeposit + m_buffDeposit;
    const double amount = m_cowAmount + m_buffAmount;
    double kapat = heads + deposits;
    if (const double most = AsSingle(amount - deposits); m_uchal > most) {
        m_uchal = std::floor(most);
        kapat = m_uchal + deposits;
    }
    m_total = Paise(amount - kapat);
}

void FloorPayment::Post()
{
    m_emptyDetails.Run();
    m_stageDetails.Run();
    StageDeposits();
    PutPaiseToDeposit();
    if (m_outstanding > m_uchal)
        m_currentBalance = Paise(m_outstanding - m_uchal);
    const bool isCow = m_cowLitres > 0;
    m_pay
        .Bind(m_from, m_to, m_to, m_bill, m_member, m_name, isCow ? "gaaya" : "mhOsa",
            m_cowLitres + m_buffLitres, m_cowAmount + m_buffAmount, m_cowDeposit + m_buffDeposit + m_uchal,
            m_net, m_previous, m_currentBalance, m_uchal, m_cowDeposit, m_buffDeposit, m_cowLitres,
            m_buffLitres, m_cowAmount, m_buffAmount, FixedKapat, m_previous)
        .Run();
    MoveClosing();
    m_recover.Bind(m_to, m_bill + 1, m_member, Paise(m_uchal - FixedKapat)).Run();
    m_clearNumbers.Run();
    m_keepDetails.Run();
    m_emptyHeads.Run();
    m_tidyPayments.Run();
}

void FloorPayment::StageDeposits()
{
    if (m_cowDeposit > 0)
        m_stageDeposit.Bind(m_to, m_bill, m_member, "gaaya zova", m_cowDeposit).Run();
    if (m_buffDeposit > 0)
        m_stageDeposit.Bind(m_to, m_bill, m_member, "mhOsa zova", m_buffDeposit).Run();
}

void FloorPayment::PutPaiseToDeposit()
{
    m_net = m_total;
    const double paise = Paise(m_net - std::floor(m_net));
    Require(m_net >= 0, "Something is paid out.");
    if (paise == 0)
        return;
    Require(m_settings.Finds(), "There are settings.");
    Require(!m_thev.Finds(), "No paise are there yet.");
    m_stageDeposit.Bind(m_to, m_bill, m_member, "zova", paise).Run();
    m_tidyDetails.Run();
    m_net = Paise(m_net - paise);
}

void FloorPayment::MoveClosing()
{
    m_closing.Bind(m_member).Step();
    const auto moved = [&](int column, double by) {
        return AsSingle(Paise(AsSingle(m_closing.NumberAt(column)) + by));
    };
    const double balance = moved(0, m_uchal - m_net - m_cowDeposit - m_buffDeposit);
    const double cow = moved(1, m_cowDeposit);
    const double buff = moved(2, m_buffDeposit);
    const double uchal = moved(3, -m_uchal);
    m_closing.Reset();
    m_moveClosing.Bind(balance, cow, buff, uchal, m_member).Run();
}

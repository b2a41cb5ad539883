#include "bench/FloorBonus.h"

#include "bench/CounterPlay.h"

#include <utility>

namespace {

constexpr int MemberNo = 1;
constexpr int MemberName = 2;
constexpr int NameInList = 10;
constexpr int LitersInList = 11;

double Single(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

}

FloorBonus::FloorBonus(std::string from, std::string to, double cowRate, double buffRate)
    : m_from(std::move(from))
    , m_to(std::move(to))
    , m_cowRate(cowRate)
    , m_buffRate(buffRate)
{
}

void FloorBonus::Build(int members)
{
    m_begin.Run();
    m_empty.Run();
    int serialNo = 0;
    for (m_members.Bind(1, members); m_members.Step();)
        Add(++serialNo, members);
    m_members.Reset();
    m_tidy.Run();
    m_commit.Run();
    ReadList();
}

void FloorBonus::Add(int serialNo, int members)
{
    const auto number = static_cast<int>(m_members.NumberAt(MemberNo));
    const std::string_view name = m_members.TextAt(MemberName);
    const double cow = Single(m_litres.Bind(m_from, m_to, number, "gaaya").Number());
    const double buff = Single(m_litres.Bind(m_from, m_to, number, "mhOsa").Number());
    const double given = m_given.Bind(name, m_from, m_to).Number();
    const double advance = Single(given - m_received.Bind(m_from, m_to, number).Number());
    const double cowBonus = Single(cow * m_cowRate);
    const double buffBonus = Single(buff * m_buffRate);
    m_insert
        .Bind(m_from, m_to, members, m_cowRate, m_buffRate, serialNo, number, name, cow, buff, cow, buff,
            cowBonus, buffBonus, Single(cowBonus + buffBonus), advance)
        .Run();
}

void FloorBonus::ReadList()
{
    double litres = 0;
    std::size_t letters = 0;
    for (; m_list.Step(); litres += m_list.NumberAt(LitersInList))
        letters += m_list.TextAt(NameInList).size();
    m_list.Reset();
    Require(letters > 0 && litres > 0, "The list has rows.");
}

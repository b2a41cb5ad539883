#include "bench/FloorVadhToot.h"

#include "bench/CounterPlay.h"

#include <utility>

namespace {

struct Milk {
    std::string_view shift;
    std::string_view animal;
};

constexpr std::array<Milk, 4> MilkOfADay{
    Milk{"sakaL", "gaaya"}, Milk{"sakaL", "mhOsa"}, Milk{"saMQyaakaL", "gaaya"}, Milk{"saMQyaakaL", "mhOsa"}};

constexpr int CustomerName = 2;

}

FloorVadhToot::FloorVadhToot(std::vector<std::string> days) : m_days(std::move(days)) { }

void FloorVadhToot::Stage()
{
    Require(m_federation.Step(), "The federation is a customer.");
    m_name = m_federation.TextAt(CustomerName);
    m_federation.Reset();
    m_begin.Run();
    for (FloorStatement& empty : m_empty) {
        empty.Run();
        empty.Run();
    }
    m_dates.Bind(m_days.front(), m_days.back()).Run();
    ReadMilk();
    for (const std::string& day : m_days)
        StageDay(day);
    m_tidy.Run();
    m_commit.Run();
}

void FloorVadhToot::ReadMilk()
{
    m_in.clear();
    for (m_milk.Bind(m_days.front(), m_days.back()); m_milk.Step();) {
        Day& day = m_in[std::string(m_milk.TextAt(0))];
        const std::size_t first = m_milk.TextAt(1) == MilkOfADay[0].shift ? 0 : 2;
        day.at(first) += m_milk.NumberAt(2);
        day.at(first + 1) += m_milk.NumberAt(3);
    }
    m_milk.Reset();
}

void FloorVadhToot::StageDay(const std::string& day)
{
    const auto found = m_in.find(day);
    for (std::size_t at = 0; at < MilkOfADay.size(); ++at) {
        const auto& [shift, animal] = MilkOfADay[at];
        const double in = found == m_in.end() ? 0 : found->second[at];
        const double sold = m_toFederation.Bind(day, shift, animal, m_name).Number();
        const double out = m_out.Bind(day, shift, animal).Number();
        if (in <= 0 && out <= 0)
            continue;
        const double our = m_our.Bind(day, shift, animal).Number();
        m_insert.Bind(day, shift, animal, in, out - sold, sold, out, -our).Run();
    }
}

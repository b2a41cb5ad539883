#include "bench/Timing.h"

#include <algorithm>
#include <cmath>

double Samples::Quantile(double share) const
{
    std::vector<double> sorted = m_values;
    std::sort(sorted.begin(), sorted.end());
    const auto last = static_cast<double>(sorted.size() - 1);
    return sorted.at(static_cast<std::size_t>(std::lround(share * last)));
}

void Pair::Turn(const std::function<double()>& measured, const std::function<double()>& floor)
{
    if (m_isFloorFirst)
        Floor.Add(floor());
    Measured.Add(measured());
    if (!m_isFloorFirst)
        Floor.Add(floor());
    m_isFloorFirst = !m_isFloorFirst;
}

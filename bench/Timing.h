#pragma once

#include <chrono>
#include <functional>
#include <vector>

// Runs some work and returns its time in seconds.
template <class Work> double SecondsOf(Work&& work)
{
    const auto from = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

// The numbers of a case, one for each iteration. Its median isn't affected by what else the disk was doing.
class Samples {
public:
    void Add(double value) { m_values.push_back(value); }
    double Last() const { return m_values.back(); }

    // The value that this share of all values doesn't exceed: 0.5 gives the median. There must be values.
    double Quantile(double share) const;

private:
    std::vector<double> m_values;
};

// A case and its floor, timed in turns, with the order swapped every time, so that both meet the same disk,
// caches and table sizes.
class Pair {
public:
    Samples Measured;
    Samples Floor;

    // Runs both; each returns its seconds. Work that they don't time, such as typing the rest of a line,
    // doesn't count.
    void Turn(const std::function<double()>& measured, const std::function<double()>& floor);

private:
    bool m_isFloorFirst = false;
};

#pragma once

#include <chrono>
#include <functional>
#include <vector>

// How long something takes, in seconds.
template <class Work> double SecondsOf(Work&& work)
{
    const auto from = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

// A case's numbers, one an iteration. The middle one is not moved by what else the disk had to do.
class Samples {
public:
    void Add(double value) { m_values.push_back(value); }
    double Last() const { return m_values.back(); }

    // The value that a share of all values doesn't exceed: 0.5 is the median. There must be a value.
    double Quantile(double share) const;

private:
    std::vector<double> m_values;
};

// A case and its floor, timed in turns, each of them first in every second turn: so both meet the same disk,
// the same caches and tables of the same size.
class Pair {
public:
    Samples Measured;
    Samples Floor;

    // Both return seconds. What they do outside of what they time, such as typing the rest of a line, counts
    // for neither.
    void Turn(const std::function<double()>& measured, const std::function<double()>& floor);

private:
    bool m_isFloorFirst = false;
};

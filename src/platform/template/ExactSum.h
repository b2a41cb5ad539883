#pragma once

#include <cstdint>

// A sum of decimal numbers that stays exact: up to six decimals, up to nine thousand milliards.
class ExactSum {
public:
    // Adds a number after rounding it half away from zero to `decimals` (0 to 6) places, so that a sum is
    // that of the figures above it as they are printed. A sum that grows too large is an overflow error.
    void Add(double number, int decimals = Places);

    // Adds the exact product of two numbers of at most six decimals together.
    void AddProduct(double first, double second);

    double Number() const;
    bool IsZero() const { return m_units == 0; }

    static constexpr int Places = 6;

private:
    void AddUnits(std::int64_t units);
    std::int64_t m_units = 0;
};

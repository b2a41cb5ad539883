#pragma once

#include <cstdint>

// Adds decimal numbers without rounding errors: up to six decimals, up to nine million million.
class ExactSum {
public:
    // Rounds a number to `decimals` (0 to 6) places, halves away from zero, and adds it. So a total is the
    // sum of the printed figures above it. If the sum gets too large, that is an overflow error.
    void Add(double number, int decimals = Places);

    // Adds the product of two numbers, exact if they have at most six decimals together.
    void AddProduct(double first, double second);

    double Number() const;
    bool IsZero() const { return m_units == 0; }

    static constexpr int Places = 6;

private:
    void AddUnits(std::int64_t units);
    std::int64_t m_units = 0;
};

#pragma once

#include "bench/Timing.h"

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

// The limits of a case. A limit that isn't set doesn't apply.
struct Target {
    std::optional<double> ratio = {}; // at most so many times the floor
    double slack = 0; // so much more is allowed, in the unit of the case
    std::optional<double> below = {}; // less than this, whatever the floor is
};

// The unit of a case's numbers: its name, and how many of it make one second or one byte.
struct Unit {
    const char* name;
    double scale;
};
inline constexpr Unit Microseconds{"us", 1e6};
inline constexpr Unit Milliseconds{"ms", 1e3};
inline constexpr Unit Megabytes{"MB", 1.0 / (1024 * 1024)};

// The table at the end: every case beside its floor, and whether it met its target.
namespace Outcomes {

// Adds a case that has run. Its medians are compared with the target, and are also shown in the line of the
// benchmark.
void Add(benchmark::State& state, const std::string& what, const Pair& pair, Unit unit, const Target& target);

// Adds a case that couldn't finish. It counts as missed.
void Fail(benchmark::State& state, const std::string& what, const std::string& why);

// Prints the table. Returns whether there was a case and every one of them met its target.
bool Print();

}

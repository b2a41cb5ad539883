#pragma once

#include "bench/Timing.h"

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

// What a case may cost. What isn't given isn't bounded.
struct Target {
    std::optional<double> ratio = {}; // times the floor
    double slack = 0; // and so much on top of that, in the case's unit
    std::optional<double> below = {}; // less than this, whatever the floor
};

// The unit of a case's numbers: how it is written, and how many of it make one second or one byte.
struct Unit {
    const char* name;
    double scale;
};
inline constexpr Unit Microseconds{"us", 1e6};
inline constexpr Unit Milliseconds{"ms", 1e3};
inline constexpr Unit Megabytes{"MB", 1.0 / (1024 * 1024)};

// The closing table: every case beside its floor, and whether it met its target.
namespace Outcomes {

// Takes in a case that has run; its medians are held against the target. The numbers are shown in the
// benchmark's own line, too.
void Add(benchmark::State& state, const std::string& what, const Pair& pair, Unit unit, const Target& target);

// A case that could not be run to its end. It counts as missed.
void Fail(benchmark::State& state, const std::string& what, const std::string& why);

// Prints the table. Returns whether there was a case and every one of them met its target.
bool Print();

}

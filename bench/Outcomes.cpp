#include "bench/Outcomes.h"

#include <cstdio>
#include <vector>

namespace {

struct Line {
    std::string what;
    std::string measured;
    std::string high;
    std::string floor;
    std::string ratio;
    std::string target;
    bool met = false;
};

std::vector<Line>& Lines()
{
    static std::vector<Line> lines;
    return lines;
}

std::string Written(const char* format, double number)
{
    char text[64];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

std::string Written(double number, Unit unit)
{
    return Written(number * unit.scale < 10 ? "%.3f " : "%.1f ", number * unit.scale) + unit.name;
}

std::string Written(const Target& target, Unit unit)
{
    std::string text;
    if (target.ratio)
        text += "<= " + Written("%.2f x", *target.ratio);
    if (target.slack > 0)
        text += " + " + Written("%g ", target.slack) + unit.name;
    if (target.below)
        text += (text.empty() ? "< " : ", < ") + Written("%g ", *target.below) + unit.name;
    return text;
}

bool IsMet(const Target& target, Unit unit, double measured, double floor)
{
    if (target.ratio && measured > *target.ratio * floor + target.slack / unit.scale)
        return false;
    return !target.below || measured < *target.below / unit.scale;
}

void PrintLine(const Line& line, const char* verdict)
{
    std::printf("%-42s | %10s | %10s | %10s | %6s | %-18s | %s\n", line.what.c_str(), line.measured.c_str(),
        line.high.c_str(), line.floor.c_str(), line.ratio.c_str(), line.target.c_str(), verdict);
}

}

void Outcomes::Add(
    benchmark::State& state, const std::string& what, const Pair& pair, Unit unit, const Target& target)
{
    const double measured = pair.Measured.Quantile(0.5);
    const double high = pair.Measured.Quantile(0.95);
    const double floor = pair.Floor.Quantile(0.5);
    state.counters["median"] = measured;
    state.counters["p95"] = high;
    state.counters["floor"] = floor;
    state.counters["floor_p95"] = pair.Floor.Quantile(0.95);
    state.counters["ratio"] = measured / floor;
    Lines().push_back({what, Written(measured, unit), Written(high, unit), Written(floor, unit),
        Written("%.2f", measured / floor), Written(target, unit), IsMet(target, unit, measured, floor)});
}

void Outcomes::Fail(benchmark::State& state, const std::string& what, const std::string& why)
{
    state.SkipWithError(why.c_str());
    Lines().push_back({what, "failed", {}, {}, {}, {}, false});
}

bool Outcomes::Print()
{
    std::printf("\n");
    PrintLine({"what", "measured", "95 of 100", "floor", "ratio", "target"}, "ok/over");
    bool allMet = !Lines().empty();
    for (const Line& line : Lines()) {
        PrintLine(line, line.met ? "ok" : "over");
        allMet = allMet && line.met;
    }
    std::fflush(stdout);
    return allMet;
}

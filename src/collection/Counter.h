#pragma once

#include <QStringView>

// What the counters of the society have in common.
namespace Counter {

inline constexpr QStringView AverageFatFormat = u"#######0.0";
inline constexpr double HighestFat = 30.0;
inline constexpr double HighestRate = 60.0;

// Twips of the grids' columns as pixels.
constexpr int Twips(int twips)
{
    return twips / 15;
}

}

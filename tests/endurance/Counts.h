#pragma once

#include <QByteArray>
#include <QRandomGenerator>

#include <iostream>

// How often each trial of endurance is made, and the dice that it is thrown with. The environment can say
// otherwise, to look at one trial again or to have a short run.
namespace Counts {

inline int Of(const char* variable, int full)
{
    bool isNumber = false;
    const int count = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? count : full;
}

// The seed is told with the result, so that a run can be had again.
inline quint32 Seed()
{
    static const auto seed = static_cast<quint32>(
        Of("VETROLAN_SEED", static_cast<int>(QRandomGenerator::global()->bounded(1, 1 << 30))));
    return seed;
}

// The dice of the n-th trial, always the same ones for a seed.
inline QRandomGenerator DiceOf(int n)
{
    const quint32 seeds[] = {Seed(), static_cast<quint32>(n)};
    return QRandomGenerator(seeds, 2);
}

// The one line that tells what was done.
template <class... Pieces> void Tell(const Pieces&... pieces)
{
    (std::cout << ... << pieces) << " (seed " << Seed() << ")" << std::endl;
}

}

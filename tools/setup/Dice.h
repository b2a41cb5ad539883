#pragma once

#include <QtGlobal>

// A random generator of our own, since the library's distributions differ between machines.
class Dice {
public:
    explicit Dice(quint64 seed) : m_state(seed) { }

    // A number from low to high, inclusive.
    int Between(int low, int high)
    {
        m_state = m_state * 6364136223846793005u + 1442695040888963407u;
        const quint64 drawn = m_state >> 33;
        return low + static_cast<int>(drawn % static_cast<quint64>(high - low + 1));
    }

private:
    quint64 m_state;
};

#pragma once

#include "platform/forms/Painting.h"

#include <utility>

// While it lives, a handler that runs for long lets each of its steps be painted, however quick they are.
class EachPainting {
public:
    EachPainting() : m_interval(std::exchange(Painting::Interval(), std::chrono::milliseconds(0))) { }
    ~EachPainting() { Painting::Interval() = m_interval; }
    EachPainting(const EachPainting&) = delete;
    EachPainting& operator=(const EachPainting&) = delete;

private:
    std::chrono::milliseconds m_interval;
};

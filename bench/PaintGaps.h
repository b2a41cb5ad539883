#pragma once

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <chrono>

// The longest time in which nothing was painted while the program was at work. It lives on the program's
// thread.
class PaintGaps final : public QObject {
public:
    PaintGaps() { qApp->installEventFilter(this); }

    // In seconds.
    double Longest() const { return m_longest; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            const Clock::time_point now = Clock::now();
            m_longest = std::max(m_longest, std::chrono::duration<double>(now - m_last).count());
            m_last = now;
        }
        return false;
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point m_last = Clock::now();
    double m_longest = 0;
};

// At least ten paintings a second, in seconds.
inline constexpr double LongestPaintGap = 0.1;

#pragma once

#include <QStringView>

#include <algorithm>
#include <chrono>

// The lines to the devices, and the time that they are given.
namespace MilkDevicesLines {

struct PortDefaults {
    int number = 0;
    QStringView settings;
};

inline constexpr PortDefaults FirstPort{1, u"2400,n,8,1"};
inline constexpr PortDefaults SecondPort{3, u"9600,n,8,1"};

// A wait is given as a count, of which each step stands for this many inner ones. With 12 nanoseconds for an
// inner step the usual count of 170000 is 1.02 seconds: ten times what the longest reply takes at 2400 baud,
// and as long as a clerk still takes for the scale's own slowness.
inline constexpr int InnerSteps = 500;
inline constexpr std::chrono::nanoseconds InnerStep{12};

// Counts were tuned to machines of their time; whatever PortTable says, no silent device holds the counter
// longer than this.
inline constexpr std::chrono::seconds LongestWait{10};

// The count for the devices that state none.
inline constexpr int UsualWaitCount = 170000;

// A count below 1 is no wait.
constexpr std::chrono::microseconds WaitOf(int count)
{
    const auto whole = InnerStep * InnerSteps * static_cast<std::int64_t>(std::max(count, 0));
    return std::min(
        std::chrono::duration_cast<std::chrono::microseconds>(whole), std::chrono::microseconds(LongestWait));
}

// A frame without a line end is over when nothing has come for this long. At 1200 baud a byte takes 8 ms, and
// an adapter holds bytes back for up to 16 ms.
inline constexpr std::chrono::milliseconds FrameSilence{250};

// A reply may be used before all of it was received. Once nothing has come for this long, its rest is over.
inline constexpr std::chrono::milliseconds RestSilence{100};

}

#include "collection/MilkDevicesCombined.h"

#include "collection/MilkDevicesLines.h"
#include "platform/serial/SerialLine.h"

#include <algorithm>

using namespace MilkDevicesLines;

namespace {

constexpr std::int32_t NoReading = -1;

// The first nine digits that stand alone on a line that has ended; the line that was running when the port
// was opened has lost its beginning and is too short.
std::int32_t ReadingOf(const QByteArray& reply)
{
    constexpr qsizetype digits = 9;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    qsizetype start = 0;
    for (qsizetype end = 0; end < reply.size(); ++end) {
        if (reply[end] != '\r' && reply[end] != '\n')
            continue;
        const QByteArray line = reply.mid(start, end - start);
        if (line.size() == digits && std::all_of(line.begin(), line.end(), isDigit))
            return line.toInt();
        start = end + 1;
    }
    return NoReading;
}

}

std::int32_t SerialCombinedReading::ReadDataCom1()
{
    SerialLine line(FirstPort.number, FirstPort.settings.toString());
    const auto isWhole = [](const QByteArray& reply) { return ReadingOf(reply) != NoReading; };
    return ReadingOf(line.Collect(Wait(WaitOf(UsualWaitCount)), isWhole).value_or(QByteArray()));
}

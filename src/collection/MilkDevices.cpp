#include "collection/MilkDevices.h"

#include "collection/MilkDevicesLines.h"
#include "collection/MilkDevicesReplies.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/serial/SerialLine.h"
#include "society/Words.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace MilkDevicesLines;
using namespace MilkDevicesReplies;

namespace {

// How a device is read. The marked frames and the combined reading need no command and no place.
enum class Way { Command, PortTableCommand, PlusFrame, PercentFrame, Combined };

struct Reading {
    QStringView scale;
    Way way = Way::Command;
    QStringView command;
    int start = 0;
    int length = 0;
    int waitCount = 0;
};

constexpr std::array LitersReadings{
    Reading{u"DILIGENT", Way::Command, u"w1", 2, 7, 170000},
    Reading{u"UDFREAD", Way::PortTableCommand, {}, 6, 5, 0},
    Reading{u"Micro-Tech", Way::Command, u"W1", 6, 4, 140000},
    Reading{u"ELECTKAPIL", Way::Command, u"W", 6, 5, 170000},
    Reading{u"ELECTRO", Way::Command, u"W", 6, 5, 170000},
    Reading{u"MCS", Way::Combined, {}, 0, 0, 0},
    Reading{u"ACE CORP", Way::PlusFrame, {}, 0, 0, 0},
};

// In this order; "UDFREAD" reads the litres again before it reads the fat.
constexpr std::array FatReadings{
    Reading{u"DILIGENT", Way::Command, u"W", 15, 4, 170000},
    Reading{u"Micro-Tech", Way::PercentFrame, {}, 0, 0, 0},
    Reading{u"ELECTKAPIL", Way::PercentFrame, {}, 0, 0, 0},
    Reading{u"UDFREAD", Way::PortTableCommand, {}, 6, 5, 0},
    Reading{u"ELECTRO", Way::Command, u"W", 15, 4, 170000},
    Reading{u"UDFREAD", Way::Command, u"W", 15, 4, 170000},
    Reading{u"MCS", Way::Combined, {}, 0, 0, 0},
    Reading{u"ACE CORP", Way::PlusFrame, {}, 0, 0, 0},
    Reading{u"NO", Way::Command, u"W", 15, 4, 170000},
};

// A count or a port number of the row. A number too large for an int is cut down to the largest.
int WholeOf(const FieldValue& value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value.Number(), lowest, highest));
}

}

MilkDevices::MilkDevices() : MilkDevices(std::make_unique<SerialCombinedReading>()) { }

MilkDevices::MilkDevices(std::unique_ptr<CombinedReading> combined)
    : m_combined(std::move(combined))
    , MSComm1{FirstPort.number, FirstPort.settings.toString()}
    , MSComm2{SecondPort.number, SecondPort.settings.toString()}
{
}

bool MilkDevices::ReadPortTable()
{
    const Recordset row(gCn, QStringLiteral("SELECT * FROM PortTable"));
    m_row = {};
    if (row.Eof())
        return false;
    m_row.LComPortNo = WholeOf(row[u"LComPortNo"]);
    m_row.LSetting = row[u"LSetting"].Text();
    m_row.LReceiverCommand = row[u"LReceiverCommand"].Text();
    m_row.LTareCommand = row[u"LTareCommand"].Text();
    m_row.LCounter = WholeOf(row[u"LCounter"]);
    m_row.FComPortNo = WholeOf(row[u"FComPortNo"]);
    m_row.FSetting = row[u"FSetting"].Text();
    return true;
}

std::optional<QString> MilkDevices::ReadLiters(QStringView mcsFormat)
{
    std::optional<QString> liters;
    for (const Reading& reading : LitersReadings) {
        if (gAppState.gWeighScale != reading.scale)
            continue;
        switch (reading.way) {
        case Way::Command:
            liters = ReadScaleCommand(
                reading.command.toString(), reading.start, reading.length, reading.waitCount);
            break;
        case Way::PortTableCommand:
            liters = ReadFromPortTable(reading.start, reading.length);
            break;
        case Way::PlusFrame:
            liters = ReadAceCorp();
            break;
        case Way::Combined:
            liters = LitersOfReading(m_combined->ReadDataCom1(), mcsFormat);
            break;
        case Way::PercentFrame:
            break;
        }
    }
    return liters;
}

MilkDevices::Fields MilkDevices::ReadFat()
{
    Fields fields;
    for (const Reading& reading : FatReadings) {
        if (gAppState.gWeighScale != reading.scale)
            continue;
        switch (reading.way) {
        case Way::Command:
            fields.fat = ReadScaleCommand(
                reading.command.toString(), reading.start, reading.length, reading.waitCount);
            break;
        case Way::PercentFrame:
            fields.fat = ReadFatPercent();
            break;
        case Way::Combined:
            fields.fat = FatOfReading(m_combined->ReadDataCom1());
            break;
        case Way::PortTableCommand:
            fields.liters = ReadFromPortTable(reading.start, reading.length);
            break;
        case Way::PlusFrame:
            fields.liters = ReadAceCorp();
            break;
        }
    }
    return fields;
}

std::optional<QString> MilkDevices::RepeatFat()
{
    return ReadScaleCommand(QStringLiteral("W"), 15, 4, 170000);
}

void MilkDevices::SendTareToScale()
{
    SerialLine line(MSComm1.number, MSComm1.settings);
    for (const QString& command : {QStringLiteral("t"), QStringLiteral("z"), QStringLiteral("T"),
             QStringLiteral("Z"), m_row.LTareCommand})
        line.Write(command.toLatin1());
}

std::optional<QString> MilkDevices::ReadScaleCommand(
    const QString& command, int start, int length, int waitCount)
{
    SerialLine line(MSComm1.number, MSComm1.settings);
    const std::chrono::microseconds whole = WaitOf(waitCount);
    if (SerialPorts::Current().Now() < m_restUntil) // the rest is no answer to the next question
        line.Drain(Wait(whole / 2), std::min<std::chrono::microseconds>(RestSilence, whole / 4));
    line.Write(command.toLatin1());
    const auto holdsPiece = [=](const QByteArray& reply) { return reply.size() >= start - 1 + length; };
    const std::optional<QByteArray> reply = line.Collect(Wait(whole), holdsPiece);
    if (!reply)
        return {};
    if (holdsPiece(*reply))
        m_restUntil = SerialPorts::Current().Now() + WaitOf(UsualWaitCount);
    return ScaleValue(*reply, start, length);
}

// The port stays set: the tare and the fat of this device go there too.
std::optional<QString> MilkDevices::ReadFromPortTable(int start, int length)
{
    MSComm1.number = m_row.LComPortNo;
    return ReadScaleCommand(m_row.LReceiverCommand, start, length, m_row.LCounter);
}

std::optional<QString> MilkDevices::ReadAceCorp()
{
    MSComm2 = {m_row.LComPortNo, m_row.LSetting};
    const std::optional<double> number = ReadFrame('+');
    if (!number)
        return {};
    return LitersOfFrame(*number);
}

std::optional<QString> MilkDevices::ReadFatPercent()
{
    MSComm2 = {m_row.FComPortNo, m_row.FSetting};
    const std::optional<double> number = ReadFrame('%');
    if (!number)
        return {};
    return FatOfFrame(*number);
}

// The number of a device that sends by itself. Fewer than ten characters without the mark are the end of a
// frame that had begun before the port was opened: they are thrown away, and the next frame is read. Ten or
// more end the reading; without the mark they count only if all behind the first is a number. A frame without
// a line end is whole only after a silence, which may last longer than the wait.
std::optional<double> MilkDevices::ReadFrame(char mark)
{
    constexpr qsizetype longUnmarked = 10;
    constexpr qsizetype longestFrame = 64;
    SerialLine line(MSComm2.number, MSComm2.settings);
    const Wait wait(WaitOf(UsualWaitCount));
    const Wait withSilence(WaitOf(UsualWaitCount) + FrameSilence);
    QByteArray reply;
    while (!reply.startsWith(mark) && reply.size() < longUnmarked) {
        if (wait.IsOver())
            return {};
        const std::optional<QByteArray> next = line.Next(wait.Left());
        if (!next)
            return {};
        reply = *next;
    }
    while (reply.startsWith(mark) && !HoldsFrame(reply, mark)) {
        const auto left = FrameValue(reply, mark) ? withSilence.Left() : wait.Left();
        const std::optional<QByteArray> next =
            line.Next(std::min<std::chrono::microseconds>(FrameSilence, left));
        const bool isStillComing = next && next->isEmpty() && left < FrameSilence;
        if (!next || isStillComing || reply.size() > longestFrame)
            return {};
        if (next->isEmpty())
            break;
        reply += *next;
    }
    return FrameValue(reply, mark);
}

bool DeviceSwitch::IsOn(QStringView setting)
{
    return setting == Word::Yes;
}

QString DeviceSwitch::Caption(QStringView setting)
{
    return IsOn(setting) ? QStringLiteral("sau$") : QStringLiteral("baMd");
}

QString DeviceSwitch::SettingAfterClick(QStringView caption)
{
    return caption == u"sau$" ? Word::No.toString() : Word::Yes.toString();
}

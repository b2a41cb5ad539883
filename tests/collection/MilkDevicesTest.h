#pragma once

#include "collection/MilkDevices.h"
#include "platform/database/Sql.h"
#include "tests/support/FakeSerialPort.h"
#include "tests/support/SocietyTest.h"

using namespace std::chrono_literals;

inline constexpr QStringView ThreeDecimals = u"#00.000";

inline QString Latin(const char* text)
{
    return QString::fromLatin1(text);
}

// A text to be written, in the form that a test can print: "-" where the field stays as it is.
inline std::string Written(const std::optional<QString>& text)
{
    return text.value_or("-").toStdString();
}

// A counter's devices on scripted ports, with the row of PortTable that the test wants.
class MilkDevicesTest : public SocietyTest {
protected:
    using Step = FakeSerialPorts::Step;

    MilkDevicesTest() { PortRow(4, "1200,n,8,1", "RD", "TR", 100000, 5, "4800,e,7,1"); }

    void PortRow(int lPort, const char* lSetting, const char* receiver, const char* tare, qint64 counter,
        int fPort, const char* fSetting)
    {
        Run("delete * from PortTable");
        Run(Sql(
            u"insert into PortTable(LComPortNo,LSetting,LReceiverCommand,LTareCommand,LCounter,FComPortNo,"
            u"FSetting) values(",
            lPort, u",'", Latin(lSetting), u"','", Latin(receiver), u"','", Latin(tare), u"',", counter, u",",
            fPort, u",'", Latin(fSetting), u"')"));
        EXPECT_TRUE(Devices.ReadPortTable());
    }

    void Scale(const char* name) { gAppState.gWeighScale = Latin(name); }

    // What the device of the name writes, with one reply to one command.
    std::string Liters(const char* scale, const char* command, const QByteArray& reply)
    {
        Scale(scale);
        Ports.Replies = {{command, {{reply, 5ms}}}};
        return Written(Devices.ReadLiters(ThreeDecimals));
    }
    MilkDevices::Fields Fat(const char* scale, const char* command, const QByteArray& reply)
    {
        Scale(scale);
        Ports.Replies = {{command, {{reply, 5ms}}}};
        return Devices.ReadFat();
    }

    // How long a reading of the scripted ports takes.
    std::chrono::microseconds TimeOf(const std::function<void()>& reading)
    {
        const auto start = Ports.Now();
        reading();
        return Ports.Now() - start;
    }

    FakeSerialPorts Ports;
    MilkDevices Devices;
};

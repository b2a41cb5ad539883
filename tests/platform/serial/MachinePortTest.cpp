#include "platform/serial/PortDevice.h"
#include "platform/serial/SerialLine.h"
#include "tools/devices/DeviceSimulator.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace std::chrono_literals;
using Manner = DeviceSimulator::Manner;

namespace {

const QString Settings = "2400,n,8,1";

// The driver of the machine against a device on a pseudo-terminal, linked as the first port.
class MachinePortTest : public testing::Test {
protected:
    MachinePortTest() { SetPortLinksFolder(m_links.path()); }
    ~MachinePortTest() override { SetPortLinksFolder({}); }

    QString Link(const char* name) const { return m_links.filePath(QLatin1String(name)); }

    std::unique_ptr<DeviceSimulator> Play(const char* kind, Manner manner)
    {
        DevicePlay::Measure measure;
        auto device = std::make_unique<DeviceSimulator>(
            *DevicePlay::Of(QString::fromLatin1(kind), measure), manner, 2ms);
        EXPECT_FALSE(device->Device().isEmpty());
        QFile::remove(Link("COM1"));
        EXPECT_TRUE(QFile::link(device->Device(), Link("COM1")));
        return device;
    }

    static std::optional<QByteArray> Ask(std::chrono::microseconds wait = 5s)
    {
        SerialLine line(1, Settings);
        line.Write("W");
        return line.Collect(Wait(wait), [](const QByteArray& reply) { return reply.endsWith('\n'); });
    }

private:
    QTemporaryDir m_links;
};

const QByteArray Whole = "ST,GS12.50,FT, 4.2\r\n";

}

TEST_F(MachinePortTest, ReadsAPromptReply)
{
    const auto device = Play("ELECTRO", Manner::Prompt);
    EXPECT_EQ(Ask(), Whole);
    EXPECT_EQ(device->Received(), QByteArray("W"));
}

TEST_F(MachinePortTest, ReadsAgainAfterItWasClosed)
{
    const auto device = Play("ELECTRO", Manner::Prompt);
    for (int time = 0; time < 5; ++time)
        EXPECT_EQ(Ask(), Whole);
}

TEST_F(MachinePortTest, ReadsAReplyInPieces)
{
    const auto device = Play("ELECTRO", Manner::Pieces);
    EXPECT_EQ(Ask(), Whole);
}

TEST_F(MachinePortTest, ReadsASlowReply)
{
    const auto device = Play("ELECTRO", Manner::Slow);
    EXPECT_EQ(Ask(), Whole);
}

TEST_F(MachinePortTest, ReadsNoiseAsItIs)
{
    const auto device = Play("ELECTRO", Manner::Noisy);
    QByteArray noisy = Whole;
    for (qsizetype at = 2; at < noisy.size(); at += 3)
        noisy[at] = static_cast<char>(static_cast<unsigned char>(noisy[at]) | 0x80U);
    SerialLine line(1, Settings);
    line.Write("W");
    const auto all = [&](const QByteArray& reply) { return reply.size() == noisy.size(); };
    EXPECT_EQ(line.Collect(Wait(5s), all), noisy);
}

TEST_F(MachinePortTest, HearsNothingFromASilentDevice)
{
    const auto device = Play("ELECTRO", Manner::Silent);
    EXPECT_EQ(Ask(20ms), QByteArray());
    EXPECT_TRUE(device->WaitUntilReceived("W", 5s));
}

TEST_F(MachinePortTest, TellsThatTheDeviceHasGoneInMidReply)
{
    const auto device = Play("ELECTRO", Manner::Unplugged);
    const auto start = SerialPorts::Current().Now();
    EXPECT_FALSE(Ask(60s));
    EXPECT_LT(SerialPorts::Current().Now() - start, 30s);
}

TEST_F(MachinePortTest, SendsAllBeforeItCloses)
{
    const auto device = Play("ELECTRO", Manner::Silent);
    {
        SerialLine line(1, Settings);
        for (const char* command : {"t", "z", "T", "Z", "0"})
            line.Write(command);
    }
    EXPECT_TRUE(device->WaitUntilReceived("tzTZ0", 5s));
}

TEST_F(MachinePortTest, TakesAndGivesNothingOnceItIsClosed)
{
    const auto device = Play("ELECTRO", Manner::Prompt);
    const auto first = SerialPorts::Current().Make();
    ASSERT_TRUE(first->Open(1, Settings));
    EXPECT_TRUE(first->Write("W"));
    first->Close();
    EXPECT_FALSE(first->Write("W"));
    EXPECT_EQ(first->WaitForInput(1s), SerialPort::Line::Broken);
    EXPECT_FALSE(first->ReadInput());
}

TEST_F(MachinePortTest, IsNotOpenedWhereThereIsNoneOrTheSettingsCannotBeRead)
{
    const auto port = SerialPorts::Current().Make();
    EXPECT_FALSE(port->Open(0, Settings));
    EXPECT_FALSE(port->SetDtr(true));
    ASSERT_TRUE(QFile::link("/dev/there-is-no-such-adapter", Link("COM7")));
    EXPECT_FALSE(port->Open(7, Settings));
    const auto device = Play("ELECTRO", Manner::Prompt);
    EXPECT_FALSE(port->Open(1, "2400"));
    EXPECT_TRUE(port->Open(1, Settings));
}

TEST_F(MachinePortTest, HearsADeviceThatTalksByItselfOnlyWhileItIsOpen)
{
    const auto device = Play("PERCENT", Manner::Prompt);
    for (int time = 0; time < 3; ++time) {
        SerialLine line(1, Settings);
        const auto frame = [](const QByteArray& reply) { return reply.endsWith('\n'); };
        EXPECT_EQ(line.Collect(Wait(5s), frame).value_or(QByteArray()).left(7), QByteArray("%0420\r\n"));
    }
}

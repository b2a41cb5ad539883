#include "platform/serial/SerialLine.h"

#include "tests/support/FakeSerialPort.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using Step = FakeSerialPorts::Step;

namespace {

const QString Settings = "2400,n,8,1";

class SerialLineTest : public testing::Test {
protected:
    // Asks "W" and collects until the reply has so many bytes.
    std::optional<QByteArray> Ask(qsizetype enough, std::chrono::microseconds wait = 1s)
    {
        SerialLine line(1, Settings);
        line.Write("W");
        return line.Collect(Wait(wait), [=](const QByteArray& reply) { return reply.size() >= enough; });
    }

    FakeSerialPorts Ports;
};

}

TEST_F(SerialLineTest, OpensSetsDtrWritesReadsAndCloses)
{
    Ports.Replies["W"] = {{"12345"}};
    EXPECT_EQ(Ask(5), QByteArray("12345"));
    EXPECT_EQ(Ports.Log, (QStringList{"open 1 2400,n,8,1", "dtr", "write W", "close"}));
}

TEST_F(SerialLineTest, ReturnsAsSoonAsTheReplyIsWhole)
{
    Ports.Replies["W"] = {{"12", 20ms}, {"345", 30ms}, {"678", 10ms}};
    const auto start = Ports.Now();
    EXPECT_EQ(Ask(5), QByteArray("12345"));
    EXPECT_EQ(Ports.Now() - start, 50ms);
}

TEST_F(SerialLineTest, GivesWhatHasComeWhenTheWaitIsOver)
{
    Ports.Replies["W"] = {{"12", 20ms}, {"345", 2s}};
    const auto start = Ports.Now();
    EXPECT_EQ(Ask(5), QByteArray("12"));
    EXPECT_EQ(Ports.Now() - start, 1s);
}

TEST_F(SerialLineTest, AWaitOfNothingReadsWhatIsThere)
{
    Ports.Replies[""] = {{"abc"}};
    EXPECT_EQ(Ask(5, 0s), QByteArray("abc"));
}

TEST_F(SerialLineTest, DoesNotWaitForAPortThatIsNotThere)
{
    Ports.Ports = 0;
    const auto start = Ports.Now();
    EXPECT_FALSE(Ask(1));
    EXPECT_EQ(Ports.Now(), start);
    EXPECT_EQ(Ports.Log, QStringList{"open 1 2400,n,8,1"});
}

TEST_F(SerialLineTest, GoesOnWithoutADtrSignal)
{
    Ports.Fails = Step::Dtr;
    Ports.Replies["W"] = {{"12345"}};
    EXPECT_EQ(Ask(5), QByteArray("12345"));
}

TEST_F(SerialLineTest, ReadsADeviceThatTalksByItselfThoughNothingCanBeSent)
{
    Ports.Fails = Step::Write;
    Ports.Replies[""] = {{"12345", 5ms}};
    EXPECT_EQ(Ask(5), QByteArray("12345"));
}

TEST_F(SerialLineTest, GivesNothingFromALineThatBreaks)
{
    Ports.Replies["W"] = {{"123"}};
    Ports.UnplugsAfterReply = true;
    const auto start = Ports.Now();
    EXPECT_FALSE(Ask(5));
    EXPECT_EQ(Ports.Now(), start);
    EXPECT_EQ(Ports.OpenNow, 0);
}

TEST_F(SerialLineTest, GivesNothingWhereReadingFails)
{
    Ports.Replies["W"] = {{"12345"}};
    Ports.Fails = Step::Read;
    EXPECT_FALSE(Ask(5));
    EXPECT_EQ(Ports.OpenNow, 0);
}

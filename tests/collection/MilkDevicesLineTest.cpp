#include "collection/MilkDevices.h"
#include "platform/shell/AppFolder.h"
#include "tests/collection/MilkDevicesTest.h"
#include "tools/devices/DeviceSimulator.h"

#include <QFile>

using Manner = DeviceSimulator::Manner;

namespace {

// A counter's devices on the ports of this machine, each played on a pseudo-terminal.
class MilkDevicesLineTest : public SocietyTest {
protected:
    std::unique_ptr<DeviceSimulator> Play(const char* kind, int port, Manner manner = Manner::Prompt)
    {
        DevicePlay::Measure measure;
        measure.receiverCommand = "RD";
        auto device = std::make_unique<DeviceSimulator>(*DevicePlay::Of(Latin(kind), measure), manner, 2ms);
        const QString link = LocalAppFile(QStringLiteral("COM%1").arg(port));
        QFile::remove(link);
        EXPECT_TRUE(QFile::link(device->Device(), link));
        return device;
    }

    // Litres on port 1 and fat on port 2, but "UDFREAD" on port 4; short waits.
    void Use(const char* scale, int lPort)
    {
        gAppState.gWeighScale = Latin(scale);
        Run("delete * from PortTable");
        Run(Sql(
            u"insert into PortTable(LComPortNo,LSetting,LReceiverCommand,LTareCommand,LCounter,FComPortNo,"
            u"FSetting) values(",
            lPort, u",'2400,n,8,1','RD','TR',170000,2,'9600,n,8,1')"));
        EXPECT_TRUE(Devices.ReadPortTable());
    }

    std::string Liters() { return Written(Devices.ReadLiters(ThreeDecimals)); }
    std::string Fat() { return Written(Devices.ReadFat().fat); }

    MilkDevices Devices;
};

// Each named device, with the "%" tester beside it, in each manner of behaving.
class EachDeviceLineTest : public MilkDevicesLineTest,
                           public testing::WithParamInterface<std::tuple<const char*, const char*>> {
protected:
    static const char* Kind() { return std::get<0>(GetParam()); }
    static bool Is(const char* kind) { return Kind() == std::string_view(kind); }
    static Manner How() { return *DeviceSimulator::MannerOf(Latin(std::get<1>(GetParam()))); }
    static int Port() { return Is("UDFREAD") || Is("ACE CORP") ? 4 : 1; }

    // Whether figures come out of it at all.
    static bool Speaks()
    {
        return How() != Manner::Noisy && How() != Manner::Silent && How() != Manner::Unplugged;
    }
    static std::string LitersThatShow()
    {
        if (!Speaks() || Is("NO"))
            return "-";
        return Is("MCS") ? "12.500" : "12.5";
    }
    static std::string FatThatShows() { return !Speaks() || Is("ACE CORP") ? "-" : "4.2"; }
};

// Blanks and hyphens can't stand in the name of a test.
std::string LineName(const testing::TestParamInfo<EachDeviceLineTest::ParamType>& line)
{
    QString name = Latin(std::get<0>(line.param)) + u'_' + Latin(std::get<1>(line.param));
    return name.remove(u' ').remove(u'-').toStdString();
}

INSTANTIATE_TEST_SUITE_P(OnALine, EachDeviceLineTest,
    testing::Combine(testing::Values("DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "MCS",
                         "ACE CORP", "NO"),
        testing::Values("prompt", "slow", "pieces", "noisy", "silent", "unplugged")),
    LineName);

}

TEST_P(EachDeviceLineTest, FillsTheLitresOrLeavesThem)
{
    Use(Kind(), Port());
    const auto scale = Play(Kind(), Port(), How());
    EXPECT_EQ(Liters(), LitersThatShow());
}

TEST_P(EachDeviceLineTest, FillsTheFatOrLeavesIt)
{
    Use(Kind(), Port());
    const auto scale = Play(Kind(), Port(), How());
    const auto tester = Play("PERCENT", 2, How());
    EXPECT_EQ(Fat(), FatThatShows());
}

TEST_F(MilkDevicesLineTest, UdfreadIsAskedForTheLitresAgainBeforeTheFat)
{
    Use("UDFREAD", 4);
    const auto device = Play("UDFREAD", 4);
    EXPECT_EQ(Liters(), "12.5");
    EXPECT_EQ(Fat(), "4.2");
    EXPECT_EQ(device->Received(), QByteArray("RDRDW"));
}

TEST_F(MilkDevicesLineTest, TheRepeatedExchangeIsAnsweredByEachThatIsAsked)
{
    for (const char* scale : {"DILIGENT", "ELECTRO", "NO"}) {
        Use(scale, 1);
        const auto device = Play(scale, 1);
        EXPECT_EQ(Written(Devices.RepeatFat()), "4.2") << scale;
    }
}

TEST_F(MilkDevicesLineTest, TheTareReachesTheScale)
{
    Use("ELECTRO", 1);
    const auto device = Play("ELECTRO", 1, Manner::Silent);
    Devices.SendTareToScale();
    EXPECT_TRUE(device->WaitUntilReceived("tzTZTR", 5s));
}

TEST_F(MilkDevicesLineTest, TheRestOfALitresReplyIsNoFat)
{
    Use("ELECTRO", 1);
    const auto device = Play("ELECTRO", 1, Manner::Pieces);
    EXPECT_EQ(Liters(), "12.5");
    EXPECT_EQ(Fat(), "4.2");
}

#include "AppFolder.h"
#include "DeviceSimulator.h"
#include "MilkDevices.h"
#include "MilkDevicesTest.h"

#include <QFile>

using Manner = DeviceSimulator::Manner;

namespace {

// A counter's devices on the ports of this machine, each played on a pseudo-terminal.
class MilkDevicesLine : public SocietyTest {
protected:
    std::unique_ptr<DeviceSimulator> Play(const char* kind, int port, Manner manner = Manner::Prompt)
    {
        DevicePlay::Measure measure;
        measure.receiverCommand = "RD";
        auto device = std::make_unique<DeviceSimulator>(*DevicePlay::Of(Latin(kind), measure), manner, 2ms);
        const QString link = LocalAppFile(Sql(u"COM", port));
        QFile::remove(link);
        EXPECT_TRUE(QFile::link(device->Device(), link));
        return device;
    }

    // Litres on port 1 and fat on port 2, but "UDFREAD" on port 4; short waits.
    void Use(const char* scale, int lPort)
    {
        gAppState.gWeighScale = Latin(scale);
        Run(QStringLiteral("delete * from PortTable"));
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

}

TEST_F(MilkDevicesLine, EachScaleThatAlsoTestsGivesBoth)
{
    for (const char* scale : {"DILIGENT", "ELECTRO"}) {
        Use(scale, 1);
        const auto device = Play(scale, 1);
        EXPECT_EQ(Liters(), "12.5") << scale;
        EXPECT_EQ(Fat(), "4.2") << scale;
        EXPECT_EQ(Written(Devices.RepeatFat()), "4.2") << scale;
    }
}

TEST_F(MilkDevicesLine, UdfreadGivesBothOnItsPort)
{
    Use("UDFREAD", 4);
    const auto device = Play("UDFREAD", 4);
    EXPECT_EQ(Liters(), "12.5");
    EXPECT_EQ(Fat(), "4.2");
    EXPECT_EQ(device->Received(), QByteArray("RDRDW"));
}

TEST_F(MilkDevicesLine, EachScaleWithAPercentTesterBesideItGivesBoth)
{
    for (const char* scale : {"Micro-Tech", "ELECTKAPIL"}) {
        Use(scale, 1);
        const auto device = Play(scale, 1);
        const auto tester = Play("PERCENT", 2);
        EXPECT_EQ(Liters(), "12.5") << scale;
        EXPECT_EQ(Fat(), "4.2") << scale;
    }
}

TEST_F(MilkDevicesLine, McsAndAceCorpTalkByThemselves)
{
    Use("MCS", 1);
    const auto combined = Play("MCS", 1);
    EXPECT_EQ(Liters(), "12.500");
    EXPECT_EQ(Fat(), "4.2");
    Use("ACE CORP", 4);
    const auto scale = Play("ACE CORP", 4);
    EXPECT_EQ(Liters(), "12.5");
    EXPECT_EQ(Fat(), "-");
}

TEST_F(MilkDevicesLine, SlowAndSplitRepliesAreReadWhole)
{
    for (const Manner manner : {Manner::Slow, Manner::Pieces}) {
        Use("ELECTKAPIL", 1);
        const auto scale = Play("ELECTKAPIL", 1, manner);
        const auto tester = Play("PERCENT", 2, manner);
        EXPECT_EQ(Liters(), "12.5");
        EXPECT_EQ(Fat(), "4.2");
    }
}

TEST_F(MilkDevicesLine, NoiseAndABrokenLineLeaveTheFields)
{
    for (const Manner manner : {Manner::Noisy, Manner::Unplugged}) {
        Use("ELECTKAPIL", 1);
        const auto scale = Play("ELECTKAPIL", 1, manner);
        const auto tester = Play("PERCENT", 2, manner);
        EXPECT_EQ(Liters(), "-");
        EXPECT_EQ(Fat(), "-");
    }
}

TEST_F(MilkDevicesLine, TheTareReachesTheScale)
{
    Use("ELECTRO", 1);
    const auto device = Play("ELECTRO", 1, Manner::Silent);
    Devices.SendTareToScale();
    EXPECT_TRUE(device->WaitUntilReceived("tzTZTR", 5s));
}

TEST_F(MilkDevicesLine, TheRestOfALitresReplyIsNoFat)
{
    Use("ELECTRO", 1);
    const auto device = Play("ELECTRO", 1, Manner::Pieces);
    EXPECT_EQ(Liters(), "12.5");
    EXPECT_EQ(Fat(), "4.2");
}

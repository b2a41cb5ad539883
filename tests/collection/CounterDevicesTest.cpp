#include "CounterTest.h"

#include "FakeSerialPort.h"

namespace {

using namespace std::chrono_literals;

// The counter with a scale and a tester on scripted ports.
class CounterDevicesTest : public CounterTest {
protected:
    void Devices(const char* scale, const char* autoLiters, const char* autoFat)
    {
        gAppState.gWeighScale = QString::fromLatin1(scale);
        gAppState.gAutoLiters = QString::fromLatin1(autoLiters);
        gAppState.gAutoFat = QString::fromLatin1(autoFat);
        Set("AutoFat", autoFat);
    }

    void Reply(const QByteArray& command, const QByteArray& reply)
    {
        Ports.Replies.insert(command, {{reply, 1ms}});
    }

    FakeSerialPorts Ports;
};

TEST_F(CounterDevicesTest, WithoutARowOfPortsTheClerkIsToldAndTheCounterOpens)
{
    Run(QStringLiteral("delete * from PortTable"));
    AtTheCounter([this](Clerk& clerk) {
        EXPECT_EQ(TheBox.Shown, Of({"Check port setting"}));
        EXPECT_EQ(Focus(clerk), "maskDate");
    });
    TheBox.Shown.clear();
    On<frmCollectionGate>([this](Clerk&) { EXPECT_EQ(TheBox.Shown, Of({"Check port setting"})); });
}

TEST_F(CounterDevicesTest, TheSwitchesFollowTheSettingAndTurnItForThisRunOnly)
{
    gAppState.gAutoLiters = QStringLiteral("haoya");
    AtTheCounter([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "sau$");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        clerk.Press(QStringLiteral("cmdAutoLiter"));
        clerk.Press(QStringLiteral("cmdAutoFat"));
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "sau$");
    });
    EXPECT_EQ(gAppState.gAutoLiters, QStringLiteral("naahI"));
    EXPECT_EQ(gAppState.gAutoFat, QStringLiteral("haoya"));
    EXPECT_EQ(Rows(QStringLiteral("select AutoLiters,AutoFat from AutoSettings")), Of({"naahI|naahI"}));
}

TEST_F(CounterDevicesTest, TheScaleFillsTheLitresAndTheClerkGoesOnWithoutAKey)
{
    Devices("ELECTRO", "haoya", "naahI");
    Reply("W", "ST,+ 05.25 kg");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "5.250");
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_F(CounterDevicesTest, AScaleThatSaysNothingLeavesAZeroToTypeOver)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
        Type(clerk, "4{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "4.000");
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_F(CounterDevicesTest, WithoutAMemberTheScaleIsLeftAlone)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheMorning([this](Clerk& clerk) {
        clerk.Press(QStringLiteral("txtLiters"));
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
        EXPECT_TRUE(Ports.Log.isEmpty());
    });
}

TEST_F(CounterDevicesTest, TheTesterFillsTheFat)
{
    Devices("NO", "naahI", "haoya");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
    });
}

TEST_F(CounterDevicesTest, WithNoScaleOnlyTheFatIsRead)
{
    Devices("NO", "haoya", "haoya");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
        EXPECT_TRUE(Ports.TakeLog().isEmpty());
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "2.000");
        EXPECT_EQ(Ports.TakeLog(), Of({"open 1 2400,n,8,1", "dtr", "write W", "close"}));
    });
}

TEST_F(CounterDevicesTest, OneKeyReadsASilentTesterOnce)
{
    Devices("NO", "naahI", "haoya");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Ports.TakeLog().count(QStringLiteral("write W")), 1) << "on entering the fat";
        for (int time = 0; time < 3; ++time) {
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat");
            EXPECT_EQ(Ports.TakeLog().count(QStringLiteral("write W")), 1) << "the repeated exchange alone";
        }
    });
}

TEST_F(CounterDevicesTest, WithoutAFatTheFieldIsNotLeftUntilTheTesterGivesOneOrIsTurnedOff)
{
    Devices("NO", "naahI", "haoya");
    InTheMorning([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        clerk.Press(QStringLiteral("cmdAutoFat"));
        EXPECT_EQ(Focus(clerk), "txtFat");
        Reply("W", "ST,GS,00000000 4.5%");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_F(CounterDevicesTest, AFatTypedBesideASilentTesterPasses)
{
    Devices("NO", "naahI", "haoya");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_F(CounterDevicesTest, UdfreadReadsTheLitresASecondTimeAtTheFat)
{
    Run(QStringLiteral("update PortTable set LReceiverCommand='RD'"));
    Devices("UDFREAD", "naahI", "haoya");
    Reply("RD", "12345 06.5");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "6.5");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

TEST_F(CounterDevicesTest, AceCorpNeverFillsTheFat)
{
    Devices("ACE CORP", "naahI", "haoya");
    Reply("", "+0006.5000");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "6.5");
    });
}

TEST_F(CounterDevicesTest, ASaveSendsTheTareByTheSwitchAndNotByTheStoredSetting)
{
    Devices("NO", "haoya", "naahI");
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books().size(), 1);
        EXPECT_TRUE(Ports.TakeLog().contains(QStringLiteral("write z")));
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
    });
    EXPECT_EQ(One(QStringLiteral("select AutoLiters from AutoSettings")), QStringLiteral("naahI"));
}

TEST_F(CounterDevicesTest, WithBothButtonsOffNothingIsSentAndNoTareEither)
{
    Devices("ELECTRO", "haoya", "haoya");
    Set("AutoLiters", "haoya");
    On<frmMilkCollections>([this](Clerk& clerk) {
        clerk.Press(QStringLiteral("cmdAutoLiter"));
        clerk.Press(QStringLiteral("cmdAutoFat"));
        clerk.Press(QStringLiteral("maskDate"));
        Type(clerk, "{ENTER}1{ENTER}");
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_TRUE(Ports.Log.isEmpty());
    });
}

TEST_F(CounterDevicesTest, ADeviceThatIsUnpluggedLosesNoDelivery)
{
    Devices("ELECTRO", "haoya", "haoya");
    Ports.Fails = FakeSerialPorts::Step::Open;
    InTheMorning([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_FALSE(Failure);
}

}

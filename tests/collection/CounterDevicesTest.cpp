#include "tests/collection/EachCounterTest.h"

#include "tests/support/FakeSerialPort.h"

namespace {

using namespace std::chrono_literals;

// The counters with a scale and a tester on scripted ports.
class CounterDevicesTest : public EachCounterTest {
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

    // Plays on the counter as it opens, with the focus on the date.
    void AtThisCounter(const std::function<void(Clerk&)>& script)
    {
        if (IsGate())
            On<frmCollectionGate>(script);
        else
            AtTheCounter(script);
    }

    FakeSerialPorts Ports;
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterDevicesTest, Counters(), CounterName);

TEST_P(CounterDevicesTest, WithoutARowOfPortsTheClerkIsToldAndTheCounterOpens)
{
    Run("delete * from PortTable");
    AtThisCounter([this](Clerk& clerk) {
        EXPECT_EQ(TheBox.Shown, Of({"Check port setting"}));
        EXPECT_EQ(Focus(clerk), "maskDate");
    });
}

TEST_P(CounterDevicesTest, TheSwitchesFollowTheSettingAndTurnItForThisRunOnly)
{
    gAppState.gAutoLiters = "haoya";
    AtThisCounter([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "sau$");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        clerk.Press("cmdAutoLiter");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "sau$");
    });
    EXPECT_EQ(gAppState.gAutoLiters, "naahI");
    EXPECT_EQ(gAppState.gAutoFat, "haoya");
    EXPECT_EQ(Rows("select AutoLiters,AutoFat from AutoSettings"), Of({"naahI|naahI"}));
}

TEST_P(CounterDevicesTest, TheScaleFillsTheLitresAndTheClerkGoesOnWithoutAKey)
{
    Devices("ELECTRO", "haoya", "naahI");
    Reply("W", "ST,+ 05.25 kg");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("5.25"));
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_P(CounterDevicesTest, AScaleThatSaysNothingLeavesAZeroToTypeOver)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
        Type(clerk, "4{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("4.00"));
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

TEST_P(CounterDevicesTest, WithoutAMemberTheScaleIsLeftAlone)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheShift([this](Clerk& clerk) {
        clerk.Press("txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
        EXPECT_TRUE(Ports.Log.isEmpty());
    });
}

TEST_P(CounterDevicesTest, TheTesterFillsTheFat)
{
    Devices("NO", "naahI", "haoya");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
    });
}

TEST_P(CounterDevicesTest, WithNoScaleOnlyTheFatIsRead)
{
    Devices("NO", "haoya", "haoya");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "0");
        EXPECT_TRUE(Ports.TakeLog().isEmpty());
        Type(clerk, "2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("2.00"));
        EXPECT_EQ(Ports.TakeLog(), Of({"open 1 2400,n,8,1", "dtr", "write W", "close"}));
    });
}

TEST_P(CounterDevicesTest, ARefusedFatRepeatsTheCommonExchangeAndThenTheFieldsOwnReading)
{
    Run("update PortTable set LReceiverCommand='RD'");
    const QStringList common = Of({"open 1 2400,n,8,1", "dtr", "write W", "close"});
    const QStringList listened = Of({"open 2 9600,n,8,1", "dtr", "close"});
    const QStringList litres = Of({"open 1 2400,n,8,1", "dtr", "write RD", "close"});
    for (const auto& [scale, own] :
        std::initializer_list<std::pair<const char*, QStringList>>{{"DILIGENT", common}, {"ELECTRO", common},
            {"NO", common}, {"Micro-Tech", listened}, {"ELECTKAPIL", listened}, {"UDFREAD", litres + common},
            {"MCS", Of({"open 1 2400,n,8,1", "dtr", "close"})},
            {"ACE CORP", Of({"open 1 2400,n,8,1", "dtr", "close"})}}) {
        Devices(scale, "naahI", "haoya");
        InTheShift([&](Clerk& clerk) {
            Ports.TakeLog();
            Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
            EXPECT_EQ(Ports.TakeLog(), own) << "on entering the fat: " << scale;
            for (int time = 0; time < 3; ++time) {
                Type(clerk, "{ENTER}");
                EXPECT_EQ(Focus(clerk), "txtFat");
                EXPECT_EQ(Ports.TakeLog(), common + own) << "on leaving it with nothing: " << scale;
            }
        });
    }
}

TEST_P(CounterDevicesTest, ATesterThatWasSilentOnceIsListenedToOnItsPortAgain)
{
    for (const char* scale : {"Micro-Tech", "ELECTKAPIL"}) {
        Devices(scale, "naahI", "haoya");
        Ports.Replies.clear();
        InTheShift([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}2{ENTER}{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat");
            EXPECT_EQ(Reads(clerk, "txtFat"), "0") << scale;
            Reply("", "%0450\r\n");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtFat");
            EXPECT_EQ(Reads(clerk, "txtFat"), "4.5") << scale;
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "txtRate") << scale;
            EXPECT_EQ(Reads(clerk, "txtRate"), "35.00") << scale;
        });
    }
}

TEST_P(CounterDevicesTest, TheColumnOfTheCommonExchangeIsNoFatOfTheDeviceThatDoesBoth)
{
    Devices("MCS", "naahI", "haoya");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0");
        Reply("", "012345045\r\n012345045\r\n"); // 3450 stands where others have the fat
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_P(CounterDevicesTest, AFatAboveThirtyGivesWayToWhatTheTesterSaysThen)
{
    Devices("MCS", "naahI", "haoya");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        Reply("W", "xxxxxxxxxxxxxx3450");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFat"), "3450");
        Reply("", "012345045\r\n");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

TEST_P(CounterDevicesTest, WithoutAFatTheFieldIsNotLeftUntilTheTesterGivesOne)
{
    Devices("NO", "naahI", "haoya");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Reply("W", "ST,GS,00000000 4.5%");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_P(CounterDevicesTest, WithoutAFatTheFieldIsNotLeftUntilTheTesterIsSwitchedOff)
{
    Devices("NO", "naahI", "haoya");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Ports.TakeLog();
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        clerk.Press("txtFat");
        Type(clerk, "4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
        EXPECT_TRUE(Ports.Log.isEmpty());
    });
}

TEST_P(CounterDevicesTest, TheScaleCanBeSwitchedOffWhileTheLitresWaitForIt)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        clerk.Press("cmdAutoLiter");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd");
        clerk.Press("txtLiters");
        Type(clerk, "4{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
    });
}

// A switch is pressed from a field that doesn't wait for its device

TEST_P(CounterDevicesTest, ATypedNumberShowsItsDeliveryBeforeItCanBeOverwritten)
{
    AddMorningDelivery(3);
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "3");
        clerk.Press("cmdAutoLiter");
        clerk.Press("cmdAutoLiter");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd") << "on, and off again";
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "3");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("5.00"));
        clerk.Press("txtCollectionNo");
        Type(clerk, "9");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "4") << "there is no such row";
        clerk.Press("txtMemberNo");
        Type(clerk, "2{ENTER}2{ENTER}8{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Books(), Of({"3|1|rama|gaaya|5|4.5|35|175", "4|2|saIta|mhOsa|2|8|49|98"}));
    });
}

TEST_P(CounterDevicesTest, AFieldThatWaitsForNoDeviceIsAskedBeforeASwitchIsTurned)
{
    for (const auto& [keys, field] :
        std::initializer_list<std::pair<const char*, const char*>>{{"31022026", "maskDate"},
            {"{ENTER}", "txtTime"}, {"{ENTER}1{ENTER}0", "txtCollectionNo"},
            {"{ENTER}1{ENTER}{ENTER}3{ENTER}", "txtAnimal"}, {"{ENTER}1{ENTER}{ENTER}1{ENTER}0", "txtLiters"},
            {"{ENTER}1{ENTER}{ENTER}1{ENTER}2{ENTER}0", "txtFat"},
            {"{ENTER}1{ENTER}{ENTER}1{ENTER}2{ENTER}30.1", "txtFat"},
            {"{ENTER}1{ENTER}{ENTER}1{ENTER}2{ENTER}4.5{ENTER}60.01", "txtRate"}})
        for (const char* button : {"cmdAutoLiter", "cmdAutoFat"})
            AtThisCounter([&](Clerk& clerk) {
                Type(clerk, keys);
                ASSERT_EQ(Focus(clerk), field);
                clerk.Press(QString::fromLatin1(button));
                EXPECT_EQ(Focus(clerk), field) << keys;
                EXPECT_EQ(Reads(clerk, button), "baMd") << keys;
            });
}

TEST_P(CounterDevicesTest, AnEmptyNameIsAskedForBeforeASwitchIsTurned)
{
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
    });
}

TEST_P(CounterDevicesTest, LitresTypedBesideASilentScaleAreTakenWhenItIsSwitchedOff)
{
    Devices("ELECTRO", "haoya", "naahI");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}4");
        clerk.Press("cmdAutoLiter");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("4.00"));
    });
}

TEST_P(CounterDevicesTest, AFatTypedBesideASilentTesterIsPricedWhenItIsSwitchedOff)
{
    Devices("NO", "naahI", "haoya");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}4.5");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        EXPECT_EQ(Reads(clerk, "txtRate"), "35.00");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "70.00");
    });
}

TEST_P(CounterDevicesTest, AFatAboveThirtyIsRefusedThoughItsTesterIsToBeSwitchedOff)
{
    Devices("NO", "naahI", "haoya");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}42");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "42.0");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "sau$");
    });
}

TEST_P(CounterDevicesTest, AFieldThatWaitsIsLeftForTheSwitchOfItsOwnDeviceOnly)
{
    Devices("NO", "haoya", "haoya");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "sau$");
        Type(clerk, "2{ENTER}");
        clerk.Press("cmdAutoLiter");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "sau$");
    });
}

TEST_P(CounterDevicesTest, ARowWhoseLitresWereEmptiedForTheSwitchIsNotSavedWithoutLitres)
{
    AddMorningDelivery(1);
    Devices("ACE CORP", "haoya", "naahI");
    Reply("", "+000.0\r\n");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        clerk.Press("cmdAutoLiter");
        EXPECT_EQ(Reads(clerk, "cmdAutoLiter"), "baMd");
        clerk.Press("cmdGo");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
    });
}

TEST_P(CounterDevicesTest, ARowWhoseFatWasEmptiedForTheSwitchIsNotSavedWithoutAFat)
{
    AddMorningDelivery(1);
    Devices("NO", "naahI", "haoya");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "1{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        Type(clerk, "0");
        clerk.Press("cmdAutoFat");
        EXPECT_EQ(Reads(clerk, "cmdAutoFat"), "baMd");
        clerk.Press("cmdGo");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        clerk.Press("txtFat");
        Type(clerk, "8{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_P(CounterDevicesTest, TheDeviceThatDoesBothGivesLitresWithTheDecimalsOfTheCounter)
{
    Devices("MCS", "haoya", "haoya");
    Reply("", "012345042\r\n");
    InTheShift([this](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(
            Rows("select Liters,Fat from MilkCollections"), Of({IsGate() ? "12.35|4.2" : "12.345|4.2"}));
    });
}

TEST_P(CounterDevicesTest, TheDeviceThatDoesBothShowsAnEmptyCanWithTwoLeadingNoughts)
{
    Devices("MCS", "haoya", "naahI");
    Reply("", "000000042\r\n");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtLiters");
        EXPECT_EQ(Reads(clerk, "txtLiters"), Litres("00.00"));
    });
}

TEST_P(CounterDevicesTest, AFatTypedBesideASilentTesterPasses)
{
    Devices("NO", "naahI", "haoya");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}4.5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtRate");
    });
}

TEST_P(CounterDevicesTest, UdfreadReadsTheLitresASecondTimeAtTheFat)
{
    Run("update PortTable set LReceiverCommand='RD'");
    Devices("UDFREAD", "naahI", "haoya");
    Reply("RD", "12345 06.5");
    Reply("W", "ST,GS,00000000 4.5%");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "6.5");
        EXPECT_EQ(Reads(clerk, "txtFat"), "4.5");
    });
}

TEST_P(CounterDevicesTest, AceCorpNeverFillsTheFat)
{
    Devices("ACE CORP", "naahI", "haoya");
    Reply("", "+0006.5000");
    InTheShift([](Clerk& clerk) {
        Type(clerk, "{ENTER}1{ENTER}2{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFat");
        EXPECT_EQ(Reads(clerk, "txtFat"), "0");
        EXPECT_EQ(Reads(clerk, "txtLiters"), "6.5");
    });
}

TEST_P(CounterDevicesTest, ASaveSendsTheTareByTheSwitchAndNotByTheStoredSetting)
{
    Devices("NO", "haoya", "naahI");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books().size(), 1);
        EXPECT_TRUE(Ports.TakeLog().contains("write z"));
        EXPECT_EQ(Reads(clerk, "txtLiters"), "");
    });
    EXPECT_EQ(One("select AutoLiters from AutoSettings"), "naahI");
}

TEST_P(CounterDevicesTest, WithBothButtonsOffNothingIsSentAndNoTareEither)
{
    Devices("ELECTRO", "haoya", "haoya");
    Set("AutoLiters", "haoya");
    AtThisCounter([this](Clerk& clerk) {
        clerk.Press("cmdAutoLiter");
        clerk.Press("cmdAutoFat");
        clerk.Press("maskDate");
        Type(clerk, "{ENTER}1{ENTER}");
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_TRUE(Ports.Log.isEmpty());
    });
}

TEST_P(CounterDevicesTest, ADeviceThatIsUnpluggedLosesNoDelivery)
{
    Devices("ELECTRO", "haoya", "haoya");
    Ports.Fails = FakeSerialPorts::Step::Open;
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "5", "4.5");
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|5|4.5|35|175"}));
        EXPECT_TRUE(TheBox.Shown.isEmpty());
    });
    EXPECT_FALSE(Failure);
}

}

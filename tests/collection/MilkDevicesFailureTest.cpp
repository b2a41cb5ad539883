#include "tests/collection/MilkDevicesTest.h"

#include "collection/MilkDevicesLines.h"

using MilkDevicesLines::WaitOf;

// ---- Time ----

TEST_F(MilkDevicesTest, ACountIsSixMicrosecondsAStep)
{
    EXPECT_EQ(WaitOf(170000), 1020ms);
    EXPECT_EQ(WaitOf(140000), 840ms);
    EXPECT_EQ(WaitOf(1), 6us);
    EXPECT_EQ(WaitOf(0), 0us);
    EXPECT_EQ(WaitOf(-5), 0us);
    EXPECT_EQ(WaitOf(2147483647), 10s);
}

TEST_F(MilkDevicesTest, ASilentDeviceHoldsTheCounterForItsWaitAndNoLonger)
{
    const auto liters = [this](const char* scale) {
        Scale(scale);
        return TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); });
    };
    EXPECT_EQ(liters("DILIGENT"), 1020ms);
    EXPECT_EQ(liters("UDFREAD"), 600ms);
    EXPECT_EQ(liters("Micro-Tech"), 840ms);
    EXPECT_EQ(liters("ELECTKAPIL"), 1020ms);
    EXPECT_EQ(liters("ELECTRO"), 1020ms);
    EXPECT_EQ(liters("MCS"), 1020ms);
    EXPECT_EQ(liters("ACE CORP"), 1020ms);
    EXPECT_EQ(liters("NO"), 0ms);
}

TEST_F(MilkDevicesTest, ASilentTesterHoldsTheCounterForItsWaitAndNoLonger)
{
    const auto fat = [this](const char* scale) {
        Scale(scale);
        return TimeOf([this] { EXPECT_EQ(Written(Devices.ReadFat().fat), "-"); });
    };
    EXPECT_EQ(fat("DILIGENT"), 1020ms);
    EXPECT_EQ(fat("UDFREAD"), 1620ms); // the litres and the fat
    EXPECT_EQ(fat("Micro-Tech"), 1020ms);
    EXPECT_EQ(fat("ELECTKAPIL"), 1020ms);
    EXPECT_EQ(fat("MCS"), 1020ms);
    EXPECT_EQ(fat("ACE CORP"), 1020ms);
    EXPECT_EQ(fat("NO"), 1020ms);
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.RepeatFat()), "-"); }), 1020ms);
}

TEST_F(MilkDevicesTest, ADeviceThatNeverStopsHoldsTheCounterForItsWaitAndNoLonger)
{
    Scale("ACE CORP");
    for (const char* endless : {"x", "1", "\r\n", "+", "x12\r\n", "."}) {
        Ports.Endless = {endless, 3ms};
        EXPECT_LE(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); }), 1020ms)
            << endless;
        EXPECT_LE(TimeOf([this] { Devices.RepeatFat(); }), 1020ms) << endless;
    }
    Ports.Replies = {{"", {{"+"}}}};
    Ports.Endless = {"1", 3ms};
    EXPECT_LE(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); }), 1020ms);
}

TEST_F(MilkDevicesTest, AMarkThatComesLateHoldsTheCounterNoLonger)
{
    for (const auto& [scale, mark] : {std::pair("ACE CORP", "+"), std::pair("Micro-Tech", "%")}) {
        Scale(scale);
        for (const auto late : {700ms, 900ms, 1019ms}) {
            Ports.Replies = {{"", {{mark, late}}}};
            EXPECT_LE(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadFat().fat), "-"); }), 1020ms) << scale;
        }
    }
}

TEST_F(MilkDevicesTest, AFrameThatGoesOnAndOnHoldsTheCounterForItsSilenceMoreAndNoLonger)
{
    Scale("ACE CORP");
    Ports.Replies = {{"", {{"+1"}}}};
    Ports.Endless = {"1", 40ms};
    EXPECT_LE(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); }), 1270ms);
}

TEST_F(MilkDevicesTest, AReadingReturnsAsSoonAsTheReplyHoldsThePiece)
{
    Scale("ELECTRO");
    Ports.Replies = {{"W", {{"xxx", 30ms}, {"xx12", 20ms}, {".50", 10ms}, {"kg\r\n", 500ms}}}};
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "12.5"); }), 60ms);
    Scale("Micro-Tech");
    Ports.Replies = {{"", {{"%0425\r\n", 30ms}, {"%0425\r\n", 500ms}}}};
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadFat().fat), "4.2"); }), 30ms);
    Ports.Replies = {{"", {{"%0425", 30ms}}}};
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadFat().fat), "4.2"); }), 280ms);
}

TEST_F(MilkDevicesTest, AReplyAfterTheWaitComesTooLate)
{
    Scale("ELECTRO");
    Ports.Replies = {{"W", {{"xxxxx12.50", 1021ms}}}};
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-");
}

TEST_F(MilkDevicesTest, TheWaitForAReplyBeginsWhenTheRestOfTheOneBeforeHasCome)
{
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12.50"), "12.5");
    Ports.Replies = {
        {"", {{"kg", 90ms}, {",FT,", 90ms}, {" 4.2\r\n", 90ms}}}, {"W", {{"xxxxx13.50", 1019ms}}}};
    EXPECT_EQ(
        TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "13.5"); }), 370ms + 1019ms);
}

TEST_F(MilkDevicesTest, ADeviceThatNeverFallsSilentDelaysItsNextQuestionByHalfAWaitAtMost)
{
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12.50"), "12.5");
    Ports.Replies = {{"", FakeSerialPorts::Pieces(30, {"x", 99ms})}};
    EXPECT_LE(TimeOf([this] { Devices.ReadLiters(ThreeDecimals); }), 510ms + 1020ms);
}

// ---- Failures ----

TEST_F(MilkDevicesTest, AFailureAtAnyStepLeavesTheFieldsAndClosesThePort)
{
    for (const char* scale :
        {"DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "MCS", "ACE CORP", "NO"}) {
        Scale(scale);
        for (const Step step : {Step::Open, Step::Wait, Step::Read}) {
            Ports.Replies = {{"w1", {{"x 12.345"}}}, {"W1", {{"xxxxx12.5"}}}, {"RD", {{"xxxxx12.50"}}},
                {"W", {{"xxxxx12.50xxxx 4.2"}}}};
            Ports.Fails = step;
            EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-") << scale;
            EXPECT_EQ(Written(Devices.ReadFat().fat), "-") << scale;
            EXPECT_EQ(Written(Devices.ReadFat().liters), "-") << scale;
            EXPECT_EQ(Written(Devices.RepeatFat()), "-") << scale;
            EXPECT_EQ(Ports.OpenNow, 0) << scale;
        }
    }
}

TEST_F(MilkDevicesTest, ACommandThatCannotBeSentLeavesTheFieldAndClosesThePort)
{
    Ports.Fails = Step::Write;
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12.50"), "-");
    EXPECT_EQ(Ports.OpenNow, 0);
}

TEST_F(MilkDevicesTest, APortWithoutADtrSignalIsReadAllTheSame)
{
    Ports.Fails = Step::Dtr;
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12.50"), "12.5");
}

TEST_F(MilkDevicesTest, AMissingPortIsNotWaitedFor)
{
    Ports.Ports = 0;
    Scale("ELECTRO");
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); }), 0us);
    Scale("ACE CORP");
    EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-"); }), 0us);
}

TEST_F(MilkDevicesTest, ADeviceUnpluggedInMidReplyLeavesTheField)
{
    Ports.UnplugsAfterReply = true;
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12."), "-");
    EXPECT_EQ(Liters("ACE CORP", "", "+12."), "-");
    EXPECT_EQ(Liters("MCS", "", "0123"), "-");
    EXPECT_EQ(Ports.OpenNow, 0);
}

TEST_F(MilkDevicesTest, ASecondReadingOpensThePortAnew)
{
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxxERROR"), "-");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx12.50"), "12.5");
    EXPECT_EQ(Ports.Log.count(Latin("close")), 2);
}

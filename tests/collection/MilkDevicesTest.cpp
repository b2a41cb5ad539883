#include "tests/collection/MilkDevicesTest.h"

namespace {

// Nine digits as a closed library would return them.
class FixedReading final : public CombinedReading {
public:
    explicit FixedReading(std::int32_t reading) : m_reading(reading) { }
    std::int32_t ReadDataCom1() override { return m_reading; }

private:
    std::int32_t m_reading;
};

QStringList Steps(std::initializer_list<const char*> steps)
{
    QStringList list;
    for (const char* step : steps)
        list.append(Latin(step));
    return list;
}

}

// ---- The row of PortTable ----

TEST_F(MilkDevicesTest, ARowIsReadAndItsAbsenceTold)
{
    EXPECT_TRUE(Devices.ReadPortTable());
    Run("delete * from PortTable");
    EXPECT_FALSE(Devices.ReadPortTable());
}

TEST_F(MilkDevicesTest, WithoutARowOnlyTheDevicesThatNeedItAreHindered)
{
    Run("delete * from PortTable");
    EXPECT_FALSE(Devices.ReadPortTable());
    Ports.Replies = {{"", {{"+12.5\r\n"}}}};
    Scale("ACE CORP");
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-");
    EXPECT_EQ(Liters("UDFREAD", "", "xxxxx12.50"), "-");
    MilkDevices others;
    Scale("ELECTRO");
    Ports.Replies = {{"W", {{"xxxxx12.50"}}}};
    EXPECT_EQ(Written(others.ReadLiters(ThreeDecimals)), "12.5");
}

TEST_F(MilkDevicesTest, ARowOfNothingsIsARow)
{
    Run("delete * from PortTable");
    Run("insert into PortTable(LTareCommand) values('0')");
    EXPECT_TRUE(Devices.ReadPortTable());
    Scale("UDFREAD");
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-");
    EXPECT_EQ(Ports.OpenNow, 0);
}

// ---- The litres of each device ----

TEST_F(MilkDevicesTest, DiligentIsAskedForItsWeight)
{
    EXPECT_EQ(Liters("DILIGENT", "w1", "=12.345kg"), "-"); // the seventh character is the unit's
    EXPECT_EQ(Liters("DILIGENT", "w1", "= 12.345kg"), "12.345");
    EXPECT_EQ(Ports.TakeLog().mid(4), Steps({"open 1 2400,n,8,1", "dtr", "write w1", "close"}));
}

TEST_F(MilkDevicesTest, UdfreadIsAskedAsPortTableSays)
{
    EXPECT_EQ(Liters("UDFREAD", "RD", "xxxxx 7.25kg"), "7.25");
    EXPECT_EQ(Ports.TakeLog(), Steps({"open 4 2400,n,8,1", "dtr", "write RD", "close"}));
}

TEST_F(MilkDevicesTest, MicroTechIsAskedForItsWeight)
{
    EXPECT_EQ(Liters("Micro-Tech", "W1", "xxxxx12.5kg"), "12.5");
    EXPECT_EQ(Ports.TakeLog(), Steps({"open 1 2400,n,8,1", "dtr", "write W1", "close"}));
}

TEST_F(MilkDevicesTest, ElectkapilAndElectroAreAskedForTheirWeight)
{
    for (const char* scale : {"ELECTKAPIL", "ELECTRO"}) {
        EXPECT_EQ(Liters(scale, "W", "xxxxx12.45kg"), "12.45");
        EXPECT_EQ(Ports.TakeLog(), Steps({"open 1 2400,n,8,1", "dtr", "write W", "close"}));
    }
}

TEST_F(MilkDevicesTest, AceCorpIsListenedToOnThePortOfTheLitres)
{
    EXPECT_EQ(Liters("ACE CORP", "", "+  12.46\r\n"), "12.5");
    EXPECT_EQ(Ports.TakeLog(), Steps({"open 4 1200,n,8,1", "dtr", "close"}));
}

TEST_F(MilkDevicesTest, ADeviceOfNoNameIsNotRead)
{
    for (const char* scale : {"NO", "", "diligent", "ELECTRO "})
        EXPECT_EQ(Liters(scale, "W", "xxxxx12.45kg"), "-");
    EXPECT_EQ(Ports.Log, QStringList());
}

TEST_F(MilkDevicesTest, McsGivesLitresInTheFormatOfTheCounterAndFat)
{
    Scale("MCS");
    MilkDevices devices(std::make_unique<FixedReading>(5'678'042));
    EXPECT_EQ(Written(devices.ReadLiters(u"#00.000")), "05.678");
    EXPECT_EQ(Written(devices.ReadLiters(u"#00.00")), "05.68");
    EXPECT_EQ(Written(devices.ReadFat().fat), "4.2");
    EXPECT_EQ(Written(devices.ReadFat().liters), "-");
}

TEST_F(MilkDevicesTest, McsReadsTheHighestAndTheLowestOfNineDigits)
{
    Scale("MCS");
    EXPECT_EQ(
        Written(MilkDevices(std::make_unique<FixedReading>(999'999'999)).ReadLiters(u"#00.000")), "999.999");
    EXPECT_EQ(Written(MilkDevices(std::make_unique<FixedReading>(999'999'999)).ReadFat().fat), "99.9");
    EXPECT_EQ(Written(MilkDevices(std::make_unique<FixedReading>(0)).ReadLiters(u"#00.000")), "00.000");
    EXPECT_EQ(Written(MilkDevices(std::make_unique<FixedReading>(0)).ReadFat().fat), "0.0");
}

TEST_F(MilkDevicesTest, McsWithoutAReadingLeavesTheFields)
{
    Scale("MCS");
    for (const std::int32_t none : {-1, 1'000'000'000}) {
        MilkDevices devices(std::make_unique<FixedReading>(none));
        EXPECT_EQ(Written(devices.ReadLiters(u"#00.000")), "-");
        EXPECT_EQ(Written(devices.ReadFat().fat), "-");
    }
}

TEST_F(MilkDevicesTest, McsOnTheLineIsTheFirstWholeLineOfNineDigits)
{
    EXPECT_EQ(Liters("MCS", "", "345042\r\n012345042\r\n099999999\r\n"), "12.345");
    EXPECT_EQ(Ports.TakeLog(), Steps({"open 1 2400,n,8,1", "dtr", "close"}));
    EXPECT_EQ(Liters("MCS", "", "0123450421\r\n01234504\r\n0x2345042\r\n"), "-");
    EXPECT_EQ(Liters("MCS", "", "012345042"), "-"); // more digits might have followed
    EXPECT_EQ(Written(Fat("MCS", "", "012345042\r\n").fat), "4.2");
}

// ---- The piece of a reply ----

TEST_F(MilkDevicesTest, SignAndBlanksVanish)
{
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx-12.5"), "12.5");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx+ 2.5"), "2.5");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx  2.5"), "2.5");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx2.5  "), "2.5");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx00.50"), "0.5");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx 1250"), "1250");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx0.000"), "0");
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx  .75"), "0.75");
}

TEST_F(MilkDevicesTest, APieceThatIsNoNumberLeavesTheField)
{
    for (const char* reply :
        {"xxxxxERROR", "xxxxx     ", "xxxxx1 2.5", "xxxxx12.5k", "xxxxx1.2.3", "xxxxx--1.5", "xxxxx1.5-0",
            "xxxxx1E003", "xxxxx....1", "xxxxx    -", "xxxxx12,50", "xxxxx1\xB2.50",
            "xxxxx\xA0"
            "1.50"})
        EXPECT_EQ(Liters("ELECTRO", "W", reply), "-") << reply;
}

TEST_F(MilkDevicesTest, AReplyShorterThanTheStartLeavesTheField)
{
    for (const char* reply : {"", "1", "12345"})
        EXPECT_EQ(Liters("ELECTRO", "W", reply), "-");
    EXPECT_EQ(Written(Fat("NO", "W", "12345678901234").fat), "-");
}

TEST_F(MilkDevicesTest, AReplyThatEndsInThePieceGivesWhatThereIs)
{
    EXPECT_EQ(Liters("ELECTRO", "W", "xxxxx7.5"), "7.5");
}

TEST_F(MilkDevicesTest, BytesThatAreNotDigitsNeverBecomeDigits)
{
    EXPECT_EQ(Liters("ELECTRO", "W", QByteArray("xxxxx\xE0\xA5\xA7\xE0\xA5", 10)), "-");
    EXPECT_EQ(Liters("ELECTRO", "W", QByteArray("xxxxx12\0.5", 10)), "-");
}

// ---- The fat of each device ----

TEST_F(MilkDevicesTest, TheCommonExchangeReadsTheFatOfThreeDevices)
{
    for (const char* scale : {"DILIGENT", "ELECTRO", "NO"}) {
        const MilkDevices::Fields fields = Fat(scale, "W", "xxxxxxxxxxxxxx 4.2%");
        EXPECT_EQ(Written(fields.fat), "4.2");
        EXPECT_EQ(Written(fields.liters), "-");
        EXPECT_EQ(Ports.TakeLog(), Steps({"open 1 2400,n,8,1", "dtr", "write W", "close"}));
    }
}

TEST_F(MilkDevicesTest, UdfreadReadsTheLitresASecondTimeBeforeTheFat)
{
    Scale("UDFREAD");
    Ports.Replies = {{"RD", {{"xxxxx12.50"}}}, {"W", {{"xxxxxxxxxxxxxx 6.8"}}}};
    const MilkDevices::Fields fields = Devices.ReadFat();
    EXPECT_EQ(Written(fields.liters), "12.5");
    EXPECT_EQ(Written(fields.fat), "6.8");
    EXPECT_EQ(Ports.Log,
        Steps({"open 4 2400,n,8,1", "dtr", "write RD", "close", "open 4 2400,n,8,1", "dtr", "write W",
            "close"}));
    EXPECT_EQ(Ports.MostOpen, 1);
}

TEST_F(MilkDevicesTest, ThePercentTesterHasItsOwnPort)
{
    for (const char* scale : {"Micro-Tech", "ELECTKAPIL"}) {
        const MilkDevices::Fields fields = Fat(scale, "", "%0425\r\n");
        EXPECT_EQ(Written(fields.fat), "4.2");
        EXPECT_EQ(Written(fields.liters), "-");
        EXPECT_EQ(Ports.TakeLog(), Steps({"open 5 4800,e,7,1", "dtr", "close"}));
    }
}

TEST_F(MilkDevicesTest, AceCorpNeverFillsTheFatButTheLitres)
{
    const MilkDevices::Fields fields = Fat("ACE CORP", "", "+12.5\r\n");
    EXPECT_EQ(Written(fields.fat), "-");
    EXPECT_EQ(Written(fields.liters), "12.5");
}

TEST_F(MilkDevicesTest, TheRepeatedExchangeIsTheSameForEveryDevice)
{
    for (const char* scale :
        {"DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "MCS", "ACE CORP", "NO"}) {
        Scale(scale);
        Ports.Replies = {{"W", {{"xxxxxxxxxxxxxx10.5"}}}};
        EXPECT_EQ(Written(Devices.RepeatFat()), "10.5");
        EXPECT_EQ(Ports.TakeLog(), Steps({"open 1 2400,n,8,1", "dtr", "write W", "close"}));
    }
}

// ---- The marked frames ----

TEST_F(MilkDevicesTest, ThePercentFrameIsCutNotRounded)
{
    const auto fat = [this](const char* reply) { return Written(Fat("Micro-Tech", "", reply).fat); };
    EXPECT_EQ(fat("%0425\r\n"), "4.2");
    EXPECT_EQ(fat("%0429\r\n"), "4.2");
    EXPECT_EQ(fat("%0400\r\n"), "4.0");
    EXPECT_EQ(fat("%0005\r\n"), "0.0");
    EXPECT_EQ(fat("% 425\r\n"), "4.2");
    EXPECT_EQ(fat("%0984\r\n"), "9.8");
}

TEST_F(MilkDevicesTest, ThePercentFrameKeepsFourCharactersFromTheFatOfNinePointNineOn)
{
    const auto fat = [this](const char* reply) { return Written(Fat("Micro-Tech", "", reply).fat); };
    EXPECT_EQ(fat("%0985\r\n"), "9.9");
    EXPECT_EQ(fat("%0990\r\n"), "9.9");
    EXPECT_EQ(fat("%0994\r\n"), "9.9");
    EXPECT_EQ(fat("%1050\r\n"), "10.5");
    EXPECT_EQ(fat("%1059\r\n"), "10.5");
}

TEST_F(MilkDevicesTest, ThePlusFrameIsRoundedAndFourCharactersLong)
{
    EXPECT_EQ(Liters("ACE CORP", "", "+12.45\r\n"), "12.5");
    EXPECT_EQ(Liters("ACE CORP", "", "+5\r\n"), "5.0");
    EXPECT_EQ(Liters("ACE CORP", "", "+123.45\r\n"), "123.");
    EXPECT_EQ(Liters("ACE CORP", "", "+-2.5\r\n"), "-2.5");
}

TEST_F(MilkDevicesTest, AFrameThatIsNoNumberLeavesTheField)
{
    for (const char* reply :
        {"+", "+\r\n", "+kg", "+kg\r\n", "+1.2.3\r\n", "12.5\r\n", "x12.5\r\n", "+1\xB2\r\n"})
        EXPECT_EQ(Liters("ACE CORP", "", reply), "-") << reply;
}

TEST_F(MilkDevicesTest, AFrameWithAUnitBehindTheNumberGivesItsNumber)
{
    for (const char* reply :
        {"+12.5kg\r\n", "+ 12.5 kg\r\n", "+12.5 Ltr.\r\n", "+12.5l", "+12.5kg+12.5kg", "+12.5%\r\n"})
        EXPECT_EQ(Liters("ACE CORP", "", reply), "12.5") << reply;
    for (const char* reply : {"%0425%\r\n", "%0425 pct\r\n", "%0425F"})
        EXPECT_EQ(Written(Fat("ELECTKAPIL", "", reply).fat), "4.2") << reply;
}

TEST_F(MilkDevicesTest, WhatFollowsANumberAndHoldsAnotherIsNoUnit)
{
    for (const char* reply : {"+1x.5\r\n", "+12,50\r\n", "+1E003\r\n", "+12.5kg7\r\n", "+1\x07.5\r\n",
             "+12.5\xB5g\r\n", "+12.5\x7F\r\n"})
        EXPECT_EQ(Liters("ACE CORP", "", reply), "-") << reply;
    EXPECT_EQ(Written(Fat("Micro-Tech", "", "A00000425%").fat), "-") << "without its mark it may be anything";
}

TEST_F(MilkDevicesTest, AFrameEndsAtItsLineEndTheNextMarkOrASilence)
{
    EXPECT_EQ(Liters("ACE CORP", "", "+12.5\r\n+13.5\r\n"), "12.5");
    EXPECT_EQ(Liters("ACE CORP", "", "+12.5+13.5"), "12.5");
    EXPECT_EQ(Liters("ACE CORP", "", "+12.5"), "12.5");
}

TEST_F(MilkDevicesTest, ANumberThatIsStillComingIsNotTaken)
{
    Scale("ACE CORP");
    Ports.Replies = {{"", {{"+1", 5ms}, {"2", 100ms}, {".5", 100ms}, {"\r\n", 100ms}}}};
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "12.5");
    Ports.Replies = {{"", {{"+1", 1000ms}, {"2", 200ms}, {".5\r\n", 100ms}}}};
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-") << "the silence of its end doesn't begin anew";
}

TEST_F(MilkDevicesTest, AFrameWithoutALineEndThatComesLateIsTakenWhenItsSilenceHasPassed)
{
    for (const auto late : {770ms, 771ms, 900ms, 1019ms}) {
        Scale("ACE CORP");
        Ports.Replies = {{"", {{"+12.5", late}}}};
        EXPECT_EQ(
            TimeOf([this] { EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "12.5"); }), late + 250ms);
        Scale("Micro-Tech");
        Ports.Replies = {{"", {{"%0425", late}}}};
        EXPECT_EQ(TimeOf([this] { EXPECT_EQ(Written(Devices.ReadFat().fat), "4.2"); }), late + 250ms);
    }
}

TEST_F(MilkDevicesTest, AFrameThatHasBegunWithinTheWaitMayEndInTheSilenceAfterIt)
{
    Scale("ACE CORP");
    Ports.Replies = {{"", {{"+1", 1000ms}, {"2.5\r\n", 100ms}}}};
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "12.5");
    Ports.Replies = {{"", {{"x", 1000ms}, {"+12.5\r\n", 21ms}}}};
    EXPECT_EQ(Written(Devices.ReadLiters(ThreeDecimals)), "-") << "it began too late";
}

TEST_F(MilkDevicesTest, WhatDoesNotBeginWithTheMarkIsReadAgain)
{
    Scale("Micro-Tech");
    Ports.Replies = {{"", {{"25\r\n", 5ms}, {"%04", 5ms}, {"25\r\n", 5ms}}}};
    EXPECT_EQ(Written(Devices.ReadFat().fat), "4.2");
}

TEST_F(MilkDevicesTest, TenCharactersWithoutTheMarkAreTakenAllTheSame)
{
    EXPECT_EQ(Written(Fat("Micro-Tech", "", "A000000425").fat), "4.2");
    EXPECT_EQ(Written(Fat("Micro-Tech", "", "A00000425").fat), "-");
    EXPECT_EQ(Written(Fat("Micro-Tech", "", "A0425\r\n%0425\r\n").fat), "-");
}

// ---- The tare ----

TEST_F(MilkDevicesTest, TheTareIsFiveCommandsWithoutAWait)
{
    EXPECT_EQ(TimeOf([this] { Devices.SendTareToScale(); }), 0us);
    EXPECT_EQ(Ports.Log,
        Steps({"open 1 2400,n,8,1", "dtr", "write t", "write z", "write T", "write Z", "write TR", "close"}));
}

TEST_F(MilkDevicesTest, TheTareGoesWhereUdfreadWasReadLast)
{
    EXPECT_EQ(Liters("UDFREAD", "RD", "xxxxx 7.25kg"), "7.25");
    Ports.TakeLog();
    Devices.SendTareToScale();
    EXPECT_EQ(Ports.Log.first(), Latin("open 4 2400,n,8,1"));
}

TEST_F(MilkDevicesTest, ATareThatCannotBeSentIsPassedOver)
{
    for (const Step step : {Step::Open, Step::Dtr, Step::Write}) {
        Ports.Fails = step;
        Devices.SendTareToScale();
        EXPECT_EQ(Ports.OpenNow, 0);
    }
}

// ---- The switches ----

TEST(DeviceSwitchTest, ShowsItsSettingAndTurns)
{
    EXPECT_EQ(DeviceSwitch::Caption(u"haoya"), Latin("sau$"));
    EXPECT_EQ(DeviceSwitch::Caption(u"naahI"), Latin("baMd"));
    EXPECT_EQ(DeviceSwitch::Caption(u""), Latin("baMd"));
    EXPECT_EQ(DeviceSwitch::SettingAfterClick(u"sau$"), Latin("naahI"));
    EXPECT_EQ(DeviceSwitch::SettingAfterClick(u"baMd"), Latin("haoya"));
    EXPECT_EQ(DeviceSwitch::SettingAfterClick(u""), Latin("haoya"));
    EXPECT_TRUE(DeviceSwitch::IsOn(u"haoya"));
    EXPECT_FALSE(DeviceSwitch::IsOn(u"naahI"));
    EXPECT_FALSE(DeviceSwitch::IsOn(u""));
}

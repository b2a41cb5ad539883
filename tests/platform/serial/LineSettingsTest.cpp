#include "platform/serial/LineSettings.h"

#include <gtest/gtest.h>

using Parity = LineSettings::Parity;
using StopBits = LineSettings::StopBits;

TEST(LineSettingsTest, AreBaudParityDataBitsAndStopBits)
{
    const auto line = ParseLineSettings(u"2400,n,8,1");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->baud, 2400);
    EXPECT_EQ(line->parity, Parity::None);
    EXPECT_EQ(line->dataBits, 8);
    EXPECT_EQ(line->stopBits, StopBits::One);
}

TEST(LineSettingsTest, NameEachParityByItsLetterInAnyCase)
{
    EXPECT_EQ(ParseLineSettings(u"9600,E,7,2")->parity, Parity::Even);
    EXPECT_EQ(ParseLineSettings(u"9600,o,7,2")->parity, Parity::Odd);
    EXPECT_EQ(ParseLineSettings(u"9600,m,7,2")->parity, Parity::Mark);
    EXPECT_EQ(ParseLineSettings(u"9600,S,7,2")->parity, Parity::Space);
}

TEST(LineSettingsTest, KnowOneAndAHalfAndTwoStopBits)
{
    EXPECT_EQ(ParseLineSettings(u"110,n,5,1.5")->stopBits, StopBits::OneAndHalf);
    EXPECT_EQ(ParseLineSettings(u"110,n,5,2")->stopBits, StopBits::Two);
}

TEST(LineSettingsTest, BearBlanksAroundTheParts)
{
    const auto line = ParseLineSettings(u" 4800 , e , 7 , 1 ");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->baud, 4800);
    EXPECT_EQ(line->dataBits, 7);
}

TEST(LineSettingsTest, AreNothingWhereTheyCannotBeRead)
{
    for (const char16_t* text : {u"", u"2400", u"2400,n,8", u"2400,n,8,1,1", u"x,n,8,1", u"0,n,8,1",
             u"-1,n,8,1", u"99999999,n,8,1", u"2400,x,8,1", u"2400,none,8,1", u"2400,n,4,1", u"2400,n,9,1",
             u"2400,n,8,3", u"2400,n,8,", u"2400 n 8 1"})
        EXPECT_FALSE(ParseLineSettings(text)) << QStringView(text).toString().toStdString();
}

#include "collection/ActualTime.h"

#include "tests/support/SocietyTest.h"

TEST(ActualTimeTest, ATextOfTenCharactersHasAnHourOfOneDigit)
{
    EXPECT_EQ(ActualTime(u"9:05:00 AM"), "9.05");
    EXPECT_EQ(ActualTime(u"6:59:59 PM"), "6.59");
}

TEST(ActualTimeTest, ATextOfElevenCharactersHasAnHourOfTwoDigits)
{
    EXPECT_EQ(ActualTime(u"11:05:00 PM"), "11.05");
    EXPECT_EQ(ActualTime(u"12:00:59 AM"), "12.00");
}

TEST(ActualTimeTest, BlanksAroundTheTimeAreNotCounted)
{
    EXPECT_EQ(ActualTime(u" 9:05:00 AM "), "9.05");
}

TEST(ActualTimeTest, AnyOtherLengthIsAPointAlone)
{
    for (QStringView text :
        {QStringView(), QStringView(u"09:05:00"), QStringView(u"9:05 AM"), QStringView(u"011:05:00 PM")})
        EXPECT_EQ(ActualTime(text), ".") << text.toUtf8().toStdString();
}

class ActualTimeNowTest : public SocietyTest { };

TEST_F(ActualTimeNowTest, ReadsTheClockOnTheWall)
{
    TheClock.Time.setTime(QTime(6, 5, 0));
    EXPECT_EQ(ActualTimeNow(), "6.05");
    TheClock.Time.setTime(QTime(18, 30, 0));
    EXPECT_EQ(ActualTimeNow(), "6.30");
    TheClock.Time.setTime(QTime(12, 9, 59));
    EXPECT_EQ(ActualTimeNow(), "12.09");
}

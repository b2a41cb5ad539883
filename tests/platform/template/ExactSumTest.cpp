#include "platform/template/ExactSum.h"
#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

TEST(ExactSumsTest, StayExactWhereBinaryNumbersDrift)
{
    ExactSum sum;
    for (int i = 0; i < 100000; ++i)
        sum.Add(0.1);
    EXPECT_EQ(sum.Number(), 10000.0);
}

TEST(ExactSumsTest, AddWhatIsPrintedAndRoundHalvesAwayFromZero)
{
    ExactSum sum;
    sum.Add(1.005, 2);
    sum.Add(2.675, 2);
    EXPECT_EQ(sum.Number(), 3.69);
    ExactSum negative;
    negative.Add(-1.005, 2);
    negative.Add(-0.004, 2);
    EXPECT_EQ(negative.Number(), -1.01);
}

TEST(ExactSumsTest, AFigureJustBelowAHalfIsAddedAsItIsPrinted)
{
    ExactSum sum;
    for (int i = 0; i < 100; ++i)
        sum.Add(0.0049999996, 2);
    EXPECT_TRUE(sum.IsZero());
    sum.Add(0.0049999996);
    EXPECT_EQ(sum.Number(), 0.005);
}

TEST(ExactSumsTest, ATotalBeyondAllRangeIsAnErrorAndNotAWrongNumber)
{
    ExactSum sum;
    sum.Add(9e12);
    EXPECT_THROW(sum.Add(9e12), RunTimeError);
    ExactSum other;
    EXPECT_THROW(other.Add(1e13), RunTimeError);
}

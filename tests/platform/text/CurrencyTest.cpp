#include "platform/text/Currency.h"
#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace {

constexpr double Largest = 922337203685477; // rupees, but for the decimals

std::string Text(Currency value)
{
    return value.Text().toStdString();
}

std::string Text(double rupees)
{
    return Text(Currency(rupees));
}

// The number of the error that the action ends in, or 0.
int ErrorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(CurrencyTest, BeginsAtZero)
{
    EXPECT_EQ(Text(Currency()), "0");
    EXPECT_EQ(Currency(), Currency(-0.0));
}

TEST(CurrencyTest, HoldsFourDecimalsAndRoundsTheRestHalfToEven)
{
    EXPECT_EQ(Text(12.5), "12.5");
    EXPECT_EQ(Text(-36.53), "-36.53");
    EXPECT_EQ(Text(100.0), "100");
    EXPECT_EQ(Text(0.0001), "0.0001");
    EXPECT_EQ(Text(-0.0001), "-0.0001");
    EXPECT_EQ(Text(0.00005), "0");
    EXPECT_EQ(Text(0.00015), "0.0002");
    EXPECT_EQ(Text(0.00025), "0.0002");
    EXPECT_EQ(Text(0.000251), "0.0003");
    EXPECT_EQ(Text(-0.00015), "-0.0002");
    EXPECT_EQ(Text(-0.00005), "0");
    EXPECT_EQ(Text(1.99995), "2");
    EXPECT_EQ(Text(1.00014), "1.0001");
    EXPECT_EQ(Text(1.00016), "1.0002");
}

TEST(CurrencyTest, ASumOfManyAmountsIsRightToTheLastDigit)
{
    Currency sum;
    for (int i = 0; i < 1'000'000; ++i)
        sum += Currency(0.1);
    EXPECT_EQ(Text(sum), "100000");
    EXPECT_EQ(sum.Number(), 100000);
    for (int i = 0; i < 1'000'000; ++i)
        sum -= Currency(0.1);
    EXPECT_EQ(sum, Currency());
    EXPECT_EQ(Text(Currency(0.1) + Currency(0.2)), "0.3");
    EXPECT_EQ(Text(Currency(0.1) - Currency(0.35)), "-0.25");
}

TEST(CurrencyTest, ComparesByValue)
{
    EXPECT_LT(Currency(-0.5), Currency(-0.4));
    EXPECT_GT(Currency(60.01), Currency(60));
    EXPECT_EQ(Currency(0.1) + Currency(0.2), Currency(0.3));
}

TEST(CurrencyTest, KeepsEveryDigitOfALargeSum)
{
    const Currency sum = Currency(Largest) + Currency(0.5807);
    EXPECT_EQ(Text(sum), "922337203685477.5807");
    EXPECT_EQ(Text(Currency(-Largest) - Currency(0.5808)), "-922337203685477.5808");
}

TEST(CurrencyTest, AValueThatHasNoPlaceIsAnOverflow)
{
    for (const double value : {922337203685478.0, -922337203685478.0, 1e15, 1e300,
             std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(ErrorOf([value] { Currency rupees(value); }), RunTimeError::Overflow) << value;
}

TEST(CurrencyTest, ASumThatHasNoPlaceIsAnOverflowAndStaysWhatItWas)
{
    Currency most = Currency(Largest) + Currency(0.5807);
    EXPECT_EQ(ErrorOf([&] { most += Currency(0.0001); }), RunTimeError::Overflow);
    EXPECT_EQ(ErrorOf([&] { most -= Currency(-0.0001); }), RunTimeError::Overflow);
    EXPECT_EQ(Text(most), "922337203685477.5807");
    Currency least = Currency(-Largest) - Currency(0.5808);
    EXPECT_EQ(ErrorOf([&] { least -= Currency(0.0001); }), RunTimeError::Overflow);
    EXPECT_EQ(ErrorOf([&] { least += Currency(-0.0001); }), RunTimeError::Overflow);
    EXPECT_EQ(Text(least), "-922337203685477.5808");
    EXPECT_EQ(Text(least + most), "-0.0001");
}

}

#include "platform/text/Currency.h"
#include "platform/text/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>

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

// An amount of ten-thousandths in its shortest form.
std::string Written(std::int64_t tenThousandths)
{
    const std::int64_t size = std::abs(tenThousandths);
    std::string decimals = std::to_string(10'000 + size % 10'000).replace(0, 1, ".");
    decimals.erase(decimals.find_last_not_of("0.") + 1);
    return (tenThousandths < 0 ? "-" : "") + std::to_string(size / 10'000) + decimals;
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

TEST(CurrencyTest, ValuesOfAnySizeRoundAsTheirDigitsSay)
{
    std::mt19937_64 dice(26);
    for (int i = 0; i < 100'000; ++i) {
        // Six decimals; every fourth value lies in the middle between two.
        const int digits = 1 + static_cast<int>(dice() % 15);
        const auto bound = static_cast<std::uint64_t>(std::pow(10, digits));
        auto millionths = static_cast<std::int64_t>(dice() % bound);
        if (i % 4 == 0)
            millionths = millionths / 100 * 100 + 50;
        const std::int64_t rest = millionths % 100;
        std::int64_t rounded = millionths / 100;
        rounded += rest > 50 || (rest == 50 && rounded % 2 != 0) ? 1 : 0;
        const double rupees = (i % 2 == 0 ? 1 : -1) * (static_cast<double>(millionths) / 1e6);
        const Currency value(rupees);
        EXPECT_EQ(Text(value), Written(i % 2 == 0 ? rounded : -rounded)) << millionths;
        EXPECT_EQ(value.Number(), std::stod(Text(value)));
    }
}

TEST(CurrencyTest, TheNumberOfALargeSumIsTheNearestToItsDigits)
{
    Currency value(1e14);
    for (int i = 0; i < 1000; ++i) {
        value += Currency(0.0017);
        EXPECT_EQ(value.Number(), std::stod(Text(value)));
    }
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

#include "platform/text/Numbers.h"
#include "platform/text/RunTimeError.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

// The number of the run-time error that a call ends in, or 0.
template <typename Call> int ErrorOf(Call call)
{
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

struct Read {
    QStringView text;
    double value;
};

}

TEST(ValTest, ReadsTheNumberThatATextBeginsWith)
{
    const Read reads[] = {{u"", 0}, {u"12", 12}, {u"12abc", 12}, {u"abc", 0}, {u".", 0}, {u"-", 0}, {u"+", 0},
        {u"-.5", -0.5}, {u".5", 0.5}, {u"5.", 5}, {u"+7", 7}, {u"--5", 0}, {u"-+5", 0}, {u"1.2.3", 1.2},
        {u"1,000", 1}, {u"24.35 Rs", 24.35}, {u"007", 7}, {u"0.1", 0.1}, {u"gaaya", 0}, {u"Infinity", 0},
        {u"nan", 0}, {u"0x10", 0}, {u"123456789012345", 123456789012345.0}};
    for (const Read& read : reads)
        EXPECT_EQ(Val(read.text), read.value) << qPrintable(read.text.toString());
}

TEST(ValTest, IgnoresBlanksWhereverTheyStand)
{
    EXPECT_EQ(Val(u" 1 2 "), 12);
    EXPECT_EQ(Val(u"\t- 1\r\n. 5"), -1.5);
    EXPECT_EQ(Val(u"   "), 0);
    EXPECT_EQ(Val(u"1 e 3"), 1000);
}

TEST(ValTest, ReadsExponents)
{
    const Read reads[] = {{u"1e3", 1000}, {u"1E+3", 1000}, {u"25e-1", 2.5}, {u"1e", 1}, {u"1e+", 1},
        {u"1e-x", 1}, {u"e3", 0}, {u".e3", 0}, {u"1.e2", 100}};
    for (const Read& read : reads)
        EXPECT_EQ(Val(read.text), read.value) << qPrintable(read.text.toString());
}

TEST(ValTest, ANegativeZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(Val(u"-0")));
    EXPECT_FALSE(std::signbit(Val(u"-0.00")));
}

TEST(ValTest, ANumberBeyondDoubleIsAnOverflow)
{
    for (const QString& text : QStringList{QString(400, u'9'), "1e400", "-1e309",
             QString(QString(400, u'0') + QString(400, u'1')), "0.0001e999999999999999999999"}) {
        EXPECT_EQ(ErrorOf([&] { Val(text); }), RunTimeError::Overflow) << qPrintable(text);
    }
}

TEST(ValTest, ANumberTooSmallForDoubleIsZero)
{
    for (const QString& text : QStringList{"1e-400", "-1e-99999999999999999999", "0e999999",
             QString("0." + QString(400, u'0') + u'1'),
             QString(QString(400, u'0') + "." + QString(400, u'0') + "5")}) {
        EXPECT_EQ(Val(text), 0) << qPrintable(text);
    }
    EXPECT_EQ(Val(QString(QString(400, u'0') + u'5')), 5);
}

TEST(ValTest, TheErrorNamesTheValueButNotAllOfIt)
{
    try {
        Val(QString(400, u'7'));
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Happened().contains("\nOverflow"));
        EXPECT_TRUE(error.Happened().contains(QString(60, u'7')));
        EXPECT_FALSE(error.Happened().contains(QString(61, u'7')));
    }
}

TEST(IsNumericTest, TakesOneNumberAndNothingElse)
{
    for (const QStringView text : {u"0", u"12", u" 12 ", u"-.5", u"5.", u"+1", u"1e3", u"12.345"})
        EXPECT_TRUE(IsNumeric(text)) << qPrintable(text.toString());
    for (const QStringView text :
        {u"", u" ", u".", u"-", u"12abc", u"1 2", u"--5", u"1e", u"abc", u"1,000", u"1.2.3", u"१२", u"1e999"})
        EXPECT_FALSE(IsNumeric(text)) << qPrintable(text.toString());
}

TEST(FormatTest, RoundsTheDecimalFormHalfAwayFromZero)
{
    EXPECT_EQ(Format(1.005, u"0.00"), u"1.01");
    EXPECT_EQ(Format(-1.005, u"0.00"), u"-1.01");
    EXPECT_EQ(Format(1.5 * 24.35, u"#####0.00"), u"36.53");
    EXPECT_EQ(Format(2.675f, u"0.00"), u"2.68");
    EXPECT_EQ(Format(2.675, u"0.00"), u"2.68");
    EXPECT_EQ(Format(0.125, u"0.00"), u"0.13");
    EXPECT_EQ(Format(0.5, u"0"), u"1");
    EXPECT_EQ(Format(1.5, u"0"), u"2");
    EXPECT_EQ(Format(2.5, u"0"), u"3");
    EXPECT_EQ(Format(-2.5, u"0"), u"-3");
    EXPECT_EQ(Format(0.05, u"0.0"), u"0.1");
    EXPECT_EQ(Format(0.0049, u"0.00"), u"0.00");
    EXPECT_EQ(Format(0.005, u"0.00"), u"0.01");
    EXPECT_EQ(Format(9.995, u"0.00"), u"10.00");
    EXPECT_EQ(Format(99999.995, u"#####0.00"), u"100000.00");
    EXPECT_EQ(Format(0.1 + 0.2, u"0.0000000000000000"), u"0.3000000000000000");
    EXPECT_EQ(Format(0.095, u"0.00"), u"0.10");
    EXPECT_EQ(Format(0.95, u"0.0"), u"1.0");
    EXPECT_EQ(Format(0.95, u"0"), u"1");
    EXPECT_EQ(Format(0.45, u"0"), u"0");
}

TEST(FormatTest, EveryHalfPaisaGoesUp)
{
    for (int paise = 0; paise < 100000; ++paise) {
        const double value = (paise * 10 + 5) / 1000.0;
        const int up = paise + 1;
        const QString expected = QStringLiteral("%1.%2").arg(up / 100).arg(up % 100, 2, 10, QLatin1Char('0'));
        ASSERT_EQ(Format(value, u"######0.00"), expected) << value;
        ASSERT_EQ(Format(-value, u"######0.00"), QString(u'-' + expected)) << value;
    }
}

TEST(FormatTest, SinglePrecisionHasSevenDigits)
{
    EXPECT_EQ(Format(0.1f, u"0.000000000"), u"0.100000000");
    EXPECT_EQ(Format(16777216.0f, u"0"), u"16777220");
    EXPECT_EQ(Format(1.005f, u"0.00"), u"1.01");
    EXPECT_EQ(Format(24.345f, u"###0.00"), u"24.35");
    EXPECT_EQ(Format(static_cast<double>(0.1f), u"0.000000000"), u"0.100000001");
}

TEST(FormatTest, APatternSaysWhichDigitsShow)
{
    EXPECT_EQ(Format(3.5, u"#00.000"), u"03.500");
    EXPECT_EQ(Format(123.5, u"#00.000"), u"123.500");
    EXPECT_EQ(Format(0.0, u"#########0.00"), u"0.00");
    EXPECT_EQ(Format(4.26, u"0.0"), u"4.3");
    EXPECT_EQ(Format(12.34567, u"#####0.0000"), u"12.3457");
    EXPECT_EQ(Format(12345678.5, u"0.0"), u"12345678.5");
    EXPECT_EQ(Format(42.0, u"000000000"), u"000000042");
    EXPECT_EQ(Format(0.0, u"#"), u"");
    EXPECT_EQ(Format(7.0, u"#"), u"7");
    EXPECT_EQ(Format(0.25, u"#.00"), u".25");
    EXPECT_EQ(Format(1.5, u"0.0##"), u"1.5");
    EXPECT_EQ(Format(1.2345, u"0.0##"), u"1.235");
    EXPECT_EQ(Format(1.0, u"0.0##"), u"1.0");
    EXPECT_EQ(Format(7, u"0.00"), u"7.00");
    EXPECT_EQ(Format(-7, u"000"), u"-007");
    EXPECT_EQ(Format(0, u"####0.000"), u"0.000");
}

TEST(FormatTest, AZeroHasNoSign)
{
    EXPECT_EQ(Format(-0.0, u"0.00"), u"0.00");
    EXPECT_EQ(Format(-0.004, u"0.00"), u"0.00");
    EXPECT_EQ(Format(-0.005, u"0.00"), u"-0.01");
    EXPECT_EQ(Format(-1e-300, u"0.00"), u"0.00");
}

TEST(FormatTest, LargeAndTinyValues)
{
    EXPECT_EQ(Format(1e15, u"######0.00"), u"1000000000000000.00");
    EXPECT_EQ(Format(123456789012345.0, u"0.00"), u"123456789012345.00");
    EXPECT_EQ(Format(999999999999999.0, u"0.0"), u"999999999999999.0");
    EXPECT_EQ(Format(5e-324, u"0.000"), u"0.000");
    EXPECT_EQ(Format(1e300, u"0.0"), QString("1" + QString(300, u'0') + ".0"));
}

TEST(FormatTest, AValueThatIsNoneIsAnOverflow)
{
    EXPECT_EQ(ErrorOf([] { Format(Infinite, u"0.00"); }), RunTimeError::Overflow);
    EXPECT_EQ(ErrorOf([] { Format(-Infinite, u"0.00"); }), RunTimeError::Overflow);
    EXPECT_EQ(ErrorOf([] { Format(NoNumber, u"0.00"); }), RunTimeError::Overflow);
}

TEST(ShortestDecimalTest, HasNoZeroTooMany)
{
    EXPECT_EQ(ShortestDecimal(0.0), u"0");
    EXPECT_EQ(ShortestDecimal(-0.0), u"0");
    EXPECT_EQ(ShortestDecimal(5.0), u"5");
    EXPECT_EQ(ShortestDecimal(24.35), u"24.35");
    EXPECT_EQ(ShortestDecimal(-24.5), u"-24.5");
    EXPECT_EQ(ShortestDecimal(0.1 + 0.2), u"0.3");
    EXPECT_EQ(ShortestDecimal(1.0 / 3), u"0.333333333333333");
    EXPECT_EQ(ShortestDecimal(100.0), u"100");
    EXPECT_EQ(ShortestDecimal(1e15), u"1000000000000000");
    EXPECT_EQ(ShortestDecimal(1e-7), u"0.0000001");
    EXPECT_EQ(ShortestDecimal(0.1f), u"0.1");
    EXPECT_EQ(ShortestDecimal(1.0f / 3), u"0.3333333");
    EXPECT_EQ(ShortestDecimal(-12), u"-12");
    EXPECT_EQ(ErrorOf([] { ShortestDecimal(NoNumber); }), RunTimeError::Overflow);
    EXPECT_EQ(ErrorOf([] { ShortestDecimal(static_cast<float>(Infinite)); }), RunTimeError::Overflow);
}

TEST(ShortestDecimalTest, IsTheSameInEveryLocale)
{
    for (const QLocale::Language language : {QLocale::German, QLocale::Marathi, QLocale::English}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(ShortestDecimal(1234.5), u"1234.5");
        EXPECT_EQ(ShortestDecimal(-1234), u"-1234");
        EXPECT_EQ(Format(1234.5, u"0.00"), u"1234.50");
        EXPECT_EQ(Val(u"1234.5"), 1234.5);
    }
    QLocale::setDefault(QLocale::c());
}

TEST(ToInt16Test, RoundsHalfToEven)
{
    EXPECT_EQ(ToInt16(0.5), 0);
    EXPECT_EQ(ToInt16(1.5), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-0.5), 0);
    EXPECT_EQ(ToInt16(-1.5), -2);
    EXPECT_EQ(ToInt16(2.51), 3);
    EXPECT_EQ(ToInt16(32767.49), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
}

TEST(ToInt16Test, BeyondTheRangeIsAnOverflow)
{
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
    for (const double value : {32768.0, 32767.5, -32769.0, -32768.51, 1e300, Infinite, NoNumber})
        EXPECT_EQ(ErrorOf([value] { ToInt16(value); }), RunTimeError::Overflow) << value;
}

TEST(ToInt32Test, RoundsAndRefusesWhatIsBeyondItsRange)
{
    EXPECT_EQ(ToInt32(2.5), 2);
    EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    for (const double value : {2147483647.5, 2147483648.0, -2147483649.0, 1e300, Infinite, NoNumber})
        EXPECT_EQ(ErrorOf([value] { ToInt32(value); }), RunTimeError::Overflow) << value;
}

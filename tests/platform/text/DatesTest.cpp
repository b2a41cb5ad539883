#include "platform/text/Dates.h"
#include "platform/text/RunTimeError.h"

#include <QLocale>

#include <gtest/gtest.h>

TEST(ParseDateTest, ReadsDayMonthYear)
{
    EXPECT_EQ(ParseDate(u"01/04/2026"), QDate(2026, 4, 1));
    EXPECT_EQ(ParseDate(u"31/12/1999"), QDate(1999, 12, 31));
    EXPECT_EQ(ParseDate(u" 01/04/2026  "), QDate(2026, 4, 1));
    EXPECT_EQ(ParseDate(u"29/02/2024"), QDate(2024, 2, 29));
    EXPECT_EQ(ParseDate(u"01/01/0100"), QDate(100, 1, 1));
    EXPECT_EQ(ParseDate(u"31/12/9999"), QDate(9999, 12, 31));
}

TEST(ParseDateTest, RefusesWhatIsNoDayOfTheCalendar)
{
    for (const QStringView text : {u"31/02/2026", u"29/02/2026", u"29/02/1900", u"31/04/2026", u"25/13/2026",
             u"13/25/2026", u"00/04/2026", u"01/00/2026", u"01/04/0099", u"01/04/0000"})
        EXPECT_FALSE(IsDate(text)) << qPrintable(text.toString());
}

TEST(ParseDateTest, RefusesOtherShapes)
{
    for (const QStringView text :
        {u"", u" ", u"1/4/2026", u"01/04/26", u"01-04-2026", u"01.04.2026", u"2026/04/01", u"01/04/2026x",
            u"01/04/ 026", u"+1/04/2026", u"०१/०४/२०२६", u"1_/04/2026", u"01/04/20261", u"01 04 2026"})
        EXPECT_FALSE(IsDate(text)) << qPrintable(text.toString());
    EXPECT_FALSE(IsDate(DateMask::Empty));
    EXPECT_FALSE(IsDate(QString(1000, u'1')));
    EXPECT_TRUE(IsDate(u"01/04/2026"));
}

TEST(ToDateTest, ATextThatIsNoneIsATypeMismatch)
{
    EXPECT_EQ(ToDate(u"29/02/2024"), QDate(2024, 2, 29));
    for (const QString& text :
        QStringList{QString(), DateMask::Empty.toString(), "31/02/2026", QString(1000, u'7')}) {
        try {
            ToDate(text);
            FAIL() << qPrintable(text);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), RunTimeError::TypeMismatch);
            EXPECT_TRUE(error.Happened().contains("\nType mismatch"));
            EXPECT_TRUE(error.Happened().contains(text.left(60)));
            EXPECT_LT(error.Happened().size(), 150);
        }
    }
}

TEST(DateTextTest, IsTheSameInEveryLocale)
{
    for (const QLocale::Language language : {QLocale::Marathi, QLocale::English, QLocale::German}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(DateText(QDate(2026, 4, 1)), u"01/04/2026");
        EXPECT_EQ(Format(QDate(2026, 4, 1), u"dd MMMM yyyy"), u"01 April 2026");
        EXPECT_EQ(ClockText(QTime(21, 5, 0)), u"9:05:00 PM");
        EXPECT_EQ(ParseDate(u"01/04/2026"), QDate(2026, 4, 1));
    }
    QLocale::setDefault(QLocale::c());
}

TEST(DateTextTest, AnInvalidDateIsEmpty)
{
    EXPECT_EQ(DateText(QDate()), QString());
    EXPECT_EQ(Format(QDate(2026, 2, 31), u"dd MMMM yyyy"), QString());
}

TEST(DateTextTest, ReadsBackForEveryDayOfACentury)
{
    for (QDate date(1950, 1, 1); date.year() < 2050; date = date.addDays(1))
        ASSERT_EQ(ParseDate(DateText(date)), date);
}

TEST(FormatDateTest, KnowsThePatternsOfTheSystem)
{
    const QDate date(2026, 4, 1);
    EXPECT_EQ(Format(date, u"dd/MM/yyyy"), u"01/04/2026");
    EXPECT_EQ(Format(date, u"MM/dd/yyyy"), u"04/01/2026");
    EXPECT_EQ(Format(date, u"dd.MM.yyyy"), u"01.04.2026");
    EXPECT_EQ(Format(date, u"dd MMMM yyyy"), u"01 April 2026");
    EXPECT_EQ(Format(date, u"ddÀMMÀyy"), u"01À04À26");
    EXPECT_EQ(Format(date, u"ddÀmmÀyyyy"), u"01À04À2026");
    EXPECT_EQ(Format(date, u"#MM/dd/yyyy#"), u"#04/01/2026#");
    EXPECT_EQ(Format(date, u""), u"");
    EXPECT_EQ(Format(QDate(105, 12, 31), u"yyyy-MM-dd yy"), u"0105-12-31 05");
}

TEST(FormatDateTest, NamesEveryMonthInEnglish)
{
    const QStringView names[] = {u"January", u"February", u"March", u"April", u"May", u"June", u"July",
        u"August", u"September", u"October", u"November", u"December"};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(Format(QDate(2026, month, 15), u"MMMM"), names[month - 1]);
}

TEST(ClockTextTest, CountsTwelveHours)
{
    EXPECT_EQ(ClockText(QTime(9, 5, 0)), u"9:05:00 AM");
    EXPECT_EQ(ClockText(QTime(23, 5, 0)), u"11:05:00 PM");
    EXPECT_EQ(ClockText(QTime(0, 0, 9)), u"12:00:09 AM");
    EXPECT_EQ(ClockText(QTime(12, 0, 0)), u"12:00:00 PM");
    EXPECT_EQ(ClockText(QTime(11, 59, 59, 999)), u"11:59:59 AM");
    EXPECT_EQ(ClockText(QTime(13, 10, 30)), u"1:10:30 PM");
    EXPECT_EQ(ClockText(QTime()), QString());
}

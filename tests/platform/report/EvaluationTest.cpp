#include "tests/platform/report/ReportTest.h"

namespace {

class EvaluationTest : public ReportTest {
protected:
    // What a text of a template prints over one delivery.
    QString Printed(const QString& text)
    {
        return AllTexts(Template(QStringLiteral("<text>") + text + QStringLiteral("</text>"))).value(0);
    }

    void AddOne() { AddDelivery(7, QStringLiteral("सकाळ"), QStringLiteral("विठ्ठल शिंदे"), 12.5, 4.2, 437.5); }
};

}

TEST_F(EvaluationTest, ArithmeticKeepsThePrecedenceOfItsSigns)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{1 + 2 * 3 - 8 / 4}")), QStringLiteral("5"));
    EXPECT_EQ(Printed(QStringLiteral("{(1 + 2) * 3}")), QStringLiteral("9"));
    EXPECT_EQ(Printed(QStringLiteral("{-2 - -3}")), QStringLiteral("1"));
    EXPECT_EQ(Printed(QStringLiteral("{10 - 3 - 2}")), QStringLiteral("5"));
    EXPECT_EQ(Printed(QStringLiteral("{Amount / Liters|0.00}")), QStringLiteral("35.00"));
    EXPECT_EQ(Printed(QStringLiteral("{abs(Liters - 20)|0.0}")), QStringLiteral("7.5"));
}

TEST_F(EvaluationTest, DividingByNothingGivesNothing)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{Amount / (Liters - Liters)|0.00}")), QStringLiteral("0.00"));
}

TEST_F(EvaluationTest, AConditionChoosesBetweenTwoValues)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{if(Liters &gt; 12, 'जास्त', 'कमी')}")), QStringLiteral("जास्त"));
    EXPECT_EQ(
        Printed(QStringLiteral("{if(Liters &gt; 12 and Fat &lt; 4, 'हो', 'नाही')}")), QStringLiteral("नाही"));
    EXPECT_EQ(
        Printed(QStringLiteral("{if(not (Fat = 4.2) or Liters &lt;&gt; 12.5, 1, 2)}")), QStringLiteral("2"));
    EXPECT_EQ(Printed(QStringLiteral("{if(Liters &gt;= 12.5 and Liters &lt;= 12.5, Liters, '')|0.000}")),
        QStringLiteral("12.500"));
    EXPECT_EQ(Printed(QStringLiteral("[{if(Liters = 0, Liters, '')|0.000}]")), QStringLiteral("[]"));
}

TEST_F(EvaluationTest, AStoredTextIsSeenAndComparedInDevanagari)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{MemberName}")), QStringLiteral("विठ्ठल शिंदे"));
    EXPECT_EQ(Printed(QStringLiteral("{if(CollectionTime = 'सकाळ', 'होय', 'नाही')}")), QStringLiteral("होय"));
}

TEST_F(EvaluationTest, APlainFieldIsShownAsItIsStored)
{
    Run(QStringLiteral("insert into MembersListReport(CompanyId,Crieteria,MemberNo) values(1,'Area',1)"));
    const QString text =
        QStringLiteral("<report name=\"T\" paper=\"A4\"><source name=\"m\" table=\"MembersListReport\"/>"
                       "<text>{Crieteria|plain}</text>"
                       "<text if=\"plain(Crieteria) = 'Area'\">विभागवार</text>"
                       "<text if=\"plain(Crieteria) = 'Milk'\">दुधानुसार</text></report>");
    EXPECT_EQ(AllTexts(text), QStringList({QStringLiteral("Area"), QStringLiteral("विभागवार")}));
}

TEST_F(EvaluationTest, NumbersAndDatesTakeTheirFormats)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{Amount|######0.00}")), QStringLiteral("437.50"));
    EXPECT_EQ(Printed(QStringLiteral("{1.005|0.00}")), QStringLiteral("1.01"));
    EXPECT_EQ(Printed(QStringLiteral("{CollectionDate}")), QStringLiteral("05/04/2026"));
    EXPECT_EQ(Printed(QStringLiteral("{CollectionDate|dd-MM-yy}")), QStringLiteral("05-04-26"));
    EXPECT_EQ(Printed(QStringLiteral("{Liters} ली.")), QStringLiteral("12.5 ली."));
}

TEST_F(EvaluationTest, MoneyIsGroupedAsItIsInIndia)
{
    AddOne();
    const std::pair<const char*, const char*> amounts[] = {{"0", "0.00"}, {"999.995", "1,000.00"},
        {"1000", "1,000.00"}, {"99999", "99,999.00"}, {"100000", "1,00,000.00"}, {"123456.5", "1,23,456.50"},
        {"12345678", "1,23,45,678.00"}, {"-100", "-100.00"}, {"-123456", "-1,23,456.00"}};
    for (const auto& [amount, printed] : amounts)
        EXPECT_EQ(
            Printed(QStringLiteral("{%1|#,##,##0.00}").arg(QLatin1String(amount))), QLatin1String(printed));
    EXPECT_EQ(Printed(QStringLiteral("{1234567|#,##0}")), QStringLiteral("12,34,567"));
    for (const char* pattern : {"#,###,##0.00", "0,00", "#,##0.0,0", ",##0", "##,##,##"})
        EXPECT_EQ(OnlyFault(QStringLiteral("<text>{Amount|%1}</text>").arg(QLatin1String(pattern))),
            QStringLiteral("\"%1\" is no format of a number or a date").arg(QLatin1String(pattern)));
}

TEST_F(EvaluationTest, PartsOfATextAreJoinedAndEmptyOnesLeaveNoGap)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{join(', ', MemberName, '', ' ', CollectionNo, CollectionDate)}")),
        QStringLiteral("विठ्ठल शिंदे, 7, 05/04/2026"));
    EXPECT_EQ(Printed(QStringLiteral("{if(Liters &gt; 12, join('', Liters, ' लि.'), '')}")),
        QStringLiteral("12.5 लि."));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{join(', ', Liters = 1)}</text>")),
        QStringLiteral("a condition can't be printed; use if(…)"));
}

TEST_F(EvaluationTest, AFormatMakesATextThatCanBeJoinedAndCompared)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("{join(' ', format(Amount, '#,##0.00'), 'रुपये')}")),
        QStringLiteral("437.50 रुपये"));
    EXPECT_EQ(Printed(QStringLiteral("{if(format(CollectionDate, 'MM') = '04', 'होय', 'नाही')}")),
        QStringLiteral("होय"));
    EXPECT_EQ(Printed(QStringLiteral("{CollectionDate|dd MMMM yyyy}")), QStringLiteral("05 एप्रिल 2026"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{format(CollectionDate, '0.00')}</text>")),
        QStringLiteral("the format \"0.00\" needs a number"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{format(Liters, 'MM')}</text>")),
        QStringLiteral("the format \"MM\" needs a date"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{format(Liters, '0.0') + 1}</text>")),
        QStringLiteral("texts can't be added or multiplied; words are written outside of the braces"));
}

TEST_F(EvaluationTest, AnEmptyColumnIsNothingAndCountsAsZero)
{
    AddOne();
    EXPECT_EQ(Printed(QStringLiteral("[{SNF|0.0}]")), QStringLiteral("[]"));
    EXPECT_EQ(Printed(QStringLiteral("{SNF + 2}")), QStringLiteral("2"));
    EXPECT_EQ(Printed(QStringLiteral("{if(SNF = 0, 'रिकामे', 'भरले')}")), QStringLiteral("रिकामे"));
}

TEST_F(EvaluationTest, TheVariablesTellSocietyYearAndDates)
{
    EXPECT_EQ(
        Printed(QStringLiteral("{$society} {$year}")), QStringLiteral("श्री महालक्ष्मी दूध संस्था 2026-2027"));
    EXPECT_EQ(Printed(QStringLiteral("{$from} ते {$to|dd/MM}")), QStringLiteral("01/04/2026 ते 10/04"));
}

TEST_F(EvaluationTest, ATotalOutsideOfATableWalksThroughItsSource)
{
    AddOne();
    AddDelivery(8, QStringLiteral("सकाळ"), QStringLiteral("कमल"), 2.5, 3.5, 80.05);
    EXPECT_EQ(Printed(QStringLiteral("{sum(c.Amount)|0.00}")), QStringLiteral("517.55"));
    EXPECT_EQ(Printed(QStringLiteral("{count()} {min(Liters)} {max(Liters)}")), QStringLiteral("2 2.5 12.5"));
    EXPECT_EQ(Printed(QStringLiteral("{average(Fat)|0.00}")), QStringLiteral("3.85"));
}

TEST_F(EvaluationTest, AnExpressionHasALengthThatItsReckoningCanBear)
{
    const QString longest = QString(QStringLiteral("0")) + QStringLiteral("+1").repeated(999);
    EXPECT_EQ(Printed(QStringLiteral("{%1}").arg(longest)), QStringLiteral("999"));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text>{%1}</text>").arg(QStringLiteral("1+").repeated(100000))),
        QStringLiteral("{%1…}: it is longer than 2000 characters").arg(QStringLiteral("1+").repeated(20)));
    EXPECT_EQ(OnlyFault(QStringLiteral("<text if=\"%1\">a</text>")
                            .arg(QStringLiteral("1=1 and ").repeated(1000) + QStringLiteral("1=1"))),
        QStringLiteral("if=\"%1…\": it is longer than 2000 characters")
            .arg(QStringLiteral("1=1 and ").repeated(5)));
}

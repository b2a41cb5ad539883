#include "platform/template/ExpressionParser.h"

#include <gtest/gtest.h>

TEST(ExpressionReadingTest, WhatCantBeReadIsToldAndNotGuessed)
{
    const std::pair<const char16_t*, const char16_t*> faults[] = {{u"", u"the expression is empty"},
        {u"1 +", u"the expression breaks off"}, {u"(1", u"\")\" is missing"},
        {u"1 2", u"\"2\" isn't expected here"}, {u"'open", u"a text in quotes isn't closed"},
        {u"hello(1)", u"there is no function \"hello\""}, {u"#paper", u"there is no #paper"},
        {u"$town", u"there is no $town"}, {u"1 & 2", u"\"&\" has no meaning in an expression"},
        {u"if(1=1, 2)", u"\",\" is missing"}, {u"x == 1", u"\"==\" isn't known; it is written \"=\""},
        {u"x != 1", u"\"!=\" isn't known; it is written \"<>\""},
        {u"x = 1 && y = 2", u"\"&&\" isn't known; it is written \"and\""},
        {u"x = 1 || y = 2", u"\"||\" isn't known; it is written \"or\""},
        {u"1 + * 2", u"a value is missing before \"*\""}, {u"(1 + )", u"a value is missing before \")\""},
        {u"sum(x by y)", u"\"by\" stands in average(x by weight) and in running(x by field)"},
        {u"format(x, 'dm')", u"\"dm\" is no format of a number or a date"},
        {u"format(x, y)", u"\"y\" is no format of a number or a date"}, {u"join('a')", u"\",\" is missing"},
        {u"plain(1)", u"plain() takes a field"}, {u"c.", u"a column's name is missing behind \"c.\""}};
    for (const auto& [text, expected] : faults) {
        ExpressionFault fault;
        EXPECT_FALSE(ReadExpression(QStringView(text), fault).has_value());
        EXPECT_EQ(fault.text, QString::fromUtf16(expected));
    }
}

TEST(ExpressionReadingTest, BracketsWithoutEndAreRefusedAndDontOverflow)
{
    ExpressionFault fault;
    for (const char16_t sign : {u'(', u'-'}) {
        EXPECT_FALSE(ReadExpression(QString(Expression::LongestText, sign), fault).has_value());
        EXPECT_EQ(fault.text, "the brackets are nested too deeply");
    }
}

TEST(ExpressionReadingTest, WhatOnlyAFormulaKnowsIsNoneOfATemplate)
{
    const std::pair<const char16_t*, const char16_t*> faults[] = {
        {u"{p.PaymentDate} = 1", u"\"{\" has no meaning in an expression"},
        {u"x = \"a\"", u"\"\"\" has no meaning in an expression"},
        {u"x = Date(2026,4,1)", u"there is no function \"Date\""},
        {u"x = 1 AND y = 2", u"\"AND\" isn't expected here"}};
    for (const auto& [text, expected] : faults) {
        ExpressionFault fault;
        EXPECT_FALSE(ReadExpression(QStringView(text), fault).has_value());
        EXPECT_EQ(fault.text, QString::fromUtf16(expected));
    }
}

TEST(ExpressionReadingTest, AFormulaReadsItsFieldsAndDaysIntoTheSameTree)
{
    ExpressionFault fault;
    const std::optional<Expression> formula =
        ReadFormula(u"NOT ({p.PaymentDate} = DateTime (2026,4,1,00, 00, 00))", fault);
    ASSERT_TRUE(formula) << fault.text.toStdString();
    ASSERT_EQ(formula->operation, Operation::Not);
    const Expression& comparison = formula->arguments.front();
    ASSERT_EQ(comparison.operation, Operation::Equal);
    EXPECT_EQ(comparison.arguments[0].operation, Operation::Field);
    EXPECT_EQ(comparison.arguments[0].qualifier, "p");
    EXPECT_EQ(comparison.arguments[0].text, "PaymentDate");
    EXPECT_EQ(comparison.arguments[1].operation, Operation::Date);
    EXPECT_EQ(comparison.arguments[1].text, "2026-04-01");
    for (const char16_t* text :
        {u"{p.Day} = Date(2026,4)", u"{p.Day} = Date(2026,4,1.5)", u"{p.Day = 1", u"{.Day} = 1"})
        EXPECT_FALSE(ReadFormula(QStringView(text), fault).has_value())
            << QString::fromUtf16(text).toStdString();
}

#include "tests/platform/report/ReportTest.h"

#include "platform/database/Recordset.h"
#include "platform/report/SelectionFormula.h"

namespace {

class FormulaTest : public ReportTest {
protected:
    FormulaTest()
    {
        for (const int day : {1, 2, 3})
            RunSeen(QStringLiteral("insert into MilkPayments(PaymentDate,MemberNo,MemberName,NetAmount) "
                                   "values('0%1/04/2026',%1,'[राम]',%2)")
                        .arg(day)
                        .arg(day * 100));
    }

    // The members that a formula selects.
    QString Selected(const QString& formula)
    {
        const Selection selection = ReadSelectionFormula(formula, *connection);
        QStringList members;
        Recordset rows(
            *connection, "select MemberNo from " + selection.table + " where " + selection.condition);
        for (; !rows.Eof(); rows.MoveNext())
            members.append(rows.At(0).Text());
        return members.join(u',');
    }

    QString Refused(const QString& formula)
    {
        try {
            ReadSelectionFormula(formula, *connection);
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.Happened().contains(formula));
            return error.Happened().section("be read: ", 1).section(u'\n', 0, 0);
        }
        return "it was taken";
    }
};

}

TEST_F(FormulaTest, TheDateOfThePaymentListSelectsItsRows)
{
    EXPECT_EQ(Selected("{MilkPayments.PaymentDate} = DateTime (2026,4,2,00, 00, 00)"), "2");
    EXPECT_EQ(Selected("{milkpayments.paymentdate}>=Date(2026,04,02)"), "2,3");
}

TEST_F(FormulaTest, TheReportKnowsTheDateThatItIsAskedForWhetherOrNotThereAreRows)
{
    const auto dateOf = [this](const char* formula) {
        const std::unique_ptr<Report> report =
            Make("<report name=\"T\" paper=\"A4\"><source name=\"p\" table=\"MilkPayments\"/>"
                 "<text>{$date}|{count()}</text></report>",
                ReadSelectionFormula(QString::fromLatin1(formula), *connection));
        report->Complete();
        return Texts(report->PageAt(0)).join(u' ');
    };
    EXPECT_EQ(dateOf("{MilkPayments.PaymentDate} = DateTime (2026,4,2,00, 00, 00)"), "02/04/2026|1");
    EXPECT_EQ(dateOf("{MilkPayments.PaymentDate} = Date(2026,10,31) and {MilkPayments.MemberNo} > 0"),
        "31/10/2026|0");
    for (const char* none :
        {"", "{MilkPayments.MemberNo} > 0", "{MilkPayments.PaymentDate} <= Date(2026,4,3)",
            "not {MilkPayments.PaymentDate} = Date(2026,5,3)",
            "{MilkPayments.PaymentDate} = Date(2026,4,1) or {MilkPayments.MemberNo} > 1",
            "{MilkPayments.PaymentDate} > Date(2026,3,1) and ({MilkPayments.PaymentDate} = Date(2026,4,1) or "
            "{MilkPayments.PaymentDate} <> Date(2026,4,1))"})
        EXPECT_EQ(dateOf(none), "|3") << none;
}

TEST_F(FormulaTest, ComparisonsJoinWithAndOrNotAndBrackets)
{
    EXPECT_EQ(Selected("{MilkPayments.MemberNo} = 1 or {MilkPayments.MemberNo} > 1 and "
                       "{MilkPayments.NetAmount} < 250.5"),
        "1,2");
    EXPECT_EQ(Selected("({MilkPayments.MemberNo} = 1 or {MilkPayments.MemberNo} > 1) and "
                       "not ({MilkPayments.NetAmount} < 250.5)"),
        "3");
    EXPECT_EQ(Selected("{MilkPayments.MemberNo} <> 2"), "1,3");
}

TEST_F(FormulaTest, ATextIsComparedAsItIsStoredWhateverQuotesItHolds)
{
    EXPECT_EQ(Selected("{MilkPayments.MemberName} = 'rama'"), "1,2,3");
    EXPECT_EQ(Selected("{MilkPayments.MemberName} = 'राम'"), QString());
    connection->RunScript("update MilkPayments set MemberName='O''Neil' where MemberNo=2");
    EXPECT_EQ(Selected("{MilkPayments.MemberName} = \"O'Neil\""), "2");
}

TEST_F(FormulaTest, AnEmptyFormulaSelectsEverything)
{
    EXPECT_TRUE(ReadSelectionFormula("  ", *connection).table.isEmpty());
}

TEST_F(FormulaTest, AFormulaThatCantBeReadIsAnErrorThatShowsIt)
{
    EXPECT_EQ(Refused("{MilkPayments.PaymentDate} ="), "the expression breaks off.");
    EXPECT_EQ(Refused("PaymentDate = 1"), "a field such as {Table.Column} is missing.");
    EXPECT_EQ(Refused("{MilkPayments.Surname} = 1"), "there is no field {MilkPayments.Surname}.");
    EXPECT_EQ(Refused("{MilkPayments.PaymentDate} = DateTime (2026,2,30,00,00,00)"),
        "\"DateTime(2026,2,30)\" is no date.");
    EXPECT_EQ(Refused("{MilkPayments.PaymentDate} = DateTime (2026,2,3,10,00,00)"),
        "the books hold dates without a time of day.");
    EXPECT_EQ(
        Refused("{MilkPayments.PaymentDate} = 5"), "PaymentDate is compared with a value of another kind.");
    EXPECT_EQ(Refused("({MilkPayments.MemberNo} = 5"), "\")\" is missing.");
    EXPECT_EQ(Refused("{MilkPayments.MemberNo} = 5; delete * from MilkPayments"),
        "\";\" has no meaning in an expression.");
    EXPECT_EQ(Refused("{MilkPayments.MemberNo} = 5 and {MembersMaster.MemberNo} = 5"),
        "its fields are of more than one table.");
    EXPECT_EQ(Refused(QString(1000, u'(')), "the brackets are nested too deeply.");
}

TEST_F(FormulaTest, WordsMayStandInCapitals)
{
    EXPECT_EQ(Selected("{MilkPayments.MemberNo} = 1 OR NOT {MilkPayments.NetAmount} < 250.5 And "
                       "{MilkPayments.PaymentDate} > DATE(2026,4,1)"),
        "1,3");
}

TEST_F(FormulaTest, OnlyAFieldIsComparedAndOnlyWithAValue)
{
    const QString noValue = "a number, a text or a date is missing.";
    const QString noField = "a field such as {Table.Column} is missing.";
    const QString noComparison = "a comparison is missing.";
    const std::pair<const char*, QString> refused[] = {
        {"{MilkPayments.MemberNo} = {MilkPayments.NetAmount}", noValue},
        {"{MilkPayments.MemberNo} = 1 + 1", noValue}, {"{MilkPayments.MemberNo} = $year", noValue},
        {"{MilkPayments.MemberNo} = --1", noValue}, {"1 = {MilkPayments.MemberNo}", noField},
        {"{MilkPayments.MemberNo} + 1 = 2", noField}, {"sum({MilkPayments.MemberNo}) = 2", noField},
        {"{MemberNo} = 2", noField}, {"{MilkPayments.MemberNo}", noComparison},
        {"not {MilkPayments.MemberNo}", noComparison}};
    for (const auto& [formula, fault] : refused)
        EXPECT_EQ(Refused(QString::fromLatin1(formula)), fault) << formula;
    EXPECT_EQ(Selected("{MilkPayments.MemberNo} > -1"), "1,2,3");
}

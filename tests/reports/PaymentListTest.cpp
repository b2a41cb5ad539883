// The list of the payments of a date.

#include "tests/reports/ReportsTest.h"

#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "reports/frmReportPaymentList.h"
#include "tests/support/PdfText.h"

namespace {

// Members 1 and 2 are paid in cash, 3 and 4 through banks, and member 5 is gone from the register.
class PaymentListTest : public ReportsTest {
protected:
    PaymentListTest()
    {
        for (int number : {1, 2, 3, 4})
            AddMember(number, QStringLiteral("k%1").arg(number));
        Run("update MembersMaster set PaymentType='ba^nk',BankAccountNo='77' where MemberNo>=3");
        Run("update MembersMaster set BankName=(select max(BankName) from BankMaster) where "
            "MemberNo=4");
        for (int number : {1, 2, 3, 4, 5})
            Pay("05/04/2026", number, 100 * number);
        Pay("04/05/2026", 1, 999);
    }

    void Pay(const char* date, int number, double amount, const char* from = "01/04/2026",
        const char* to = "10/04/2026")
    {
        Run(Sql(u"insert into "
                u"MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,Liters,"
                u"Amount,Kapat,NetAmount) values(1,'",
            QString::fromLatin1(from), u"','", QString::fromLatin1(to), u"','", QString::fromLatin1(date),
            u"',1,", number, u",'k", number, u"',10,", amount, u",0,", amount, u")"));
    }

    QStringList Listed(const char* keys)
    {
        Type<frmReportPaymentList>(keys);
        EXPECT_FALSE(Failure);
        return ReportTexts();
    }
};

TEST_F(PaymentListTest, CashHoldsTheDaysPaymentsOfThoseWhoAreNotPaidThroughABank)
{
    const QStringList texts = Listed("05042026{ENTER}%i");
    for (const char* amount : {"100.00", "200.00", "500.00"})
        EXPECT_TRUE(texts.contains(QString::fromLatin1(amount))) << amount;
    for (const char* amount : {"300.00", "400.00", "999.00"})
        EXPECT_FALSE(texts.contains(QString::fromLatin1(amount))) << amount;
    EXPECT_TRUE(texts.contains("एकूण (3)"));
    EXPECT_TRUE(texts.contains("800.00"));
    EXPECT_EQ(TheWindow.Subject(), "05-04-2026");
}

TEST_F(PaymentListTest, BankHoldsTheAccountsAndWhatEachBankGets)
{
    const QStringList texts = Listed("05042026{ENTER}{DOWN}%i");
    EXPECT_TRUE(texts.contains("एकूण (2)"));
    EXPECT_TRUE(texts.contains("700.00"));
    EXPECT_EQ(texts.count("400.00"), 2);
    EXPECT_EQ(texts.count("300.00"), 2) << "member 3 has no bank";
    EXPECT_FALSE(texts.contains("100.00"));
}

TEST_F(PaymentListTest, TheSumsByBankAndOfThoseWithoutOneAddUpToTheTotal)
{
    AddMember(6, "k6");
    Run("update MembersMaster set PaymentType='ba^nk',BankName='naahI' where MemberNo=6");
    Run("insert into BankMaster(CompanyId,BankName) select 2,max(BankName) from BankMaster");
    Run("insert into BankMaster(CompanyId,BankName) values(1,'')");
    Pay("05/04/2026", 6, 50.25);
    const QStringList texts = Listed("05042026{ENTER}{DOWN}%i");
    const QStringList parts = texts.mid(texts.indexOf("बँकेनुसार एकूण") + 1);
    // Each figure stands before its label; the page's number is the last.
    ASSERT_EQ(parts.size(), 3 * 2 + 1) << parts.join(u'|').toStdString();
    EXPECT_EQ(parts[2], "350.25");
    EXPECT_EQ(parts[3], "बँक नोंदलेली नाही");
    EXPECT_EQ(parts[4], "750.25");
    EXPECT_EQ(parts[5], "एकूण");
    EXPECT_EQ(Val(parts[0]) + Val(parts[2]), Val(parts[4]));
    EXPECT_EQ(texts.count("750.25"), 2) << "the table's own total is the same";
}

TEST_F(PaymentListTest, WhereEveryBankIsListedThereIsNoLineForThoseWithoutOne)
{
    Run("update MembersMaster set BankName=(select max(BankName) from BankMaster)");
    EXPECT_FALSE(Listed("05042026{ENTER}{DOWN}%i").contains("बँक नोंदलेली नाही"));
}

TEST_F(PaymentListTest, AnAccountNumberStandsInWesternDigits)
{
    EXPECT_TRUE(Listed("05042026{ENTER}{DOWN}%i").contains("77"));
}

TEST_F(PaymentListTest, AnAccountNumberOfEighteenFiguresStandsWholeOnOneLine)
{
    const QString number = "501001234567891234";
    Run(QStringLiteral("update MembersMaster set BankAccountNo='%1' where MemberNo=4").arg(number));
    ASSERT_TRUE(Listed("05042026{ENTER}{DOWN}%i").contains(number));
    Report& report = *TheWindow.Shown.back();
    float shortOne = 0;
    for (const PlacedItem& item : report.PageAt(0).items) {
        if (item.text == "77")
            shortOne = item.height;
        if (item.text != number)
            continue;
        EXPECT_NE(item.fit, Fit::Cut);
        EXPECT_GT(shortOne, 0);
        EXPECT_EQ(item.height, shortOne);
    }
    const QString pdf = FolderFile("read.pdf");
    EXPECT_TRUE(report.SavePdf(pdf).Done());
    EXPECT_TRUE(WordsOf(PdfText(pdf)).contains(number));
}

TEST(PaymentListFormulaTest, DayAndMonthGoIntoTheFormulaWithoutTheirNoughts)
{
    EXPECT_EQ(frmReportPaymentList::SelectionFormula("04/05/2026"),
        "{MilkPayments.PaymentDate} = DateTime (2026,5,4,00, 00, 00)");
    EXPECT_EQ(frmReportPaymentList::SelectionFormula("30/10/2026"),
        "{MilkPayments.PaymentDate} = DateTime (2026,10,30,00, 00, 00)");
}

TEST_F(PaymentListTest, TheFormulaSelectsThePaymentsOfItsDay)
{
    EXPECT_TRUE(Listed("04052026{ENTER}%i").contains("999.00"));
}

TEST_F(PaymentListTest, AnEmptyListSaysForWhichDateItIsEmpty)
{
    for (const auto& [keys, word] :
        {std::pair("10102026{ENTER}%i", u"रोख"), std::pair("10102026{ENTER}{DOWN}%i", u"बँकेचे")}) {
        const QStringList texts = Listed(keys);
        EXPECT_TRUE(texts.contains(
            QStringLiteral("दिनांक 10/10/2026 रोजी %1 पेमेंट नाही.").arg(QString::fromUtf16(word))));
        EXPECT_TRUE(texts.contains("पेमेंट दिनांक 10/10/2026"));
    }
    const QStringList onlyBank = [this] {
        Run("delete * from MilkPayments where MemberNo<>3");
        return Listed("05042026{ENTER}%i");
    }();
    EXPECT_TRUE(onlyBank.contains("दिनांक 05/04/2026 रोजी रोख पेमेंट नाही."));
}

TEST_F(PaymentListTest, ThePeriodOfTheHeadSpansThoseOfAllItsRowsAndOfNoOthers)
{
    const auto period = [this](const char* keys) {
        return Listed(keys).filter("कालावधी").join(u'|').toStdString();
    };
    EXPECT_EQ(period("05042026{ENTER}%i"), "कालावधी 01/04/2026 ते 10/04/2026");
    Pay("05/04/2026", 2, 10, "11/04/2026", "20/04/2026");
    Pay("05/04/2026", 1, 10, "21/03/2026", "31/03/2026");
    Pay("05/04/2026", 4, 10, "01/02/2026", "02/05/2026");
    Pay("06/04/2026", 1, 10, "01/01/2026", "31/12/2026");
    EXPECT_EQ(period("05042026{ENTER}%i"), "कालावधी 21/03/2026 ते 20/04/2026");
    EXPECT_EQ(period("05042026{ENTER}{DOWN}%i"), "कालावधी 01/02/2026 ते 02/05/2026");
    EXPECT_EQ(period("10102026{ENTER}%i"), "") << "nothing was paid then";
}

TEST_F(PaymentListTest, CashIsChosenAtFirstAndADateThatIsNoneTakesTheFocusBack)
{
    On<frmReportPaymentList>([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "Option1"), "1");
        Type(clerk, "3104{ENTER}%i");
        EXPECT_EQ(Focus(clerk), "MaskFromDate");
        EXPECT_TRUE(TheWindow.Shown.empty());
        Type(clerk, "{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(PaymentListTest, TwoRunsGiveTheSameAndNothingIsStaged)
{
    const QStringList payments = Rows("select * from MilkPayments");
    const QStringList texts = Listed("05042026{ENTER}%i");
    EXPECT_EQ(Listed("05042026{ENTER}%i"), texts);
    EXPECT_EQ(Rows("select * from MilkPayments"), payments);
    EXPECT_EQ(Rows("select * from ReportDates"), QStringList());
}

TEST_F(PaymentListTest, AMissingTemplateEndsTheProgram)
{
    RemoveTemplate("BankMilkPayment.rpt");
    Type<frmReportPaymentList>("05042026{ENTER}{DOWN}%i");
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
}

}

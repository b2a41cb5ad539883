// The sales to an account of the federation beside the society's own measure.

#include "tests/reports/BooksTest.h"

#include "platform/database/Sql.h"

namespace {

constexpr const char* Union = "dUQa saMGa";
constexpr const char* OfTheUnion = "01042026{ENTER}30042026{ENTER}dUQa saMGa{ENTER}%i";

class SalesComparisonTest : public BooksTest {
protected:
    SalesComparisonTest() { AddAccount(Union, " Debtors ", " saMGa"); }

    void Compare(const char* keys = OfTheUnion) { Print<frmReportCashBook>("V", keys); }

    // A sale of the cow's milk, with the society's own measure.
    void Sell(const char* date, int number, double liters, double amount, double ourLiters, double ourAmount,
        const char* customer = Union, int company = 1)
    {
        Run(Sql(u"insert into MilkSales values(",
            Values(company, QString::fromLatin1(date), QString("sakaL"), QString("saMGa ivaËI"), number, 1,
                QString::fromUtf8(customer), QString("gaaya"), liters, 4.1, 40, amount, ourLiters, 8.5, 4.25,
                41, ourAmount),
            u")"));
    }
};

}

TEST_F(SalesComparisonTest, TheAccountsAreTheDebtorsOfTheFederationInTheirOrder)
{
    AddAccount("Anya", "Debtors", "");
    AddAccount("baÐk", "Bank", "saMGa");
    AddAccount("Apalaa saMGa", "Debtors", "saMGa");
    AddAccount("prka", "Debtors", "saMGa", 0, "D", 2);
    InMode<frmReportCashBook>("V", [](Clerk& clerk) {
        EXPECT_EQ(dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAccountName"))->Items(),
            Lines({"Apalaa saMGa", Union}));
    });
}

TEST_F(SalesComparisonTest, TheAccountsSalesOfTheDaysAreStagedWithBothMeasures)
{
    Sell("31/03/2026", 1, 99, 99, 99, 99);
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5);
    Sell("30/04/2026", 3, 50, 2000, 49, 2009, " dUQa saMGa ");
    Sell("01/05/2026", 4, 99, 99, 99, 99);
    Sell("02/04/2026", 5, 99, 99, 99, 99, "Anya");
    Sell("02/04/2026", 6, 99, 99, 99, 99, Union, 2);
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,77)");
    Run("insert into ReportDates(CompanyId) values(77)");
    Compare();
    EXPECT_EQ(Rows("select * from MilkSalesTemp"),
        Lines({"1|01/04/2026|sakaL|saMGa ivaËI|2|1|dUQa saMGa|gaaya|100|4.1|40|4000|101.5|8.5|4.25|41|4161.5",
            "1|30/04/2026|sakaL|saMGa ivaËI|3|1| dUQa saMGa |gaaya|50|4.1|40|2000|49|8.5|4.25|41|2009"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|01/04/2026|30/04/2026"}));
    EXPECT_EQ(TheBox.Shown, QStringList());
    EXPECT_EQ(TheWindow.Titles(), Lines({"दूध विक्रीची तुलना"}));
    EXPECT_EQ(TheWindow.Subject(), "दूध संघ 01-04-2026 ते 30-04-2026");
}

TEST_F(SalesComparisonTest, ThePaperComparesEachSaleAndTheSums)
{
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5);
    Sell("30/04/2026", 3, 50, 2000, 49, 2009);
    Compare();
    const QStringList texts = ReportTexts();
    for (const char* figure : {"100.000", "101.500", "-1.500", "-161.50", "1.000", "-9.00", "8.50"})
        EXPECT_TRUE(texts.contains(figure)) << figure;
    for (const char* sum : {"150.000", "150.500", "-0.500", "6000.00", "6170.50", "-170.50"})
        EXPECT_EQ(texts.count(QString::fromLatin1(sum)), 3)
            << "of the animal, of all and in the list: " << sum;
}

TEST_F(SalesComparisonTest, ANameThatDiffersByMoreThanBlanksFindsNoSalesAndGivesTheMessage)
{
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,77)");
    Run("insert into ReportDates(CompanyId) values(77)");
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5, "dUQasaMGa");
    Compare();
    EXPECT_EQ(TheBox.Shown, Lines({"No Records in the Given Crieteria"}));
    EXPECT_EQ(TheBox.Titles, Lines({"Comparison Statement"}));
    EXPECT_TRUE(TheWindow.Shown.empty());
    EXPECT_EQ(Rows("select * from MilkSalesTemp"), QStringList());
    EXPECT_EQ(Rows("select CompanyId from ReportDates"), Lines({"77"})) << "it stops before the dates";
}

TEST_F(SalesComparisonTest, WithoutAnAccountThereAreNoSales)
{
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5);
    Compare("01042026{ENTER}30042026%i");
    EXPECT_EQ(TheBox.Shown, Lines({"No Records in the Given Crieteria"}));
}

TEST_F(SalesComparisonTest, TwoRunsInARowGiveTheSame)
{
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5);
    Compare();
    const QStringList texts = ReportTexts();
    Compare();
    EXPECT_EQ(One("select count(*) from MilkSalesTemp"), "1");
    EXPECT_EQ(One("select count(*) from ReportDates"), "1");
    EXPECT_EQ(ReportTexts(), texts);
}

TEST_F(SalesComparisonTest, RowsOfNoCompanyAreTidiedAwayAndThenThereIsNothingToCompare)
{
    gAppState.gCompanyId = 0;
    AddAccount(Union, "Debtors", "saMGa", 0, "D", 0);
    Sell("01/04/2026", 2, 100, 4000, 101.5, 4161.5, Union, 0);
    Compare();
    EXPECT_EQ(One("select count(*) from MilkSalesTemp"), "0");
    EXPECT_EQ(TheBox.Shown, Lines({"No Records in the Given Crieteria"}));
    EXPECT_TRUE(TheWindow.Shown.empty());
}

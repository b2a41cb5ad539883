// The templates of purchase, sales, and the books of cash and bank, laid out as their golden files say.

#include "tests/reports/TemplateGoldenTest.h"

#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "reports/frmReportCashBook.h"
#include "reports/frmReportPurchaseSales.h"
#include "society/Words.h"

namespace {

class ShippedTemplatesOfBooksTest : public TemplateGoldenTest {
protected:
    template <class S> void Print(const char* mode, const char* keys)
    {
        gAppState.gReportMode = QString::fromLatin1(mode);
        Type<S>(keys);
        ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    }

    void Post(const QDate& day, int tranId, QStringView type, const QString& debit, const QString& credit,
        double amount, const QString& narration)
    {
        Run(Sql(
            u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            u"Amount,Narration) values(",
            Values(1, day, tranId, type, debit, credit, amount, narration), u")"));
    }

    // Ten days of sales to a local buyer, in cash, and to the federation, which measures less than the
    // society.
    void SellForTenDays()
    {
        Run("delete * from MilkSales");
        for (QDate day(2026, 4, 1); day <= QDate(2026, 4, 10); day = day.addDays(1))
            for (const QStringView shift : {Word::Morning, Word::Evening}) {
                const int dice = day.day() * 7 + (shift == Word::Morning ? 3 : 0);
                Sell(day, shift, 1, "ha^Tola AmaRt", Word::LocalSale, Word::Cow, 5 + dice % 6, 0);
                Sell(day, shift, 2, "raoK", Word::Cash, Word::Buffalo, 2 + dice % 3, 0);
                Sell(day, shift, 3, "ijalha dUQa saMGa", Word::FederationSale, Word::Cow,
                    120 + dice % 20 / 8.0, 1.25);
                Sell(day, shift, 4, "ijalha dUQa saMGa", Word::FederationSale, Word::Buffalo,
                    80 + dice % 16 / 4.0, -0.5);
            }
    }

private:
    // `more` litres by the society's own measure, if it has measured.
    void Sell(const QDate& day, QStringView shift, int number, const QString& customer, QStringView type,
        QStringView animal, double liters, double more)
    {
        const bool isCow = animal == Word::Cow;
        const bool isMeasured = type == Word::FederationSale;
        const double rate = isCow ? 38.5 : 52.25;
        const double ours = isMeasured ? liters + more : 0;
        const auto rupees = [](double amount) { return Val(Format(amount, u"0.00")); };
        Run(Sql(u"insert into MilkSales values(",
            Values(1, day, shift, type, number, 1, customer, animal, liters, isCow ? 4.1 : 6.8, rate,
                rupees(liters * rate), ours, isMeasured ? 8.5 : 0, isMeasured ? (isCow ? 4.25 : 6.75) : 0,
                isMeasured ? rate + 0.75 : 0, rupees(ours * (rate + 0.75))),
            u")"));
    }
};

}

TEST_F(ShippedTemplatesOfBooksTest, TheCashBookOpensEachDayWithWhatIsBroughtForward)
{
    Run("delete * from TransactionsMaster");
    Run("update AccountsMaster set OpeningBalance=-12500.75,OpeningDorC='D' where AccountName='raoK'");
    const QString member = One("select MemberName from MembersMaster where MemberNo=3");
    Post(QDate(2026, 4, 2), 1, u"irsaIT", "raoK", member, 2000, "]cala jamaa JaalaI.");
    Post(QDate(2026, 4, 5), 1, u"pomaonT", member, "raoK", 15000.5, "]cala idlaI.");
    Post(QDate(2026, 4, 5), 2, u"irsaIT", "raoK", member, 250, "]cala jamaa JaalaI.");
    Post(QDate(2026, 4, 5), 3, u"pomaonT", member, "raoK", 9877887.25,
        "dUQa vaahtUk Kca- AaiNa [tr saaih%ya, maihnyaacaI sava- ibalao");
    Post(QDate(2026, 4, 9), 1, u"irsaIT", "raoK", member, 9890637.75, "]cala jamaa JaalaI.");
    Post(QDate(2026, 4, 10), 1, u"irsaIT", "raoK", "raoK", 100, "");
    Print<frmReportCashBook>("C", "03042026{ENTER}30042026{ENTER}%i");
    CompareWithGolden("CashBook");
}

TEST_F(ShippedTemplatesOfBooksTest, TheBankBookOfAMonthTakesSeveralPages)
{
    Run("delete * from TransactionsMaster");
    const QString bank = One("select AccountName from AccountsMaster where GroupCode='Bank'");
    for (int i = 1; i <= 90; ++i) {
        const QDate day = QDate(2026, 4, 1).addDays(i / 3);
        if (i % 4 == 0)
            Post(day, i, u"pomaonT", "raoK", bank, 1000.5 * (i % 7), "raoK kaZlaI");
        else
            Post(day, i, u"irsaIT", bank, "raoK", 725.25 * (i % 5 + 1), "Barnaa");
    }
    gAppState.gReportMode = "B";
    On<frmReportCashBook>([&](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}");
        clerk.Do([&] { dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboAccountName"))->SetText(bank); });
        Type(clerk, "%i");
    });
    CompareWithGolden("BankBook");
}

TEST_F(ShippedTemplatesOfBooksTest, PurchaseAndSalesStandDayByDayOverTwoMonths)
{
    for (QDate day(2026, 4, 20); day <= QDate(2026, 5, 12); day = day.addDays(1)) {
        if (day.day() % 7 != 0)
            Post(day, 900, u"]Qaar KrodI", "KrodI", "rama", 4100.25 + day.day() * 13, "");
        if (day.day() % 5 != 0)
            Post(day, 901, u"raoK ivaËI", "raoK", "ivaËI", 900.5 + day.day() * 7, "");
        Post(day, 902, u"]Qaar ivaËI", "saMGa", "ivaËI", 3400, "");
    }
    Print<frmReportPurchaseSales>("PS", "20042026{ENTER}12052026{ENTER}%i");
    CompareWithGolden("PurchaseSalesReport");
}

TEST_F(ShippedTemplatesOfBooksTest, ThePurchasesBeginWithTheirSummaries)
{
    Run("delete * from MilkCollections where MemberNo>7");
    Print<frmReportPurchaseSales>("MP", "01042026{ENTER}04042026{ENTER}%i");
    CompareWithGolden("MilkPurchaseReport");
}

TEST_F(ShippedTemplatesOfBooksTest, TheSalesBeginWithTheirSummaries)
{
    SellForTenDays();
    Print<frmReportPurchaseSales>("MS", "01042026{ENTER}10042026{ENTER}%i");
    CompareWithGolden("MilkSalesReport");
}

TEST_F(ShippedTemplatesOfBooksTest, TheComparisonBeginsWithTheSumsOfBothMeasures)
{
    SellForTenDays();
    Run("insert into AccountsMaster values(1,9,'ijalha dUQa saMGa','Debtors','saMGa',0,'D',0,'D')");
    Print<frmReportCashBook>("V", "01042026{ENTER}10042026{ENTER}ijalha{ENTER}%i");
    CompareWithGolden("MilkSalesComparisonReport");
}

// What has to balance between vouchers, payments and the closing columns, and by how much it doesn't where it
// is meant not to.

#include "payments/frmNewMilkPayment.h"
#include "platform/database/Sql.h"
#include "platform/text/Numbers.h"
#include "tests/support/SocietyTest.h"
#include "vouchers/frmUchalVouchers.h"

#include <cmath>

namespace {

// Member 5 has brought milk of 4300.50 in the first ten days of April, of which 20.10 are kept as deposit.
class WhatMustBalanceTest : public SocietyTest {
protected:
    WhatMustBalanceTest()
    {
        AddMember(5, "rama");
        Set("ThevKapatCow=0.10,ThevKapatBuff=0.20,FixedKapat=0,DecimalPayment='PayIt'");
        AddMilk(1, "gaaya", 100, 2500);
        AddMilk(4, "mhOsa", 50.5, 1800.50);
    }

    void Set(const char* settings) { Run(QString("update AutoSettings set ") + settings); }

    void AddMilk(int day, const char* animal, double litres, double amount)
    {
        Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
            Values(1, QDate(2026, 4, day), u"sakaL", 1, 5, u"rama", QString::fromLatin1(animal), litres, 4.5,
                25, amount, 0),
            u")"));
    }

    void Give(const char* date, const char* head, const char* amount)
    {
        AtVouchers("%n",
            QString("%1{ENTER}{ENTER}5{ENTER}{ENTER}%2{ENTER}%3{ENTER}{ENTER}{F4}{ENTER}%n")
                .arg(QLatin1String(date), QString::fromUtf8(head), QLatin1String(amount)));
    }

    void TakeIn(const char* date, const char* amount)
    {
        AtVouchers("{DOWN}%n",
            QString("%1{ENTER}{ENTER}5{ENTER}{ENTER}%2{ENTER}{ENTER}%n")
                .arg(QLatin1String(date), QLatin1String(amount)));
    }

    void AtVouchers(const char* way, const QString& keys)
    {
        On<frmUchalVouchers>([&](Clerk& clerk) { clerk.Type(way + keys); });
        EXPECT_FALSE(Failure);
    }

    void AtPayment(const char* keys)
    {
        On<frmNewMilkPayment>([&](Clerk& clerk) {
            Type(clerk, "{DOWN}{ENTER}{ENTER}");
            Type(clerk, keys);
        });
        EXPECT_FALSE(Failure);
    }

    void Pay() { AtPayment("%n01042026{ENTER}{ENTER}5{ENTER}%s%h"); }
    void TakeBack() { AtPayment("%k01042026{ENTER}5{ENTER}{ENTER}"); }

    double Figure(const char* query) { return One(QLatin1String(query)).toDouble(); }

    // Given less received, of the raw rows.
    double Owed()
    {
        return Figure("select sum(Amount) from TransactionsDetails")
            - Figure("select sum(Amount) from AdvanceReceipt");
    }

    double ClosingUchal() { return Figure("select ClosingUchal from MembersMaster"); }

    // All but the work tables; the closing columns, which are in single precision, to the paisa.
    std::string Books()
    {
        QStringList rows;
        for (const char* table : {"MilkCollections", "MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt",
                 "TransactionsMaster", "TransactionsDetails", "AutoSettings", "CompanySelected"})
            rows += Rows(QString("select * from ") + table);
        for (const char* column : {"ClosingBalance", "CowClosingThev", "BuffClosingThev", "ClosingUchal"})
            rows += Format(
                One(QString("select %1 from MembersMaster").arg(QLatin1String(column))).toDouble(), u"0.00");
        return rows.join(u'\n').toStdString();
    }
};

TEST_F(WhatMustBalanceTest, WhatIsAddedAndThenTakenBackLeavesAllAsItWasToThePaisa)
{
    Set("FixedKapat=5,DecimalPayment='AddThev'");
    const std::string empty = Books();
    Give("02042026", "KaV", "823.45");
    TakeIn("03042026", "40.15");
    const std::string unpaid = Books();
    Pay();
    EXPECT_NE(Books(), unpaid);
    TakeBack();
    EXPECT_EQ(Books(), unpaid);
    AtVouchers("{DOWN}%k", "{ENTER}{ENTER}%h");
    AtVouchers("%k", "{ENTER}{ENTER}%h");
    EXPECT_EQ(Books(), empty);
}

TEST_F(WhatMustBalanceTest, TheClosingAdvanceIsWhatWasGivenLessWhatCameBack)
{
    Give("25032026", "]cala", "500.25");
    Give("02042026", "KaV", "323.45");
    TakeIn("03042026", "40.15");
    EXPECT_NEAR(Owed(), 783.55, 1e-9);
    EXPECT_NEAR(ClosingUchal(), 783.55, 1e-9);
    Pay();
    EXPECT_NEAR(Owed(), 0.55, 1e-9);
    EXPECT_NEAR(ClosingUchal(), 0.55, 0.001);
}

TEST_F(WhatMustBalanceTest, TheFixedDeductionTakesItsAmountMoreOffTheClosingAdvanceThanOffTheDebt)
{
    Set("FixedKapat=5.5");
    Give("02042026", "KaV", "823.45");
    Pay();
    EXPECT_EQ(One("select TotalUchal from MilkPayments"), "828");
    EXPECT_NEAR(Owed(), 0.95, 1e-9);
    EXPECT_NEAR(ClosingUchal(), 0.95 - 5.5, 0.001);
}

TEST_F(WhatMustBalanceTest, PaiseToTheDepositStandInADetailAndInNoColumn)
{
    Set("DecimalPayment='AddThev'");
    Give("02042026", "KaV", "828.45");
    Pay();
    EXPECT_EQ(Rows("select AdvanceType,Amount from MilkPaymentsDetails order by Amount"),
        (QStringList{"zova|0.95", "gaaya zova|10", "mhOsa zova|10.1", "KaV|828.45"}));
    EXPECT_EQ(One("select NetAmount from MilkPayments"), "3451");
    EXPECT_NEAR(Figure("select sum(Amount) from MilkPaymentsDetails") + 3451, 4300.50, 1e-9);
    EXPECT_EQ(Rows("select CowClosingThev,BuffClosingThev from MembersMaster"), QStringList("10|10.1"));
    EXPECT_NEAR(Figure("select ClosingBalance from MembersMaster"), -828.45 + 828 - 3451 - 20.10, 0.001);
}

TEST_F(WhatMustBalanceTest, ABillDateBehindItsPeriodLeavesTheReceiptUnnettedAndTheDetailsForGood)
{
    Give("02042026", "KaV", "828.45");
    TakeIn("03042026", "50");
    const std::string unpaid = Books();
    AtPayment("%n01042026{ENTER}15042026{ENTER}5{ENTER}%s%h");
    EXPECT_EQ(One("select TotalUchal from MilkPayments"), "828") << "50 more than is owed";
    EXPECT_NEAR(Owed(), 828.45 - 50 - 828, 1e-9);
    TakeBack();
    EXPECT_NEAR(Figure("select sum(Amount) from MilkPaymentsDetails"), 828.45 + 20.10, 1e-9);
    Run("delete * from MilkPaymentsDetails");
    EXPECT_EQ(Books(), unpaid) << "and nothing else is left";
}

TEST_F(WhatMustBalanceTest, AChangedReceiptTakesTwiceItsOldAmountMoreOffTheClosingAdvanceThanOffTheDebt)
{
    Give("02042026", "KaV", "500");
    TakeIn("03042026", "40");
    EXPECT_EQ(ClosingUchal(), Owed());
    AtVouchers("{DOWN}%d", "{ENTER}{ENTER}{ENTER}60{ENTER}{ENTER}%h");
    EXPECT_EQ(Owed(), 440);
    EXPECT_EQ(ClosingUchal(), 440 - 2 * 40);
}

}

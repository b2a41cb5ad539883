// What the demonstration society's members were paid, worked out again from its raw rows.

#include "tests/journeys/DemoSocietyTest.h"
#include "tools/reckoning/PaymentReckoning.h"

namespace {

class DemoPaymentTest : public DemoSocietyTest {
protected:
    std::string Sorted(const char* query) { return Joined(Rows(QString::fromUtf8(query))); }

    static std::string Joined(QStringList rows)
    {
        rows.sort();
        return rows.join(u'\n').toStdString();
    }
};

TEST_F(DemoPaymentTest, TheLastTenDaysOfAprilWerePaidAsTheReckoningSays)
{
    const PaymentReckoning::Period period{QDate(2026, 4, 21), QDate(2026, 4, 30), QDate(2026, 4, 30)};
    PaymentReckoning reckoning;
    reckoning.ReadSettings(false);
    reckoning.ReadOpening();
    reckoning.ReadMilk(period);
    reckoning.PayMany(1, 40, period);
    EXPECT_EQ(Count("MilkPayments"), 40);
    for (const Compared& rows : reckoning.Comparison())
        EXPECT_EQ(Joined(rows.reckoned), Joined(rows.stored)) << rows.what.toStdString();
}

TEST_F(DemoPaymentTest, ThereAreAdvancesOfEachHeadAndMoneyThatCameBack)
{
    EXPECT_EQ(Sorted("select distinct AdvanceType from TransactionsDetails"),
        Joined({"]cala", "KaV", "ikraNaa maalaÀroSana", "[tr"}));
    EXPECT_EQ(Count("AdvanceReceipt where AdvanceType='Uchal Receipt'"), 4);
    EXPECT_EQ(Count("TransactionsMaster where TranType='pomaonT'"), 14);
    EXPECT_EQ(Count("TransactionsMaster where TranType='irsaIT'"), 4);
}

TEST_F(DemoPaymentTest, AVouchersHeadsComeToItsAmount)
{
    EXPECT_EQ(Count("TransactionsMaster m where TranType='pomaonT' and round(Amount*100)<>(select "
                    "round(sum(d.Amount)*100) from TransactionsDetails d where d.TranDate=m.TranDate and "
                    "d.TranId=m.TranId)"),
        0);
}

TEST_F(DemoPaymentTest, OneOwesMoreThanHisMilkBrings)
{
    EXPECT_EQ(Count("MilkPayments where MemberNo=38 and NetAmount<1 and CurrentBalance>15000"), 1);
}

}

// Keys without sense over the payments: it never breaks, and the balances hold.

#include "tests/payments/PaymentsTest.h"

#include <cmath>
#include <iterator>
#include <random>

namespace {

class PaymentWalksTest : public PaymentsTest, public ::testing::WithParamInterface<unsigned> {
protected:
    PaymentWalksTest() : m_dice(GetParam())
    {
        AddExample();
        AddMilk(12, "05/04/2026", "mhOsa", 40, 2000.25);
        AddMilk(12, "15/04/2026", "mhOsa", 30, 1500.75);
        AddMilk(5, "15/04/2026", "gaaya", 20, 700.55);
        AddVoucher("14/04/2026", 12, "]cala", 300);
        AddReceipt("16/04/2026", 12, "Uchal Receipt", 120.5);
        Set("DecimalPayment='AddThev'");
    }

    int Throw(std::size_t sides) { return static_cast<int>(m_dice() % sides); }

    // Mostly what moves, then figures, orders, and stretches that lead somewhere.
    QString NextKeys()
    {
        static constexpr const char* Moves[] = {"{ENTER}", "{ENTER}", "{ENTER}", "{TAB}", "+{TAB}", "{DOWN}",
            "{UP}", "{LEFT}", "{HOME}", "{BS}", "{DEL}", "n", "a", "."};
        static constexpr const char* Orders[] = {
            "%n", "%s", "%s", "%h", "%h", "%k", "%r", "%d", "%n", "{F5}", "{F2}", "{ESC}", " ", "%b"};
        static constexpr const char* Phrases[] = {"%n01042026{ENTER}{ENTER}5{ENTER}", "%s%h",
            "%n11042026{ENTER}{ENTER}12{ENTER}", "%n01042026{ENTER}20042026{ENTER}12{ENTER}",
            "%k01042026{ENTER}5{ENTER}", "%k11042026{ENTER}12{ENTER}", "%k",
            "{ENTER}{ENTER}{ENTER}100{ENTER}", "11042026{ENTER}{ENTER}1{ENTER}12{ENTER}{ENTER}",
            "+{TAB}+{TAB}01042026{ENTER}"};
        const int kind = Throw(100);
        if (kind < 50)
            return QLatin1String(Moves[Throw(std::size(Moves))]);
        if (kind < 65)
            return QString(QChar(u'0' + Throw(10))) + (Throw(3) > 0 ? QStringLiteral("{ENTER}") : QString());
        if (kind < 80)
            return QLatin1String(Orders[Throw(std::size(Orders))]);
        return QLatin1String(Phrases[Throw(std::size(Phrases))]);
    }

    double Sum(const char* expression, int member)
    {
        return One(QStringLiteral("select sum(%1) from MilkPayments where MemberNo=%2")
                       .arg(QLatin1String(expression))
                       .arg(member))
            .toDouble();
    }

    double Closing(const char* column, int member)
    {
        return One(QStringLiteral("select %1 from MembersMaster where MemberNo=%2")
                       .arg(QLatin1String(column))
                       .arg(member))
            .toDouble();
    }

    // What the closing columns were moved by is what the payments that stand say. The larger the figures, the
    // more of them single precision has rounded away.
    void ExpectBalances(double largest)
    {
        const double near = std::max(0.02, largest * 1e-5);
        for (const int member : {5, 12}) {
            EXPECT_NEAR(Closing("ClosingUchal", member), -Sum("TotalUchal", member), near);
            EXPECT_NEAR(Closing("CowClosingThev", member), Sum("ThevKapatCow", member), near);
            EXPECT_NEAR(Closing("BuffClosingThev", member), Sum("ThevKapatBuff", member), near);
            EXPECT_NEAR(Closing("ClosingBalance", member),
                Sum("TotalUchal-NetAmount-ThevKapatCow-ThevKapatBuff", member), near);
            EXPECT_NEAR(Sum("Kapat", member), Sum("TotalUchal+ThevKapatCow+ThevKapatBuff", member), near);
        }
    }

private:
    std::mt19937 m_dice;
};

TEST_P(PaymentWalksTest, FiveThousandKeysNeverBreakItAndTheBalancesHold)
{
    constexpr int Keys = 5000;
    int typed = 0;
    int saved = 0;
    int reversed = 0;
    double largest = 0;
    while (typed < Keys) {
        Play([&](Clerk& clerk) {
            clerk.Type(QLatin1String(Throw(4) > 0 ? "{DOWN}{ENTER}{ENTER}" : "{DOWN}{DOWN}{ENTER}"));
            int payments = One("select count(*) from MilkPayments").toInt();
            while (typed < Keys && !clerk.ScreenName().isEmpty()) {
                const QString keys = NextKeys();
                clerk.Type(keys);
                typed += static_cast<int>(ParseKeys(keys).size());
                const int now = One("select count(*) from MilkPayments").toInt();
                saved += now > payments ? 1 : 0;
                reversed += now < payments ? 1 : 0;
                payments = now;
                for (const char* column :
                    {"Amount", "TotalUchal", "ThevKapatCow", "ThevKapatBuff", "NetAmount"})
                    for (const QString& figure :
                        Rows(QStringLiteral("select %1 from MilkPayments").arg(QLatin1String(column))))
                        largest = std::max(largest, std::abs(figure.toDouble()));
            }
        });
        ASSERT_FALSE(Failure) << "after " << typed << " keys";
        ExpectBalances(largest);
    }
    EXPECT_GT(saved, 5);
    EXPECT_GT(reversed, 3);
}

INSTANTIATE_TEST_SUITE_P(Dice, PaymentWalksTest, ::testing::Values(1U, 2U, 3U, 4U));

}

// Keys without sense over the payments: it never breaks, and the balances hold.

#include "tests/payments/PaymentTrail.h"
#include "tests/payments/PaymentsTest.h"

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

private:
    std::mt19937 m_dice;
};

TEST_P(PaymentWalksTest, FiveThousandKeysNeverBreakItAndTheBalancesHold)
{
    constexpr int Keys = 5000;
    int typed = 0;
    int paidByRuns = 0;
    PaymentTrail trail;
    while (typed < Keys) {
        Play([&](Clerk& clerk) {
            if (Throw(4) > 0) {
                Type(clerk, "{DOWN}{ENTER}{ENTER}");
            } else if (Throw(2) > 0) {
                Type(clerk, "{DOWN}{DOWN}{ENTER}");
            } else {
                PayMany(clerk, "11042026", "1", "12");
                paidByRuns += trail.Follow();
            }
            while (typed < Keys && !clerk.ScreenName().isEmpty()) {
                const QString keys = NextKeys();
                clerk.Type(keys);
                typed += static_cast<int>(ParseKeys(keys).size());
                trail.Follow();
            }
        });
        ASSERT_FALSE(Failure) << "after " << typed << " keys";
        trail.ExpectBalances();
        trail.ExpectBooks();
        ASSERT_FALSE(HasFailure()) << "after " << typed << " keys";
    }
    EXPECT_GT(trail.Saved, 5);
    EXPECT_GT(trail.TakenBack, 3);
    EXPECT_GT(paidByRuns, 0);
}

INSTANTIATE_TEST_SUITE_P(Dice, PaymentWalksTest, ::testing::Values(1U, 2U, 3U, 4U));

}

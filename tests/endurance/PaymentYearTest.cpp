#include "tests/journeys/PaymentYear.h"

#include <array>

namespace {

class PaymentYearTest : public PaymentYear {
protected:
    static constexpr int Members = 40;

    PaymentYearTest() : PaymentYear(Members, 20260401) { }
};

}

// Each way with the paise is used in nine periods, installments are followed in half of them, and the milk of
// the third period comes over the counter.
TEST_F(PaymentYearTest, AYearOfFortyMembersAgreesWithTheRawRows)
{
    constexpr int periods = 36;
    static constexpr std::array paise = {"AddThev", "Payable", "PayIt", "Discount"};
    for (int period = 0; period < periods && !HasFailure(); ++period)
        PlayPeriod({.paise = paise[static_cast<std::size_t>(period) % paise.size()],
            .byInstallments = period / 4 % 2 == 1,
            .isMilkKeyed = period == 2});
    EXPECT_EQ(One("select max(ToDate) from MilkPayments"), "31/03/2027");
    EXPECT_GT(One("select count(*) from MilkPayments").toInt(), 1000);
}

// Three periods of some members paid through the real screens, against the reckoning from the raw rows. The
// year of forty members is played by night.

#include "tests/journeys/PaymentYear.h"

#include <tuple>

namespace {

constexpr int Members = 9;

using Setup = std::tuple<const char*, bool>; // what becomes of paise, and whether installments are followed

class PaymentJourneyTest : public PaymentYear, public ::testing::WithParamInterface<Setup> {
protected:
    PaymentJourneyTest() : PaymentYear(Members, 20260401) { }
};

std::string NameOf(const ::testing::TestParamInfo<Setup>& info)
{
    return std::string(std::get<0>(info.param)) + (std::get<1>(info.param) ? "ByInstallments" : "");
}

INSTANTIATE_TEST_SUITE_P(Under, PaymentJourneyTest,
    ::testing::Combine(::testing::Values("AddThev", "Payable", "PayIt", "Discount"), ::testing::Bool()),
    NameOf);

TEST_P(PaymentJourneyTest, ThreePeriodsOfVouchersPaymentsReversalsAndRunsAgreeWithTheRawRows)
{
    const auto [paise, byInstallments] = GetParam();
    for (int period = 0; period < 3; ++period)
        PlayPeriod({.paise = paise, .byInstallments = byInstallments, .isMilkKeyed = false});
    EXPECT_GT(One("select count(*) from MilkPayments").toInt(), 18);
}

class KeyedPeriodTest : public PaymentYear {
protected:
    KeyedPeriodTest() : PaymentYear(Members, 20260411) { }
};

TEST_F(KeyedPeriodTest, FromTheCounterToThePaymentAPeriodAgreesWithTheRawRows)
{
    PlayPeriod({.paise = "AddThev", .byInstallments = true, .isMilkKeyed = true});
    EXPECT_GT(One("select count(*) from MilkCollections").toInt(), 100);
    EXPECT_EQ(One("select count(*) from MilkPayments").toInt(), 6);
}

}

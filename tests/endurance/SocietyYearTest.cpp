#include "tests/journeys/SocietyYear.h"

#include <array>

namespace {

// The second chart holds from October and comes some days late; on the eighth the backup of the third comes
// back.
class SocietyYearTest : public SocietyYear {
protected:
    SocietyYearTest()
        : SocietyYear(20270331,
            {.chart = QDate(2026, 10, 1),
                .charted = QDate(2026, 10, 5),
                .restored = QDate(2026, 10, 8),
                .leaving = 9})
    {
    }
};

}

// Every delivery and every sale of the 365 days is keyed, and 36 times the payments.
TEST_F(SocietyYearTest, AYearOfASmallSocietyBalancesToTheLastDigit)
{
    constexpr int periods = 36;
    static constexpr std::array paise = {"AddThev", "Payable", "PayIt", "Discount"};
    for (int period = 0; period < periods && !HasFailure(); ++period)
        PlayTenDays({.paise = paise[static_cast<std::size_t>(period) % paise.size()],
            .byInstallments = period / 4 % 2 == 1,
            .isMilkKeyed = true});
    ASSERT_EQ(LastDay(), QDate(2027, 3, 31));
    ExpectMilkBalances();
    ExpectTheMilkBooks();
    ExpectTheCashBook();
    ExpectTheBonus();
    ExpectClosingFiguresOfThePast();
}

// A month of a small society, keyed through the screens from the counter to the bonus, against the reckoning
// in exact decimals. The year of it is played by night.

#include "tests/journeys/SocietyYear.h"

namespace {

class SocietyMonthTest : public SocietyYear {
protected:
    SocietyMonthTest()
        : SocietyYear(20260430,
            {.chart = QDate(2026, 4, 11),
                .charted = QDate(2026, 4, 13),
                .restored = QDate(2026, 4, 14),
                .leaving = 1})
    {
    }
};

TEST_F(SocietyMonthTest, AMonthWithTwoChartsARestoreAndThreePaymentsBalancesToTheLastDigit)
{
    for (const char* paise : {"AddThev", "PayIt", "Payable"})
        PlayTenDays({.paise = paise, .byInstallments = paise == QLatin1String("PayIt"), .isMilkKeyed = true});
    ASSERT_EQ(LastDay(), QDate(2026, 4, 30));
    EXPECT_GT(One("select count(*) from MilkCollections").toInt(), 300);
    EXPECT_GT(One("select count(*) from MilkSales").toInt(), 250);
    ExpectMilkBalances();
    ExpectTheMilkBooks();
    ExpectTheCashBook();
    ExpectTheBonus();
    ExpectClosingFiguresOfThePast();
}

}

// A month of a small society, keyed through the screens from the counter to the bonus, against the reckoning
// in exact decimals. The year of it is played by night.

#include "core/menu/ScreenDirectory.h"
#include "tests/journeys/EveryScreen.h"
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

    // No screen of the program is passed by. For two boxes the tests have stand-ins.
    void ExpectEveryScreenWasOpened() const
    {
        const QStringList registered = ScreenDirectory::Names();
        std::set<QString> names(registered.begin(), registered.end());
        EXPECT_GT(names.size(), 20U);
        for (const ScreenState& state : EveryScreen())
            names.insert(state.screen);
        names.erase("frmPlainBox");
        names.erase("frmInputBox");
        EXPECT_EQ(Opened.Without(names).join(u'\n').toStdString(), "");
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
    ExpectEveryScreenWasOpened();
}

}

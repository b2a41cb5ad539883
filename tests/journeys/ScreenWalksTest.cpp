// Some walks without sense over each screen of the money and of the milk that is sold; twenty thousand of
// each are walked by night.

#include "tests/journeys/ScreenWalks.h"

namespace {

class ScreenWalksTest : public ScreenWalks {
protected:
    static constexpr int Walks = 250;
};

TEST_F(ScreenWalksTest, OverTheFatRatesNothingBreaksAndEveryAmountIsItsRates)
{
    OverTheFatRates(Walks);
}

TEST_F(ScreenWalksTest, OverTheSlipsNothingBreaksAndTheBooksStay)
{
    OverTheSlips(Walks);
}

TEST_F(ScreenWalksTest, OverTheRegistersNothingBreaksAndTheBooksStay)
{
    OverTheRegisters(Walks);
}

TEST_F(ScreenWalksTest, OverTheLookUpNothingBreaksAndWhatIsPickedIsThere)
{
    OverTheLookUp(Walks);
}

TEST_F(ScreenWalksTest, OverTheSpanNothingBreaksAndBooksAndStateAgree)
{
    OverTheSpan(Walks);
}

TEST_F(ScreenWalksTest, OverTheVouchersNothingBreaksAndTheBalancesHold)
{
    OverTheVouchers(Walks);
}

TEST_F(ScreenWalksTest, OverTheInstallmentsNothingBreaksAndNobodyStandsTwice)
{
    OverTheInstallments(Walks);
}

TEST_F(ScreenWalksTest, OverThePaymentsNothingBreaksAndTheBalancesHold)
{
    OverThePayments(Walks);
}

TEST_F(ScreenWalksTest, OverTheCustomersNothingBreaksAndNobodyStandsTwice)
{
    OverTheCustomers(Walks);
}

TEST_F(ScreenWalksTest, OverTheSalesNothingBreaksAndTheLitresFollow)
{
    OverTheSales(Walks);
}

TEST_F(ScreenWalksTest, OverTheBonusNothingBreaksAndEveryFigureIsMadeOfTheOthers)
{
    OverTheBonus(Walks);
}

}

#include "tests/endurance/Counts.h"
#include "tests/journeys/ScreenWalks.h"

namespace {

class LongWalksTest : public ScreenWalks {
protected:
    const int Walks = Counts::Of("VETROLAN_WALKS", 20000);
};

TEST_F(LongWalksTest, OverTheFatRatesNothingBreaksAndEveryAmountIsItsRates)
{
    OverTheFatRates(Walks);
}

TEST_F(LongWalksTest, OverTheSlipsNothingBreaksAndTheBooksStay)
{
    OverTheSlips(Walks);
}

TEST_F(LongWalksTest, OverTheRegistersNothingBreaksAndTheBooksStay)
{
    OverTheRegisters(Walks);
}

TEST_F(LongWalksTest, OverTheLookUpNothingBreaksAndWhatIsPickedIsThere)
{
    OverTheLookUp(Walks);
}

TEST_F(LongWalksTest, OverTheSpanNothingBreaksAndBooksAndStateAgree)
{
    OverTheSpan(Walks);
}

TEST_F(LongWalksTest, OverTheVouchersNothingBreaksAndTheBalancesHold)
{
    OverTheVouchers(Walks);
}

TEST_F(LongWalksTest, OverTheInstallmentsNothingBreaksAndNobodyStandsTwice)
{
    OverTheInstallments(Walks);
}

}

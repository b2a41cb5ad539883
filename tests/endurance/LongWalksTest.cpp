#include "tests/endurance/Counts.h"
#include "tests/journeys/BookWalks.h"
#include "tests/journeys/OfficeWalks.h"

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

TEST_F(LongWalksTest, OverThePaymentsNothingBreaksAndTheBalancesHold)
{
    OverThePayments(Walks);
}

TEST_F(LongWalksTest, OverTheCustomersNothingBreaksAndNobodyStandsTwice)
{
    OverTheCustomers(Walks);
}

TEST_F(LongWalksTest, OverTheSalesNothingBreaksAndTheLitresFollow)
{
    OverTheSales(Walks);
}

TEST_F(LongWalksTest, OverTheBonusNothingBreaksAndEveryFigureIsMadeOfTheOthers)
{
    OverTheBonus(Walks);
}

class LongBookWalksTest : public BookWalks {
protected:
    const int Walks = Counts::Of("VETROLAN_WALKS", 20000);
};

TEST_F(LongBookWalksTest, OverTheGainAndLossNothingBreaksAndWhatWentOutIsWhatWasSold)
{
    OverTheGainAndLoss(Walks);
}

TEST_F(LongBookWalksTest, OverPurchasesAndSalesNothingBreaksAndNoDayStandsTwice)
{
    OverPurchasesAndSales(Walks);
}

TEST_F(LongBookWalksTest, OverTheLedgersNothingBreaksAndEachRowGoesOnFromTheOneBefore)
{
    OverTheLedgers(Walks);
}

// Each copy is read page by page.
TEST_F(LongBookWalksTest, OverTheBackupTheBooksStayAndEveryCopyIsWhole)
{
    OverTheBackup(Walks / 10);
}

class LongOfficeWalksTest : public OfficeWalks {
protected:
    const int Walks = Counts::Of("VETROLAN_WALKS", 20000);
};

TEST_F(LongOfficeWalksTest, OverTheDaysNothingBreaksAndEachSaveIsOneRowAndEachDeletionOneSeries)
{
    OverTheDays(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheAbsentNothingBreaksAndTheListIsThatOfItsShift)
{
    OverTheAbsent(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheSearchNothingBreaksAndEachSlipIsARowOfTheBooks)
{
    OverTheSearch(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheSettingsNothingBreaksAndTheRowIsWhole)
{
    OverTheSettings(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheMilkOfADayNothingBreaksAndTheListIsOfTheBooks)
{
    OverTheMilkOfADay(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheMilkOfOneNothingBreaksAndItsLinesHoldItsLitres)
{
    OverTheMilkOfOne(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheListOfMembersNothingBreaksAndNobodyStandsTwice)
{
    OverTheListOfMembers(Walks);
}

TEST_F(LongOfficeWalksTest, OverTheListOfPaymentsNothingBreaksAndTheBooksStay)
{
    OverTheListOfPayments(Walks);
}

}

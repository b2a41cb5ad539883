// Some walks without sense over what is printed of milk and money, and over the backup; many more by night.

#include "tests/journeys/BookWalks.h"

namespace {

class BookWalksTest : public BookWalks {
protected:
    static constexpr int Walks = 250;
};

TEST_F(BookWalksTest, OverTheGainAndLossNothingBreaksAndWhatWentOutIsWhatWasSold)
{
    OverTheGainAndLoss(Walks);
}

TEST_F(BookWalksTest, OverPurchasesAndSalesNothingBreaksAndNoDayStandsTwice)
{
    OverPurchasesAndSales(Walks);
}

TEST_F(BookWalksTest, OverTheLedgersNothingBreaksAndEachRowGoesOnFromTheOneBefore)
{
    OverTheLedgers(Walks);
}

TEST_F(BookWalksTest, OverTheBackupTheBooksStayAndEveryCopyIsWhole)
{
    OverTheBackup(Walks / 5); // each copy is read page by page
}

}

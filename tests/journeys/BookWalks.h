#pragma once

#include "tests/journeys/ScreenWalks.h"

// Walks without sense over what is printed of milk and money, and over the backup.
class BookWalks : public ScreenWalks {
protected:
    void OverTheGainAndLoss(int walks);
    void OverPurchasesAndSales(int walks);
    void OverTheLedgers(int walks);
    void OverTheBackup(int walks);

private:
    void ExpectSoundLedger();
    void ExpectSoundCopies();
};

// Some walks without sense over the screens of the office; many more by night.

#include "tests/journeys/OfficeWalks.h"

namespace {

class OfficeWalksTest : public OfficeWalks {
protected:
    static constexpr int Walks = 250;
};

TEST_F(OfficeWalksTest, OverTheDaysNothingBreaksAndEachSaveIsOneRowAndEachDeletionOneSeries)
{
    OverTheDays(Walks);
}

TEST_F(OfficeWalksTest, OverTheAbsentNothingBreaksAndTheListIsThatOfItsShift)
{
    OverTheAbsent(Walks);
}

TEST_F(OfficeWalksTest, OverTheSearchNothingBreaksAndEachSlipIsARowOfTheBooks)
{
    OverTheSearch(Walks);
}

TEST_F(OfficeWalksTest, OverTheSettingsNothingBreaksAndTheRowIsWhole)
{
    OverTheSettings(Walks);
}

TEST_F(OfficeWalksTest, OverTheMilkOfADayNothingBreaksAndTheListIsOfTheBooks)
{
    OverTheMilkOfADay(Walks);
}

TEST_F(OfficeWalksTest, OverTheMilkOfOneNothingBreaksAndItsLinesHoldItsLitres)
{
    OverTheMilkOfOne(Walks);
}

TEST_F(OfficeWalksTest, OverTheListOfMembersNothingBreaksAndNobodyStandsTwice)
{
    OverTheListOfMembers(Walks);
}

TEST_F(OfficeWalksTest, OverTheListOfPaymentsNothingBreaksAndTheBooksStay)
{
    OverTheListOfPayments(Walks);
}

}

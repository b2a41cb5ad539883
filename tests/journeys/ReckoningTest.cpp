// The reckoning by hand, and what it tells of books that differ from it.

#include "tests/support/SocietyTest.h"
#include "tools/reckoning/LedgerReckoning.h"
#include "tools/reckoning/MilkReckoning.h"

namespace {

class ReckoningTest : public SocietyTest {
protected:
    // Two deliveries, as they are keyed and as the books have them.
    ReckoningTest()
    {
        m_milk.SetChart(QDate(2026, 4, 1), Exact::Of(8), Exact::Of(6.5));
        m_milk.Deliver({QDate(2026, 4, 1), true}, {1, "rama", true, Exact::Of(2.5), Exact::Of(4.2)});
        m_milk.Deliver({QDate(2026, 4, 1), true}, {2, "saIta", false, Exact::Of(1.125), Exact::Of(7)});
        for (const char* row :
            {"1,1,'rama','gaaya',2.5,4.2,33.6,84", "2,2,'saIta','mhOsa',1.125,7,45.5,51.19"})
            Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                "MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(1,'01/04/2026','sakaL',"
                + QString::fromLatin1(row) + ",0)");
    }

    std::string Told()
    {
        QStringList told;
        for (const Compared& rows : m_milk.Comparison())
            told += rows.Differences();
        return told.join(u'\n').toStdString();
    }

private:
    MilkReckoning m_milk;
};

TEST_F(ReckoningTest, BooksThatAgreeAreToldNothingOf)
{
    EXPECT_EQ(Told(), "");
}

TEST_F(ReckoningTest, ADifferenceIsToldByItsRowAndItsColumn)
{
    Run("update MilkCollections set Amount=51.2 where CollectionNo=2");
    EXPECT_EQ(Told(),
        "delivery 1|01/04/2026|sakaL|2|2|saIta|mhOsa|1.125|7|45.5|51.19|0: Amount is 51.2 and should be "
        "51.19");
}

TEST_F(ReckoningTest, ARowThatIsMissingOrTooMuchIsToldWhole)
{
    Run("delete * from MilkCollections where CollectionNo=1");
    Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo) "
        "values(1,'02/04/2026','saMQyaakaL',9)");
    EXPECT_EQ(Told(),
        "delivery is missing: 1|01/04/2026|sakaL|1|1|rama|gaaya|2.5|4.2|33.6|84|0\n"
        "delivery is too much: 1|02/04/2026|saMQyaakaL|9|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL");
}

TEST_F(ReckoningTest, OnlyWhatBinarySumsLeaveBehindIsPassedOver)
{
    Run("update MilkCollections set Amount=84.00000000001 where CollectionNo=1");
    EXPECT_EQ(Told(), "");
    Run("update MilkCollections set Amount=84.00001 where CollectionNo=1");
    EXPECT_NE(Told(), "");
}

TEST_F(ReckoningTest, AnAverageIsRoundedToOneDecimalHalfAwayFromNought)
{
    EXPECT_EQ(Exact::Of(12.45).Over(Exact::Of(3)).Text(), "4.2") << "4.15";
    EXPECT_EQ(Exact::Of(12.44).Over(Exact::Of(3)).Text(), "4.1");
    EXPECT_THROW(Exact::Of(1).Over(Exact()), RunTimeError);
}

// 1000 debit; 200 come in and 300 go out on a day, 50 on the next.
TEST_F(ReckoningTest, TheBookOfThreeVouchersIsAsByHand)
{
    const std::vector<VoucherReckoning::Posting> postings = {
        {QDate(2026, 4, 10), 1, "irsaIT", "raoK", "rama", Exact::Of(200), {}, "a"},
        {QDate(2026, 4, 10), 2, "pomaonT", "saIta", "raoK", Exact::Of(300), {}, "b"},
        {QDate(2026, 4, 11), 1, "pomaonT", "saIta", "raoK", Exact::Of(50), {}, "c"}};
    const LedgerReckoning cash("raoK", Exact::Of(-1000), "D");
    EXPECT_EQ(cash.Comparison(postings, QDate(2026, 4, 1), QDate(2026, 4, 30)).reckoned,
        (QStringList{"raoK|01/04/2026|30/04/2026|1|10/04/2026|1|irsaIT|rama|200|0|a|||1000|D|1200|D|1200",
            "raoK|01/04/2026|30/04/2026|1|10/04/2026|2|pomaonT|saIta|0|300|b|||1200|D|900|D|1200",
            "raoK|01/04/2026|30/04/2026|1|11/04/2026|1|pomaonT|saIta|0|50|c|||900|D|850|D|900"}));
    EXPECT_EQ(cash.Closing(postings).Text(), "-850");
}

}

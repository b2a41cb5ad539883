// Which rows the pay slips reach: those of several periods on one date, of a short one, of last year, of
// other companies and members.

#include "tests/reports/PaySlipsTest.h"

namespace {

class PaySlipsReachTest : public PaySlipsTest {
protected:
    // What was entered so far is of last year.
    void MoveToLastYear()
    {
        Run("insert into MilkCollectionsOld select * from MilkCollections");
        Run("delete * from MilkCollections");
    }
};

// Periods

TEST_F(PaySlipsReachTest, APeriodAfterTheFirstOneOfTheDateHasItsMilk)
{
    Pay({.from = "01/04/2026", .to = "10/04/2026"});
    Pay({.member = 5, .name = "saIta"});
    AddDelivery("15/04/2026", "sakaL", 5, 5, "saIta", "gaaya", 5, 4, 30);
    Print();
    EXPECT_EQ(Rows("select CollectionDate,LitersM from MilkCollectionsME where MemberNo=5 and LitersM>0"),
        Lines({"15/04/2026|5"}));
}

TEST_F(PaySlipsReachTest, APeriodOfLastYearBehindTheFirstOneOfTheDateReadsTheOldTable)
{
    Pay({});
    Pay({.member = 5, .name = "saIta", .from = "21/03/2026", .to = "31/03/2026"});
    AddDelivery("25/03/2026", "sakaL", 5, 5, "saIta", "gaaya", 5, 4, 30);
    MoveToLastYear();
    Print();
    EXPECT_EQ(Rows("select CollectionDate,LitersM from MilkCollectionsME where LitersM>0"),
        Lines({"25/03/2026|5"}));
}

TEST_F(PaySlipsReachTest, OnlyTheDaysOfACowOnlyPaymentLoseTheirBuffaloLines)
{
    for (const auto& [member, name, first, second] :
        {std::tuple(1, "rama", 0.0, 50.0), {5, "saIta", 50.0, 0.0}}) {
        Pay({.member = member,
            .name = name,
            .from = "01/04/2026",
            .to = "10/04/2026",
            .date = "20/04/2026",
            .litersBuff = first});
        Pay({.member = member, .name = name, .tranId = 2, .litersBuff = second});
    }
    Print();
    EXPECT_EQ(Rows("select MemberNo,Animal,min(CollectionDate),max(CollectionDate),count(*) from "
                   "MilkCollectionsME group by MemberNo,Animal order by MemberNo,Animal"),
        Lines({"1|gaaya|01/04/2026|20/04/2026|20", "1|mhOsa|11/04/2026|20/04/2026|10",
            "5|gaaya|01/04/2026|20/04/2026|20", "5|mhOsa|01/04/2026|10/04/2026|10"}));
}

// The lines that fill up the days lie behind the period, and only its own are taken away.
TEST_F(PaySlipsReachTest, ACowOnlyPaymentOfOneDayKeepsTheBuffaloLinesThatFillUpAndPrintsOneBlock)
{
    SetDuration("1 idvasa");
    Pay({.from = "20/04/2026", .animal = "gaaya", .litersBuff = 0, .buffAmount = 0, .thevBuff = 0});
    AddDelivery("20/04/2026", "sakaL", 5, 1, "rama", "gaaya", 5, 4, 30);
    Print();
    EXPECT_EQ(Rows("select Animal,min(CollectionDate),max(CollectionDate),count(*) from MilkCollectionsME "
                   "group by Animal order by Animal"),
        Lines({"gaaya|20/04/2026|26/04/2026|7", "mhOsa|21/04/2026|26/04/2026|6"}));
    const QStringList texts = ReportTexts();
    EXPECT_EQ(texts.count("गाय"), 2) << "the head of the block, and the line of the sums";
    EXPECT_EQ(texts.count("म्हैस"), 0);
    EXPECT_EQ(texts.count("20/04"), 1);
    EXPECT_EQ(texts.count("21/04"), 0);
}

TEST_F(PaySlipsReachTest, OfTwoCansOfAShiftThePaperTellsTheFirstAndTheLitresThatWerePaid)
{
    Pay({.animal = "gaaya", .litersCow = 12, .litersBuff = 0, .cowAmount = 360, .buffAmount = 0});
    AddDelivery("11/04/2026", "sakaL", 5, 1, "rama", "gaaya", 5, 4, 30);
    AddDelivery("11/04/2026", "sakaL", 7, 1, "rama", "gaaya", 7, 4, 30);
    const auto told = [this](const char* litres) {
        Print();
        return ReportTexts().count(QString::fromLatin1(litres));
    };
    EXPECT_EQ(told("5.000"), 2) << "the line of the day, and the sum of the days";
    EXPECT_EQ(told("7.000"), 0);
    EXPECT_EQ(told("12.000"), 1) << "what was paid";
    LetMembersRepeat();
    EXPECT_EQ(told("7.000"), 1);
    EXPECT_EQ(told("12.000"), 2) << "the sum of the days is what was paid";
}

// Companies

TEST_F(PaySlipsReachTest, BesideTheDaysTheRowsOfEveryCompanyCount)
{
    Pay({.fixedKapat = 77, .previousAdvance = 900, .company = 0}); // the first in the books
    Pay({.fixedKapat = 5, .previousAdvance = 500});
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 200);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 70, 2);
    AddHead("AdvanceReceipt", "20/04/2026", 1, "Uchal Receipt", 30, 2);
    Print();
    const QStringList pairs = Pairs(1);
    EXPECT_EQ(pairs.value(0), "11/04/2026|maagaIla baakI|870");
    EXPECT_EQ(pairs.value(1), "12/04/2026|]cala|70");
    EXPECT_EQ(pairs.value(5), "16/04/2026|isqar kpat|77");
}

TEST_F(PaySlipsReachTest, LastYearsMilkIsCopiedOfEveryCompanyAndThisYearsOfItsOwn)
{
    Pay({.from = "29/03/2026", .to = "07/04/2026"});
    InCompany(2, [this] { AddDelivery("30/03/2026", "sakaL", 1, 1, "rama", "gaaya", 99, 4, 30); });
    MoveToLastYear();
    InCompany(2, [this] { AddDelivery("02/04/2026", "sakaL", 1, 1, "rama", "gaaya", 88, 4, 30); });
    Print();
    EXPECT_EQ(Rows("select CompanyId,Liters from MilkCollectionsTemp"), Lines({"2|99"}));
    EXPECT_EQ(One("select sum(LitersM) from MilkCollectionsME"), "0") << "the slip tells its own";
}

TEST_F(PaySlipsReachTest, RowsOfNoCompanyAreTidiedOutOfTheCopies)
{
    InCompany(0, [this] {
        Pay({.company = 0});
        AddDelivery("11/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
        Print("20042026{ENTER}1{ENTER}9{ENTER}%i");
    });
    EXPECT_EQ(One("select sum(LitersM) from MilkCollectionsME"), "5") << "they were copied";
    EXPECT_EQ(Rows("select * from MilkPaymentsTemp"), QStringList());
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp"), QStringList());
}

// Members

TEST_F(PaySlipsReachTest, TheMilkOfTheMembersOfTheRangeAloneIsCopied)
{
    Pay({.member = 5, .name = "saIta", .from = "29/03/2026", .to = "07/04/2026"});
    for (int member : {1, 5, 9})
        AddDelivery("30/03/2026", "sakaL", member, member, "rama", "gaaya", member, 4, 30);
    MoveToLastYear();
    for (int member : {1, 5, 9})
        AddDelivery("02/04/2026", "sakaL", member, member, "rama", "gaaya", 10 + member, 4, 30);
    Print("20042026{ENTER}2{ENTER}8{ENTER}%i");
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp order by Liters"), Lines({"5", "15"}));
}

}

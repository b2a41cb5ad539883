// What is staged for the pay slips of a payment date.

#include "tests/reports/PaySlipsTest.h"

namespace {

TEST_F(PaySlipsTest, ThePaymentsOfTheDateAndTheRangeAreCopied)
{
    Pay({.member = 1});
    Pay({.member = 5, .name = "saIta"});
    Pay({.member = 9, .name = "gaNaoSa"});
    Pay({.member = 5, .name = "saIta", .from = "01/04/2026", .to = "10/04/2026", .date = "10/04/2026"});
    Pay({.member = 5, .name = "saIta", .company = 2});
    Print("20042026{ENTER}2{ENTER}8{ENTER}%i");
    EXPECT_EQ(Rows("select CompanyId,MemberNo,FromDate,PaymentDate from MilkPaymentsTemp"),
        Lines({"1|5|11/04/2026|20/04/2026"}));
    EXPECT_EQ(Rows("select distinct MemberNo from MilkCollectionsME"), Lines({"5"}));
    EXPECT_EQ(Rows("select distinct MemberNo from KapatDetails"), Lines({"5"}))
        << "a number without a payment gets no lines at all";
    EXPECT_EQ(Rows("select MemberNo from KapatSummary"), Lines({"5"}));
}

TEST_F(PaySlipsTest, MorningAndEveningStandInOneRowForEachDayAndAnimal)
{
    Pay({});
    AddDelivery("11/04/2026", "sakaL", 4, 1, "rama", "gaaya", 10, 4, 30);
    AddDelivery("11/04/2026", "saMQyaakaL", 2, 1, "rama", "gaaya", 8, 4.1, 31);
    AddDelivery("11/04/2026", "saMQyaakaL", 3, 1, "rama", "mhOsa", 2, 7, 45);
    AddDelivery("20/04/2026", "sakaL", 1, 1, "rama", "mhOsa", 3, 7.5, 46);
    AddDelivery("10/04/2026", "sakaL", 1, 1, "rama", "gaaya", 99, 4, 30);
    AddDelivery("21/04/2026", "sakaL", 1, 1, "rama", "gaaya", 99, 4, 30);
    AddDelivery("11/04/2026", "sakaL", 1, 5, "saIta", "gaaya", 77, 4, 30);
    Print();
    EXPECT_EQ(Days("CollectionDate=#04/11/2026#"),
        Lines({"11/04/2026|1|rama|gaaya|10|4|30|300|8|4.1|31|248",
            "11/04/2026|1|rama|mhOsa|0|0|0|0|2|7|45|90"}));
    EXPECT_EQ(Days("CollectionDate=#04/20/2026# and LitersM>0"),
        Lines({"20/04/2026|1|rama|mhOsa|3|7.5|46|138|0|0|0|0"}));
    EXPECT_EQ(One("select sum(LitersM)+sum(LitersE) from MilkCollectionsME"), "23");
    EXPECT_EQ(Rows("select distinct CompanyId from MilkCollectionsME"), Lines({"1"}));
}

TEST_F(PaySlipsTest, ADayWithoutDeliveryStillHasItsRowAllZeros)
{
    Pay({});
    AddDelivery("12/04/2026", "sakaL", 4, 1, "rama", "gaaya", 10, 4, 30);
    Print();
    EXPECT_EQ(Days("CollectionDate=#04/15/2026#"),
        Lines({"15/04/2026|1|rama|gaaya|0|0|0|0|0|0|0|0", "15/04/2026|1|rama|mhOsa|0|0|0|0|0|0|0|0"}));
    EXPECT_EQ(One("select count(*) from MilkCollectionsME"), "20");
}

TEST_F(PaySlipsTest, APaymentPeriodThatStartsBeforeTheCompanysFromDateReadsTheOldTableAsWell)
{
    Pay({.from = "29/03/2026", .to = "07/04/2026"});
    AddDelivery("30/03/2026", "sakaL", 1, 1, "rama", "gaaya", 10, 4, 30);
    AddDelivery("28/03/2026", "sakaL", 1, 1, "rama", "gaaya", 99, 4, 30);
    Run("insert into MilkCollectionsOld select * from MilkCollections");
    Run("delete * from MilkCollections");
    AddDelivery("01/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    Print();
    EXPECT_EQ(Rows("select CollectionDate,LitersM from MilkCollectionsME where LitersM>0"),
        Lines({"30/03/2026|10", "01/04/2026|5"}));
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp order by Liters"), Lines({"5", "10"}));
}

TEST_F(PaySlipsTest, TheLayoutGoesByThePeriodOfThePaymentThatWasMadeFirst)
{
    Pay({.member = 9, .name = "gaNaoSa", .from = "01/04/2026", .to = "10/04/2026"});
    Pay({.member = 1});
    Print();
    EXPECT_EQ(Rows("select MemberNo,min(CollectionDate) as First from KapatDetails group by MemberNo"),
        Lines({"1|01/04/2026", "9|01/04/2026"}));
}

TEST_F(PaySlipsTest, OfAMemberWhoWasPaidTwiceOnTheDateTheFirstPaymentTellsWhatIsFixedAndWhatWasOwed)
{
    Pay({.fixedKapat = 5, .previousAdvance = 500});
    Pay({.from = "01/04/2026", .to = "10/04/2026", .fixedKapat = 7, .previousAdvance = 700});
    Print();
    EXPECT_EQ(Rows("select Value1 from KapatDetails where Value1<>0 order by Value1"), Lines({"5", "500"}));
}

TEST_F(PaySlipsTest, OfAShiftThatIsInBothTablesTheLowestNumberIsTold)
{
    Pay({.from = "29/03/2026", .to = "07/04/2026"});
    AddDelivery("30/03/2026", "sakaL", 7, 1, "rama", "gaaya", 7, 4, 30);
    Run("insert into MilkCollectionsOld select * from MilkCollections");
    Run("delete * from MilkCollections");
    AddDelivery("30/03/2026", "sakaL", 5, 1, "rama", "gaaya", 5, 4, 30);
    Print();
    EXPECT_EQ(Rows("select LitersM from MilkCollectionsME where LitersM>0"), Lines({"5"}));
}

TEST_F(PaySlipsTest, APaymentPeriodWithinTheCurrentDataLeavesTheOldTableAlone)
{
    Pay({.from = "01/04/2026", .to = "10/04/2026"});
    AddDelivery("01/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    Run("insert into MilkCollectionsOld select * from MilkCollections");
    Print();
    EXPECT_EQ(Rows("select Liters from MilkCollectionsTemp"), Lines({"5"}));
}

TEST_F(PaySlipsTest, APaymentWithOnlyCowLitresLeavesNoBuffaloRows)
{
    Pay({.animal = "gaaya", .litersBuff = 0, .buffAmount = 0, .thevBuff = 0});
    Pay({.member = 5, .name = "saIta", .animal = "mhOsa", .litersCow = 0, .cowAmount = 0, .thevCow = 0});
    Pay({.member = 9, .name = "gaNaoSa", .litersCow = -1});
    Print();
    EXPECT_EQ(Rows("select MemberNo,Animal,count(*) as Days from MilkCollectionsME group by MemberNo,Animal "
                   "order by MemberNo"),
        Lines({"1|gaaya|10", "5|mhOsa|10", "9|mhOsa|10"}));
}

TEST_F(PaySlipsTest, ASecondDeliveryOfAShiftDoesNotPrintWithoutRepetition)
{
    Pay({});
    AddDelivery("11/04/2026", "sakaL", 7, 1, "rama", "gaaya", 7, 4, 30);
    AddDelivery("11/04/2026", "sakaL", 5, 1, "rama", "gaaya", 5, 4, 30);
    Print();
    EXPECT_EQ(Rows("select LitersM from MilkCollectionsME where LitersM>0"), Lines({"5"}));
}

TEST_F(PaySlipsTest, WithRepetitionEachFurtherPairOfAShiftHasARow)
{
    Pay({});
    LetMembersRepeat();
    for (const auto& [shift, number, liters] :
        {std::tuple("sakaL", 7, 7), {"sakaL", 5, 5}, {"saMQyaakaL", 3, 3}, {"sakaL", 9, 9}})
        AddDelivery("11/04/2026", shift, number, 1, "rama", "gaaya", liters, 4, 30);
    AddDelivery("12/04/2026", "saMQyaakaL", 1, 1, "rama", "gaaya", 1, 4, 30);
    AddDelivery("12/04/2026", "saMQyaakaL", 2, 1, "rama", "gaaya", 2, 4, 30);
    Print();
    EXPECT_EQ(Rows("select CollectionDate,LitersM,LitersE from MilkCollectionsME where LitersM+LitersE>0"),
        Lines({"11/04/2026|5|3", "11/04/2026|7|0", "11/04/2026|9|0", "12/04/2026|0|1", "12/04/2026|0|2"}));
    EXPECT_EQ(One("select count(*) from MilkCollectionsME"), "23");
}

TEST_F(PaySlipsTest, EachSlipHasAtLeastSevenDayLines)
{
    SetDuration("1 idvasa");
    Pay({.from = "20/04/2026"});
    AddDelivery("20/04/2026", "sakaL", 5, 1, "rama", "gaaya", 5, 4, 30);
    AddDelivery("20/04/2026", "sakaL", 6, 1, "rama", "mhOsa", 2, 7, 50);
    Print();
    QStringList expected = Lines({"20/04/2026|1|rama|gaaya|5|4|30|150|0|0|0|0"});
    for (int day = 21; day <= 26; ++day)
        expected.append(
            QStringLiteral("%1/04/2026|1|NULL|gaaya|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL").arg(day));
    EXPECT_EQ(Days("Animal='gaaya' order by CollectionDate"), expected);
    EXPECT_EQ(One("select count(*) from MilkCollectionsME where Animal='mhOsa'"), "7");
}

TEST_F(PaySlipsTest, APeriodOfSixDaysIsNotFilledUpAndOneOfFiveIs)
{
    Pay({.from = "11/04/2026", .to = "16/04/2026"});
    Print();
    EXPECT_EQ(One("select count(*) from MilkCollectionsME where Animal='gaaya'"), "6");
    Run("update MilkPayments set ToDate='15/04/2026'");
    Print();
    EXPECT_EQ(One("select count(*) from MilkCollectionsME where Animal='gaaya'"), "7");
}

// The lines beside the days.

TEST_F(PaySlipsTest, ATenDaySlipHasElevenPairs)
{
    Pay({});
    for (const auto& [type, amount] : {std::pair("]cala", 200.0), {"KaV", 123.45},
             {"ikraNaa maalaÀroSana", 60.5}, {"[tr", 12.25}, {"maagaIla baakI", 500.0}, {"gaaya zova", 10.0}})
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, amount);
    Print();
    EXPECT_EQ(Pairs(1),
        Lines({"11/04/2026|maagaIla baakI|500", "12/04/2026|]cala|200", "13/04/2026|KaV|123.45",
            "14/04/2026|ikraNaa maalaÀroSana|60.5", "15/04/2026|[tr|7.25", "16/04/2026|isqar kpat|5",
            "17/04/2026||0", "18/04/2026||0", "19/04/2026||0", "20/04/2026||0", "21/04/2026||0"}));
    EXPECT_EQ(Rows("select distinct CompanyId from KapatDetails"), Lines({"1"}));
}

TEST_F(PaySlipsTest, AFifteenDaySlipHasSixteenPairs)
{
    Pay({.from = "01/04/2026", .to = "15/04/2026"});
    for (const auto& [duration, pairs] : {std::pair("1 idvasa", 11), {"7 idvasa", 11}, {"10 idvasa", 11},
             {"15 idvasa", 16}, {"1 maihnaa", 11}}) {
        SetDuration(duration);
        Print();
        EXPECT_EQ(Pairs(1).size(), pairs) << duration;
    }
}

TEST_F(PaySlipsTest, OfTwoDetailsOfOneHeadTheLastStands)
{
    Pay({});
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 200);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 70);
    AddHead("MilkPaymentsDetails", "19/04/2026", 1, "]cala", 999);
    Print();
    EXPECT_EQ(Pairs(1).value(1), "12/04/2026|]cala|70");
}

TEST_F(PaySlipsTest, ReceiptsOfTheLastNineDaysLowerThePreviousBalanceWhateverTheDuration)
{
    Pay({.from = "01/04/2026"});
    AddHead("AdvanceReceipt", "10/04/2026", 1, "Uchal Receipt", 1);
    AddHead("AdvanceReceipt", "11/04/2026", 1, "Uchal Receipt", 20);
    AddHead("AdvanceReceipt", "20/04/2026", 1, "Uchal Receipt", 30.5);
    AddHead("AdvanceReceipt", "21/04/2026", 1, "Uchal Receipt", 400);
    AddHead("AdvanceReceipt", "15/04/2026", 1, "Uchal Kapat", 5000);
    AddHead("AdvanceReceipt", "15/04/2026", 5, "Uchal Receipt", 60000);
    for (const char* duration : {"10 idvasa", "1 maihnaa"}) {
        SetDuration(duration);
        Print();
        EXPECT_EQ(Pairs(1).value(0), "01/04/2026|maagaIla baakI|449.5") << duration;
    }
}

TEST_F(PaySlipsTest, WithSeveralPeriodsOnADateTheLayoutGoesByTheFirstAndTheDaysByTheirOwn)
{
    Pay({});
    Pay({.member = 5, .name = "saIta", .from = "01/04/2026", .to = "10/04/2026"});
    AddDelivery("02/04/2026", "sakaL", 5, 5, "saIta", "gaaya", 5, 4, 30);
    AddDelivery("12/04/2026", "sakaL", 5, 5, "saIta", "gaaya", 99, 4, 30);
    AddHead("MilkPaymentsDetails", "09/04/2026", 5, "]cala", 25);
    AddHead("MilkPaymentsDetails", "20/04/2026", 5, "]cala", 75);
    Print();
    EXPECT_EQ(Rows("select min(CollectionDate),max(CollectionDate),sum(LitersM) from MilkCollectionsME where "
                   "MemberNo=5"),
        Lines({"01/04/2026|10/04/2026|5"}));
    EXPECT_EQ(Pairs(5).value(1), "12/04/2026|]cala|75");
    EXPECT_EQ(One("select Uchal from KapatSummary where MemberNo=5"), "25");
}

// The sums by head, and the deposit.

TEST_F(PaySlipsTest, TheDeductionsOfThePeriodAreSummedByHead)
{
    Run("insert into UchalTypes(CompanyId,TypeId,UchalType) values(1,0,'saugrasa')");
    Run("insert into UchalTypes(CompanyId,TypeId,UchalType) values(1,2,'baOla')");
    Run("insert into UchalTypes(CompanyId,TypeId,UchalType) values(2,1,']cala')");
    Pay({});
    for (const auto& [type, amount] :
        {std::pair("]cala", 200.0), {" ]cala ", 1.0}, {"KaV", 100.0}, {"saugrasa", 23.45}, {"baOla", 7000.0},
            {"ikraNaa maalaÀroSana", 60.5}, {"[tr", 12.25}, {"maagaIla baakI", 500.0}, {"gaaya zova", 10.0}})
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, amount);
    AddHead("MilkPaymentsDetails", "11/04/2026", 1, "[tr", 1);
    AddHead("MilkPaymentsDetails", "10/04/2026", 1, "[tr", 1000);
    AddHead("MilkPaymentsDetails", "21/04/2026", 1, "[tr", 1000);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "[tr", 1000, 2);
    AddHead("MilkPaymentsDetails", "20/04/2026", 5, "[tr", 1000);
    Print();
    EXPECT_EQ(Rows("select CompanyId,MemberNo,Other,Uchal,Khadya,Kirana from KapatSummary"),
        Lines({"1|1|13.25|201|123.45|60.5"}));
}

TEST_F(PaySlipsTest, TheDepositIsToldBeforeNowAndAfter)
{
    Pay({});
    for (const char* type : {"gaaya zova", " mhOsa zova ", "zova", "]cala"}) {
        AddHead("MilkPaymentsDetails", "31/03/2026", 1, type, 9000);
        AddHead("MilkPaymentsDetails", "01/04/2026", 1, type, 10.25);
        AddHead("MilkPaymentsDetails", "19/04/2026", 1, type, 100);
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, 10.05);
        AddHead("MilkPaymentsDetails", "21/04/2026", 1, type, 9000);
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, 9000, 2);
        AddHead("MilkPaymentsDetails", "20/04/2026", 5, type, 9000);
    }
    Print();
    EXPECT_EQ(Rows("select PrevThev,CurrentThev,BalThev from KapatSummary"), Lines({"220.5|20.1|240.6"}));
}

TEST_F(PaySlipsTest, OnlyTheDepositAfterIsOfSinglePrecision)
{
    Pay({});
    AddHead("MilkPaymentsDetails", "19/04/2026", 1, "gaaya zova", 1234567.89);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "gaaya zova", 0.05);
    Print();
    EXPECT_EQ(
        Rows("select PrevThev,CurrentThev,BalThev from KapatSummary"), Lines({"1234567.89|0.05|1234568"}));
}

TEST_F(PaySlipsTest, AMemberWithoutDepositHasNoughts)
{
    Pay({});
    Print();
    EXPECT_EQ(Rows("select PrevThev,CurrentThev,BalThev from KapatSummary"), Lines({"0|0|0"}));
}

TEST_F(PaySlipsTest, TwoRunsInARowGiveTheSame)
{
    Pay({});
    AddDelivery("11/04/2026", "sakaL", 4, 1, "rama", "gaaya", 10, 4, 30);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 200);
    Print();
    QStringList staged;
    const auto all = [this] {
        QStringList rows;
        for (const char* table :
            {"MilkPaymentsTemp", "MilkCollectionsTemp", "MilkCollectionsME", "KapatSummary", "KapatDetails"})
            rows += Rows(QStringLiteral("select * from ") + QString::fromLatin1(table));
        return rows;
    };
    staged = all();
    Print();
    EXPECT_EQ(all(), staged);
    EXPECT_EQ(TheWindow.Shown.size(), 2U);
}

}

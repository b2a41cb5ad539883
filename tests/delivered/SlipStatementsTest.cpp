#include "tests/delivered/StatementsTest.h"

namespace {

// The slips of a payment: what was delivered day by day, and what was kept back.
class SlipStatementsTest : public StatementsTest {
protected:
    SlipStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddMember(1, 12, "saIta");
        AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 1, 5, "rama");
        AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 2, 12, "saIta");
        AddPayment(2, "11/04/2026", "20/04/2026", "21/04/2026", 1, 5, "Xyaama");
        AddDelivery(1, "11/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
        AddDelivery(1, "11/04/2026", "saMQyaakaL", 1, 5, "rama", "gaaya", 2.25, 67.5);
        AddDelivery(1, "20/04/2026", "sakaL", 1, 5, "rama", "mhOsa", 4, 120);
        AddDelivery(1, "21/04/2026", "sakaL", 1, 5, "rama", "gaaya", 64, 640);
    }

    void AddDay(const std::string& day, const std::string& animal)
    {
        EXPECT_EQ(Run("insert into "
                      "MilkCollectionsME(CompanyId,CollectionDate,MemberNo,MemberName,Animal,LitersM,FatM,"
                      "RateM,AmountM,LitersE,FatE,RateE,AmountE) values(1,'"
                      + day + "',5,'rama','" + animal + "',1.5,4.5,30,45,2.25,4.6,31,69.75)"),
            1);
    }
};

TEST_F(SlipStatementsTest, ThePaymentsOfADayAreTakenForARange)
{
    EXPECT_EQ(Row("SELECT max(MemberNo) as MaxMId FROM MembersMaster WHERE CompanyId=1"), "12");
    EXPECT_EQ(Rows("Select * from MilkPayments Where CompanyId=1 And PaymentDate=#04/21/2026#").size(), 2U);
    const std::string range =
        "MilkPayments where CompanyId=1 and PaymentDate=#04/21/2026# and MemberNo>=5 and MemberNo<=11";
    EXPECT_EQ(Rows("select * from " + range).size(), 1U);
    EXPECT_EQ(Run("delete * from MilkPaymentsTemp"), 0);
    EXPECT_EQ(Run("insert into MilkPaymentsTemp select * from " + range), 1);
    EXPECT_EQ(Rows("select * from MilkPaymentsTemp order by MemberNo"),
        Rows("select * from MilkPayments where CompanyId=1 and MemberNo=5"));
    EXPECT_EQ(Row("SELECT LitersCow,LitersBuff FROM MilkPaymentsTemp WHERE MemberNo=5 AND "
                  "PaymentDate=#04/21/2026#"),
        "20.5|10");
}

TEST_F(SlipStatementsTest, TheDeliveriesOfBothYearsAreTaken)
{
    Run("insert into MilkCollectionsOld select * from MilkCollections where CollectionDate=#04/11/2026#");
    const std::string bounds =
        "CollectionDate>=#04/11/2026# and CollectionDate<=#04/20/2026# and MemberNo>=5 and MemberNo<=11";
    EXPECT_EQ(Run("delete * from MilkCollectionsTemp"), 0);
    EXPECT_EQ(Run("insert into MilkCollectionsTemp select * from MilkCollectionsOld where " + bounds), 2);
    EXPECT_EQ(
        Run("insert into MilkCollectionsTemp select * from MilkCollections where CompanyId=1 and " + bounds),
        3);
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp where CompanyId=1 and MemberNo=5 and "
                   "CollectionDate=#04/20/2026# "
                   "and Animal='mhOsa' and CollectionTime='sakaL' order by CollectionNo"),
        (Lines{"1|20/04/2026|sakaL|1|5|rama|mhOsa|4|4.5|30|120|0|6.05|null"}));
    EXPECT_TRUE(
        Rows("select * from MilkCollectionsTemp where CompanyId=1 and MemberNo=5 and "
             "CollectionDate=#04/20/2026# and Animal='mhOsa' and CollectionTime='saMQyaakaL' order by "
             "CollectionNo")
            .empty());
}

TEST_F(SlipStatementsTest, TheLinesOfTheDaysAreFilledUpAndThinnedOut)
{
    EXPECT_EQ(Run("delete * from MilkCollectionsME"), 0);
    AddDay("11/04/2026", "gaaya");
    AddDay("11/04/2026", "mhOsa");
    EXPECT_EQ(Rows("Select * From MilkCollectionsME Where CompanyId=1 And MemberNo=5 And Animal='gaaya'"),
        (Lines{"1|11/04/2026|5|rama|gaaya|1.5|4.5|30|45|2.25|4.6|31|69.75|null|null"}));
    EXPECT_TRUE(Rows("Select * From MilkCollectionsME Where CompanyId=1 And CollectionDate=#04/12/2026# And "
                     "Animal='gaaya' And MemberNo=5")
                    .empty());
    EXPECT_EQ(Run("Insert Into MilkCollectionsME(CompanyId,CollectionDate,MemberNo,Animal) "
                  "Values(1,'12/04/2026',5,'gaaya')"),
        1);
    EXPECT_EQ(Row("Select * From MilkCollectionsME Where CompanyId=1 And CollectionDate=#04/12/2026# And "
                  "Animal='gaaya' And MemberNo=5"),
        "1|12/04/2026|5|null|gaaya|null|null|null|null|null|null|null|null|null|null");
    EXPECT_EQ(Run("DELETE * FROM MilkCollectionsME WHERE CollectionDate>=#04/11/2026# AND "
                  "CollectionDate<=#04/20/2026# AND MemberNo=5 AND Animal='gaaya'"),
        2);
    EXPECT_EQ(Rows("select Animal from MilkCollectionsME"), (Lines{"mhOsa"}));
}

TEST_F(SlipStatementsTest, TheDeductionsAreSummedByHead)
{
    EXPECT_EQ(Rows("select * from UchalTypes where CompanyId=1"),
        (Lines{"1|1|]cala", "1|0|KaV", "1|1|ikraNaa maalaÀroSana", "1|1|[tr"}));
    AddHead("MilkPaymentsDetails", 1, "11/04/2026", 0, 5, "ikraNaa maalaÀroSana ", 12.5);
    AddHead("MilkPaymentsDetails", 1, "21/04/2026", 0, 5, "ikraNaa maalaÀroSana", 99);
    EXPECT_EQ(Rows("select * from MilkPaymentsDetails where CompanyId=1 and MemberNo=5 and "
                   "TranDate>=#04/11/2026# And "
                   "TranDate<=#04/20/2026# and trim(AdvanceType)='ikraNaa maalaÀroSana'"),
        (Lines{"1|11/04/2026|0|5|ikraNaa maalaÀroSana |12.5"}));
    EXPECT_EQ(Run("delete * from KapatSummary"), 0);
    EXPECT_EQ(Run("insert into KapatSummary(CompanyId,MemberNo,Other,Uchal,Khadya,Kirana) "
                  "values(1,5,1.5,2.25,3,12.5)"),
        1);
    EXPECT_EQ(
        Run("Update KapatSummary set PrevThev=10.5,CurrentThev=2.25,BalThev=12.75 Where CompanyId=1 And "
            "MemberNo=5"),
        1);
    EXPECT_EQ(Row("select * from KapatSummary"), "1|5|1.5|2.25|3|12.5|10.5|2.25|12.75");
    EXPECT_EQ(Run("Update KapatSummary Set Uchal=Uchal +100.5 Where CompanyId=1 And MemberNo=5"), 1);
    EXPECT_EQ(Row("select Uchal from KapatSummary"), "102.75");
}

TEST_F(SlipStatementsTest, TheLabelledDeductionsAndTheDepositAreRead)
{
    EXPECT_EQ(Row("Select FixedKapat,PreviousAdvance From MilkPayments Where PaymentDate=#04/21/2026# And "
                  "MemberNo=12"),
        "5|500");
    EXPECT_EQ(Rows("Select * From MilkPayments Where PaymentDate=#04/21/2026# And MemberNo=5").size(), 2U);
    for (const char* type : {"gaaya zova ", "mhOsa zova", "]cala"}) {
        AddHead("MilkPaymentsDetails", 1, "31/03/2026", 0, 5, type, 900);
        AddHead("MilkPaymentsDetails", 1, "01/04/2026", 0, 5, type, 10.25);
        AddHead("MilkPaymentsDetails", 1, "21/04/2026", 0, 5, type, 2.5);
    }
    EXPECT_EQ(
        Rows("Select * From MilkPaymentsDetails Where TranDate=#04/21/2026# And MemberNo=5").size(), 3U);
    const std::string deposit =
        "select sum(Amount) as TKapat from MilkPaymentsDetails where CompanyId=1 and MemberNo=5 ";
    const std::string types = " and (trim(AdvanceType)='gaaya zova' or trim(AdvanceType)='mhOsa zova')";
    EXPECT_EQ(Row(deposit + "and TranDate>=#04/01/2026# AND TranDate<#04/21/2026#" + types), "20.5");
    EXPECT_EQ(Row(deposit + "and TranDate=#04/21/2026#" + types), "5");
    AddHead("AdvanceReceipt", 1, "11/04/2026", 1, 5, "Uchal Receipt", 7);
    AddHead("AdvanceReceipt", 1, "12/04/2026", 1, 5, "Uchal Receipt", 8);
    EXPECT_EQ(Rows("Select * From AdvanceReceipt Where TranDate>=#04/12/2026# And TranDate<=#04/21/2026# AND "
                   "MemberNo=5 "
                   "AND AdvanceType='Uchal Receipt'"),
        (Lines{"1|12/04/2026|1|5|Uchal Receipt|8"}));
    EXPECT_EQ(Run("Delete * From KapatDetails"), 0);
    EXPECT_EQ(Run("Insert Into KapatDetails(CompanyId,MemberNo,CollectionDate,Label1,Value1) "
                  "Values(1,5,'11/04/2026',']cala',-12.5)"),
        1);
    EXPECT_EQ(Row("select * from KapatDetails"), "1|5|11/04/2026|]cala|-12.5");
}

}

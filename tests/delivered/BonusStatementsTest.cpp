#include "tests/delivered/StatementsTest.h"

namespace {

class BonusStatementsTest : public StatementsTest {
protected:
    BonusStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddMember(1, 12, "saIta");
        AddDelivery(1, "01/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
        AddDelivery(1, "30/04/2026", "sakaL", 1, 5, "rama", "gaaya", 2.25, 67.5);
        AddDelivery(1, "30/04/2026", "sakaL", 2, 5, "rama", "mhOsa", 4, 120);
        AddDelivery(1, "01/05/2026", "sakaL", 1, 5, "rama", "gaaya", 64, 640);
        AddDelivery(1, "15/04/2026", "sakaL", 3, 12, "saIta", "mhOsa", 8, 240);
    }

    // A row of the form by member, as the run inserts it.
    void AddRow(int serial, int member, const std::string& name)
    {
        EXPECT_EQ(
            Run("Insert Into BonusPayments(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,CowBonusRate,"
                "BuffBonusRate,SerialNo,MemberNo,MemberName,CurrentCowLiters,CurrentBuffLiters,"
                "TotalCowLiters,"
                "TotalBuffLiters,TotalCowBonus,TotalBuffBonus,TotalBonus,Advance) Values(1,'01/04/2026',"
                "'30/04/2026',1,12,'daonhI',0.5,0.75,"
                + std::to_string(serial) + "," + std::to_string(member) + ",'" + name
                + "',3.75,4,3.75,4,1.88,3,4.88,-25.5)"),
            1);
    }

    // A row of the form by account, in one of the two tables.
    void AddAccount(const std::string& table, int serial, int account, const std::string& animal, double milk)
    {
        EXPECT_EQ(Run("Insert Into " + table
                      + "(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,Milktype,CowBonusRate,BuffBonusRate,"
                        "SerialNo,AcNo,"
                        "AccountName,Animal,TotalMilk,BonusCharges) "
                        "Values(1,'01/04/2026','30/04/2026',1,12,'daonhI',"
                        "0.5,0.75,"
                      + std::to_string(serial) + "," + std::to_string(account) + ",'rama','" + animal + "',"
                      + std::to_string(milk) + ",1.13)"),
            1);
    }
};

TEST_F(BonusStatementsTest, TheRatesAreReadAndKept)
{
    EXPECT_EQ(Run("Update AutoSettings Set BuffBonusRate=0.75"), 1);
    EXPECT_EQ(Run("Update AutoSettings set CowBonusRate=0.50"), 1);
    EXPECT_EQ(Row("Select BuffBonusRate, CowBonusRate From Autosettings"), "0.75|0.5");
    EXPECT_EQ(Row("Select max(MemberNo) as mno from MembersMaster"), "12");
}

TEST_F(BonusStatementsTest, TheLitresAndAdvancesOfAMemberAreSummed)
{
    EXPECT_EQ(
        Rows("Select * From MembersMaster Where companyid=1 And MemberNo>=1 And MemberNo<=11").size(), 1U);
    const std::string range = " From MilkCollections Where CollectionDate >=#04/01/2026# and "
                              "CollectionDate<=#04/30/2026# And MemberNo=5 And "
                              "Animal='";
    EXPECT_EQ(Row("Select sum(Liters) as cowliters" + range + "gaaya'"), "3.75");
    EXPECT_EQ(Row("Select sum(Liters) as Buffliters" + range + "mhOsa'"), "4");
    AddVoucher(1, "01/04/2026", 1, "pomaonT", "rama", "raoK", 500, "]cala", "]cala idlaI.");
    AddVoucher(1, "30/04/2026", 1, "pomaonT", "rama", "raoK", 25.25, "]cala", "]cala idlaI.");
    AddVoucher(1, "01/05/2026", 1, "pomaonT", "rama", "raoK", 9000, "]cala", "]cala idlaI.");
    AddVoucher(1, "15/04/2026", 1, "pomaonT", "rama", "raoK", 9000, "]cala", "[tr");
    AddHead("AdvanceReceipt", 1, "01/04/2026", 1, 5, "Uchal Receipt", 9000);
    AddHead("AdvanceReceipt", 1, "02/04/2026", 1, 5, "Uchal Receipt", 100);
    AddHead("AdvanceReceipt", 1, "30/04/2026", 1, 5, "Uchal Kapat", 20.5);
    EXPECT_EQ(Row("Select Sum(Amount)as mUchalPaid From TransactionsMaster Where companyId=1 And "
                  "DAccountName='rama' "
                  "AND Narration=']cala idlaI.' AND (TranDate>=#04/01/2026# And TranDate<=#04/30/2026#)"),
        "525.25");
    EXPECT_EQ(Row("Select Sum(Amount)as mUchalReceived From AdvanceReceipt Where companyId=1 And "
                  "TranDate>#04/01/2026# And TranDate<=#04/30/2026# AND MemberNo=5"),
        "120.5");
}

TEST_F(BonusStatementsTest, ARunIsFilledAndCorrectedByMember)
{
    EXPECT_EQ(Run("Delete * From BonusPayments"), 0);
    AddRow(0, 99, "");
    AddRow(1, 5, "rama");
    AddRow(2, 12, "saIta");
    EXPECT_EQ(Rows("Select * From BonusPayments Where SerialNo=0").size(), 1U);
    EXPECT_EQ(Run("Delete * From BonusPayments Where SerialNo=0"), 1);
    EXPECT_EQ(Rows("Select * From BonusPayments").size(), 2U);
    const std::string nothing = "|null|null|null|null|null";
    EXPECT_EQ(Row("Select * From BonusPayments Where MemberNo=5"),
        "1|01/04/2026|30/04/"
        "2026|1|12|daonhI|0.5|0.75|1|5|rama|3.75|4|null|null|3.75|4|1.88|3|4.88|-25.5|null|null"
            + nothing);
    EXPECT_EQ(
        Run("Update BonusPayments Set PreviousCowLiters=10.125,PreviousBuffLiters=20,TotalCowLiters=13.875,"
            "TotalBuffLiters=24,TotalCowBonus=6.94,TotalBuffBonus=18,TotalBonus=24.94,Advance=5,"
            "RemainingBonus=19.94,PreviousThev=2.5 Where MemberNo=5"),
        1);
    EXPECT_EQ(Row("Select * From BonusPayments Where MemberNo=5"),
        "1|01/04/2026|30/04/"
        "2026|1|12|daonhI|0.5|0.75|1|5|rama|3.75|4|10.125|20|13.875|24|6.94|18|24.94|5|19.94|2.5"
            + nothing);
    EXPECT_EQ(Run("Delete * from BonusPayments Where SerialNo=0"), 0);
    EXPECT_EQ(Run("Delete * From BonusPayments"), 2);
}

TEST_F(BonusStatementsTest, ARunByAccountIsWalkedFoldedAndSummed)
{
    const std::string walk = " From MilkCollections Where CollectionDate >=#04/01/2026# And "
                             "Collectiondate<=#04/30/2026# And MemberNo>=1 And "
                             "MemberNo<=12";
    EXPECT_EQ(Rows("Select *" + walk + " Order by CollectionDate,MemberNo").size(), 4U);
    EXPECT_EQ(
        Rows("Select CollectionDate,MemberNo,Animal,Liters" + walk + " Order by CollectionDate,MemberNo")[1],
        "15/04/2026|12|mhOsa|8");
    EXPECT_EQ(Rows("Select Liters" + walk + " And Animal='gaaya' Order by CollectionDate,MemberNo"),
        (Lines{"1.5", "2.25"}));
    AddAccount("BonusPayments", 1, 5, "gaaya", 1.5);
    AddAccount("BonusPayments", 2, 5, "gaaya", 2.25);
    AddAccount("BonusPayments", 3, 12, "mhOsa", 8);
    EXPECT_EQ(Run("Delete * From BonusPaymentsTemp"), 0);
    EXPECT_EQ(Rows("Select Distinct AcNo From BonusPayments order by AcNo"), (Lines{"5", "12"}));
    EXPECT_EQ(Rows("Select Distinct AcNo From BonusPayments").size(), 2U);
    EXPECT_EQ(
        Row("Select sum(TotalMilk)as tmilk From BonusPayments Where AcNo=5 and Animal='gaaya'"), "3.75");
    EXPECT_EQ(
        Row("Select sum(TotalMilk)as tmilk From BonusPayments Where AcNo=5 and Animal='mhOsa'"), "null");
    AddAccount("BonusPaymentsTemp", 1, 5, "gaaya", 3.75);
    AddAccount("BonusPaymentsTemp", 2, 12, "mhOsa", 8);
    const std::string range = " From MilkCollections Where CollectionDate >=#04/01/2026# And "
                              "CollectionDate<=#04/30/2026# And MemberNo>=1 And "
                              "MemberNo<=12 And Animal='";
    EXPECT_EQ(Row("Select sum(Liters) as cowliters" + range + "gaaya'"), "3.75");
    EXPECT_EQ(Row("Select sum(Liters) as Buffliters" + range + "mhOsa'"), "12");
    EXPECT_EQ(
        Run("Update BonusPaymentstemp Set CurrentCowLiters=3.75, CurrentBuffLiters=12, TotalcowBonus=1.88, "
            "TotalBuffBonus=9,TotalBonus=10.88"),
        2);
    EXPECT_EQ(Run("Delete * From BonusPayments"), 3);
    EXPECT_EQ(Run("Insert Into BonusPayments Select * From BonusPaymentsTemp"), 2);
    EXPECT_EQ(Run("Delete * From BonusPayments Where SerialNo=0"), 0);
    EXPECT_EQ(Rows("select * from BonusPayments order by SerialNo").front(),
        "1|01/04/2026|30/04/"
        "2026|1|12|daonhI|0.5|0.75|1|null|null|3.75|12|null|null|null|null|1.88|9|10.88|null|null|"
        "null|5|rama|gaaya|3.75|1.13");
}

}

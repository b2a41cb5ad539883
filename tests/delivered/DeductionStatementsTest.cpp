#include "tests/delivered/StatementsTest.h"

namespace {

// A payment's reckoning: the period, the litres and amounts, and the heads of what is kept back.
class DeductionStatementsTest : public StatementsTest {
protected:
    DeductionStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddMember(2, 5, "Xyaama");
    }

    Lines Heads() { return Rows("select AdvanceType,Amount from AdvanceTemp order by TranId,TranDate"); }
};

TEST_F(DeductionStatementsTest, ThePeriodAndItsMilkAreRead)
{
    AddPayment(1, "01/04/2026", "10/04/2026", "11/04/2026", 7, 5, "rama");
    AddPayment(2, "11/04/2026", "20/04/2026", "11/04/2026", 9, 5, "Xyaama");
    AddDelivery(1, "11/04/2026", "sakaL", 1, 5, "rama", "gaaya", 1.5, 45);
    AddDelivery(1, "20/04/2026", "sakaL", 1, 5, "rama", "gaaya", 2.25, 67.5);
    AddDelivery(1, "12/04/2026", "saMQyaakaL", 2, 5, "rama", "mhOsa", 4, 120);
    AddDelivery(1, "21/04/2026", "sakaL", 1, 5, "rama", "gaaya", 64, 640);
    AddDelivery(2, "12/04/2026", "sakaL", 1, 5, "Xyaama", "gaaya", 128, 1280);

    EXPECT_EQ(Row("SELECT max(TranId) as MaxTrId FROM MilkPayments WHERE CompanyId=1 and "
                  "cstr(PaymentDate)='11/04/2026'"),
        "7");
    EXPECT_EQ(Row("SELECT max(TranId) as MaxTrId FROM MilkPayments WHERE CompanyId=1 and "
                  "cstr(PaymentDate)='12/04/2026'"),
        "null");
    EXPECT_EQ(Row("Select MemberName From MembersMaster Where CompanyId=1 And MemberNo=5"), "rama");
    EXPECT_EQ(
        Rows("Select CollectionDate,CollectionTime,Animal,Liters,Fat,Rate,Amount from MilkCollections Where "
             "CompanyId=1 And MemberNo=5 And CollectionDate>=#04/11/2026# and CollectionDate<=#04/20/2026# "
             "Order by CollectionDate,CollectionTime"),
        (Lines{"11/04/2026|sakaL|gaaya|1.5|4.5|30|45", "12/04/2026|saMQyaakaL|mhOsa|4|4.5|30|120",
            "20/04/2026|sakaL|gaaya|2.25|4.5|30|67.5"}));
    const std::string overlap =
        "Select * From  MilkPayments Where CompanyId=1 And MemberNo=5 And (FromDate<=#";
    EXPECT_EQ(Rows(overlap + "04/10/2026# And Todate>=#04/10/2026#)").size(), 1U);
    EXPECT_TRUE(Rows(overlap + "04/11/2026# And Todate>=#04/11/2026#)").empty());
    const std::string period =
        " from MilkCollections Where CompanyId=1 And MemberNo=5 And CollectionDate>=#04/11/2026# and "
        "CollectionDate<=#04/20/2026# And Animal='";
    EXPECT_EQ(Row("Select Sum(Liters) as Clitres" + period + "gaaya'"), "3.75");
    EXPECT_EQ(Row("Select Sum(Liters) as blitres" + period + "mhOsa'"), "4");
    EXPECT_EQ(Row("Select Sum(Amount) as camount" + period + "gaaya'"), "112.5");
    EXPECT_EQ(Row("Select Sum(Amount) as bamount" + period + "mhOsa'"), "120");
    EXPECT_EQ(Row("Select ThevKapatCow,ThevKapatBuff from Autosettings"), "0.5|0.5");
    EXPECT_EQ(Run("Delete * From MilkCollectionsTemp where companyId=1"), 0);
    EXPECT_EQ(Run("Insert Into MilkCollectionsTemp Select * from MilkCollections Where CompanyId=1 And "
                  "MemberNo=5 And "
                  "CollectionDate>=#04/11/2026# and CollectionDate<=#04/20/2026#"),
        3);
}

TEST_F(DeductionStatementsTest, AMemberWithoutMilkIsListed)
{
    EXPECT_EQ(Run("Insert Into ShortMemberList(CompanyId,MemberNo,MemberName) Values(1,5,'rama')"), 1);
    Run("Insert Into ShortMemberList(CompanyId,MemberNo,MemberName) Values(1,12,'saIta')");
    EXPECT_EQ(Run("Delete * From ShortMemberList Where CompanyId=0"), 0);
    EXPECT_EQ(Rows("select MemberNo,MemberName from ShortMemberList order By MemberNo DESC"),
        (Lines{"12|saIta", "5|rama"}));
    EXPECT_EQ(Run("delete * From ShortMemberList"), 2);
    EXPECT_EQ(Run("Delete * from ShortMemberlist"), 0);
}

TEST_F(DeductionStatementsTest, TheInstallmentOfAMemberIsRead)
{
    EXPECT_TRUE(Rows("SELECT Kapat FROM InstallmentTable WHERE MemberNo=5").empty());
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(12,'saIta',75)");
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'rama',50.5)");
    EXPECT_EQ(Row("SELECT Kapat FROM InstallmentTable WHERE MemberNo=5"), "50.5");
    EXPECT_EQ(Rows("select MemberNo,MemberName,Kapat from InstallmentTable order By MemberNo"),
        (Lines{"5|rama|50.5", "12|saIta|75"}));
}

TEST_F(DeductionStatementsTest, TheHeadsAreBuiltFromVouchersAndRepayments)
{
    AddHead("TransactionsDetails", 1, "31/03/2026", 1, 5, "]cala", 1000);
    AddHead("TransactionsDetails", 1, "11/04/2026", 2, 5, "]cala", 200);
    AddHead("TransactionsDetails", 1, "20/04/2026", 3, 5, "KaV", 123.45);
    AddHead("TransactionsDetails", 1, "21/04/2026", 4, 5, "]cala", 9000);
    AddHead("TransactionsDetails", 2, "12/04/2026", 1, 5, "]cala", 9000);
    AddHead("AdvanceReceipt", 1, "01/04/2026", 1, 5, "Uchal Kapat", 400);
    AddHead("AdvanceReceipt", 1, "02/04/2026", 1, 5, "Uchal Receipt", 100.5);
    AddHead("AdvanceReceipt", 1, "12/04/2026", 1, 5, "Uchal Kapat", 60);
    AddHead("AdvanceReceipt", 1, "13/04/2026", 1, 5, "Uchal Receipt", 20.25);

    EXPECT_EQ(Run("Delete * From AdvanceTemp"), 0);
    EXPECT_EQ(Run("Insert Into AdvanceTemp Select * From TransactionsDetails where CompanyId=1 And "
                  "TranDate>=#04/11/2026# And TranDate<=#04/20/2026# And MemberNo=5"),
        2);
    EXPECT_EQ(Rows("Select * From AdvanceTemp"),
        (Lines{"1|11/04/2026|2|5|]cala|200", "1|20/04/2026|3|5|KaV|123.45"}));
    EXPECT_EQ(Row("Select Sum(Amount)as UchalPaid From TransactionsDetails Where  companyId=1 And "
                  "TranDate<#04/11/2026# And MemberNo=5"),
        "1000");
    EXPECT_EQ(Row("Select Sum(Amount)as UchalReceived From AdvanceReceipt Where  companyId=1 And "
                  "TranDate<#04/11/2026# And MemberNo=5"),
        "500.5");
    EXPECT_EQ(Run("Update AutoSettings Set FixedKapat=5"), 1);
    EXPECT_EQ(Row("Select FixedKapat From Autosettings"), "5");
    const std::string fixed =
        " Where CompanyId=1 And TranDate=#04/21/2026# And MemberNo=5 And AdvanceType='[tr'";
    EXPECT_TRUE(Rows("Select * From AdvanceTemp" + fixed).empty());
    EXPECT_EQ(Run("Insert Into AdvanceTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                  "Values(1,'21/04/2026',10,5,'[tr',5)"),
        1);
    EXPECT_EQ(Row("Select * From AdvanceTemp" + fixed), "1|21/04/2026|10|5|[tr|5");
    EXPECT_EQ(Run("Update AdvanceTemp Set Amount=Amount+5.5" + fixed), 1);
    EXPECT_EQ(Row("Select sum(Amount) as TAmount From AdvanceTemp where CompanyId=1"), "333.95");
    EXPECT_EQ(Run("Delete * From AdvanceTemp Where CompanyId=0"), 0);
    EXPECT_EQ(Heads(), (Lines{"]cala|200", "KaV|123.45", "[tr|10.5"}));

    const std::string repaid = "Select * From AdvanceReceipt Where CompanyId=1 And TranDate>=#04/11/2026# "
                               "And TranDate<=#04/20/2026# And "
                               "MemberNo=5 And AdvanceType<>'Uchal Kapat'";
    EXPECT_EQ(Rows(repaid), (Lines{"1|13/04/2026|1|5|Uchal Receipt|20.25"}));
    EXPECT_EQ(Run("Update AdvanceTemp Set Amount=Amount +-20.25 Where CompanyId=1 And MemberNo=5 And "
                  "AdvanceType=']cala'"),
        1);
    EXPECT_EQ(Run("Delete * From AdvanceTemp Where CompanyId=1 And MemberNo=5 And AdvanceType='KaV'"), 1);
    EXPECT_EQ(Heads(), (Lines{"]cala|179.75", "[tr|10.5"}));
}

TEST_F(DeductionStatementsTest, ThePaiseGoToTheDepositOnce)
{
    const std::string deposit = " where CompanyId=1 and AdvanceType='zova'";
    EXPECT_TRUE(Rows("SELECT * FROM MilkPaymentsDetailsTemp" + deposit).empty());
    EXPECT_EQ(
        Run("insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'21/04/2026',3,5,'zova',0.95)"),
        1);
    EXPECT_EQ(Row("SELECT * FROM MilkPaymentsDetailsTemp" + deposit), "1|21/04/2026|3|5|zova|0.95");
    EXPECT_EQ(Run("update MilkPaymentsDetailsTemp set Amount=0.4" + deposit), 1);
    EXPECT_EQ(Run("delete * from MilkPaymentsDetailsTemp where CompanyId=0"), 0);
    EXPECT_EQ(Row("SELECT Amount FROM MilkPaymentsDetailsTemp"), "0.4");
    EXPECT_EQ(Row("select DecimalPayment from AutoSettings"), "PayIt");
}

TEST_F(DeductionStatementsTest, TheExtraRateIsKeptAsATextInTheCansLimit)
{
    EXPECT_EQ(Run("UPDATE AutoSettings SET CanLimitCow=2.50"), 1);
    EXPECT_EQ(Row("select CanLimitCow,typeof(CanLimitCow) from AutoSettings"), "2.5|text");
}

}

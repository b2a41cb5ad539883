#include "tests/delivered/StatementsTest.h"

namespace {

// A payment's posting, its reversal and the run over many members.
class PaymentStatementsTest : public StatementsTest {
protected:
    PaymentStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddMember(1, 12, "saIta");
        AddMember(2, 5, "Xyaama");
    }
};

TEST_F(PaymentStatementsTest, TheDetailsAreStagedAndPosted)
{
    AddHead("AdvanceTemp", 1, "21/04/2026", 10, 5, "]cala", 200);
    EXPECT_EQ(Run("Delete * From MilkPaymentsDetailsTemp"), 0);
    EXPECT_EQ(Run("Insert Into MilkPaymentsDetailsTemp Select * From AdvanceTemp"), 1);
    EXPECT_EQ(
        Run("insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'21/04/2026',3,5,'gaaya zova',10.00)"),
        1);
    EXPECT_EQ(
        Run("insert into MilkPaymentsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'21/04/2026',3,5,'mhOsa zova',10.10)"),
        1);
    EXPECT_EQ(Run("update MilkPaymentsDetailsTemp set TranId=0"), 3);
    EXPECT_EQ(Run("insert into MilkPaymentsDetails select * from MilkPaymentsDetailsTemp"), 3);
    EXPECT_EQ(Rows("select * from MilkPaymentsDetails"),
        (Lines{"1|21/04/2026|0|5|]cala|200", "1|21/04/2026|0|5|gaaya zova|10",
            "1|21/04/2026|0|5|mhOsa zova|10.1"}));
}

TEST_F(PaymentStatementsTest, ThePaymentItsRecoveryAndTheMembersFiguresAreWritten)
{
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 3, 5, "rama");
    EXPECT_EQ(Row("select * from MilkPayments"),
        "1|11/04/2026|20/04/2026|21/04/"
        "2026|3|5|rama|daonhI|30.5|1000|150|850|500|400|100|20|30|20.5|10|600|400|5|500");
    EXPECT_EQ(Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                  "values(1,'21/04/2026',4,5,'Uchal Kapat',-4.5)"),
        1);
    EXPECT_EQ(Row("select * from AdvanceReceipt"), "1|21/04/2026|4|5|Uchal Kapat|-4.5");
    EXPECT_EQ(
        Row("Select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From MembersMaster where "
            "CompanyId=1 And MemberNo=5"),
        "102|104|106|108");
    EXPECT_EQ(
        Run("Update MembersMaster Set ClosingBalance=-723.45, CowClosingThev=114, BuffClosingThev=116.1, "
            "ClosingUchal=-720 Where CompanyId=1 And MemberNo=5"),
        1);
    EXPECT_EQ(
        Rows("Select CompanyId,MemberNo,ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From "
             "MembersMaster order by CompanyId,MemberNo"),
        (Lines{"1|5|-723.45|114|116.1|-720", "1|12|102|104|106|108", "2|5|102|104|106|108"}));
}

TEST_F(PaymentStatementsTest, APaymentIsFoundAndTakenBackWhole)
{
    AddPayment(1, "01/04/2026", "10/04/2026", "11/04/2026", 3, 5, "rama");
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 3, 5, "rama");
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 4, 12, "saIta");
    AddPayment(2, "11/04/2026", "20/04/2026", "21/04/2026", 3, 5, "Xyaama");
    for (const int member : {5, 12}) {
        AddHead("AdvanceReceipt", 1, "21/04/2026", 4, member, "Uchal Kapat", 95);
        AddHead("MilkPaymentsDetails", 1, "20/04/2026", 0, member, "]cala", 100);
        AddHead("MilkPaymentsDetails", 1, "21/04/2026", 0, member, "zova", 0.95);
    }
    AddHead("AdvanceReceipt", 1, "21/04/2026", 1, 5, "Uchal Receipt", 10);

    const std::string period = "CompanyId=1 And FromDate=#04/11/2026# And Todate=#04/20/2026# And MemberNo=5";
    EXPECT_EQ(Rows("Select * From Milkpayments Where " + period).size(), 1U);
    EXPECT_TRUE(Rows("Select * From MilkPayments Where CompanyId=1 And MemberNo=5 And FromDate>#04/20/2026#")
                    .empty());
    EXPECT_EQ(
        Rows("Select * From MilkPayments Where CompanyId=1 And MemberNo=5 And FromDate>#04/10/2026#").size(),
        1U);
    EXPECT_EQ(Row("Select sum(Amount) as TAmount from MilkPaymentsDetails Where CompanyId=1 And "
                  "TranDate=#04/21/2026# And MemberNo=5 And AdvanceType='zova'"),
        "0.95");
    EXPECT_EQ(Run("Delete * From Milkpayments Where CompanyId=1 And TranId=3 And FromDate=#04/11/2026# And "
                  "Todate=#04/20/2026# And MemberNo=5"),
        1);
    EXPECT_EQ(
        Run("Delete * From AdvanceReceipt Where CompanyId=1 And MemberNo=5 And TranDate=#04/21/2026# And "
            "AdvanceType='Uchal Kapat'"),
        1);
    EXPECT_EQ(Run("delete * from MilkPaymentsDetails where CompanyId=1 and TranDate>=#04/11/2026# And "
                  "TranDate<=#04/20/2026# and MemberNo=5"),
        1);
    EXPECT_EQ(Rows("select CompanyId,MemberNo,FromDate from MilkPayments order by CompanyId,MemberNo"),
        (Lines{"1|5|01/04/2026", "1|12|11/04/2026", "2|5|11/04/2026"}));
    EXPECT_EQ(Rows("select MemberNo,AdvanceType from AdvanceReceipt order by MemberNo"),
        (Lines{"5|Uchal Receipt", "12|Uchal Kapat"}));
    EXPECT_EQ(Rows("select MemberNo,AdvanceType from MilkPaymentsDetails order by MemberNo,TranDate"),
        (Lines{"5|zova", "12|]cala", "12|zova"}));
}

TEST_F(PaymentStatementsTest, ARunIsListedAndSummed)
{
    EXPECT_EQ(Row("Select max(MemberNo)as mno From MembersMaster Where CompanyId=1"), "12");
    EXPECT_EQ(Row("Select max(MemberNo)as mno From MembersMaster Where CompanyId=3"), "null");
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 1, 5, "rama");
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 2, 12, "saIta");
    AddPayment(1, "11/04/2026", "20/04/2026", "22/04/2026", 1, 7, "gaNaoSa");
    AddPayment(1, "11/04/2026", "20/04/2026", "21/04/2026", 3, 13, "maalaa");
    const std::string run =
        " From Milkpayments Where CompanyId=1 And PaymentDate=#04/21/2026# And MemberNo>=1 And MemberNo<= 12";
    EXPECT_EQ(Rows("Select *" + run + " order by MemberNo DESC").size(), 2U);
    EXPECT_EQ(Rows("Select MemberNo" + run + " order by MemberNo DESC"), (Lines{"12", "5"}));
    EXPECT_EQ(Run("Delete * From MilkPayments Where CompanyId=0"), 0);
    EXPECT_EQ(
        Row("Select sum(Liters) as TLiters, Sum(Amount) as TAmount,Sum(Kapat) as TKapat,Sum(NetAmount) as "
            "TNetAmount From MilkPayments Where CompanyId=1 And PaymentDate=#04/21/2026# And MemberNo>=1 And "
            "MemberNo<= 12"),
        "61|2000|300|1700");
    EXPECT_EQ(
        Row("Select sum(Liters) as TLiters, Sum(Amount) as TAmount,Sum(Kapat) as TKapat,Sum(NetAmount) as "
            "TNetAmount From MilkPayments Where CompanyId=1 And PaymentDate=#04/25/2026# And MemberNo>=1 And "
            "MemberNo<= 12"),
        "null|null|null|null");
}

}

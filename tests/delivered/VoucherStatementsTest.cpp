#include "tests/delivered/StatementsTest.h"

namespace {

// Advance and receipt vouchers, the words of an amount and the list that a voucher is picked from.
class VoucherStatementsTest : public StatementsTest {
protected:
    VoucherStatementsTest()
    {
        AddMember(1, 5, "rama");
        AddVoucher(1, "15/04/2026", 1, "pomaonT", "rama", "raoK", 500, "]cala", "]cala idlaI.");
        AddVoucher(1, "15/04/2026", 2, "irsaIT", "raoK", "rama", 100.5, "]cala jamaa", "]cala jamaa JaalaI.");
        AddVoucher(1, "14/04/2026", 10, "pomaonT", "rama", "raoK", 50, "]cala ", "]cala idlaI.");
        AddVoucher(2, "15/04/2026", 7, "pomaonT", "rama", "raoK", 900, "]cala", "]cala idlaI.");
    }
};

TEST_F(VoucherStatementsTest, AVoucherIsNumberedAndFoundByItsDay)
{
    EXPECT_EQ(Rows("SELECT MemberNo,MemberName FROM MembersMaster order by MemberName"), (Lines{"5|rama"}));
    EXPECT_EQ(Row("SELECT max(TranId) as MaxTrId FROM TransactionsMaster WHERE CompanyId=1 and "
                  "cstr(TranDate)='15/04/2026'"),
        "2");
    EXPECT_EQ(Row("SELECT * FROM TransactionsMaster WHERE CompanyId=1 and cstr(TranDate)='15/04/2026' and "
                  "TranId=2"),
        "1|15/04/2026|2|irsaIT|raoK|rama|100.5|]cala jamaa|]cala jamaa JaalaI.|null|null|null|null");
    EXPECT_EQ(
        Rows("SELECT * FROM TransactionsMaster where CompanyId=1 and cstr(TranDate)='15/04/2026'").size(),
        2U);
}

TEST_F(VoucherStatementsTest, TheHeadsOfAVoucherAreEnteredAndKept)
{
    EXPECT_EQ(Rows("select UchalType from UchalTypes where CompanyId=1"),
        (Lines{"]cala", "KaV", "ikraNaa maalaÀroSana", "[tr"}));
    EXPECT_EQ(Row("SELECT UchalType FROM UchalTypes WHERE trim(UchalType)='KaV'"), "KaV");
    EXPECT_TRUE(Rows("SELECT UchalType FROM UchalTypes WHERE trim(UchalType)='KaVa'").empty());
    EXPECT_EQ(Run("delete * from TransactionsDetailsTemp"), 0);
    EXPECT_EQ(
        Run("insert into TransactionsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'15/04/2026',3,5,'KaV',123.45)"),
        1);
    EXPECT_EQ(Run("update TransactionsDetailsTemp set Amount=124.5 where AdvanceType='KaV'"), 1);
    EXPECT_EQ(Run("delete * from TransactionsDetailsTemp where CompanyId=0"), 0);
    EXPECT_EQ(Run("insert into TransactionsDetails select * from TransactionsDetailsTemp"), 1);
    EXPECT_EQ(Row("select * from TransactionsDetails"), "1|15/04/2026|3|5|KaV|124.5");
    EXPECT_EQ(Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
                  "values(1,'15/04/2026',2,5,'Uchal Receipt',100.50)"),
        1);
    EXPECT_EQ(Row("select * from AdvanceReceipt"), "1|15/04/2026|2|5|Uchal Receipt|100.5");
}

TEST_F(VoucherStatementsTest, AVoucherIsChangedAndDeletedByDayAndNumber)
{
    AddHead("TransactionsDetails", 1, "15/04/2026", 1, 5, "]cala", 500);
    AddHead("TransactionsDetails", 2, "15/04/2026", 1, 5, "]cala", 900);
    AddHead("TransactionsDetailsTemp", 1, "15/04/2026", 1, 5, "]cala", 450);
    AddHead("AdvanceReceipt", 1, "15/04/2026", 2, 5, "Uchal Receipt", 100.5);
    EXPECT_EQ(Run("update TransactionsMaster set DAccountName='saIta',Amount=450 where CompanyId=1 and "
                  "cstr(TranDate)='15/04/2026' and TranId=1"),
        1);
    EXPECT_EQ(Run("delete * from TransactionsDetails where CompanyId=1 and cstr(TranDate)='15/04/2026' and "
                  "TranId=1"),
        1);
    EXPECT_EQ(Run("update TransactionsDetailsTemp set MemberNo=12"), 1);
    EXPECT_EQ(Run("insert into TransactionsDetails select * from TransactionsDetailsTemp"), 1);
    EXPECT_EQ(Rows("select * from TransactionsDetails order by CompanyId"),
        (Lines{"1|15/04/2026|1|12|]cala|450", "2|15/04/2026|1|5|]cala|900"}));
    EXPECT_EQ(
        Run("Delete * From AdvanceReceipt Where CompanyId=1 and cstr(TranDate)='15/04/2026' and TranId=2"),
        1);
    EXPECT_EQ(Run("delete * from TransactionsMaster where CompanyId=1 and cstr(TranDate)='15/04/2026' and "
                  "TranId=2"),
        1);
    EXPECT_EQ(
        Rows("select CompanyId,TranId,DAccountName,Amount from TransactionsMaster order by CompanyId,TranId"),
        (Lines{"1|1|saIta|450", "1|10|rama|50", "2|7|rama|900"}));
    EXPECT_EQ(
        Run("delete * from AdvanceReceipt where CompanyId=1 and cstr(TranDate)='15/04/2026' and TranId=2"),
        0);
}

TEST_F(VoucherStatementsTest, TheMembersBalanceMoves)
{
    EXPECT_EQ(
        Row("Select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From MembersMaster where "
            "CompanyId=1 And MemberNo=5"),
        "102|104|106|108");
    EXPECT_EQ(Run("Update MembersMaster Set ClosingBalance=-398.5, ClosingUchal=608.5 Where CompanyId=1 And "
                  "MemberNo=5"),
        1);
    EXPECT_EQ(Row("Select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal From MembersMaster"),
        "-398.5|104|106|608.5");
}

TEST_F(VoucherStatementsTest, AVoucherIsStagedForPrintingWithItsWords)
{
    const std::string voucher = " where (CompanyId=1) and (cstr(TranDate)='15/04/2026') and (TranId=1)";
    EXPECT_EQ(Run("update TransactionsMaster set RsInWords='paacaSao', Printname='ramaa'" + voucher), 1);
    EXPECT_EQ(Run("delete * from TransactionsMasterTemp"), 0);
    EXPECT_EQ(Run("insert into TransactionsMasterTemp select * from TransactionsMaster" + voucher), 1);
    EXPECT_EQ(Run("delete * from TransactionsMasterTemp where companyId=0 "), 0);
    EXPECT_EQ(Row("select * from TransactionsMasterTemp"),
        "1|15/04/2026|1|pomaonT|rama|raoK|500|]cala|]cala idlaI.|paacaSao|ramaa|null|null");
}

TEST_F(VoucherStatementsTest, TheWordsOfANumberAreLookedUp)
{
    const std::string five = Row("select no1,word1 from rswords where no1=5");
    EXPECT_EQ(five.substr(0, 2), "5|");
    EXPECT_GT(five.size(), 2U);
    EXPECT_EQ(Row("select no1,word1 from rswords where no1=05"), five);
    EXPECT_EQ(Rows("select * from rswords where no1=05"), (Lines{five}));
    EXPECT_NE(Row("select no1,word1 from rswords where no1=50"), five);
}

TEST_F(VoucherStatementsTest, VouchersOfAKindAreListedInTheirOrder)
{
    EXPECT_EQ(
        Rows("SELECT * FROM TransactionsMaster WHERE CompanyId=1 and TranType='pomaonT' and trim(BillNo) = "
             "']cala' order by TranDate,TranId"),
        (Lines{"1|14/04/2026|10|pomaonT|rama|raoK|50|]cala |]cala idlaI.|null|null|null|null",
            "1|15/04/2026|1|pomaonT|rama|raoK|500|]cala|]cala idlaI.|null|null|null|null"}));
    EXPECT_EQ(
        Rows("SELECT * FROM TransactionsMaster WHERE CompanyId=1 and TranType='irsaIT' and trim(BillNo) = "
             "']cala jamaa' order by TranDate,TranId")
            .size(),
        1U);
}

}

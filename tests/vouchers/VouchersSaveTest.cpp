#include "tests/vouchers/VouchersTest.h"

namespace {

class VouchersSaveTest : public VouchersTest { };

TEST_F(VouchersSaveTest, TwoVouchersOnOneDateAreNumberedOneAndTwoAndANewDateStartsAtOne)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%n");
        KeyAdvance(clerk, "15042026", 2, "KaV", "50");
        Type(clerk, "%n");
        KeyAdvance(clerk, "16042026", 2, "KaV", "25");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select TranDate,TranId,DAccountName from TransactionsMaster order by TranDate,TranId"),
        (QStringList{"15/04/2026|1|rama", "15/04/2026|2|saIta", "16/04/2026|1|saIta"}));
}

TEST_F(VouchersSaveTest, AdvancesAndReceiptsShareTheNumbersOfADate)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%n");
        ToReceipts(clerk);
        KeyReceipt(clerk, "15042026", 2, "40");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select TranId,TranType from TransactionsMaster order by TranId"),
        (QStringList{"1|pomaonT", "2|irsaIT"}));
}

TEST_F(VouchersSaveTest, AnAdvanceOfTwoHeadsIsOneMasterRowAndTwoDetailRows)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n");
        EXPECT_EQ(clerk.Top().Title().Text(), "  ]cala naaoMd navaIna roka^D-");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&saovh");
        Type(clerk, "15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboUchalTypes");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "100.00");
        Type(clerk, "]cala{ENTER}50{ENTER}{ENTER}{F4}");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "150.00");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), "vha}car ip`MT krayacao ka Æ");
        Type(clerk, "%n");
        EXPECT_EQ(clerk.Top().Title().Text(), "  ]cala naaoMd");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&navaIna");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsMaster"),
        (QStringList{"1|15/04/2026|1|pomaonT|rama|raoK|150|]cala|]cala idlaI.|NULL|NULL|NULL|NULL"}));
    EXPECT_EQ(Rows("select * from TransactionsDetails"),
        (QStringList{"1|15/04/2026|1|1|KaV|100", "1|15/04/2026|1|1|]cala|50"}));
    EXPECT_EQ(Rows("select * from TransactionsDetailsTemp"), QStringList());
    EXPECT_EQ(Closing(1), "850|350");
    EXPECT_EQ(Closing(2), "1000|200");
    EXPECT_EQ(Owed(1), "150");
    EXPECT_EQ(
        Rows("select CowClosingThev,OpeningUchal from MembersMaster where MemberNo=1"), (QStringList{"7|0"}));
}

TEST_F(VouchersSaveTest, AReceiptOfFortyLowersTheAdvanceAndRaisesTheBalanceByForty)
{
    Play([](Clerk& clerk) {
        ToReceipts(clerk);
        KeyReceipt(clerk, "15042026", 1, "40");
        EXPECT_EQ(clerk.Message(), "vha}car ip`MT krayacao ka Æ");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsMaster"),
        (QStringList{
            "1|15/04/2026|1|irsaIT|raoK|rama|40|]cala jamaa|]cala jamaa JaalaI.|NULL|NULL|NULL|NULL"}));
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), (QStringList{"1|15/04/2026|1|1|Uchal Receipt|40"}));
    EXPECT_EQ(Rows("select * from TransactionsDetails"), QStringList());
    EXPECT_EQ(Closing(1), "1040|160");
    EXPECT_EQ(Owed(1), "-40");
}

// In single precision a balance of this size would lose the paise.
TEST_F(VouchersSaveTest, BalancesOfLakhsMoveToThePaisa)
{
    Run("update MembersMaster set ClosingBalance=123456.78,ClosingUchal=654321.09 where MemberNo=1");
    Play([this](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "0.05");
        Type(clerk, "%n");
        EXPECT_EQ(Closing(1), "123456.73|654321.14");
        Type(clerk, "%d{ENTER}{ENTER}{ENTER}KaV{ENTER}1234567.89{ENTER}{ENTER}{F4}{ENTER}%h%n");
        EXPECT_EQ(Closing(1), "-1111111.11|1888888.98");
        Type(clerk, "%k{ENTER}{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "123456.78|654321.09");
}

TEST_F(VouchersSaveTest, AHeadThatIsEnteredAgainGetsTheNewAmount)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}KaV{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtUchalAmount"), "100.00");
        Type(clerk, "120.505{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "120.51");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select AdvanceType,Amount from TransactionsDetailsTemp"), (QStringList{"KaV|120.51"}));
}

TEST_F(VouchersSaveTest, HeadsGoWithTheMemberAndTheDateThatAreSaved)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}");
        Press(clerk, "MaskTranDate");
        Type(clerk, "17042026{ENTER}{ENTER}2{ENTER}{ENTER}{F4}{ENTER}%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select TranDate,TranId,MemberNo,Amount from TransactionsDetails"),
        (QStringList{"17/04/2026|1|2|100"}));
    EXPECT_EQ(Closing(2), "900|300");
    EXPECT_EQ(Closing(1), "1000|200");
}

TEST_F(VouchersSaveTest, WithSalesOnlyTheAdvanceIsOffered)
{
    Run("update AutoSettings set UchalEntry='Sales'");
    Play([](Clerk& clerk) {
        EXPECT_EQ(
            dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboUchalTypes"))->Items(), QStringList("]cala"));
        KeyAdvance(clerk, "15042026", 1, "", "60");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select AdvanceType,Amount from TransactionsDetails"), (QStringList{"]cala|60"}));
}

TEST_F(VouchersSaveTest, WithoutSalesFourHeadsAreOffered)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboUchalTypes"))->Items(),
            (QStringList{"]cala", "KaV", "ikraNaa maalaÀroSana", "[tr"}));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersSaveTest, ANumberOfNoughtKeepsAnAdvanceInAddAndSendsToItsDate)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}");
        Press(clerk, "txtTranNo");
        Type(clerk, "0%s");
        EXPECT_EQ(clerk.Message(), "vha}car naM. caukIcaa Aaho. punha enT/I kra.");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
        EXPECT_EQ(Focus(clerk), "MaskTranDate");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&saovh");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsMaster"), QStringList());
}

TEST_F(VouchersSaveTest, ANumberOfNoughtClosesTheScreenOnTheReceiptPanel)
{
    Play([](Clerk& clerk) {
        ToReceipts(clerk);
        Type(clerk, "%n15042026{ENTER}0{ENTER}1{ENTER}{ENTER}40%s");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(TheBox.Shown, QStringList("Transaction No. not generated. Please re-enter the data."));
    EXPECT_EQ(Rows("select * from TransactionsMaster"), QStringList());
}

TEST_F(VouchersSaveTest, ANumberOfNoughtClosesTheScreenAtAHead)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}0{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}");
        EXPECT_EQ(clerk.Message(), "vha}car naM.0 Asalyaanao hI naaoMd punha kravaI.");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsDetailsTemp"), QStringList());
}

TEST_F(VouchersSaveTest, WithoutMemberOrAmountNothingIsWritten)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}%s");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "1%s");
        EXPECT_EQ(Focus(clerk), "ComboUchalTypes");
        Type(clerk, "%r");
        ToReceipts(clerk);
        Type(clerk, "%n15042026{ENTER}{ENTER}1%s");
        EXPECT_EQ(Focus(clerk), "txtAmount1");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsMaster"), QStringList());
    EXPECT_EQ(Closing(1), "1000|200");
}

TEST_F(VouchersSaveTest, CancelForgetsTheHeads)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}%r");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&navaIna");
        EXPECT_FALSE(CanEnter(clerk, "cmdCancel"));
        EXPECT_FALSE(CanEnter(clerk, "MaskTranDate"));
        EXPECT_EQ(Reads(clerk, "MaskTranDate"), "__/__/____");
        KeyAdvance(clerk, "15042026", 2, "[tr", "30");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select MemberNo,AdvanceType,Amount from TransactionsDetails"), (QStringList{"2|[tr|30"}));
}

TEST_F(VouchersSaveTest, WhatWasLeftOfAnotherEntryIsEmptiedAtTheOpening)
{
    Run("insert into TransactionsDetailsTemp(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
        "Amount) values(1,'15/04/2026',1,1,'KaV',99)");
    Play([](Clerk& clerk) { Type(clerk, "{ESC}"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsDetailsTemp"), QStringList());
}

}

#include "tests/vouchers/VouchersTest.h"

namespace {

// A clerk who changes and deletes what was given out and taken in on one day.
class VouchersChangeTest : public VouchersTest {
protected:
    VouchersChangeTest()
    {
        Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
            "CAccountName,Amount,BillNo,Narration) values(1,'15/04/2026',1,'pomaonT','rama',"
            "'raoK',150,']cala',']cala idlaI.')");
        Run("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
            "Amount) values(1,'15/04/2026',1,1,'KaV',100)");
        Run("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,"
            "Amount) values(1,'15/04/2026',1,1,']cala',50)");
        Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
            "CAccountName,Amount,BillNo,Narration) values(1,'15/04/2026',2,'irsaIT','raoK',"
            "'rama',40,']cala jamaa',']cala jamaa JaalaI.')");
        Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount)"
            " values(1,'15/04/2026',2,1,'Uchal Receipt',40)");
        Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount)"
            " values(1,'15/04/2026',2,2,'Uchal Kapat',75)");
    }

    // The advance with its first head at 70 instead of 100, up to the question.
    static void ChangeToOneHundredAndTwenty(Clerk& clerk)
    {
        Type(clerk, "%d{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "150.00");
        Type(clerk, "{ENTER}{ENTER}KaV{ENTER}70{ENTER}{ENTER}{F4}");
        EXPECT_EQ(Focus(clerk), "cmdMod");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), "roka^D- na@kI badlaayacao ka Æ");
    }
};

TEST_F(VouchersChangeTest, ChangingAnAdvanceFrom150To120LowersTheAdvanceBy30)
{
    Play([](Clerk& clerk) {
        ChangeToOneHundredAndTwenty(clerk);
        Type(clerk, "%h");
        EXPECT_EQ(clerk.Message(), "vha}car ip`MT krayacao ka Æ");
        Type(clerk, "%n");
        EXPECT_EQ(Focus(clerk), "cmdMod");
        EXPECT_EQ(Reads(clerk, "cmdMod"), "ba&dla");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1030|170");
    EXPECT_EQ(Rows("select DAccountName,CAccountName,Amount from TransactionsMaster order by TranId"),
        (QStringList{"rama|raoK|120", "raoK|rama|40"}));
    EXPECT_EQ(Rows("select MemberNo,AdvanceType,Amount from TransactionsDetails order by Amount"),
        (QStringList{"1|]cala|50", "1|KaV|70"}));
    EXPECT_EQ(gAppState.gCallerTag, "N");
}

TEST_F(VouchersChangeTest, ChangingWithNoLeavesAllAsItWas)
{
    Play([](Clerk& clerk) {
        ChangeToOneHundredAndTwenty(clerk);
        Type(clerk, "%n");
        EXPECT_EQ(clerk.Message(), QString());
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1000|200");
    EXPECT_EQ(Rows("select Amount from TransactionsDetails order by Amount"), (QStringList{"50", "100"}));
    EXPECT_EQ(Rows("select * from TransactionsDetailsTemp"), QStringList());
}

TEST_F(VouchersChangeTest, FromTheLookUpAChangeIsNotAskedAbout)
{
    gAppState.gCallerTag = "PV";
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}{ENTER}{ENTER}KaV{ENTER}70{ENTER}{ENTER}{F4}{ENTER}");
        EXPECT_EQ(clerk.Message(), "vha}car ip`MT krayacao ka Æ");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1030|170");
    EXPECT_EQ(gAppState.gCallerTag, "N");
}

TEST_F(VouchersChangeTest, AnotherMemberAloneIsMovedAndTheGuideSaysSoBeforeTheQuestion)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}2{ENTER}{ENTER}KaV{ENTER}70{ENTER}{ENTER}{F4}");
        EXPECT_EQ(Label(clerk, "lblGuide"), "मेम्बर बदलला : फक्त नव्या मेम्बरची बाकी बदलेल, आधीच्याची तशीच राहील");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), "roka^D- na@kI badlaayacao ka Æ");
        Type(clerk, "%h%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1000|200");
    EXPECT_EQ(Closing(2), "1030|170");
    EXPECT_EQ(Rows("select MemberNo from TransactionsDetails"), (QStringList{"2", "2"}));
    EXPECT_EQ(Rows("select DAccountName from TransactionsMaster where TranId=1"), (QStringList{"saIta"}));
    EXPECT_EQ(Owed(1), "-40");
}

TEST_F(VouchersChangeTest, GoingThroughDateAndNumberAgainKeepsWhatWasChanged)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}2{ENTER}{ENTER}KaV{ENTER}70{ENTER}{ENTER}");
        Press(clerk, "txtTranNo");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "120.00");
        Press(clerk, "MaskTranDate");
        Type(clerk, "{ESC}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTranNo");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "120.00");
    });
    EXPECT_FALSE(Failure);
}

// The old amount is not negated: 1000+60+40 and 200-60-40.
TEST_F(VouchersChangeTest, ChangingAReceiptFrom40To60MovesTheBalanceByBoth)
{
    Play([](Clerk& clerk) {
        ToReceipts(clerk);
        Type(clerk, "%d{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtAmount1");
        EXPECT_EQ(Reads(clerk, "txtAmount1"), "40.00");
        Type(clerk, "60{ENTER}{ENTER}%h");
        EXPECT_EQ(clerk.Message(), QString());
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1100|100");
    EXPECT_EQ(Rows("select MemberNo,AdvanceType,Amount from AdvanceReceipt order by Amount"),
        (QStringList{"1|Uchal Receipt|60", "2|Uchal Kapat|75"}));
    EXPECT_EQ(Rows("select DAccountName,CAccountName,Amount from TransactionsMaster where TranId=2"),
        (QStringList{"raoK|rama|60"}));
}

TEST_F(VouchersChangeTest, DeletingAnAdvanceTakesItsRowsAndGivesTheBalanceBack)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%k{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdDel");
        EXPECT_EQ(Reads(clerk, "cmdDel"), "&KaoDa");
        EXPECT_FALSE(CanEnter(clerk, "txtMemberNo"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Message(), "roka^D- na@kI KaoDayacao ka Æ");
        Type(clerk, "%h");
        EXPECT_EQ(Focus(clerk), "cmdDel");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "1150|50");
    EXPECT_EQ(Rows("select TranId from TransactionsMaster"), (QStringList{"2"}));
    EXPECT_EQ(Rows("select * from TransactionsDetails"), QStringList());
    EXPECT_EQ(Rows("select MemberNo from AdvanceReceipt order by MemberNo"), (QStringList{"1", "2"}));
}

TEST_F(VouchersChangeTest, OneEnterTooManyDeletesNothing)
{
    Play([](Clerk& clerk) { Type(clerk, "%k{ENTER}{ENTER}{ENTER}"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select TranId from TransactionsMaster"), (QStringList{"1", "2"}));
    EXPECT_EQ(Closing(1), "1000|200");
}

TEST_F(VouchersChangeTest, DeletingAReceiptLeavesARecoveryOfTheSameNumber)
{
    Play([](Clerk& clerk) {
        ToReceipts(clerk);
        Type(clerk, "%k{ENTER}{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(1), "960|240");
    EXPECT_EQ(Rows("select TranId from TransactionsMaster"), (QStringList{"1"}));
    EXPECT_EQ(Rows("select MemberNo,AdvanceType from AdvanceReceipt"), (QStringList{"2|Uchal Kapat"}));
    EXPECT_EQ(Rows("select Amount from TransactionsDetails order by Amount"), (QStringList{"50", "100"}));
}

TEST_F(VouchersChangeTest, AddThenDeleteRestoresTheBalances)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "20042026", 2, "KaV", "33.35");
        Type(clerk, "%n");
        Type(clerk, "%k{DOWN}{ENTER}{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closing(2), "1000|200");
    EXPECT_EQ(Owed(2), "-75");
}

TEST_F(VouchersChangeTest, ADateWithoutAVoucherGoesBackToRest)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ESC}16042026{ENTER}");
        EXPECT_EQ(clerk.Message(), "roka^D- ]plabQa naahI");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "cmdMod"), "ba&dla");
        EXPECT_EQ(Focus(clerk), "cmdMod");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersChangeTest, ADateWithoutAVoucherLeftByTheLetterOfTheButtonGoesBackToRestAndNoFurther)
{
    const std::tuple<const char*, const char*, const char*> modes[] = {
        {"%d{ESC}16042026%s", "cmdMod", "ba&dla"}, {"%k{ESC}16042026%k", "cmdDel", "&KaoDNao"}};
    for (const auto& [keys, button, caption] : modes) {
        Play([&](Clerk& clerk) {
            Type(clerk, keys);
            EXPECT_EQ(clerk.Message(), "roka^D- ]plabQa naahI");
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Reads(clerk, button), caption);
            EXPECT_EQ(Focus(clerk), button);
            EXPECT_EQ(OnTop(clerk), "frmUchalVouchers") << keys;
        });
        EXPECT_FALSE(Failure) << keys;
    }
}

TEST_F(VouchersChangeTest, AQuestionClosedByItsCloseBoxChangesAndDeletesNothing)
{
    const QStringList before = Rows("select * from TransactionsMaster");
    Play([](Clerk& clerk) {
        ChangeToOneHundredAndTwenty(clerk);
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
    });
    EXPECT_EQ(Rows("select * from TransactionsMaster"), before);
    Play([](Clerk& clerk) {
        Type(clerk, "%k{ENTER}{ENTER}");
        EXPECT_EQ(clerk.Message(), "roka^D- na@kI KaoDayacao ka Æ");
        clerk.CloseBox();
        EXPECT_EQ(OnTop(clerk), "frmUchalVouchers");
    });
    EXPECT_EQ(Rows("select * from TransactionsMaster"), before);
}

TEST_F(VouchersChangeTest, ADateAloneCallsUpItsFirstVoucherAndTheNumberAnother)
{
    Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
        "CAccountName,Amount,BillNo) values(1,'15/04/2026',3,'pomaonT','saIta','raoK',5,']cala')");
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ESC}15042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTranNo");
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "1");
        Type(clerk, "9{ENTER}");
        EXPECT_EQ(clerk.Message(), "yaa vha]car naMbarcao roka^D- ]plabQa naahI");
        Type(clerk, "{ENTER}^a3{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "5.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersChangeTest, AReceiptIsNotCalledUpAsAnAdvance)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ESC}15042026{ENTER}2{ENTER}");
        EXPECT_EQ(clerk.Message(), "yaa vha]car naMbarcao roka^D- ]plabQa naahI");
    });
    EXPECT_FALSE(Failure);
}

}

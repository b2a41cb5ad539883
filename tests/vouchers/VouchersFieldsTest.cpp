#include "tests/vouchers/VouchersTest.h"

namespace {

class VouchersFieldsTest : public VouchersTest { };

TEST_F(VouchersFieldsTest, AnEmptyDateAndOneThatIsNoneKeepTheFocus)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskTranDate");
        for (const char* date : {"15002026", "15132026", "31022026", "1504"}) {
            Type(clerk, date);
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), "MaskTranDate") << date;
            EXPECT_EQ(Reads(clerk, "MaskTranDate"), "__/__/____") << date;
        }
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, ANumberThatIsTakenIsRefused)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%n");
        Type(clerk, "%n15042026{ENTER}1{ENTER}");
        EXPECT_EQ(clerk.Message(), "yaa vha]car naMbarcao roka^D- Agaaodrca Aaho");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTranNo");
    });
    EXPECT_FALSE(Failure);
}

// The numbers of vouchers go beyond those of members.
TEST_F(VouchersFieldsTest, ANumberOfTheClerksOwnIsTakenAndTheNextGoesOnFromIt)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}40000{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}{F4}{ENTER}%n");
        Type(clerk, "%n15042026{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "40001");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select TranId from TransactionsMaster"), QStringList("40000"));
}

TEST_F(VouchersFieldsTest, AmountsTakeFiguresOnly)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}-1e9x.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtUchalAmount"), "19.50");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "19.50");
        Type(clerk, "%r");
        ToReceipts(clerk);
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}12.345x{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount1"), "12.35");
        EXPECT_EQ(Focus(clerk), "cmdAdd");
    });
    EXPECT_FALSE(Failure);
}

// By the mouse nothing is asked of the field that is left; by its key the field is asked, and left.
TEST_F(VouchersFieldsTest, CancelLeavesAFieldThatHoldsWhatIsRefused)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}9");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(clerk.Message(), "");
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, NumberAndNameFindEachOther)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}2{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "saIta");
        EXPECT_TRUE(dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboMemberName"))->IsDroppedDown());
        Type(clerk, "rama{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
        EXPECT_EQ(Focus(clerk), "ComboUchalTypes");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, AMemberThatIsntThereIsTold)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}9{ENTER}");
        EXPECT_EQ(clerk.Message(), "yaa maombar naMbarcao roka^D- ]plabQa naahI");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        Type(clerk, "^a{DEL}{ENTER}gaIta{ENTER}");
        EXPECT_EQ(clerk.Message(), "maombarcao naaMva vyavaisqat Ta[-p kra");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboMemberName");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, AHeadThatIsNotInTheTableIsClearedAndKeepsTheFocus)
{
    Run("delete * from UchalTypes where UchalType='[tr'");
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}[tr{ENTER}");
        EXPECT_EQ(Focus(clerk), "ComboUchalTypes");
        EXPECT_EQ(Reads(clerk, "ComboUchalTypes"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, AHeadIsFoundThoughItStandsBetweenBlanksInTheTable)
{
    Run("update UchalTypes set UchalType='  KaV ' where UchalType='KaV'");
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchalAmount");
        EXPECT_EQ(Reads(clerk, "ComboUchalTypes"), "KaV");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, AHeadThatWasTypedAndNotTakenIsNotLostAtTheSaving)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}]cala{ENTER}50%s");
        EXPECT_EQ(Focus(clerk), "cmdGo");
        Type(clerk, "{ENTER}%s");
        EXPECT_EQ(clerk.Message(), "vha}car ip`MT krayacao ka Æ");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select Amount from TransactionsMaster"), QStringList("150"));
    EXPECT_EQ(
        Rows("select AdvanceType,Amount from TransactionsDetails"), (QStringList{"KaV|100", "]cala|50"}));
}

TEST_F(VouchersFieldsTest, WithoutHeadsTheKeyThatLeavesThemGoesToTheHeads)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ENTER}{F4}");
        EXPECT_EQ(Focus(clerk), "ComboUchalTypes");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, AHeadWithoutAMemberGoesToTheMember)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}");
        clerk.Do([&] { dynamic_cast<NameCombo*>(clerk.Top().Find(u"ComboUchalTypes"))->SetText("KaV"); });
        Press(clerk, "cmdGo");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsDetailsTemp"), QStringList());
}

TEST_F(VouchersFieldsTest, ThePanelIsThatOfTheChosenOptionWhenItIsAskedFor)
{
    Play([](Clerk& clerk) {
        const auto shown = [&](const char16_t* name) { return clerk.Top().Find(name)->Visible(); };
        EXPECT_TRUE(shown(u"txtAmount"));
        EXPECT_FALSE(shown(u"txtAmount1"));
        Press(clerk, "OptPaymentEntry");
        EXPECT_FALSE(shown(u"txtAmount1"));
        Press(clerk, "Command1");
        EXPECT_TRUE(shown(u"txtAmount1"));
        EXPECT_FALSE(shown(u"txtAmount"));
        Type(clerk, "%n");
        EXPECT_EQ(Focus(clerk), "MaskTranDate1");
        EXPECT_FALSE(CanEnter(clerk, "OptUchalEntry"));
        EXPECT_FALSE(CanEnter(clerk, "cmdExit"));
        EXPECT_TRUE(CanEnter(clerk, "cmdCancel"));
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersFieldsTest, TheCalculatorIsThatOfTheMachineInANormalWindow)
{
    Play([](Clerk& clerk) { Type(clerk, "{F2}"); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(TheCalculator.Started, QStringList("C:\\Windows\\calc.exe normal"));
}

TEST_F(VouchersFieldsTest, EscClosesInTheMiddleOfAVoucher)
{
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}{ENTER}1{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from TransactionsMaster"), QStringList());
}

}

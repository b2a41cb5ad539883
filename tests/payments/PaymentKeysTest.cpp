// The buttons and keys of the payments.

#include "tests/payments/PaymentsTest.h"
#include "tests/support/GridHeads.h"

namespace {

class PaymentKeysTest : public PaymentsTest { };

TEST_F(PaymentKeysTest, OpeningEmptiesTheListOfMembersWithoutMilk)
{
    Run("insert into ShortMemberList(CompanyId,MemberNo,MemberName) values(1,5,'rama')");
    Play([](Clerk& clerk) { EXPECT_EQ(Seen(clerk, "DataGridMembers", 1), QStringList()); });
    EXPECT_EQ(Rows("select * from ShortMemberList"), QStringList());
}

TEST_F(PaymentKeysTest, TheListsHaveTheirCaptions)
{
    Play([](Clerk& clerk) {
        const auto heads = [&](const char* list) {
            return HeadsOf(dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(list))));
        };
        EXPECT_EQ(heads("DataGrid1"), "दिनांक|वेळ|दुध|लिटर्स|फॅट|दर|रक्कम");
        EXPECT_EQ(heads("DataGridUchals"), "उचल|रक्कम");
        EXPECT_EQ(heads("DataGridMembers"), "मेम्बर नं.|मेम्बरचे नाव");
    });
    EXPECT_FALSE(Failure);
}

// To ask for deliveries of no company would mean to read those of all years.
TEST_F(PaymentKeysTest, AtRestNoDeliveriesAreReadEvenIfSomeHaveNoCompany)
{
    AddMilk(5, "01/04/2026", "gaaya", 10, 500, 0);
    PlaySingle([](Clerk& clerk) { EXPECT_EQ(Seen(clerk, "DataGrid1", 3), QStringList()); });
}

TEST_F(PaymentKeysTest, NewOpensTheFields)
{
    PlaySingle([](Clerk& clerk) {
        for (const char* shut : {"maskFromDate", "maskToDate", "MaskBillDate", "txtMemberNo",
                 "txtTotalMilkPurchaseAmount", "txtCowDepositkapat", "txtBuffDep0sitKapat", "txtUchal"})
            EXPECT_FALSE(CanEnter(clerk, shut)) << shut;
        Type(clerk, "%n");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&saovh");
        for (const char* open : {"maskFromDate", "MaskBillDate", "txtMemberNo", "txtTotalMilkPurchaseAmount",
                 "txtCowDepositkapat", "txtBuffDep0sitKapat", "txtUchal", "cmdCancel"})
            EXPECT_TRUE(CanEnter(clerk, open)) << open;
        for (const char* shut :
            {"maskToDate", "txtBillNo", "ComboMemberName", "txtCowlitres", "txtBufflitres", "txtCowAmount",
                "txtBuffAmount", "txtTotalPayment", "txtNetPayable", "cmdModify", "cmdDelete", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, shut)) << shut;
    });
}

TEST_F(PaymentKeysTest, CancelResetsAndLeavesModifyGrey)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "%r");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        for (const char* empty : {"txtMemberNo", "ComboMemberName", "txtBillNo", "txtCowlitres",
                 "txtTotalMilkPurchaseAmount", "txtUchal", "txtTotalPayment", "txtExtraAmount"})
            EXPECT_EQ(Reads(clerk, empty), "") << empty;
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "");
        EXPECT_EQ(Label(clerk, "lblKapat"), "");
        EXPECT_EQ(Seen(clerk, "DataGrid1", 1), QStringList());
        EXPECT_FALSE(CanEnter(clerk, "cmdModify"));
        EXPECT_FALSE(CanEnter(clerk, "cmdCancel"));
        EXPECT_TRUE(CanEnter(clerk, "cmdExit"));
    });
}

TEST_F(PaymentKeysTest, CancelLeavesAFieldThatRefuses)
{
    PlaySingle([this](Clerk& clerk) {
        Type(clerk, "%n99");
        Press(clerk, "cmdCancel");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(TheBox.Shown, QStringList());
        Type(clerk, "%n01042026{ENTER}{ENTER}%r");
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
}

// The button is never open, but what is behind it is known.
TEST_F(PaymentKeysTest, ModifyWouldLookAPaymentUpAndWriteNothing)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        clerk.Do([&] { clerk.Top().Find(u"cmdModify")->SetEnabled(true); });
        Type(clerk, "%d");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "&saovh");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        for (const char* shut : {"cmdNew", "cmdDelete", "cmdExit", "MaskBillDate", "txtBillNo"})
            EXPECT_FALSE(CanEnter(clerk, shut)) << shut;
        EXPECT_TRUE(CanEnter(clerk, "cmdCancel"));
        Type(clerk, "01042026{ENTER}5{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtTotalMilkPurchaseAmount");
        EXPECT_EQ(Reads(clerk, "txtNetPayable"), "3451.95");
        Type(clerk, "9999{ENTER}%s");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        EXPECT_TRUE(CanEnter(clerk, "cmdModify")) << "a reset leaves it as it is";
    });
    EXPECT_EQ(Paid("Amount"), "4300.5");
}

TEST_F(PaymentKeysTest, TheBoxOfTheInstallmentsIsRememberedAsOneAndReadAsTickedForMinusOneOnly)
{
    const auto costCenter = [this] { return One("select CostCenter from CompanySelected"); };
    Play([&](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "chkInstallment"), "0");
        Type(clerk, "+{TAB} ");
        EXPECT_EQ(Reads(clerk, "chkInstallment"), "1");
        EXPECT_EQ(costCenter(), "1");
        Type(clerk, " ");
        EXPECT_EQ(costCenter(), "0");
        Type(clerk, " ");
    });
    EXPECT_EQ(costCenter(), "1");
    Play([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "chkInstallment"), "0") << "1 isn't read as ticked"; });
    Run("update CompanySelected set CostCenter=-1");
    Play([](Clerk& clerk) { EXPECT_EQ(Reads(clerk, "chkInstallment"), "1"); });
}

TEST_F(PaymentKeysTest, TheExtraRateIsShownAndKeptByItsKeyAndAddsNothing)
{
    AddExample();
    gAppState.gExtraRsPerLtr = QStringLiteral("0");
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_FALSE(CanEnter(clerk, "txtExtraRsPerLtr"));
        Type(clerk, "{F5}");
        EXPECT_EQ(Focus(clerk), "txtExtraRsPerLtr");
        EXPECT_EQ(Reads(clerk, "txtExtraRsPerLtr"), "0");
        Type(clerk, "2.50{F5}");
        EXPECT_FALSE(CanEnter(clerk, "txtExtraRsPerLtr"));
        EXPECT_EQ(Focus(clerk), "txtTotalMilkPurchaseAmount") << "where the clerk was";
        EXPECT_EQ(Reads(clerk, "txtExtraAmount"), "0");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3451.95");
        EXPECT_EQ(gAppState.gExtraRsPerLtr, "2.50");
        EXPECT_EQ(One("select CanLimitCow from AutoSettings"), "2.5") << "the column of the cow's cans";
        Type(clerk, "{F5}");
        EXPECT_EQ(Reads(clerk, "txtExtraRsPerLtr"), "2.50");
        Type(clerk, "n{F5}");
        EXPECT_EQ(gAppState.gExtraRsPerLtr, "0") << "what is no number is 0";
        EXPECT_EQ(One("select CanLimitCow from AutoSettings"), "0");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentKeysTest, TheCalculatorAndTheWaysOut)
{
    PlaySingle([this](Clerk& clerk) {
        Type(clerk, "{F2}");
        EXPECT_EQ(TheCalculator.Started, QStringList("C:\\Tarvel01\\Vetrolan\\calc.EXE maximised"));
        Type(clerk, "%b");
        EXPECT_NE(OnTop(clerk), "frmNewMilkPayment");
    });
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%n01{ESC}");
        EXPECT_NE(OnTop(clerk), "frmNewMilkPayment");
    });
    EXPECT_FALSE(Failure);
}

}

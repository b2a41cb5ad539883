// The payments, with large figures and a long name.

#include "payments/frmInstallment.h"
#include "payments/frmNewMilkPayment.h"
#include "payments/frmThevDate.h"
#include "tests/journeys/ReadableTest.h"

using ReadablePaymentsTest = ReadableTest;

TEST_F(ReadablePaymentsTest, OneMemberFromTheChoiceToTheQuestionAndBack)
{
    Run("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "values(1,'12/04/2026',1,3,'ikraNaa maalaÀroSana',123456.75)");
    Run("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "values(1,'12/03/2026',1,3,']cala',654321.25)");
    On<frmNewMilkPayment>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk,
            {"{DOWN}", "{ENTER}", "{ENTER}", "%n", "12042026{ENTER}", "11042026{ENTER}", "{ENTER}", "{ENTER}",
                "3{ENTER}", "{F5}999999.99", "{F5}", "99999999.99{ENTER}", "99999.99{ENTER}",
                "99999.99{ENTER}", "999999999.99{ENTER}", "{ENTER}", "{ENTER}"});
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        TypeAndLook(clerk, {"%h", "%k11042026{ENTER}3{ENTER}", "{ENTER}"});
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadablePaymentsTest, ARunOverManyMembers)
{
    On<frmNewMilkPayment>([](Clerk& clerk) {
        TypeAndLook(clerk,
            {"{DOWN}{DOWN}", "{ENTER}", "12042026{ENTER}", "11042026{ENTER}", "{ENTER}", "0{ENTER}",
                "1{ENTER}", "{ENTER}", "{ENTER}"});
        ExpectReadable(clerk, "behind the run");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(ReadablePaymentsTest, TheInstallmentsAndTheSpanOfTheDeposits)
{
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) select MemberNo,MemberName,99999.99 from "
        "MembersMaster");
    On<frmInstallment>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk, {"{END}{DOWN}", "3{ENTER}{ENTER}{ENTER}", "{ESC}"});
    });
    EXPECT_FALSE(Failure);
    On<frmThevDate>([](Clerk& clerk) { TypeAndLook(clerk, {"{BS}%s", "01042026{ENTER}", "{ENTER}"}); });
    EXPECT_FALSE(Failure);
}

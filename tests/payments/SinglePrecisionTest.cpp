// What is held in single precision, and what that leaves in the books. The patterns of the fields hide it.

#include "tests/payments/PaymentsTest.h"

namespace {

class SinglePrecisionTest : public PaymentsTest {
protected:
    SinglePrecisionTest() { AddMilk(5, "02/04/2026", "gaaya", 100, 3000); }
};

TEST_F(SinglePrecisionTest, TheResidueOfAHeadStaysInItsDetailAndInNoFigureOfTheClerk)
{
    AddVoucher("02/04/2026", 5, "KaV", 260.07);
    AddVoucher("03/04/2026", 5, "KaV", 344.40);
    AddVoucher("04/04/2026", 5, "KaV", 178.84);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Seen(clerk, "DataGridUchals", 2), QStringList("खाद्य|783.31"));
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "783.31");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "783.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "793.31");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "2206.69");
        Type(clerk, "%s%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(
        Rows("select Amount from MilkPaymentsDetails where AdvanceType='KaV'"), QStringList("783.3101"));
    EXPECT_EQ(Paid("TotalUchal,CurrentBalance,NetAmount"), "783|0.31|2206.69");
    EXPECT_EQ(Rows("select Amount from AdvanceReceipt"), QStringList("783"));
}

// Each of them is lost beside a million; added up by themselves they would make 60 paise.
TEST_F(SinglePrecisionTest, AHeadIsAddedUpRowByRow)
{
    AddVoucher("01/04/2026", 5, "KaV", 1000000);
    for (int row = 0; row < 20; ++row)
        AddVoucher("02/04/2026", 5, "KaV", 0.03);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "1000000.00");
    });
    EXPECT_EQ(Rows("select Amount from AdvanceTemp"), QStringList("1000000"));
}

TEST_F(SinglePrecisionTest, ThePreviousBalanceIsTheDifferenceOfTwoSingles)
{
    AddVoucher("25/03/2026", 5, "]cala", 8947.48);
    AddReceipt("26/03/2026", 5, "Uchal Receipt", 7230.42);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "1717.06");
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(
        Paid("PreviousBalance,PreviousAdvance,TotalUchal,CurrentBalance"), "1717.061|1717.061|1717|0.06");
    EXPECT_EQ(Rows("select Amount from MilkPaymentsDetails where AdvanceType='maagaIla baakI'"),
        QStringList("1717.061"));
}

// Seven digits: 1234567.89 comes back as 1234568. The smaller columns come back as they were.
TEST_F(SinglePrecisionTest, AReversalLeavesResiduesInLargeClosingColumnsAndNothingElse)
{
    Run("update MembersMaster set ClosingBalance=1234567.89,CowClosingThev=1.5,ClosingUchal=3000.5 where "
        "MemberNo=5");
    AddVoucher("02/04/2026", 5, "KaV", 828.45);
    const char* closing =
        "select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from MembersMaster "
        "where MemberNo=5";
    PlaySingle([&](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        EXPECT_EQ(Rows(closing), QStringList("1233224|11.5|0|2172.5")) << "less 2161.55 and 10, and 828";
        Load(clerk, "01042026", 5);
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Rows(closing), QStringList("1234568|1.5|0|3000.5"));
    for (const char* table : {"MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt"})
        EXPECT_EQ(Rows(QString("select * from ") + table), QStringList()) << table;
}

}

// What a payment holds in single precision: seven digits, and what is behind them is lost.

#include "tests/payments/PaymentsTest.h"

namespace {

class SevenDigitsTest : public PaymentsTest {
protected:
    // A member whose closing columns have eight digits.
    void SetClosing()
    {
        Run("update MembersMaster set ClosingBalance=123456.78,CowClosingThev=234567.89,"
            "BuffClosingThev=345678.91,ClosingUchal=456789.12 where MemberNo=5");
    }

    std::string Closing()
    {
        return Rows("select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from MembersMaster "
                    "where MemberNo=5")
            .join(u'\n')
            .toStdString();
    }
};

TEST_F(SevenDigitsTest, WhatIsOutstandingHasSevenDigitsAndWhatIsSummedUpHasAll)
{
    AddMilk(5, "02/04/2026", "gaaya", 100, 2000000);
    AddVoucher("02/04/2026", 5, "]cala", 900000.90);
    AddVoucher("02/04/2026", 5, "KaV", 500000.90);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "1400002.00") << "for 1400001.80";
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1400002.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "1400011.80") << "with the deposit of 10.00";
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "599988.20");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SevenDigitsTest, WhatTheMilkBringsCapsTheDeductionWithSevenDigits)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 1234568.80);
    AddVoucher("02/04/2026", 5, "]cala", 2000000);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1234568.00") << "for 1234567.80";
        EXPECT_EQ(Label(clerk, "lblKapat"), "1234569.00");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "-0.20");
    });
    EXPECT_FALSE(Failure);
}

// 1400002.05 and 1400002 are one single.
TEST_F(SevenDigitsTest, WhatIsKeyedIsComparedWithWhatIsOutstandingAsASingle)
{
    AddMilk(5, "02/04/2026", "gaaya", 100, 2000000);
    AddVoucher("02/04/2026", 5, "]cala", 1400002);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}1400002.05{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1400002.00");
        Type(clerk, "+{TAB}1400002.10{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchal") << "the next one";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(SevenDigitsTest, TheFourClosingColumnsKeepSevenDigits)
{
    AddExample();
    SetClosing();
    PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
    EXPECT_EQ(Closing(), "120812.7|234577.9|345689|455961.1")
        << "for 120812.73, 234577.89, 345689.01 and 455961.12";
}

TEST_F(SevenDigitsTest, TakingAPaymentBackLeavesAResidueInTheClosingColumns)
{
    AddExample();
    SetClosing();
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Load(clerk, "01042026", 5);
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(Closing(), "123456.8|234567.9|345678.9|456789.1")
        << "for 123456.78, 234567.89, 345678.91 and 456789.12";
    EXPECT_EQ(Paid("MemberNo"), "");
}

}

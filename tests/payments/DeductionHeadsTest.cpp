// What a member owes as of a period, head by head, and what is proposed of it.

#include "tests/payments/PaymentsTest.h"

namespace {

class DeductionHeadsTest : public PaymentsTest {
protected:
    DeductionHeadsTest() { AddMilk(5, "02/04/2026", "gaaya", 100, 3000); }

    // What the clerk sees behind the member's number: the heads, what is owed, and what is proposed.
    QStringList Heads(const char* keys = "")
    {
        QStringList seen;
        PlaySingle([&](Clerk& clerk) {
            Begin(clerk, "01042026");
            Type(clerk, keys);
            Type(clerk, "5{ENTER}");
            seen = Seen(clerk, "DataGridUchals", 2);
            seen.append(
                QString::fromStdString(Label(clerk, "lblUchalAmount") + ' ' + Reads(clerk, "txtUchal")));
        });
        EXPECT_FALSE(Failure);
        return seen;
    }

    QStringList HeadRows()
    {
        return Rows("select CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount from AdvanceTemp "
                    "order by TranId,TranDate");
    }
};

TEST_F(DeductionHeadsTest, WhatWasUnpaidBeforeThePeriodIsThePreviousBalance)
{
    AddVoucher("01/03/2026", 5, "]cala", 1000);
    AddVoucher("31/03/2026", 5, "KaV", 500);
    AddReceipt("10/03/2026", 5, "Uchal Kapat", 600);
    AddReceipt("31/03/2026", 5, "Uchal Receipt", 400);
    AddVoucher("31/03/2026", 12, "]cala", 9000);
    AddVoucher("31/03/2026", 5, "]cala", 9000, 2);
    AddReceipt("31/03/2026", 5, "Uchal Receipt", 70, 2);
    AddVoucher("11/04/2026", 5, "]cala", 9000);
    EXPECT_EQ(Heads(), (QStringList{"मागील बाकी|500.00", "500.00 500.00"}));
    EXPECT_EQ(HeadRows(), QStringList("1|10/04/2026|0|5|maagaIla baakI|500"));
}

TEST_F(DeductionHeadsTest, EachHeadIsSummedOnTheDateOfTheBillInItsPlace)
{
    AddVoucher("25/03/2026", 5, "]cala", 50);
    AddVoucher("01/04/2026", 5, "[tr", 4.5);
    AddVoucher("02/04/2026", 5, "ikraNaa maalaÀroSana", 30.25);
    AddVoucher("03/04/2026", 5, "KaV", 100.10);
    AddVoucher("04/04/2026", 5, "KaV", 23.35);
    AddVoucher("10/04/2026", 5, "]cala", 200);
    AddVoucher("04/04/2026", 5, "gaaya zova", 77);
    EXPECT_EQ(Heads(),
        (QStringList{"मागील बाकी|50.00", "उचल|200.00", "खाद्य|123.45", "किराणा माल/रेशन|30.25", "इतर|4.50",
            "408.20 408.00"}))
        << "a line of another name isn't carried over";
    EXPECT_EQ(HeadRows(),
        (QStringList{"1|10/04/2026|0|5|maagaIla baakI|50", "1|10/04/2026|1|5|]cala|200",
            "1|10/04/2026|2|5|KaV|123.45", "1|10/04/2026|3|5|ikraNaa maalaÀroSana|30.25",
            "1|10/04/2026|4|5|[tr|4.5"}));
}

TEST_F(DeductionHeadsTest, OnlyTheAdvanceKeepsACredit)
{
    AddVoucher("03/04/2026", 5, "]cala", -20);
    AddVoucher("03/04/2026", 5, "KaV", -10);
    AddVoucher("03/04/2026", 5, "[tr", 100);
    EXPECT_EQ(Heads(), (QStringList{"उचल|-20.00", "इतर|100.00", "80.00 80.00"}));
}

TEST_F(DeductionHeadsTest, AReceiptOfThePeriodComesOffTheAdvanceAndThenOffTheOtherHeads)
{
    AddVoucher("25/03/2026", 5, "]cala", 500);
    AddVoucher("02/04/2026", 5, "]cala", 200);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 250);
    EXPECT_EQ(Heads(), (QStringList{"मागील बाकी|450.00", "450.00 450.00"}));
}

TEST_F(DeductionHeadsTest, AReceiptBelowTheAdvanceLeavesTheRestOfIt)
{
    AddVoucher("02/04/2026", 5, "]cala", 200.30);
    AddVoucher("02/04/2026", 5, "KaV", 60);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 100.10);
    AddReceipt("06/04/2026", 5, "Uchal Receipt", 50.05);
    EXPECT_EQ(Heads(), (QStringList{"उचल|50.15", "खाद्य|60.00", "110.15 110.00"}));
}

TEST_F(DeductionHeadsTest, AReceiptOfAllTheAdvanceRemovesItToThePaisa)
{
    AddVoucher("02/04/2026", 5, "]cala", 0.30);
    AddVoucher("02/04/2026", 5, "KaV", 60);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 0.10);
    AddReceipt("06/04/2026", 5, "Uchal Receipt", 0.20);
    EXPECT_EQ(Heads(), (QStringList{"खाद्य|60.00", "60.00 60.00"}));
}

TEST_F(DeductionHeadsTest, WhatIsLeftOfAReceiptComesOffTheHeadsInTheOrderThatTheyWereWritten)
{
    AddVoucher("25/03/2026", 5, "]cala", 500);
    AddVoucher("02/04/2026", 5, "KaV", 60);
    AddVoucher("02/04/2026", 5, "ikraNaa maalaÀroSana", 40);
    AddVoucher("02/04/2026", 5, "[tr", 10);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 130);
    EXPECT_EQ(Heads(), (QStringList{"मागील बाकी|470.00", "इतर|10.00", "480.00 480.00"}));
}

TEST_F(DeductionHeadsTest, AReceiptAboveAllHeadsIsDropped)
{
    AddVoucher("02/04/2026", 5, "KaV", 60);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 130);
    EXPECT_EQ(Heads(), QStringList("0.00 0.00"));
}

TEST_F(DeductionHeadsTest, ARecoveryWithinThePeriodIsNotNettedOneBeforeItIs)
{
    AddVoucher("25/03/2026", 5, "]cala", 500);
    AddReceipt("05/04/2026", 5, "Uchal Kapat", 100);
    EXPECT_EQ(Heads(), (QStringList{"मागील बाकी|500.00", "500.00 500.00"}));
    AddReceipt("31/03/2026", 5, "Uchal Kapat", 100);
    EXPECT_EQ(Heads(), (QStringList{"मागील बाकी|400.00", "400.00 400.00"}));
}

TEST_F(DeductionHeadsTest, WithABillOutsideThePeriodItsReceiptsAreNotNetted)
{
    AddVoucher("02/04/2026", 5, "]cala", 200);
    AddReceipt("05/04/2026", 5, "Uchal Receipt", 250);
    EXPECT_EQ(Heads("+{TAB}15042026{ENTER}"), (QStringList{"उचल|200.00", "200.00 200.00"}));
    EXPECT_EQ(HeadRows(), QStringList("1|15/04/2026|1|5|]cala|200"));
}

TEST_F(DeductionHeadsTest, MoreReceivedThanEverPaidShowsNoPreviousBalanceAndLowersTheCap)
{
    AddVoucher("25/03/2026", 5, "]cala", 100);
    AddReceipt("26/03/2026", 5, "Uchal Receipt", 1600.25);
    AddVoucher("02/04/2026", 5, "]cala", 2900);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Seen(clerk, "DataGridUchals", 2), QStringList("उचल|2900.00"));
        EXPECT_EQ(Reads(clerk, "txtUchal"), "2900.00");
        Type(clerk, "{ENTER}{ENTER}{ENTER}2000{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchal");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1489.75") << "3000 less 10 of deposit, less 1500.25";
        EXPECT_EQ(Guide(clerk), "दुधाच्या रकमेतून जास्तीत जास्त 1489.75 कपात होते");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew") << "what was put in there passes";
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1489.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(DeductionHeadsTest, AFixedDeductionWithoutDebtsIsOneRowOfOther)
{
    Set("FixedKapat=5");
    EXPECT_EQ(Heads(), (QStringList{"इतर|5.00", "5.00 5.00"}));
    EXPECT_EQ(HeadRows(), QStringList("1|10/04/2026|10|5|[tr|5"));
}

TEST_F(DeductionHeadsTest, AFixedDeductionIsAddedToARowOfOther)
{
    Set("FixedKapat=5.25");
    AddVoucher("03/04/2026", 5, "[tr", 10.50);
    EXPECT_EQ(Heads(), (QStringList{"इतर|15.75", "15.75 15.00"}));
    EXPECT_EQ(HeadRows(), QStringList("1|10/04/2026|4|5|[tr|15.75"));
}

TEST_F(DeductionHeadsTest, TheHeadsOfTheMemberBeforeAreGone)
{
    AddMilk(12, "02/04/2026", "gaaya", 100, 3000);
    AddVoucher("02/04/2026", 12, "KaV", 60);
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 12);
        Type(clerk, "%r");
        EXPECT_EQ(Rows("select * from AdvanceTemp"), QStringList());
        EXPECT_EQ(Seen(clerk, "DataGridUchals", 2), QStringList());
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Seen(clerk, "DataGridUchals", 2), QStringList());
    });
}

TEST_F(DeductionHeadsTest, WhenTheMilkBringsLessThanIsOwedTheDeductionIsItsWholeRupees)
{
    AddMilk(12, "02/04/2026", "gaaya", 10, 300.75);
    AddVoucher("02/04/2026", 12, "]cala", 828.45);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 12);
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "828.45");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "299.00") << "of 300.75 less 1.00";
        EXPECT_EQ(Label(clerk, "lblKapat"), "300.00");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "0.75");
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Paid("TotalUchal,CurrentBalance,NetAmount"), "299|529.45|0.75") << "the rest stays owed";
}

TEST_F(DeductionHeadsTest, WithoutATickTheListOfInstallmentsCountsForNothing)
{
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'rama',300)");
    AddVoucher("02/04/2026", 5, "]cala", 823.45);
    EXPECT_EQ(Heads(), (QStringList{"उचल|823.45", "823.45 823.00"}));
}

// The list of installments is followed.
class InstallmentsTest : public DeductionHeadsTest {
protected:
    InstallmentsTest() { Run("update CompanySelected set CostCenter=-1"); }

    void AddInstallment(const char* kapat)
    {
        Run(QStringLiteral("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'rama',%1)")
                .arg(QLatin1String(kapat)));
    }

    // "lblUchalAmount lblKapat", without a deposit.
    std::string Sums()
    {
        Set("ThevKapatCow=0");
        std::string sums;
        PlaySingle([&](Clerk& clerk) {
            Work(clerk, "01042026", 5);
            sums = Label(clerk, "lblUchalAmount") + ' ' + Label(clerk, "lblKapat");
        });
        return sums;
    }
};

TEST_F(InstallmentsTest, AnInstallmentBelowTheDebtsIsDeductedWithTheFixedDeduction)
{
    Set("FixedKapat=5");
    AddInstallment("300");
    AddVoucher("25/03/2026", 5, "]cala", 500);
    AddVoucher("02/04/2026", 5, "]cala", 200);
    AddVoucher("03/04/2026", 5, "KaV", 123.45);
    EXPECT_EQ(
        Heads(), (QStringList{"मागील बाकी|500.00", "उचल|200.00", "खाद्य|123.45", "इतर|5.00", "305.00 305.00"}))
        << "the list goes on showing all heads";
    EXPECT_EQ(Sums(), "305.00 305.00");
}

TEST_F(InstallmentsTest, AnInstallmentOfJustTheDebtsAddsTheFixedDeductionToTheSumOnly)
{
    Set("FixedKapat=5");
    AddInstallment("305.30");
    AddVoucher("02/04/2026", 5, "KaV", 100.10);
    AddVoucher("02/04/2026", 5, "]cala", 200.20);
    EXPECT_EQ(Sums(), "305.30 310.30");
}

TEST_F(InstallmentsTest, AnInstallmentAboveTheDebtsChangesNothing)
{
    AddInstallment("300");
    AddVoucher("02/04/2026", 5, "KaV", 100.10);
    EXPECT_EQ(Sums(), "100.10 100.10");
}

TEST_F(InstallmentsTest, AMemberWithoutAnInstallmentPaysAll)
{
    Set("FixedKapat=5");
    AddVoucher("02/04/2026", 5, "KaV", 100.10);
    EXPECT_EQ(Sums(), "105.10 105.10");
    AddInstallment("null");
    EXPECT_EQ(Sums(), "105.10 105.10");
    Run("delete * from InstallmentTable");
    AddInstallment("0");
    EXPECT_EQ(Sums(), "5.00 5.00");
}

// What the clerk may make of the proposal.
class UchalTest : public PaymentsTest {
protected:
    UchalTest() { AddExample(); }

    void AtUchal(const std::function<void(Clerk&)>& script)
    {
        PlaySingle([&](Clerk& clerk) {
            Work(clerk, "01042026", 5);
            Type(clerk, "{ENTER}{ENTER}{ENTER}");
            ASSERT_EQ(Focus(clerk), "txtUchal");
            script(clerk);
        });
        EXPECT_FALSE(Failure);
    }
};

TEST_F(UchalTest, MoreThanIsOwedFallsToWhatIsOwedWithItsPaise)
{
    AtUchal([this](Clerk& clerk) {
        Type(clerk, "829{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchal");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "828.45");
        EXPECT_EQ(Guide(clerk), "एकूण येणे 828.45 : त्यापेक्षा जास्त कपात नको");
        EXPECT_EQ(TheBox.Shown, QStringList());
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "828.00");
    });
}

TEST_F(UchalTest, TypedPaiseAreCut)
{
    AtUchal([](Clerk& clerk) {
        Type(clerk, "700.99{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "700.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "720.10");
    });
}

TEST_F(UchalTest, ItMayBeLoweredToNothing)
{
    AtUchal([](Clerk& clerk) {
        Type(clerk, "0{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "4280.40");
    });
}

TEST_F(UchalTest, AnEmptyFieldIsNothing)
{
    AtUchal([](Clerk& clerk) {
        Type(clerk, "{DEL}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "0.00");
    });
}

TEST_F(UchalTest, LettersAreDroppedButTheSmallNWhichIsNoFigure)
{
    AtUchal([](Clerk& clerk) {
        Type(clerk, "abcN-");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "828.00");
        Type(clerk, "7n");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "7n");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "7.00");
    });
}

TEST_F(UchalTest, AThousandMillionFallsToWhatIsOwed)
{
    AtUchal([](Clerk& clerk) {
        Type(clerk, "1000000000{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "828.45");
        Type(clerk, "99999999999999999999");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "999999999999");
    });
}

TEST_F(UchalTest, TheCapOfTheClerkIsHigherByThePreviousBalance)
{
    AddVoucher("04/04/2026", 5, "]cala", 6000);
    AtUchal([](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtUchal"), "4280.00") << "the proposal is held to the milk";
        Type(clerk, "4780{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "-499.60");
        Type(clerk, "+{TAB}4781{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchal");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "4780.4") << "4280.40 and 500";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "4780.00");
    });
}

// A cap of more than seven digits is a rounded one, here above the real one: it must pass nevertheless.
TEST_F(UchalTest, WhatTheProgramItselfPutInIsNeverRefused)
{
    AddMilk(5, "05/04/2026", "gaaya", 1, 1234568.30);
    AddVoucher("04/04/2026", 5, "]cala", 90000000);
    AtUchal([](Clerk& clerk) {
        Type(clerk, "80000000{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtUchal");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1239349") << "for 1239348.60";
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "1239349.00");
    });
}

}

// A payment is looked up and taken back.

#include "tests/payments/PaymentsTest.h"

namespace {

class PaymentReversalTest : public PaymentsTest {
protected:
    PaymentReversalTest()
    {
        AddExample();
        Run("update MembersMaster set ClosingBalance=100.25,CowClosingThev=1.5,BuffClosingThev=2.25,"
            "ClosingUchal=3000.5 where MemberNo=5");
    }

    // Everything that a payment writes.
    QStringList Books()
    {
        QStringList rows = Rows("select * from MilkPayments order by FromDate,MemberNo");
        rows += Rows("select * from MilkPaymentsDetails order by TranDate,MemberNo,AdvanceType,Amount");
        rows += Rows("select * from AdvanceReceipt order by TranDate,MemberNo,AdvanceType,Amount");
        rows += Rows("select MemberNo,ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from "
                     "MembersMaster order by MemberNo");
        return rows;
    }

    // "CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo" of a payment made elsewhere.
    void AddPayment(const char* values)
    {
        Run(QStringLiteral("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
                           "values(%1)")
                .arg(QLatin1String(values)));
    }

    static void TakeBack(Clerk& clerk, const char* from, int member)
    {
        Load(clerk, from, member);
        ASSERT_EQ(Focus(clerk), "cmdDelete");
        Type(clerk, "{ENTER}");
    }
};

TEST_F(PaymentReversalTest, APaymentIsShownAsItWasSaved)
{
    Set("DecimalPayment='AddThev'");
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}800{ENTER}{ENTER}%h");
        Set("FixedKapat=7");
        Load(clerk, "01042026", 5);
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        EXPECT_EQ(Reads(clerk, "MaskBillDate"), "10/04/2026");
        EXPECT_EQ(Reads(clerk, "txtBillNo"), "1");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "100.000");
        EXPECT_EQ(Reads(clerk, "txtBufflitres"), "50.5000");
        EXPECT_EQ(Reads(clerk, "txtCowAmount"), "2500.00");
        EXPECT_EQ(Reads(clerk, "txtBuffAmount"), "1800.50");
        EXPECT_EQ(Reads(clerk, "txtTotalMilkPurchaseAmount"), "4300.50");
        EXPECT_EQ(Reads(clerk, "txtCowDepositkapat"), "10.00");
        EXPECT_EQ(Reads(clerk, "txtBuffDep0sitKapat"), "10.10");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "800.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "820.50") << "with the paise that went to the deposit";
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "");
        EXPECT_EQ(Reads(clerk, "txtNetPayable"), "3480.00");
        EXPECT_EQ(Reads(clerk, "txtExtraAmount"), "0");
        EXPECT_EQ(Seen(clerk, "DataGrid1", 1).size(), 3);
        EXPECT_EQ(Seen(clerk, "DataGridUchals", 2),
            (QStringList{"मागील बाकी|500.00", "उचल|200.00", "खाद्य|123.45", "इतर|7.00"}))
            << "the heads are worked out anew";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentReversalTest, TakingAPaymentBackRestoresAllAndTheMemberCanBePaidAgain)
{
    AddVoucher("25/03/2026", 12, "]cala", 40);
    AddMilk(12, "02/04/2026", "gaaya", 10, 500);
    AddReceipt("10/04/2026", 5, "Uchal Receipt", 10);
    QStringList between;
    QStringList paid;
    PlaySingle([&](Clerk& clerk) {
        Pay(clerk, "01042026", 12);
        between = Books();
        Pay(clerk, "01042026", 5);
        paid = Books();
        EXPECT_NE(paid, between);
        TakeBack(clerk, "01042026", 5);
        EXPECT_EQ(Focus(clerk), "cmdDelete");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Books(), between);
        Pay(clerk, "01042026", 5);
    });
    EXPECT_EQ(Books(), paid);
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentReversalTest, TheEarlierOfTwoPaymentsIsFrozenAndTheLaterThenTheEarlierIsNot)
{
    AddMilk(5, "12/04/2026", "gaaya", 10, 500);
    const QStringList before = Books();
    PlaySingle([&](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Pay(clerk, "11042026", 5);
        const QStringList both = Books();
        Load(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList("You can't Modify/Delete Previous Payments."));
        EXPECT_EQ(TheBox.Titles, QStringList("Milk Payments"));
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Books(), both);
        TakeBack(clerk, "11042026", 5);
        TakeBack(clerk, "01042026", 5);
    });
    EXPECT_EQ(Books(), before);
}

TEST_F(PaymentReversalTest, ALaterPaymentOfAnotherFreezesNothing)
{
    AddMilk(12, "12/04/2026", "gaaya", 10, 500);
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Pay(clerk, "11042026", 12);
        TakeBack(clerk, "01042026", 5);
    });
    EXPECT_EQ(Paid("MemberNo"), "12");
}

TEST_F(PaymentReversalTest, ALaterPaymentInAnotherCompanyFreezesNothing)
{
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        AddPayment("2,'11/04/2026','20/04/2026','20/04/2026',1,5");
        TakeBack(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
    EXPECT_EQ(Paid("CompanyId"), "2");
}

TEST_F(PaymentReversalTest, APaymentOfOneDayDoesNotFreezeItself)
{
    gAppState.gPaymentDuration = QStringLiteral("1 idvasa");
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        EXPECT_EQ(Paid("FromDate,ToDate"), "01/04/2026|01/04/2026");
        TakeBack(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
    EXPECT_EQ(Paid("MemberNo"), "");
}

TEST_F(PaymentReversalTest, APaymentIsFoundByBothItsDaysOnly)
{
    AddPayment("1,'01/04/2026','05/04/2026','05/04/2026',1,5");
    AddPayment("1,'06/04/2026','10/04/2026','10/04/2026',1,5");
    PlaySingle([this](Clerk& clerk) {
        Load(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList("No MilkPayment is found. Please Check Dates and MemberNo."));
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
    EXPECT_EQ(Paid("ToDate"), "05/04/2026\n10/04/2026");
}

TEST_F(PaymentReversalTest, OnlyThePaymentOfThisBillAndTheseDaysIsTakenBack)
{
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        AddPayment("1,'01/04/2026','10/04/2026','12/04/2026',9,5");
        AddPayment("1,'01/04/2026','05/04/2026','10/04/2026',1,5");
        TakeBack(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
    EXPECT_EQ(Paid("ToDate,TranId"), "10/04/2026|9\n05/04/2026|1");
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentReversalTest, OnlyThePaiseOfItsOwnBillAreAddedToTheDeductionShown)
{
    Set("DecimalPayment='AddThev'");
    AddMilk(5, "12/04/2026", "gaaya", 10, 500.75);
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Pay(clerk, "11042026", 5);
        ASSERT_EQ(Rows("select TranDate,Amount from MilkPaymentsDetails where AdvanceType='zova'"),
            (QStringList{"10/04/2026|0.95", "20/04/2026|0.3"}));
        Load(clerk, "11042026", 5);
        EXPECT_EQ(Label(clerk, "lblKapat"), "6.30") << "1 of deposit, 5 and the 0.30";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentReversalTest, APaymentThatIsNotThereIsTold)
{
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Load(clerk, "11042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList("No MilkPayment is found. Please Check Dates and MemberNo."));
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao");
        Load(clerk, "01042026", 12);
        EXPECT_EQ(TheBox.Shown.size(), 2);
    });
    EXPECT_EQ(Paid("MemberNo"), "5");
}

TEST_F(PaymentReversalTest, TwoPaymentsOnOneBillDateLoseBothTheirRecoveries)
{
    AddMilk(5, "12/04/2026", "gaaya", 10, 500);
    AddVoucher("15/04/2026", 5, "]cala", 50);
    PlaySingle([](Clerk& clerk) {
        Begin(clerk, "01042026");
        Type(clerk, "+{TAB}20042026{ENTER}5{ENTER}%s%h");
        Pay(clerk, "11042026", 5);
    });
    ASSERT_EQ(Rows("select TranDate,TranId,Amount from AdvanceReceipt").size(), 2);
    PlaySingle([](Clerk& clerk) { TakeBack(clerk, "11042026", 5); });
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), QStringList());
    EXPECT_EQ(Paid("FromDate"), "01/04/2026");
}

TEST_F(PaymentReversalTest, DetailsOfABillOutsideItsPeriodStayForGood)
{
    Set("DecimalPayment='AddThev'");
    PlaySingle([](Clerk& clerk) {
        Begin(clerk, "01042026");
        Type(clerk, "+{TAB}15042026{ENTER}5{ENTER}%s%h");
        TakeBack(clerk, "01042026", 5);
    });
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), QStringList());
    EXPECT_EQ(Rows("select CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount from MilkPaymentsDetails"),
        (QStringList{"1|15/04/2026|0|5|]cala|200", "1|15/04/2026|0|5|KaV|123.45",
            "1|15/04/2026|0|5|maagaIla baakI|500", "1|15/04/2026|0|5|[tr|5", "1|15/04/2026|0|5|gaaya zova|10",
            "1|15/04/2026|0|5|mhOsa zova|10.1", "1|15/04/2026|0|5|zova|0.95"}));
}

TEST_F(PaymentReversalTest, TheDetailsOfEveryBillOfThePeriodGoWithIt)
{
    AddMilk(5, "12/04/2026", "gaaya", 10, 500);
    PlaySingle([this](Clerk& clerk) {
        Begin(clerk, "01042026");
        Type(clerk, "+{TAB}15042026{ENTER}5{ENTER}%s%h");
        Pay(clerk, "11042026", 5);
        ASSERT_EQ(Rows("select distinct TranDate from MilkPaymentsDetails order by TranDate"),
            (QStringList{"15/04/2026", "20/04/2026"}));
        TakeBack(clerk, "11042026", 5);
    });
    EXPECT_EQ(Paid("FromDate"), "01/04/2026");
    EXPECT_EQ(Rows("select * from MilkPaymentsDetails"), QStringList());
    EXPECT_EQ(Rows("select TranDate,Amount from AdvanceReceipt"), QStringList("15/04/2026|823"));
}

TEST_F(PaymentReversalTest, DeletingOpensTheFirstDayAndTheMemberOnly)
{
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%k");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDa");
        for (const char* open : {"maskFromDate", "txtMemberNo", "cmdDelete", "cmdCancel"})
            EXPECT_TRUE(CanEnter(clerk, open)) << open;
        for (const char* shut : {"maskToDate", "MaskBillDate", "txtTotalMilkPurchaseAmount",
                 "txtCowDepositkapat", "txtBuffDep0sitKapat", "txtUchal", "cmdNew", "cmdModify", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, shut)) << shut;
        Type(clerk, "01042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "10/04/2026");
        Type(clerk, "%r");
        EXPECT_EQ(Focus(clerk), "cmdNew");
    });
}

TEST_F(PaymentReversalTest, WithoutAMemberTheFocusGoesThere)
{
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%k01042026%k");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
}

TEST_F(PaymentReversalTest, APaymentIsSeenBeforeItIsTakenBack)
{
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Type(clerk, "%k01042026{ENTER}5%k");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Guide(clerk), "पेमेंट पाहा, मग पुन्हा दाबा");
        EXPECT_EQ(Reads(clerk, "txtNetPayable"), "3451.95");
        EXPECT_EQ(Paid("MemberNo"), "5");
        Type(clerk, "%k");
        EXPECT_EQ(Paid("MemberNo"), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentReversalTest, WhatWasLookedUpForOtherDatesIsNotTakenBack)
{
    PlaySingle([this](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Load(clerk, "01042026", 5);
        Type(clerk, "+{TAB}+{TAB}11042026%k");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
    EXPECT_EQ(Paid("MemberNo"), "5");
    EXPECT_EQ(One("select ClosingUchal from MembersMaster where MemberNo=5"), "2172.5");
}

}

// What one member's payment comes to.

#include "tests/payments/PaymentsTest.h"

namespace {

class PaymentCalculationTest : public PaymentsTest { };

TEST_F(PaymentCalculationTest, TheWorkedExample)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Focus(clerk), "txtTotalMilkPurchaseAmount");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "100.000");
        EXPECT_EQ(Reads(clerk, "txtBufflitres"), "50.500");
        EXPECT_EQ(Reads(clerk, "txtCowAmount"), "2500.00");
        EXPECT_EQ(Reads(clerk, "txtBuffAmount"), "1800.50");
        EXPECT_EQ(Reads(clerk, "txtTotalMilkPurchaseAmount"), "4300.50");
        EXPECT_EQ(Reads(clerk, "txtCowDepositkapat"), "10.00");
        EXPECT_EQ(Reads(clerk, "txtBuffDep0sitKapat"), "10.10");
        EXPECT_EQ(Label(clerk, "lblUchalAmount"), "828.45");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "828.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "848.55") << "with the paise of the heads";
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3451.95");
        EXPECT_EQ(Reads(clerk, "txtNetPayable"), "") << "set at saving";
        for (const char* blank : {"lblPreviousBalance", "lblPreDC", "lblCurrentBalance", "lblCurDC"})
            EXPECT_EQ(Label(clerk, blank), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentCalculationTest, TheDeliveriesOfThePeriodAreListedAndCopied)
{
    AddMilk(5, "02/04/2026", "gaaya", 3.25, 115.54);
    AddMilk(5, "01/04/2026", "mhOsa", 4, 120, 1, "saMQyaakaL");
    AddMilk(5, "31/03/2026", "gaaya", 64, 640);
    AddMilk(5, "11/04/2026", "gaaya", 64, 640);
    AddMilk(12, "02/04/2026", "gaaya", 64, 640);
    AddMilk(5, "02/04/2026", "gaaya", 64, 640, 2);
    Run("insert into MilkCollectionsTemp select * from MilkCollections where MemberNo=12");
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Seen(clerk, "DataGrid1", 7),
            (QStringList{
                "01/04/26|संध्याकाळ|म्हैस|4.000|4.5|35.6|120.00", "02/04/26|सकाळ|गाय|3.250|4.5|35.6|115.54"}))
            << "a rate is shown with one decimal";
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "3.250");
        EXPECT_EQ(Reads(clerk, "txtBufflitres"), "4.000");
        EXPECT_EQ(Reads(clerk, "txtTotalMilkPurchaseAmount"), "235.54");
    });
    EXPECT_EQ(Rows("select CompanyId,MemberNo,Liters from MilkCollectionsTemp order by Liters"),
        (QStringList{"1|5|3.25", "1|5|4"}));
}

TEST_F(PaymentCalculationTest, TheDeliveriesAreListedByDayAndShift)
{
    AddMilk(5, "02/04/2026", "gaaya", 2, 20, 1, "sakaL");
    AddMilk(5, "02/04/2026", "gaaya", 1, 10, 1, "saMQyaakaL");
    AddMilk(5, "01/04/2026", "gaaya", 3, 30, 1, "sakaL");
    AddMilk(5, "01/04/2026", "gaaya", 4, 40, 1, "saMQyaakaL");
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Seen(clerk, "DataGrid1", 4),
            (QStringList{"01/04/26|संध्याकाळ|गाय|4.000", "01/04/26|सकाळ|गाय|3.000",
                "02/04/26|संध्याकाळ|गाय|1.000", "02/04/26|सकाळ|गाय|2.000"}))
            << "the evening comes first, as it is spelled";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentCalculationTest, TheDepositIsOfLitresToThreeDecimals)
{
    Set("ThevKapatCow=0.35");
    AddMilk(5, "02/04/2026", "gaaya", 1.0004, 100);
    AddMilk(5, "03/04/2026", "gaaya", 1.4139, 100);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "2.414");
        EXPECT_EQ(Reads(clerk, "txtCowDepositkapat"), "0.84");
    });
}

TEST_F(PaymentCalculationTest, AMemberWithOnlyBuffaloMilkGetsACowDepositOfZero)
{
    AddMilk(5, "02/04/2026", "mhOsa", 10, 500);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(Reads(clerk, "txtCowDepositkapat"), "0.00");
        EXPECT_EQ(Reads(clerk, "txtBuffDep0sitKapat"), "2.00");
        Type(clerk, "%s%h");
    });
    EXPECT_EQ(Paid("Animal,LitersCow,LitersBuff,ThevKapatCow,ThevKapatBuff"), "mhOsa|0|10|0|2");
}

TEST_F(PaymentCalculationTest, ThePaymentIsOfTheAnimalsThatGaveMilk)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    AddMilk(12, "02/04/2026", "gaaya", 10, 500);
    AddMilk(12, "02/04/2026", "mhOsa", 5, 300);
    AddMember(20, "gaNaoSa");
    AddMilk(20, "02/04/2026", "gaaya", 10, 500);
    AddMilk(20, "02/04/2026", "mhOsa", 0, 0);
    PlaySingle([](Clerk& clerk) {
        for (const int member : {5, 12, 20})
            Pay(clerk, "01042026", member);
    });
    EXPECT_EQ(Paid("MemberNo,Animal"), "5|gaaya\n12|daonhI\n20|mhOsa")
        << "an animal with deliveries of 0 litres counts";
}

TEST_F(PaymentCalculationTest, LoweringTheDeductionTakesThePaiseOfTheHeadsOutOfTheTotals)
{
    AddExample();
    Set("DecimalPayment='Payable'");
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}");
        ASSERT_EQ(Focus(clerk), "txtUchal");
        Type(clerk, "800{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "800.00");
        EXPECT_EQ(Label(clerk, "lblKapat"), "820.10");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3480.40");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmMessages");
        Type(clerk, "%h");
    });
    EXPECT_EQ(Paid("NetAmount,Kapat,TotalUchal,CurrentBalance"), "3480|820.1|800|28.45");
}

TEST_F(PaymentCalculationTest, GoingThroughTheFieldsUnchangedKeepsThePaiseOfTheHeads)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Label(clerk, "lblKapat"), "848.55");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3451.95");
    });
}

TEST_F(PaymentCalculationTest, AFigureTypedAgainUnchangedIsAnEditLikeAnyOther)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}10.00");
        EXPECT_EQ(Focus(clerk), "txtCowDepositkapat");
        EXPECT_EQ(Label(clerk, "lblKapat"), "848.10");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3452.40");
        EXPECT_EQ(Reads(clerk, "txtExtraAmount"), "0");
    });
}

TEST_F(PaymentCalculationTest, DepositsAndAmountAreTakenAsTypedWithTwoDecimals)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "4000.555{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtTotalMilkPurchaseAmount"), "4000.56");
        Type(clerk, "12.5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtCowDepositkapat"), "12.50");
        Type(clerk, ".5{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBuffDep0sitKapat"), "0.50");
        EXPECT_EQ(Label(clerk, "lblKapat"), "841.00");
        EXPECT_EQ(Reads(clerk, "txtTotalPayment"), "3159.56");
    });
}

TEST_F(PaymentCalculationTest, AMemberWithoutMilkIsToldAndListedAndTheScreenIsReset)
{
    AddMilk(5, "11/04/2026", "gaaya", 10, 500);
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList("No Milk Collection Found     MemberNO:5"));
        EXPECT_EQ(TheBox.Titles, QStringList("Milk Payments"));
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
    });
    EXPECT_EQ(Rows("select CompanyId,MemberNo,MemberName from ShortMemberList"), QStringList("1|5|rama"));
}

TEST_F(PaymentCalculationTest, APeriodWhoseFirstDayIsPaidIsToldAndTheScreenIsReset)
{
    AddMilk(5, "12/04/2026", "gaaya", 10, 500);
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
        "values(1,'02/04/2026','11/04/2026','11/04/2026',1,5)");
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
        "values(2,'11/04/2026','20/04/2026','11/04/2026',1,12)");
    AddMilk(12, "12/04/2026", "gaaya", 10, 500);
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "11042026", 5);
        EXPECT_EQ(TheBox.Shown,
            QStringList(
                "Milk Payments for this member and milk collection period already exist  MemberNo:5"));
        EXPECT_EQ(TheBox.Titles, QStringList("Milk Payments"));
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        Work(clerk, "11042026", 12);
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "10.000") << "another company's payment is no hindrance";
    });
    EXPECT_EQ(Rows("select * from ShortMemberList"), QStringList());
}

TEST_F(PaymentCalculationTest, APaymentThatOnlyCoversTheEndOfThePeriodIsNoHindrance)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
        "values(1,'02/04/2026','11/04/2026','11/04/2026',1,5)");
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        EXPECT_EQ(TheBox.Shown, QStringList());
        EXPECT_EQ(Reads(clerk, "txtCowlitres"), "10.000");
    });
}

TEST_F(PaymentCalculationTest, ANumberThatIsNobodysResetsTheScreenInSilence)
{
    PlaySingle([this](Clerk& clerk) {
        Work(clerk, "01042026", 77);
        EXPECT_EQ(TheBox.Shown, QStringList());
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
    });
}

TEST_F(PaymentCalculationTest, TheNumberTakesTheLetterNAsWell)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Begin(clerk, "01042026");
        Type(clerk, "x5Nn");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "5n");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentCalculationTest, AnEmptyNumberKeepsTheFocusAndTheGuideSaysWhatIsWanted)
{
    PlaySingle([](Clerk& clerk) {
        Begin(clerk, "01042026");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Guide(clerk), "मेम्बर नंबर टाका    Alt+R : रद्द");
    });
}

TEST_F(PaymentCalculationTest, WhatIsNotWorkedOutForTheDatesThatStandThereIsNotSaved)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "+{TAB}+{TAB}+{TAB}");
        ASSERT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "11042026%s");
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment") << "no question";
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Guide(clerk), "दिनांक बदलला : Enter ने हिशोब पुन्हा करा");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
}

TEST_F(PaymentCalculationTest, ADateOfTheBillThatIsChangedAfterTheWorkingOutIsNotSaved)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "+{TAB}+{TAB}");
        ASSERT_EQ(Focus(clerk), "MaskBillDate");
        Type(clerk, "11042026%s");
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment") << "no question";
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
}

TEST_F(PaymentCalculationTest, AnEmptyMemberNumberIsLeftBackwardsToMendTheDates)
{
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%n01042026{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo") << "forwards it stays";
        Type(clerk, "+{TAB}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate");
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment");
    });
}

}

// The period of a payment, the date of its bill, and the bill's number.

#include "tests/payments/PaymentsTest.h"

namespace {

class PaymentDaysTest : public PaymentsTest {
protected:
    // The last day of the period that begins on a day; "refused" if none begins there.
    std::string EndOf(const char* duration, const char* from)
    {
        gAppState.gPaymentDuration = QLatin1String(duration);
        std::string end;
        PlaySingle([&](Clerk& clerk) {
            Type(clerk, "%n");
            Type(clerk, from);
            Type(clerk, "{ENTER}");
            end = Focus(clerk) == "maskFromDate" ? "refused" : Reads(clerk, "maskToDate");
            if (end != "refused") {
                EXPECT_EQ(Reads(clerk, "MaskBillDate"), end);
                EXPECT_EQ(Focus(clerk), "MaskBillDate") << "the last day is given by the first";
            }
        });
        return end;
    }

    void AddPayment(const char* bill, int number, int company = 1)
    {
        Run(QStringLiteral("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
                           "values(%1,'01/03/2026','10/03/2026','%2',%3,99)")
                .arg(company)
                .arg(QLatin1String(bill))
                .arg(number));
    }
};

TEST_F(PaymentDaysTest, OneDayEndsOnItself)
{
    EXPECT_EQ(EndOf("1 idvasa", "05042026"), "05/04/2026");
}

TEST_F(PaymentDaysTest, AWeekBeginsOnAnyDay)
{
    EXPECT_EQ(EndOf("7 idvasa", "05042026"), "11/04/2026");
    EXPECT_EQ(EndOf("7 idvasa", "28022026"), "06/03/2026");
}

TEST_F(PaymentDaysTest, TenDaysBeginOnTheFirstTheEleventhAndTheTwentyFirst)
{
    EXPECT_EQ(EndOf("10 idvasa", "01042026"), "10/04/2026");
    EXPECT_EQ(EndOf("10 idvasa", "11042026"), "20/04/2026");
    EXPECT_EQ(EndOf("10 idvasa", "21042026"), "30/04/2026");
    EXPECT_EQ(EndOf("10 idvasa", "21052026"), "31/05/2026");
    EXPECT_EQ(EndOf("10 idvasa", "21022026"), "28/02/2026");
    EXPECT_EQ(EndOf("10 idvasa", "21022028"), "29/02/2028");
    EXPECT_EQ(EndOf("10 idvasa", "05012026"), "refused");
    EXPECT_EQ(EndOf("10 idvasa", "31052026"), "refused");
}

TEST_F(PaymentDaysTest, FifteenDaysBeginOnTheFirstAndTheSixteenth)
{
    EXPECT_EQ(EndOf("15 idvasa", "01042026"), "15/04/2026");
    EXPECT_EQ(EndOf("15 idvasa", "16022026"), "28/02/2026");
    EXPECT_EQ(EndOf("15 idvasa", "16022028"), "29/02/2028");
    EXPECT_EQ(EndOf("15 idvasa", "16042026"), "30/04/2026");
    EXPECT_EQ(EndOf("15 idvasa", "16052026"), "31/05/2026");
    EXPECT_EQ(EndOf("15 idvasa", "11042026"), "refused");
}

TEST_F(PaymentDaysTest, AMonthBeginsOnTheFirst)
{
    EXPECT_EQ(EndOf("1 maihnaa", "01012026"), "31/01/2026");
    EXPECT_EQ(EndOf("1 maihnaa", "01022026"), "28/02/2026");
    EXPECT_EQ(EndOf("1 maihnaa", "01042026"), "30/04/2026");
    EXPECT_EQ(EndOf("1 maihnaa", "02042026"), "refused");
}

TEST_F(PaymentDaysTest, AFirstDayThatIsNoneIsRefusedInSilenceAndTheGuideSaysWhatIsWanted)
{
    PlaySingle([this](Clerk& clerk) {
        Type(clerk, "%n{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Guide(clerk), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
        Type(clerk, "01132026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate") << "month 13";
        Type(clerk, "31042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "{HOME}05042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Guide(clerk), "पेमेंटचा पहिला दिवस 01, 11 किंवा 21 तारीख असावी    Esc : बाहेर");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "__/__/____");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(PaymentDaysTest, TheGuideNamesTheDaysOfEachDuration)
{
    gAppState.gPaymentDuration = QStringLiteral("15 idvasa");
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%n11042026{ENTER}");
        EXPECT_EQ(Guide(clerk), "पेमेंटचा पहिला दिवस 01 किंवा 16 तारीख असावी    Esc : बाहेर");
    });
    gAppState.gPaymentDuration = QStringLiteral("1 maihnaa");
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%n11042026{ENTER}");
        EXPECT_EQ(Guide(clerk), "पेमेंटचा पहिला दिवस 01 तारीख असावी    Esc : बाहेर");
    });
}

TEST_F(PaymentDaysTest, WithoutADurationTheLastDayIsGivenAndComparedAsText)
{
    gAppState.gPaymentDuration.clear();
    PlaySingle([this](Clerk& clerk) {
        Type(clerk, "%n15032026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        Type(clerk, "01042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskToDate") << "15/03 is written behind 01/04";
        EXPECT_EQ(Guide(clerk), "शेवटचा दिवस 15/03/2026 च्या आधीचा नको    Esc : बाहेर");
        Type(clerk, "20032026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate");
        EXPECT_EQ(Reads(clerk, "MaskBillDate"), "__/__/____");
        Type(clerk, "20032026{ENTER}+{TAB}+{TAB}20022026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate") << "20/02 is written behind 15/03, though it comes before it";
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentDaysTest, ABadBillDateIsRefusedInSilence)
{
    PlaySingle([this](Clerk& clerk) {
        Type(clerk, "%n01042026{ENTER}10132026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate");
        EXPECT_EQ(Guide(clerk), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
        EXPECT_EQ(Reads(clerk, "txtBillNo"), "");
        Type(clerk, "{HOME}25122026{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo") << "it may lie outside the period";
        EXPECT_EQ(Reads(clerk, "txtBillNo"), "1");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(PaymentDaysTest, TheBillNumberRestartsAtOneOnEachNewPaymentDate)
{
    AddPayment("10/04/2026", 41);
    AddPayment("10/04/2026", 7);
    AddPayment("11/04/2026", 3, 2);
    PlaySingle([](Clerk& clerk) {
        Begin(clerk, "01042026");
        EXPECT_EQ(Reads(clerk, "txtBillNo"), "42") << "one above the highest of the date";
        Type(clerk, "+{TAB}11042026{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtBillNo"), "1");
    });
}

TEST_F(PaymentDaysTest, ABillNumberPastSixteenBitsIsARunTimeError)
{
    AddPayment("10/04/2026", 32767);
    PlaySingle([](Clerk& clerk) { Type(clerk, "%n01042026{ENTER}{ENTER}"); });
    EXPECT_TRUE(Failure);
}

}

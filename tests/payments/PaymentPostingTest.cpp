// What a payment writes, and what becomes of its paise.

#include "tests/payments/PaymentsTest.h"

#include <QLabel>

namespace {

class PaymentPostingTest : public PaymentsTest {
protected:
    std::string Closing(int member = 5)
    {
        return Rows(QStringLiteral("select ClosingBalance,CowClosingThev,BuffClosingThev,ClosingUchal from "
                                   "MembersMaster where CompanyId=1 and MemberNo=%1")
                        .arg(member))
            .join(u'\n')
            .toStdString();
    }

    QStringList Details()
    {
        return Rows("select CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount from MilkPaymentsDetails");
    }
};

TEST_F(PaymentPostingTest, APaymentIsWrittenToAllItsTables)
{
    AddExample();
    Run("update MembersMaster set ClosingBalance=100,CowClosingThev=1,BuffClosingThev=2,ClosingUchal=3000 "
        "where MemberNo=5");
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
        "values(1,'01/04/2026','10/04/2026','10/04/2026',3,99)");
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
        EXPECT_EQ(Reads(clerk, "txtUchal"), "");
        EXPECT_EQ(Label(clerk, "lblKapat"), "");
        EXPECT_FALSE(CanEnter(clerk, "txtMemberNo"));
        EXPECT_FALSE(CanEnter(clerk, "cmdCancel"));
        EXPECT_TRUE(CanEnter(clerk, "cmdDelete"));
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select * from MilkPayments where MemberNo=5"),
        QStringList(
            "1|01/04/2026|10/04/2026|10/04/2026|4|5|rama|daonhI|150.5|4300.5|848.1|3451.95|500|0.45|828|"
            "10|10.1|100|50.5|2500|1800.5|5|500"));
    EXPECT_EQ(Details(),
        (QStringList{"1|10/04/2026|0|5|]cala|200", "1|10/04/2026|0|5|KaV|123.45",
            "1|10/04/2026|0|5|maagaIla baakI|500", "1|10/04/2026|0|5|[tr|5", "1|10/04/2026|0|5|gaaya zova|10",
            "1|10/04/2026|0|5|mhOsa zova|10.1"}));
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), QStringList("1|10/04/2026|5|5|Uchal Kapat|823"))
        << "a number above the bill's, without the fixed deduction";
    EXPECT_EQ(Closing(), "-2544.05|11|12.1|2172");
    EXPECT_EQ(Closing(12), "0|0|0|0");
    EXPECT_EQ(Rows("select * from TransactionsMaster"), QStringList()) << "a payment writes no voucher";
}

TEST_F(PaymentPostingTest, APaymentTouchesNoAccountAndNoVoucher)
{
    AddExample();
    const auto accounts = [this] {
        return Rows("select * from AccountsMaster") + Rows("select * from TransactionsMaster")
            + Rows("select * from TransactionsDetails");
    };
    const QStringList before = accounts();
    ASSERT_FALSE(Rows("select * from AccountsMaster").isEmpty());
    PlaySingle([&](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        EXPECT_EQ(accounts(), before);
        Load(clerk, "01042026", 5);
        Type(clerk, "{ENTER}");
    });
    EXPECT_EQ(accounts(), before) << "nor does taking it back";
    EXPECT_EQ(Paid("MemberNo"), "");
}

TEST_F(PaymentPostingTest, TheDetailsOfEveryPaymentHaveTheNumberNought)
{
    AddExample();
    Set("DecimalPayment='AddThev'");
    AddMilk(12, "02/04/2026", "mhOsa", 10, 500);
    AddMilk(12, "12/04/2026", "gaaya", 10, 500);
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Pay(clerk, "01042026", 12);
    });
    Play([](Clerk& clerk) { PayMany(clerk, "11042026", "1", "12"); });
    EXPECT_EQ(Paid("TranId,MemberNo"), "1|5\n2|12\n1|12");
    EXPECT_EQ(Rows("select MemberNo,TranDate,count(*),max(TranId),min(TranId) from MilkPaymentsDetails "
                   "group by MemberNo,TranDate order by MemberNo,TranDate"),
        (QStringList{"5|10/04/2026|7|0|0", "12|10/04/2026|2|0|0", "12|20/04/2026|2|0|0"}));
}

TEST_F(PaymentPostingTest, AnEmptyClosingColumnCountsAsNought)
{
    AddExample();
    Run("update MembersMaster set ClosingBalance=null,CowClosingThev=null,BuffClosingThev=null,"
        "ClosingUchal=null");
    PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
    EXPECT_EQ(Closing(), "-2644.05|10|10.1|-828");
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentPostingTest, WithoutADeductionNoRecoveryIsWritten)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    AddVoucher("02/04/2026", 5, "]cala", 200);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}0{ENTER}{ENTER}%h");
    });
    EXPECT_EQ(Paid("TotalUchal,Kapat,NetAmount,CurrentBalance"), "0|1|499|200");
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), QStringList());
}

TEST_F(PaymentPostingTest, TheFixedDeductionIsLeftOutOfTheRecoveryAndTakenOffTheAdvance)
{
    Set("FixedKapat=5");
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    AddVoucher("02/04/2026", 5, "]cala", 95);
    PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
    EXPECT_EQ(Rows("select AdvanceType,Amount from AdvanceReceipt"), QStringList("Uchal Kapat|95"));
    EXPECT_EQ(Closing(), "-300|1|0|-100");
}

TEST_F(PaymentPostingTest, ADeductionBelowTheFixedOneWritesANegativeRecovery)
{
    Set("FixedKapat=5.1");
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}{ENTER}{ENTER}2{ENTER}{ENTER}%h");
    });
    EXPECT_EQ(Rows("select AdvanceType,Amount from AdvanceReceipt"), QStringList("Uchal Kapat|-3.1"));
    EXPECT_EQ(Paid("FixedKapat"), "5.1");
}

TEST_F(PaymentPostingTest, ADepositOfNothingHasNoDetail)
{
    AddMilk(5, "02/04/2026", "mhOsa", 10, 500);
    PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
    EXPECT_EQ(Details(), QStringList("1|10/04/2026|0|5|mhOsa zova|2"));
}

TEST_F(PaymentPostingTest, TheDetailsOfAnyPaymentHaveTheNumberZero)
{
    AddExample();
    Set("DecimalPayment='AddThev'");
    AddMilk(12, "02/04/2026", "gaaya", 10, 500.50);
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 12);
        Pay(clerk, "01042026", 5);
    });
    EXPECT_EQ(Rows("select TranId from MilkPayments order by TranId"), (QStringList{"1", "2"}));
    EXPECT_EQ(Rows("select distinct TranId from MilkPaymentsDetails"), QStringList("0"));
    EXPECT_EQ(One("select count(*) from MilkPaymentsDetails"), "10");
}

TEST_F(PaymentPostingTest, ADeductionOfAllLeavesTheBalanceOfThePaymentBefore)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    AddVoucher("02/04/2026", 5, "]cala", 200.50);
    AddMilk(12, "02/04/2026", "gaaya", 10, 500);
    AddVoucher("02/04/2026", 12, "]cala", 300);
    PlaySingle([](Clerk& clerk) {
        Pay(clerk, "01042026", 5);
        Pay(clerk, "01042026", 12);
    });
    EXPECT_EQ(Paid("MemberNo,TotalUchal,CurrentBalance"), "5|200|0.5\n12|300|0.5");
    Run("delete * from MilkPayments");
    PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 12); });
    EXPECT_EQ(Paid("MemberNo,CurrentBalance"), "12|0") << "a screen begins at 0";
}

TEST_F(PaymentPostingTest, NoLeavesTheBooksAsTheyWereAndResetsTheScreen)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "%s%n");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "maskFromDate"), "__/__/____");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_EQ(Closing(), "0|0|0|0");
    EXPECT_EQ(Rows("select * from AdvanceReceipt"), QStringList());
    EXPECT_EQ(Details(), QStringList());
    EXPECT_EQ(One("select count(*) from MilkPaymentsDetailsTemp"), "6") << "only the work table was written";
}

TEST_F(PaymentPostingTest, AQuestionThatIsClosedIsANo)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "%s{ESC}");
        EXPECT_EQ(Reads(clerk, "cmdNew"), "&navaIna");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentPostingTest, WithoutANumberTheFocusGoesThereAndNothingIsSaved)
{
    PlaySingle([](Clerk& clerk) {
        Type(clerk, "%n01042026{ENTER}%s");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
}

TEST_F(PaymentPostingTest, WithoutABillNumberTheFocusGoesToItsDate)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"txtBillNo")).Clear(); });
        Type(clerk, "%s");
        EXPECT_EQ(OnTop(clerk), "frmNewMilkPayment") << "no question";
        EXPECT_EQ(Focus(clerk), "MaskBillDate");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_FALSE(Failure);
}

TEST_F(PaymentPostingTest, ANetBelowZeroIsSavedByTheLastDigitsOfItsFigure)
{
    Set("DecimalPayment='AddThev'");
    AddExample();
    AddVoucher("04/04/2026", 5, "]cala", 6000);
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        Type(clerk, "{ENTER}20.40{ENTER}{ENTER}4300{ENTER}");
        ASSERT_EQ(Reads(clerk, "txtTotalPayment"), "-30.00");
        Type(clerk, "+{TAB}+{TAB}+{TAB}20.90{ENTER}{ENTER}{ENTER}");
        ASSERT_EQ(Reads(clerk, "txtTotalPayment"), "-30.50");
        Type(clerk, "{ENTER}%h");
    });
    EXPECT_EQ(Paid("NetAmount"), "-31");
    EXPECT_EQ(Rows("select Amount from MilkPaymentsDetails where AdvanceType='zova'"), QStringList("0.5"));
}

// A name that has an apostrophe fails its statement; the books stay as they were.
TEST_F(PaymentPostingTest, ANameWithAnApostropheEndsTheProgramAndNothingIsWritten)
{
    AddExample();
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"ComboMemberName")).SetText("ra'ma"); });
        Type(clerk, "%s%h");
    });
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_EQ(Closing(), "0|0|0|0");
}

// Paise

class PaiseTest : public PaymentPostingTest {
protected:
    // "NetAmount, and what went to the deposit" of the worked example.
    std::string Saved(const char* rule)
    {
        AddExample();
        Run(QStringLiteral("update AutoSettings set DecimalPayment='%1'").arg(QLatin1String(rule)));
        PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
        EXPECT_EQ(Paid("Kapat"), "848.1") << "whatever the totals show";
        return Paid("NetAmount") + ' '
            + Rows("select Amount from MilkPaymentsDetails where AdvanceType='zova'")
                  .join(u' ')
                  .toStdString();
    }
};

TEST_F(PaiseTest, PayableDropsThem)
{
    EXPECT_EQ(Saved("Payable"), "3451 ");
}

TEST_F(PaiseTest, DiscountDropsThem)
{
    EXPECT_EQ(Saved("Discount"), "3451 ");
}

TEST_F(PaiseTest, PayItPaysThem)
{
    EXPECT_EQ(Saved("PayIt"), "3451.95 ");
}

TEST_F(PaiseTest, AnyOtherWordPaysThem)
{
    EXPECT_EQ(Saved(""), "3451.95 ");
}

TEST_F(PaiseTest, AddThevPutsThemToTheDeposit)
{
    EXPECT_EQ(Saved(" AddThev "), "3451 0.95");
    EXPECT_EQ(Closing(), "-2643.1|10|10.1|-828") << "but into no column of the member";
}

TEST_F(PaiseTest, AddThevShowsTheTotalsWithThemWhileItAsks)
{
    AddExample();
    Set("DecimalPayment='AddThev'");
    PlaySingle([](Clerk& clerk) {
        Work(clerk, "01042026", 5);
        frmNewMilkPayment& screen = clerk.On<frmNewMilkPayment>();
        Type(clerk, "%s");
        ASSERT_EQ(OnTop(clerk), "frmMessages");
        EXPECT_EQ(screen.Find(u"txtTotalPayment")->Text(), "3451.00");
        EXPECT_EQ(screen.Find(u"txtNetPayable")->Text(), "3451.00");
        EXPECT_EQ(screen.Find(u"txtExtraAmount")->Text(), "0");
        EXPECT_EQ(screen.findChild<QLabel*>("lblKapat")->text(), "849.50");
    });
}

TEST_F(PaiseTest, ANetWithoutPaiseLeavesAllFourAlike)
{
    AddMilk(5, "02/04/2026", "gaaya", 10, 500);
    for (const char* rule : {"AddThev", "Payable", "PayIt", "Discount"}) {
        Run(QStringLiteral("update AutoSettings set DecimalPayment='%1'").arg(QLatin1String(rule)));
        Run("delete * from MilkPayments");
        Run("delete * from MilkPaymentsDetails");
        PlaySingle([](Clerk& clerk) { Pay(clerk, "01042026", 5); });
        EXPECT_EQ(Paid("NetAmount"), "499") << rule;
        EXPECT_EQ(Details(), QStringList("1|10/04/2026|0|5|gaaya zova|1")) << rule;
    }
}

// Every amount of paise under every rule: a hundred members whose nets end in .00 to .99.
class EveryPaisaTest : public PaiseTest, public ::testing::WithParamInterface<const char*> { };

TEST_P(EveryPaisaTest, NetAndDepositAreRightToThePaisa)
{
    Run("delete * from MembersMaster");
    Set("ThevKapatCow=0");
    Run(QStringLiteral("update AutoSettings set DecimalPayment='%1'").arg(QLatin1String(GetParam())));
    for (int paise = 0; paise < 100; ++paise) {
        AddMember(paise + 1, QStringLiteral("naava"));
        AddMilk(paise + 1, "02/04/2026", "gaaya", 10, 350 + paise + paise / 100.0);
    }
    Play([](Clerk& clerk) { PayMany(clerk, "01042026", "1", "100"); });
    EXPECT_FALSE(Failure);
    QStringList nets;
    QStringList deposits;
    for (int paise = 0; paise < 100; ++paise) {
        const bool isPaid = std::string(GetParam()) == "PayIt";
        const QString rupees = QString::number(350 + paise);
        nets.append(isPaid && paise != 0 ? rupees + QString::number(paise / 100.0, 'g', 2).mid(1) : rupees);
        if (std::string(GetParam()) == "AddThev" && paise != 0)
            deposits.append(QStringLiteral("%1|%2").arg(paise + 1).arg(paise / 100.0));
    }
    EXPECT_EQ(Rows("select NetAmount from MilkPayments order by MemberNo"), nets);
    EXPECT_EQ(Rows("select MemberNo,Amount from MilkPaymentsDetails order by MemberNo"), deposits);
}

INSTANTIATE_TEST_SUITE_P(Under, EveryPaisaTest, ::testing::Values("AddThev", "Payable", "PayIt", "Discount"));

}

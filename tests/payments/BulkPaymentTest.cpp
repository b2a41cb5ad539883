// The run over many members.

#include "tests/payments/BulkPaymentTest.h"

namespace {

TEST_F(BulkPaymentTest, GapsAndMembersWithoutMilkArePassed)
{
    Play([this](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        EXPECT_EQ(TheBox.Shown, QStringList());
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
        EXPECT_TRUE(CanEnter(clerk, "cmdCalculate"));
        EXPECT_TRUE(CanEnter(clerk, "Command2"));
        EXPECT_TRUE(CanEnter(clerk, "DataGridPayment"));
        EXPECT_EQ(Label(clerk, "Label43"), "पेमेन्ट काढण्याची प्रोसेस संपली.");
        EXPECT_EQ(Label(clerk, "lblPercent"), "100 %");
        EXPECT_EQ(Label(clerk, "lblMember"), "");
        EXPECT_EQ(Seen(clerk, "DataGridPayment", 7),
            (QStringList{"3|5|नाव५|10.000|500.00|1.00|499.00", "2|2|नाव२|10.000|200.00|1.00|199.00",
                "1|1|नाव१|10.000|100.00|1.00|99.00"}));
        EXPECT_EQ(Seen(clerk, "DataGridMembers", 2), QStringList("4|नाव४"));
        EXPECT_EQ(Label(clerk, "lblLiters"), "30.000");
        EXPECT_EQ(Label(clerk, "lblAmount"), "800.00");
        EXPECT_EQ(Label(clerk, "lblAdvance"), "3.00");
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "797.00");
        EXPECT_EQ(Reads(clerk, "txtFromAc"), "1") << "for another look or run";
        EXPECT_EQ(Reads(clerk, "maskFromDate1"), "01/04/2026");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Paid("TranId,MemberNo,MemberName,FromDate,ToDate,PaymentDate,NetAmount"),
        "1|1|naava1|01/04/2026|10/04/2026|10/04/2026|99\n2|2|naava2|01/04/2026|10/04/2026|10/04/2026|199\n"
        "3|5|naava5|01/04/2026|10/04/2026|10/04/2026|499");
    EXPECT_EQ(Rows("select MemberNo,MemberName from ShortMemberList"), QStringList("4|naava4"));
    EXPECT_EQ(Rows("select * from AdvanceTemp"), QStringList());
}

TEST_F(BulkPaymentTest, ASecondRunAddsNothingAndTellsEachMemberThatIsPaid)
{
    Play([this](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        Type(clerk, "{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        const auto paid = [](int member) {
            return QStringLiteral("Milk Payments for this member and milk collection period already exist  "
                                  "MemberNo:%1")
                .arg(member);
        };
        EXPECT_EQ(TheBox.Shown, (QStringList{paid(1), paid(2), paid(5)}));
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "797.00");
    });
    EXPECT_EQ(Paid("MemberNo"), "1\n2\n5");
    EXPECT_EQ(Rows("select MemberNo from ShortMemberList"), QStringList("4")) << "listed anew";
}

TEST_F(BulkPaymentTest, OnlyTheRangeIsPaidAndSummed)
{
    Play([](Clerk& clerk) {
        PayMany(clerk, "01042026", "5", "5");
        Type(clerk, "{ENTER}{ENTER}{ENTER}1{ENTER}1{ENTER}{ENTER}");
        Type(clerk, "{ENTER}{ENTER}{ENTER}2{ENTER}4{ENTER}{ENTER}");
        EXPECT_EQ(Seen(clerk, "DataGridPayment", 2), QStringList("3|2"));
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "199.00");
    });
    EXPECT_EQ(Paid("TranId,MemberNo"), "2|1\n3|2\n1|5");
}

TEST_F(BulkPaymentTest, NothingToPayShowsNoughts)
{
    Play([](Clerk& clerk) {
        PayMany(clerk, "21042026", "1", "5");
        EXPECT_EQ(Label(clerk, "lblLiters"), "0.000");
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "0.00");
        EXPECT_EQ(Seen(clerk, "DataGridMembers", 1), (QStringList{"5", "4", "2", "1"}));
    });
}

TEST_F(BulkPaymentTest, RowsOfNoCompanyAreTidiedAwayThoughNobodyIsPaid)
{
    Run("insert into MilkPayments(CompanyId,MemberNo) values(0,1)");
    Play([](Clerk& clerk) { PayMany(clerk, "21042026", "1", "5"); });
    EXPECT_EQ(One("select count(*) from MilkPayments"), "0");
}

TEST_F(BulkPaymentTest, TheNetKeepsThePaiseOfTheHeadsWhileTheDeductionIsInRupees)
{
    Set("FixedKapat=5,DecimalPayment='PayIt'");
    AddVoucher("02/04/2026", 2, "]cala", 20.45);
    Play([](Clerk& clerk) { PayMany(clerk, "01042026", "2", "2"); });
    EXPECT_EQ(Paid("Kapat,TotalUchal,NetAmount,CurrentBalance"), "26|25|173.55|0.45");
}

TEST_F(BulkPaymentTest, ABalanceIsCarriedFromMemberToMember)
{
    AddVoucher("02/04/2026", 1, "]cala", 20.45);
    AddVoucher("02/04/2026", 2, "]cala", 20);
    Play([](Clerk& clerk) { PayMany(clerk, "01042026", "1", "5"); });
    EXPECT_EQ(Paid("MemberNo,CurrentBalance"), "1|0.45\n2|0.45\n5|0.45");
}

TEST_F(BulkPaymentTest, TheTickOfTheInstallmentsHoldsForTheRun)
{
    Run("insert into InstallmentTable(MemberNo,MemberName,Kapat) values(5,'naava5',50)");
    AddVoucher("02/04/2026", 5, "]cala", 200);
    Play([](Clerk& clerk) {
        Type(clerk, "+{TAB}");
        ASSERT_EQ(Focus(clerk), "chkInstallment");
        Type(clerk, " {ENTER}");
        ASSERT_EQ(Focus(clerk), "cmbPaymentType");
        PayMany(clerk, "01042026", "1", "5");
    });
    EXPECT_EQ(Paid("MemberNo,TotalUchal"), "1|0\n2|0\n5|50");
}

TEST_F(BulkPaymentTest, AFailureLeavesTheMembersBeforePaidWholeAndTheOneAtHandNotAtAll)
{
    AddVoucher("02/04/2026", 1, "]cala", 20);
    AddVoucher("02/04/2026", 2, "]cala", 20);
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo) "
        "values(1,'01/03/2026','10/03/2026','10/04/2026',32766,99)");
    Play([](Clerk& clerk) { PayMany(clerk, "01042026", "1", "5"); });
    EXPECT_TRUE(Failure) << "the second bill would have number 32768";
    EXPECT_EQ(Rows("select TranId,MemberNo from MilkPayments where MemberNo<>99"), QStringList("32767|1"));
    EXPECT_EQ(Rows("select TranId,MemberNo from AdvanceReceipt"), QStringList("32768|1"));
    EXPECT_EQ(Rows("select MemberNo from MembersMaster where ClosingUchal<>0"), QStringList("1"));
}

TEST_F(BulkPaymentTest, NumbersStopAtTheEndOfSixteenBits)
{
    AddMember(32767, "tonto");
    AddMember(32768, "Xavat");
    AddMilk(32767, "02/04/2026", "gaaya", 10, 300);
    AddMilk(32768, "02/04/2026", "gaaya", 10, 300);
    Play([](Clerk& clerk) {
        PayMany(clerk, "01042026", "32765", "32768");
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
        EXPECT_EQ(Label(clerk, "lblPercent"), "100 %");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Paid("MemberNo"), "32767");
}

// What belongs to the run

TEST_F(BulkPaymentTest, ADateOfTheBillThatIsKeyedHoldsForAll)
{
    AddVoucher("02/04/2026", 5, "]cala", 20);
    AtFields([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}12042026{ENTER}1{ENTER}5{ENTER}{ENTER}");
        EXPECT_EQ(Seen(clerk, "DataGridPayment", 2), (QStringList{"3|5", "2|2", "1|1"}));
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "777.00");
    });
    EXPECT_EQ(Paid("MemberNo,ToDate,PaymentDate"),
        "1|10/04/2026|12/04/2026\n2|10/04/2026|12/04/2026\n5|10/04/2026|12/04/2026");
    EXPECT_EQ(Rows("select TranDate,TranId from AdvanceReceipt"), QStringList("12/04/2026|4"));
    EXPECT_EQ(Rows("select distinct TranDate from MilkPaymentsDetails"), QStringList("12/04/2026"));
    EXPECT_FALSE(Failure);
}

TEST_F(BulkPaymentTest, ALastDayThatIsKeyedHoldsForAll)
{
    gAppState.gPaymentDuration.clear();
    AddMilk(5, "06/04/2026", "gaaya", 64, 640);
    AtFields([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}05042026{ENTER}07042026{ENTER}1{ENTER}5{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
    });
    EXPECT_EQ(Paid("MemberNo,FromDate,ToDate,PaymentDate,Liters"),
        "1|01/04/2026|05/04/2026|07/04/2026|10\n2|01/04/2026|05/04/2026|07/04/2026|10\n"
        "5|01/04/2026|05/04/2026|07/04/2026|10");
    EXPECT_FALSE(Failure);
}

// The fields of one member's payment are empty behind a run.
TEST_F(BulkPaymentTest, ASecondRunStraightFromTheChoiceTakesTheDaysThatStandThere)
{
    Play([this](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        ASSERT_EQ(Focus(clerk), "cmbPaymentType");
        Run("delete * from MilkPayments");
        Press(clerk, "cmdCalculate");
        EXPECT_EQ(TheBox.Shown, QStringList());
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "797.00");
    });
    EXPECT_EQ(Paid("MemberNo,FromDate,ToDate,PaymentDate"),
        "1|01/04/2026|10/04/2026|10/04/2026\n2|01/04/2026|10/04/2026|10/04/2026\n"
        "5|01/04/2026|10/04/2026|10/04/2026");
    EXPECT_FALSE(Failure);
}

TEST_F(BulkPaymentTest, OnlyPaymentsOfTheDateAndTheCompanyAreListedAndSummed)
{
    for (const char* other : {"1,'11/04/2026',1,3", "2,'10/04/2026',1,3"})
        Run(QStringLiteral(
            "insert into MilkPayments(CompanyId,PaymentDate,TranId,MemberNo,MemberName,FromDate,"
            "ToDate,Liters,Amount,Kapat,NetAmount) "
            "values(%1,'para','01/03/2026','10/03/2026',64,640,6,634)")
                .arg(QLatin1String(other)));
    Play([](Clerk& clerk) {
        PayMany(clerk, "01042026", "1", "5");
        EXPECT_EQ(Seen(clerk, "DataGridPayment", 2), (QStringList{"3|5", "2|2", "1|1"}));
        EXPECT_EQ(Label(clerk, "lblLiters"), "30.000");
        EXPECT_EQ(Label(clerk, "lblAmount"), "800.00");
        EXPECT_EQ(Label(clerk, "lblAdvance"), "3.00");
        EXPECT_EQ(Label(clerk, "lblNetAmount"), "797.00");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BulkPaymentTest, AMemberOfAnotherCompanyIsNobody)
{
    for (const int member : {3, 9}) {
        AddMember(member, QStringLiteral("para"));
        Run(QStringLiteral("update MembersMaster set CompanyId=2 where MemberNo=%1").arg(member));
    }
    AtFields([this](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}{ENTER}9{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAc") << "the highest number of this company is 5";
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAc"), "5");
        Type(clerk, "9{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("Please Enter Valid Range"));
        Type(clerk, "5{ENTER}{ENTER}");
        EXPECT_EQ(Seen(clerk, "DataGridMembers", 2), QStringList("4|नाव४")) << "3 is a gap in the numbers";
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BulkPaymentTest, NumbersTakeTheLetterNAsWell)
{
    AtFields([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}{ENTER}x2Nn");
        EXPECT_EQ(Reads(clerk, "txtFromAc"), "2n");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtFromAc"), "2");
        Type(clerk, "x4Nn");
        EXPECT_EQ(Reads(clerk, "txtToAc"), "4n");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAc"), "4");
        EXPECT_EQ(Focus(clerk), "cmdCalculate");
    });
    EXPECT_FALSE(Failure);
}

// The fields

TEST_F(BulkPaymentTest, TheListAloneChoosesBetweenOneAndMany)
{
    Play([](Clerk& clerk) {
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
        Type(clerk, "1a2{BS}");
        EXPECT_EQ(Reads(clerk, "cmbPaymentType"), "");
        Type(clerk, "{DOWN}");
        EXPECT_EQ(Reads(clerk, "cmbPaymentType"), "ek maombar");
        Type(clerk, "{DOWN}{BS}{DEL}2");
        EXPECT_EQ(Reads(clerk, "cmbPaymentType"), "Anaok maombasa-");
    });
}

TEST_F(BulkPaymentTest, OneMemberShutsTheFieldsOfARun)
{
    Play([](Clerk& clerk) {
        for (const char* shut : {"maskFromDate1", "MaskToDate1", "MaskBillDate1", "txtFromAc", "txtToAc",
                 "DataGridPayment", "cmdNew", "cmdModify", "cmdDelete", "cmdCancel", "cmdExit"})
            EXPECT_FALSE(CanEnter(clerk, shut)) << shut;
        Type(clerk, "{DOWN}{DOWN}{ENTER}");
        for (const char* open : {"maskFromDate1", "MaskBillDate1", "txtFromAc", "txtToAc"})
            EXPECT_TRUE(CanEnter(clerk, open)) << open;
        EXPECT_FALSE(CanEnter(clerk, "MaskToDate1")) << "it follows from the first";
        Type(clerk, "01042026+{TAB}{UP}{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdCalculate");
        EXPECT_FALSE(CanEnter(clerk, "maskFromDate1"));
        EXPECT_FALSE(CanEnter(clerk, "txtToAc"));
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdNew");
        EXPECT_FALSE(CanEnter(clerk, "cmbPaymentType"));
        EXPECT_FALSE(CanEnter(clerk, "cmdModify"));
        EXPECT_FALSE(CanEnter(clerk, "cmdCancel"));
        EXPECT_TRUE(CanEnter(clerk, "cmdDelete"));
        EXPECT_TRUE(CanEnter(clerk, "cmdExit"));
    });
}

TEST_F(BulkPaymentTest, AFirstDayThatBeginsNoPeriodIsRefusedInSilence)
{
    AtFields([this](Clerk& clerk) {
        Type(clerk, "05012026{ENTER}");
        EXPECT_EQ(Focus(clerk), "maskFromDate1");
        EXPECT_EQ(Guide(clerk), "पेमेंटचा पहिला दिवस 01, 11 किंवा 21 तारीख असावी    Esc : बाहेर");
        Type(clerk, "21022026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate1");
        EXPECT_EQ(Reads(clerk, "MaskToDate1"), "28/02/2026");
        EXPECT_EQ(Reads(clerk, "MaskBillDate1"), "28/02/2026");
        Type(clerk, "31022026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate1");
        EXPECT_EQ(Guide(clerk), "दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(BulkPaymentTest, WithoutADurationTheLastDayIsComparedAsADay)
{
    gAppState.gPaymentDuration.clear();
    AtFields([](Clerk& clerk) {
        Type(clerk, "15032026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskToDate1");
        Type(clerk, "14032026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskToDate1");
        EXPECT_EQ(Guide(clerk), "शेवटचा दिवस 15/03/2026 च्या आधीचा नको    Esc : बाहेर");
        Type(clerk, "01042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "MaskBillDate1");
    });
}

TEST_F(BulkPaymentTest, TheFirstNumberIsWholeAndNotAboveTheHighest)
{
    AtFields([this](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAc");
        EXPECT_EQ(Reads(clerk, "txtFromAc"), "0");
        EXPECT_EQ(Guide(clerk), "1 ते 5 मधील मेम्बर नंबर टाका    Esc : बाहेर");
        Type(clerk, "6{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAc");
        Type(clerk, "2.9{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtToAc");
        EXPECT_EQ(Reads(clerk, "txtFromAc"), "2");
        EXPECT_EQ(Reads(clerk, "txtToAc"), "5");
        EXPECT_EQ(TheBox.Shown, QStringList());
    });
}

TEST_F(BulkPaymentTest, ALastNumberOutsideTheRangeIsTold)
{
    AtFields([this](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}{ENTER}2{ENTER}0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtToAc");
        EXPECT_EQ(TheBox.Shown, QStringList()) << "0 is refused in silence";
        Type(clerk, "1{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("Please Enter Valid Range"));
        EXPECT_EQ(Focus(clerk), "txtToAc");
        Type(clerk, "6{ENTER}");
        EXPECT_EQ(TheBox.Shown.size(), 2);
        Type(clerk, "2.7{ENTER}");
        EXPECT_EQ(Focus(clerk), "cmdCalculate");
        EXPECT_EQ(Reads(clerk, "txtToAc"), "2");
    });
}

TEST_F(BulkPaymentTest, WithoutMembersNoNumberCanBeGiven)
{
    Run("delete * from MembersMaster");
    AtFields([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}{ENTER}1{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAc");
    });
}

TEST_F(BulkPaymentTest, TheRunWantsAChoiceAndEveryField)
{
    Play([](Clerk& clerk) {
        Press(clerk, "cmdCalculate");
        EXPECT_EQ(Focus(clerk), "cmbPaymentType");
        Type(clerk, "{DOWN}{DOWN}{ENTER}01042026{ENTER}{ENTER}1{ENTER}5{ENTER}");
        for (const char* field : {"maskFromDate1", "MaskBillDate1", "txtFromAc", "txtToAc"}) {
            auto& emptied = dynamic_cast<Field&>(*clerk.Top().Find(QString::fromLatin1(field)));
            const QString was = emptied.Text();
            clerk.Do([&] { emptied.Clear(); });
            clerk.Do([&] { dynamic_cast<Button&>(*clerk.Top().Find(u"cmdCalculate")).Press(); });
            EXPECT_EQ(Focus(clerk), field);
            clerk.Do([&] { emptied.SetText(was); });
        }
        Type(clerk, "{ENTER}");
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"txtFromAc")).SetText("6"); });
        clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(u"txtToAc")).SetText("5"); });
        clerk.Do([&] { dynamic_cast<Button&>(*clerk.Top().Find(u"cmdCalculate")).Press(); });
        EXPECT_EQ(Focus(clerk), "txtFromAc");
    });
    EXPECT_EQ(Paid("MemberNo"), "");
    EXPECT_FALSE(Failure);
}

TEST_F(BulkPaymentTest, TheExitLeavesWhateverStandsInAField)
{
    AtFields([](Clerk& clerk) {
        Type(clerk, "05012026%b");
        EXPECT_NE(OnTop(clerk), "frmNewMilkPayment");
    });
}

}

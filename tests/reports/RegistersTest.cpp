// What is staged for the registers of payments, deposits and advances.

#include "tests/reports/RegistersTest.h"

namespace {

using PaymentRegisterTest = RegistersTest;
using DepositRegisterTest = RegistersTest;
using AdvanceRegisterTest = RegistersTest;

constexpr const char* Registered = "select * from MilkPaymentsRegister";

}

// All three

TEST_F(PaymentRegisterTest, AMemberWithNoPaymentInThePeriodHasNoRow)
{
    Pay({.member = 5, .name = "saIta"});
    Pay({.member = 1, .from = "01/04/2026", .to = "10/04/2026", .date = "10/04/2026"});
    Pay({.member = 9, .name = "gaNaoSa", .company = 2});
    for (const char* mode : {"PR", "TR", "UR"}) {
        Print(mode);
        EXPECT_EQ(Rows("select CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName from "
                       "MilkPaymentsRegister"),
            Lines({"1|11/04/2026|20/04/2026|20/04/2026|1|5|saIta"}))
            << mode;
        EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|11/04/2026|20/04/2026"}));
        EXPECT_EQ(Rows("select MemberNo from MilkPaymentsTemp"), Lines({"5"}));
    }
}

TEST_F(PaymentRegisterTest, TheRangeOfTheMembersBoundsTheRows)
{
    for (int member : {1, 5, 9}) {
        Pay({.member = member});
        AddDelivery("11/04/2026", "sakaL", member, member, "rama", "gaaya", member, 4, 30);
    }
    for (const char* mode : {"PR", "TR", "UR"}) {
        Print(mode, "11042026{ENTER}{ENTER}5{ENTER}5{ENTER}%i");
        EXPECT_EQ(Rows("select MemberNo from MilkPaymentsRegister"), Lines({"5"})) << mode;
        EXPECT_EQ(Rows("select MemberNo from MilkCollectionsTemp"), Lines({"5"})) << mode;
    }
}

TEST_F(PaymentRegisterTest, RowsOfNoCompanyAreTidiedAway)
{
    gAppState.gCompanyId = 0;
    Pay({.company = 0});
    AddDelivery("11/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    gCn.RunScript("create trigger Watch before insert on MilkPaymentsRegister begin "
                  "insert into KapatDetails(MemberNo,Value1) "
                  "select new.MemberNo,(select count(*) from MilkCollectionsTemp); end");
    for (const char* mode : {"PR", "TR", "UR"}) {
        Run("delete * from KapatDetails");
        Print(mode, "11042026{ENTER}{ENTER}1{ENTER}9{ENTER}%i");
        EXPECT_EQ(Rows("select MemberNo,Value1 from KapatDetails"), Lines({"1|1"})) << mode << ": was there";
        EXPECT_EQ(Rows(Registered), QStringList()) << mode;
        EXPECT_EQ(Rows("select * from MilkPaymentsTemp"), QStringList()) << mode;
        EXPECT_EQ(Rows("select * from MilkCollectionsTemp"), QStringList()) << mode;
    }
}

TEST_F(PaymentRegisterTest, TwoRunsInARowGiveTheSame)
{
    Pay({});
    for (const char* mode : {"PR", "TR", "UR"}) {
        Print(mode);
        const QStringList rows = Rows(Registered);
        Print(mode);
        EXPECT_EQ(Rows(Registered), rows) << mode;
        EXPECT_EQ(Rows("select * from ReportDates").size(), 1);
    }
}

// Payments

TEST_F(PaymentRegisterTest, APaymentIsTakenWithItsMilkItsDeductionsAndItsBalances)
{
    Pay({.tranId = 7, .previousBalance = 500, .currentBalance = 20.45, .previousAdvance = 400});
    AddDelivery("11/04/2026", "sakaL", 4, 1, "rama", "gaaya", 10.125, 4, 30);
    AddDelivery("20/04/2026", "saMQyaakaL", 2, 1, "rama", "gaaya", 8, 4.1, 31);
    AddDelivery("15/04/2026", "saMQyaakaL", 3, 1, "rama", "mhOsa", 2.5, 7, 45);
    AddDelivery("10/04/2026", "sakaL", 4, 1, "rama", "gaaya", 99, 4, 30);
    AddDelivery("21/04/2026", "sakaL", 4, 1, "rama", "mhOsa", 99, 4, 30);
    AddDelivery("15/04/2026", "sakaL", 4, 5, "saIta", "gaaya", 99, 4, 30);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, " gaaya zova", 10);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "mhOsa zova ", 10.1);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "zova", 0.4);
    AddHead("MilkPaymentsDetails", "19/04/2026", 1, "gaaya zova", 99);
    AddHead("MilkPaymentsDetails", "20/04/2026", 5, "gaaya zova", 99);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "gaaya zova", 99, 2);
    Print("PR");
    EXPECT_EQ(Rows(Registered),
        Lines({"1|11/04/2026|20/04/2026|20/04/2026|7|1|rama|daonhI|18.125|2.5|4300.5|20.1|848.1|3452.4|900|"
               "420.45|828|400"}));
}

TEST_F(PaymentRegisterTest, AMemberWithoutMilkInTheBooksHasNoughts)
{
    Pay({});
    Print("PR");
    EXPECT_EQ(Rows("select CowLiters,BuffLiters,ThevKapat from MilkPaymentsRegister"), Lines({"0|0|0"}));
}

TEST_F(PaymentRegisterTest, APeriodThatReachesBackBeforeTheCompanysFromDateReadsTheOldTableToo)
{
    Pay({.from = "29/03/2026", .to = "07/04/2026"});
    AddDelivery("30/03/2026", "sakaL", 1, 1, "rama", "gaaya", 10, 4, 30);
    gAppState.gCompanyId = 2;
    AddDelivery("30/03/2026", "sakaL", 1, 1, "rama", "gaaya", 99, 4, 30);
    gAppState.gCompanyId = 1;
    Run("insert into MilkCollectionsOld select * from MilkCollections");
    Run("delete * from MilkCollections");
    AddDelivery("02/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    Print("PR", "29032026{ENTER}07042026{ENTER}1{ENTER}{ENTER}%i");
    EXPECT_EQ(One("select CowLiters from MilkPaymentsRegister"), "15");
    Run("update CompanyMaster set FromDate='29/03/2026'");
    Print("PR", "29032026{ENTER}07042026{ENTER}1{ENTER}{ENTER}%i");
    EXPECT_EQ(One("select CowLiters from MilkPaymentsRegister"), "5");
}

TEST_F(PaymentRegisterTest, TheDeductionsAreSummedByHeadAndThePreviousBalanceCountsAsAnAdvance)
{
    Pay({});
    Pay({.member = 5, .name = "saIta"});
    for (const auto& [type, amount] : {std::pair("]cala", 200.0), {"KaV", 123.45},
             {"ikraNaa maalaÀroSana", 60.5}, {"[tr", 12.25}, {"maagaIla baakI", 500.0}})
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, amount);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "maagaIla baakI", 1);
    AddHead("MilkPaymentsDetails", "19/04/2026", 1, "maagaIla baakI", 9000);
    AddHead("MilkPaymentsDetails", "19/04/2026", 1, "]cala", 25);
    AddHead("MilkPaymentsDetails", "10/04/2026", 1, "]cala", 9000);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "maagaIla baakI", 9000, 2);
    AddHead("MilkPaymentsDetails", "20/04/2026", 5, "]cala", 3);
    Print("PR");
    EXPECT_EQ(Rows("select * from KapatSummary order by MemberNo"),
        Lines({"1|1|12.25|726|123.45|60.5|NULL|NULL|NULL", "1|5|0|3|0|0|NULL|NULL|NULL"}));
    Print("TR");
    EXPECT_EQ(Rows("select * from KapatSummary"), QStringList()) << "the others have no use for it";
}

TEST_F(PaymentRegisterTest, ThePageIsUprightUnlessTheClerkChoosesItAcross)
{
    Pay({});
    Print("PR");
    EXPECT_GT(TheWindow.Shown.back()->PageAt(0).height, TheWindow.Shown.back()->PageAt(0).width);
    Print("PR", "11042026{ENTER}{ENTER}1{ENTER}{ENTER}{DOWN}%i");
    EXPECT_LT(TheWindow.Shown.back()->PageAt(0).height, TheWindow.Shown.back()->PageAt(0).width);
}

// Deposits

TEST_F(DepositRegisterTest, TheDepositIsTakenFromTheOpeningAndTheDetails)
{
    Pay({});
    Run("update MembersMaster set CowOpeningThev=1000.5,BuffOpeningThev=200.25 where MemberNo=1");
    for (const char* type : {"gaaya zova", " mhOsa zova ", "zova", "]cala"}) {
        AddHead("MilkPaymentsDetails", "31/03/2026", 1, type, 9000);
        AddHead("MilkPaymentsDetails", "01/04/2026", 1, type, 10.25);
        AddHead("MilkPaymentsDetails", "19/04/2026", 1, type, 100);
        AddHead("MilkPaymentsDetails", "20/04/2026", 1, type, 10.05);
        AddHead("MilkPaymentsDetails", "21/04/2026", 1, type, 9000);
    }
    Print("TR");
    EXPECT_EQ(Rows(Registered),
        Lines({"1|11/04/2026|20/04/2026|20/04/2026|1|1|rama|NULL|NULL|NULL|NULL|20.1|NULL|NULL|1421.25|"
               "1441.35|828|500"}));
}

TEST_F(DepositRegisterTest, AMemberWhoIsGoneFromTheRegisterHasNoOpening)
{
    Pay({.member = 7, .name = "gaolaolaa"});
    Print("TR");
    EXPECT_EQ(
        Rows("select ThevKapat,PreviousBalance,CurrentBalance from MilkPaymentsRegister"), Lines({"0|0|0"}));
}

// Advances

TEST_F(AdvanceRegisterTest, TheBalanceFallsByTheWholeDeductionLessTheDeposit)
{
    Pay({});
    for (const char* table : {"TransactionsDetails", "MilkPaymentsDetails"}) {
        AddHead(table, "10/04/2026", 1, "]cala", 100.5);
        AddHead(table, "01/01/2020", 1, "KaV", 11);
        AddHead(table, "10/04/2026", 1, " gaaya zova ", 9000);
        AddHead(table, "10/04/2026", 1, "mhOsa zova", 9000);
        AddHead(table, "11/04/2026", 1, "]cala", 9000);
        AddHead(table, "10/04/2026", 5, "]cala", 9000);
        AddHead(table, "10/04/2026", 1, "]cala", 9000, 2);
    }
    AddHead("TransactionsDetails", "05/04/2026", 1, "KaV", 1000);
    for (const char* type : {"Uchal Receipt", "Uchal Kapat", "gaaya zova"})
        AddHead("AdvanceReceipt", "10/04/2026", 1, type, 20.25);
    AddHead("AdvanceReceipt", "11/04/2026", 1, "Uchal Receipt", 9000);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "]cala", 200);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "zova", 0.4);
    AddHead("MilkPaymentsDetails", "20/04/2026", 1, "gaaya zova", 10);
    Print("UR");
    EXPECT_EQ(Rows(Registered),
        Lines({"1|11/04/2026|20/04/2026|20/04/2026|1|1|rama|NULL|NULL|NULL|NULL|NULL|200.4|NULL|939.25|"
               "111.25|828|500"}));
}

TEST_F(AdvanceRegisterTest, YearsBeforeCountWithoutTheirDepositsAndForTheirMemberAndCompanyOnly)
{
    Pay({});
    for (const char* day : {"31/12/2024", "30/06/2025", "31/12/2025", "01/01/2026"}) {
        AddHead("TransactionsDetails", day, 1, "KaV", 100.25);
        AddHead("MilkPaymentsDetails", day, 1, "]cala", 30.1);
        AddHead("AdvanceReceipt", day, 1, "gaaya zova", 20);
        for (const char* table : {"TransactionsDetails", "MilkPaymentsDetails", "AdvanceReceipt"}) {
            AddHead(table, day, 5, "]cala", 9000);
            AddHead(table, day, 1, "]cala", 9000, 2);
        }
        AddHead("TransactionsDetails", day, 1, " gaaya zova ", 9000);
        AddHead("MilkPaymentsDetails", day, 1, "mhOsa zova", 9000);
    }
    Print("UR");
    EXPECT_EQ(Rows("select PreviousBalance from MilkPaymentsRegister"), Lines({"200.6"}));
}

TEST_F(AdvanceRegisterTest, WhatWasGivenAndTakenBackInAYearBeforeIsNought)
{
    Pay({});
    AddHead("TransactionsDetails", "01/05/2025", 1, "]cala", 100.1);
    AddHead("TransactionsDetails", "02/05/2025", 1, "KaV", 100.2);
    Run("delete from TransactionsDetails where TranDate='01/05/2025'");
    Run("update TransactionsDetails set Amount=0 where TranDate='02/05/2025'");
    Print("UR");
    EXPECT_EQ(Rows("select PreviousBalance from MilkPaymentsRegister"), Lines({"0"}));
}

TEST_F(AdvanceRegisterTest, AMemberWithoutAdvancesGoesBelowNought)
{
    Pay({.uchal = 5});
    Print("UR");
    EXPECT_EQ(Rows("select OtherKapat,PreviousBalance,CurrentBalance from MilkPaymentsRegister"),
        Lines({"0|0|-5"}));
}

// What is staged for one member's advance statement and for the balances of all.

#include "tests/reports/RegistersTest.h"

namespace {

using AdvanceStatementTest = RegistersTest;

constexpr const char* Statement = "11042026{ENTER}20042026{ENTER}1%i";

// The balances to the 20th of April.
class BalancesTest : public RegistersTest {
protected:
    static constexpr const char* Keys = "01042026{ENTER}20042026{ENTER}1{ENTER}{ENTER}%i";

    QStringList Balances(const char* mode)
    {
        Print(mode, Keys);
        return Rows("select * from MilkPaymentsRegister");
    }

    // All three members owe and have deposited something.
    void AddBalances()
    {
        for (int member : {1, 5, 9}) {
            AddHead("TransactionsDetails", "10/04/2026", member, "]cala", 100 + member);
            Pay({.member = member});
        }
    }
};

using AdvanceBalanceTest = BalancesTest;
using DepositBalanceTest = BalancesTest;

}

// One member's statement

TEST_F(AdvanceStatementTest, TheOpeningRowStandsFirstEvenAtNought)
{
    Print("UD", Statement);
    EXPECT_EQ(Rows("select * from AdvanceTemp"), Lines({"1|01/01/1940|0|1|OpeningBalance|0"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|11/04/2026|20/04/2026"}));
    AddHead("TransactionsDetails", "20/04/2026", 1, "]cala", 10);
    Print("UD", Statement);
    EXPECT_EQ(Rows("select TranDate,AdvanceType from AdvanceTemp order by TranDate"),
        Lines({"01/01/1940|OpeningBalance", "20/04/2026|]cala"}));
    const QStringList texts = ReportTexts();
    EXPECT_GE(texts.indexOf("आरंभीची शिल्लक"), 0);
    EXPECT_LT(texts.indexOf("आरंभीची शिल्लक"), texts.indexOf("20/04/2026"));
    EXPECT_FALSE(texts.contains("01/01/1940"));
}

TEST_F(AdvanceStatementTest, WhatWasGivenOnADayStandsInTheOrderInWhichItWasGiven)
{
    AddHead("TransactionsDetails", "12/04/2026", 1, "]cala", 90);
    AddHead("TransactionsDetails", "12/04/2026", 1, "KaV", 20);
    AddHead("AdvanceReceipt", "13/04/2026", 1, "Uchal Receipt", 30);
    AddHead("AdvanceReceipt", "13/04/2026", 1, "Uchal Receipt", 10);
    Print("UD", Statement);
    EXPECT_EQ(Rows("select AdvanceType,Amount from AdvanceTemp"),
        Lines({"OpeningBalance|0", "]cala|90", "KaV|20", "Uchal Receipt|30", "Uchal Receipt|10"}));
}

TEST_F(AdvanceStatementTest, WhatWasGivenAndTakenBackInTheDaysFollowsTheOpening)
{
    AddHead("TransactionsDetails", "10/04/2026", 1, "]cala", 100.5);
    AddHead("TransactionsDetails", "10/04/2026", 1, "]cala", 9000, 2);
    AddHead("TransactionsDetails", "10/04/2026", 5, "]cala", 9000);
    AddHead("AdvanceReceipt", "10/04/2026", 1, "Uchal Kapat", 20.25);
    AddHead("AdvanceReceipt", "10/04/2026", 5, "Uchal Kapat", 9000);
    AddHead("TransactionsDetails", "11/04/2026", 1, "KaV", 50, 1, 3);
    AddHead("AdvanceReceipt", "15/04/2026", 1, "Uchal Receipt", 30, 1, 4);
    AddHead("AdvanceReceipt", "20/04/2026", 1, "Uchal Kapat", 95, 1, 2);
    AddHead("TransactionsDetails", "21/04/2026", 1, "KaV", 9000);
    AddHead("AdvanceReceipt", "21/04/2026", 1, "Uchal Receipt", 9000);
    AddHead("TransactionsDetails", "15/04/2026", 1, "KaV", 9000, 0);
    AddHead("TransactionsDetails", "15/04/2026", 5, "KaV", 9000);
    Run("insert into AdvanceTemp(CompanyId,MemberNo) values(1,9)");
    Print("UD", Statement);
    EXPECT_EQ(Rows("select * from AdvanceTemp order by TranDate"),
        Lines({"1|01/01/1940|0|1|OpeningBalance|80.25", "1|11/04/2026|3|1|KaV|50",
            "1|15/04/2026|4|1|Uchal Receipt|30", "1|20/04/2026|2|1|Uchal Kapat|95"}));
    const QStringList texts = ReportTexts();
    for (const char* text :
        {"80.25", "130.25", "100.25", "5.25", "दूध पेमेंटमधून कपात", "उचल जमा", "खाद्य", "सभासद 1 राम"})
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;
    EXPECT_EQ(TheWindow.Subject(), "11-04-2026 ते 20-04-2026");
}

TEST_F(AdvanceStatementTest, WhatWasGivenAndTakenBackInTheDaysIsThatOfEveryCompany)
{
    AddHead("TransactionsDetails", "15/04/2026", 1, "KaV", 50, 2);
    AddHead("AdvanceReceipt", "16/04/2026", 1, "Uchal Receipt", 30, 2);
    Print("UD", Statement);
    EXPECT_EQ(Rows("select CompanyId,TranDate,Amount from AdvanceTemp order by TranDate"),
        Lines({"1|01/01/1940|0", "2|15/04/2026|50", "2|16/04/2026|30"}));
}

// The advances of all

TEST_F(AdvanceBalanceTest, TheBalanceIsWhatWasGivenLessWhatWasReceivedUpToTheDate)
{
    AddHead("TransactionsDetails", "01/01/2020", 5, "]cala", 100.5);
    AddHead("TransactionsDetails", "20/04/2026", 5, "gaaya zova", 400);
    AddHead("TransactionsDetails", "21/04/2026", 5, "]cala", 9000);
    AddHead("TransactionsDetails", "20/04/2026", 5, "]cala", 9000, 2);
    AddHead("AdvanceReceipt", "20/04/2026", 5, "Uchal Kapat", 50.25);
    AddHead("AdvanceReceipt", "21/04/2026", 5, "Uchal Kapat", 9000);
    AddHead("AdvanceReceipt", "20/04/2026", 5, "Uchal Kapat", 9000, 2);
    EXPECT_EQ(Balances("UchalBalanceStatement"),
        Lines({"1|01/04/2026|20/04/2026|20/04/2026|0|5|saIta|N/AP|0|0|0|0|0|500.5|50.25|450.25|0|0"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|01/04/2026|20/04/2026"}));
}

TEST_F(AdvanceBalanceTest, ABalanceAtTheTurnOfTheYearHoldsItsLastDayAndNotTheNext)
{
    for (const char* day : {"31/12/2025", "01/01/2026", "31/12/2026", "01/01/2027"}) {
        AddHead("TransactionsDetails", day, 5, "]cala", 100);
        AddHead("AdvanceReceipt", day, 5, "Uchal Kapat", 10);
    }
    const std::pair<const char*, const char*> balances[] = {{"31122025", "90"}, {"01012026", "180"},
        {"30122026", "180"}, {"31122026", "270"}, {"01012027", "360"}};
    for (const auto& [to, balance] : balances) {
        const QByteArray keys = QByteArray("01042020{ENTER}") + to + "{ENTER}1{ENTER}{ENTER}%i";
        Print("UchalBalanceStatement", keys.constData());
        EXPECT_EQ(Rows("select CurrentBalance from MilkPaymentsRegister"), Lines({balance})) << to;
    }
}

TEST_F(AdvanceBalanceTest, ABalanceOfNoughtIsDroppedAndANegativeOneStays)
{
    AddHead("TransactionsDetails", "10/04/2026", 1, "]cala", 100);
    AddHead("AdvanceReceipt", "20/04/2026", 1, "Uchal Kapat", 100);
    AddHead("AdvanceReceipt", "20/04/2026", 9, "Uchal Receipt", 30);
    Print("UchalBalanceStatement", Keys);
    EXPECT_EQ(Rows("select MemberNo,CurrentBalance from MilkPaymentsRegister"), Lines({"9|-30"}));
}

TEST_F(AdvanceBalanceTest, TheSumsAreOfSinglePrecision)
{
    AddHead("TransactionsDetails", "10/04/2026", 1, "]cala", 1234567.89);
    AddHead("AdvanceReceipt", "20/04/2026", 1, "Uchal Kapat", 0.05);
    Print("UchalBalanceStatement", Keys);
    EXPECT_EQ(Rows("select NetAmount,PreviousBalance,CurrentBalance from MilkPaymentsRegister"),
        Lines({"1234568|0.05|1234568"}));
}

TEST_F(AdvanceBalanceTest, AnEmptyListSaysThatThereIsNothing)
{
    Print("UchalBalanceStatement", Keys);
    EXPECT_TRUE(ReportTexts().contains("कोणाचीही शिल्लक नाही."));
    EXPECT_TRUE(ReportTexts().contains("दिनांक 20/04/2026 अखेर"));
}

// The deposits of all

TEST_F(DepositBalanceTest, TheDepositsOfThePaymentsOfTheDaysAreSummed)
{
    Pay({.member = 5, .name = "saIta", .date = "01/04/2026", .thevCow = 10.25, .thevBuff = 5});
    Pay({.member = 5, .name = "saIta", .date = "20/04/2026", .thevCow = 1, .thevBuff = 2.5});
    Pay({.member = 5, .name = "saIta", .date = "21/04/2026", .thevCow = 9000});
    Pay({.member = 5, .name = "saIta", .date = "31/03/2026", .thevBuff = 9000});
    Pay({.member = 5, .name = "saIta", .thevBuff = 9000, .company = 2});
    Pay({.member = 9, .name = "gaNaoSa", .thevCow = 0, .thevBuff = 0});
    EXPECT_EQ(Balances("ThevBalanceStatement"),
        Lines({"1|01/04/2026|20/04/2026|20/04/2026|0|5|saIta|N/AP|0|0|0|18.75|0|11.25|7.5|3.75|0|0"}));
}

TEST_F(DepositBalanceTest, WhatIsPrintedIsTheDeposit)
{
    Pay({.thevCow = 10.25, .thevBuff = 5});
    Print("ThevBalanceStatement", Keys);
    const QStringList texts = ReportTexts();
    EXPECT_EQ(texts.count("15.25"), 2) << "of the member, and of all";
    EXPECT_FALSE(texts.contains("5.25"));
}

TEST_F(BalancesTest, AGuardTakesAwayTheRowsOfACompanyThatIsNone)
{
    gAppState.gCompanyId = 992;
    AddHead("TransactionsDetails", "10/04/2026", 1, "]cala", 100, 992);
    Pay({.company = 992});
    for (const char* mode : {"UchalBalanceStatement", "ThevBalanceStatement"}) {
        Print(mode, "01042026{ENTER}20042026{ENTER}1{ENTER}9{ENTER}%i");
        EXPECT_EQ(Rows("select * from ReportDates"), Lines({"992|01/04/2026|20/04/2026"})) << mode;
        EXPECT_EQ(Rows("select * from MilkPaymentsRegister"), QStringList()) << mode;
    }
}

TEST_F(BalancesTest, ARangeWithoutMembersIsToldAndTheOldRowsAreGone)
{
    for (const char* mode : {"UchalBalanceStatement", "ThevBalanceStatement"}) {
        Run("insert into MilkPaymentsRegister(CompanyId,MemberNo) values(1,1)");
        TheBox.Shown.clear();
        Print(mode, "01042026{ENTER}20042026{ENTER}10{ENTER}{ENTER}%i");
        EXPECT_EQ(TheBox.Shown, QStringList("No members found!")) << mode;
        EXPECT_TRUE(TheWindow.Shown.empty());
        EXPECT_EQ(Rows("select * from MilkPaymentsRegister"), QStringList()) << mode;
    }
}

TEST_F(BalancesTest, TheRangeOfTheMembersBoundsTheRows)
{
    AddBalances();
    for (const char* mode : {"UchalBalanceStatement", "ThevBalanceStatement"}) {
        Print(mode, "01042026{ENTER}20042026{ENTER}5{ENTER}5{ENTER}%i");
        EXPECT_EQ(Rows("select MemberNo from MilkPaymentsRegister"), Lines({"5"})) << mode;
    }
}

TEST_F(BalancesTest, TwoRunsInARowGiveTheSame)
{
    AddBalances();
    for (const char* mode : {"UchalBalanceStatement", "ThevBalanceStatement"}) {
        const QStringList rows = Balances(mode);
        EXPECT_EQ(rows.size(), 3) << mode;
        EXPECT_EQ(Balances(mode), rows) << mode;
        EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|01/04/2026|20/04/2026"})) << mode;
    }
}

TEST_F(BalancesTest, TheMembersAreThoseOfEveryCompanyAndTheirFiguresThoseOfTheSelectedOne)
{
    AddBalances();
    Run("update MembersMaster set CompanyId=2 where MemberNo=5");
    for (const char* mode : {"UchalBalanceStatement", "ThevBalanceStatement"}) {
        Print(mode, Keys);
        EXPECT_EQ(Rows("select CompanyId,MemberNo from MilkPaymentsRegister"), Lines({"1|1", "1|5", "1|9"}))
            << mode;
    }
}

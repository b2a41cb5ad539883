// The cash book and the bank book: what is brought forward, and each row with its balances.

#include "tests/reports/BooksTest.h"

#include "platform/database/Sql.h"

#include <algorithm>
#include <map>
#include <random>

namespace {

constexpr const char* April = "01042026{ENTER}30042026{ENTER}%i";
constexpr const char* Figures =
    "select TranDate,TranId,AccountName,DAmount,CAmount,OpeningBalance,OpeningDorC,"
    "ClosingBalance,ClosingDorC,Total from LedgersMaster";
constexpr const char* NothingInCash =
    "Cash Account has No Opening Balance & Transactions in the Given Date Range";
constexpr const char* NothingInTheBank =
    "Selected Bank Account has No Opening Balance & Transactions in the Given Date Range";

class LedgerTest : public BooksTest {
protected:
    void PrintCash(const char* keys = April) { Print<frmReportCashBook>("C", keys); }
    QStringList Staged() { return Rows(Figures); }
};

}

TEST_F(LedgerTest, EachRowHasTheBalanceBeforeAndAfterItAndTheGreaterTotalOfItsDay)
{
    Open(-1000, "D");
    Post({.tranId = 1, .amount = 200});
    Post({.tranId = 2, .debit = "saIta", .credit = "raoK", .amount = 300});
    Post({.date = "11/04/2026", .debit = "saIta", .credit = "raoK", .amount = 50.5});
    PrintCash();
    EXPECT_EQ(Staged(),
        Lines({"10/04/2026|1|rama|200|0|1000|D|1200|D|1200", "10/04/2026|2|saIta|0|300|1200|D|900|D|1200",
            "11/04/2026|1|saIta|0|50.5|900|D|849.5|D|900"}));
}

TEST_F(LedgerTest, ARowCarriesLedgerDatesCompanyKindAndNarrations)
{
    Post({.tranId = 7, .amount = 200, .narration = "]cala jamaa JaalaI."});
    Run("update TransactionsMaster set Narration3='cok'");
    PrintCash();
    EXPECT_EQ(
        Rows("select LedgerName,FromDate,ToDate,CompanyId,TranType,Narration,Narration2,Narration3 from "
             "LedgersMaster"),
        Lines({"raoK|01/04/2026|30/04/2026|1|irsaIT|]cala jamaa JaalaI.||cok"}));
}

TEST_F(LedgerTest, ACreditBalanceStandsOnTheCreditSide)
{
    Open(500, "C");
    Post({.tranId = 1, .amount = 200});
    Post({.tranId = 2, .debit = "rama", .credit = "raoK", .amount = 100});
    Post({.date = "11/04/2026", .amount = 450});
    PrintCash();
    EXPECT_EQ(Staged(),
        Lines({"10/04/2026|1|rama|200|0|500|C|300|C|500", "10/04/2026|2|rama|0|100|300|C|400|C|600",
            "11/04/2026|1|rama|450|0|400|C|50|D|450"}));
}

TEST_F(LedgerTest, WhatHappenedBeforeTheDaysIsRolledForward)
{
    Open(-1000, "D");
    Post({.date = "31/03/2026", .tranId = 1, .amount = 250.25});
    Post({.date = "31/03/2026", .tranId = 2, .debit = "rama", .credit = "raoK", .amount = 2000});
    Post({.date = "01/04/2026", .amount = 100});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"01/04/2026|1|rama|100|0|749.75|C|649.75|C|749.75"}));
    EXPECT_EQ(One("select OpeningBalance from AccountsMaster where AccountName='raoK'"), "-1000");
}

TEST_F(LedgerTest, TheYearsBeforeAreRolledForwardToo)
{
    Open(-1000, "D");
    for (const char* date : {"15/06/2019", "01/01/2024", "31/12/2025", "01/01/2026", "31/03/2026"})
        Post({.date = date, .amount = 10.25});
    Post({.date = "02/02/2020", .debit = "rama", .credit = " raoK ", .amount = 500});
    Post({.date = "02/02/2020", .debit = "saIta", .credit = "rama", .amount = 70});
    Post({.date = "02/02/2020", .amount = 40000, .company = 2});
    Post({.date = "01/04/2026", .amount = 100});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"01/04/2026|1|rama|100|0|551.25|D|651.25|D|651.25"}));
}

TEST_F(LedgerTest, OldYearsThatCameToNoughtReadDebit)
{
    Open(0, "C");
    Post({.date = "10/03/2020", .tranId = 1, .amount = 5});
    Post({.date = "10/03/2020", .tranId = 2, .debit = "rama", .credit = "raoK", .amount = 5});
    Post({.amount = 1});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|1|0|0|D|1|D|1"}));
    Run("delete from TransactionsMaster where TranDate<#01/01/2026#");
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|1|0|0|C|1|D|1"}));
}

TEST_F(LedgerTest, AnOldYearWithTheAccountOnBothSidesOrAChangedEntryIsRolledForwardAsItIs)
{
    Post({.date = "10/03/2020", .tranId = 1, .debit = "raoK", .credit = "raoK", .amount = 300});
    Post({.date = "10/03/2021", .tranId = 2, .amount = 20});
    Run("update TransactionsMaster set Amount=25.5,TranDate='10/03/2022' where TranId=2");
    Run("update TransactionsMaster set DAccountName='rama',CAccountName='raoK' where TranId=2");
    Post({.amount = 1});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|1|0|25.5|C|24.5|C|25.5"}));
}

TEST_F(LedgerTest, AYearThatWasKeyedWithANoughtInFrontCountsOnce)
{
    Post({.date = "10/03/0202", .amount = 7});
    Post({.date = "10/05/0202", .amount = 1});
    Print<frmReportCashBook>("C", "01040202{ENTER}30062026{ENTER}%i");
    EXPECT_EQ(Staged(), Lines({"10/05/0202|1|rama|1|0|7|D|8|D|8"}));
}

TEST_F(LedgerTest, TheFirstAndTheLastDayBelongToIt)
{
    for (const char* date : {"31/03/2026", "01/04/2026", "30/04/2026", "01/05/2026"})
        Post({.date = date, .amount = 10});
    PrintCash();
    EXPECT_EQ(
        Rows("select TranDate,OpeningBalance from LedgersMaster"), Lines({"01/04/2026|10", "30/04/2026|20"}));
}

TEST_F(LedgerTest, TheSideOfTheOpeningStandsAsItIsWrittenIfNothingHappenedBefore)
{
    Open(0, "C");
    Post({.amount = 5});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|5|0|0|C|5|D|5"}));
    Open(-70, "C");
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|5|0|70|C|75|D|70"}));
    Post({.date = "31/03/2026", .amount = 1});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|5|0|71|D|76|D|76"}));
}

// The totals of the first day begin with it all the same.
TEST_F(LedgerTest, AnOpeningWithoutASideIsOnTheSideOfItsSign)
{
    Post({.tranId = 1, .amount = 5});
    Post({.tranId = 2, .debit = "rama", .credit = "raoK", .amount = 2});
    Open(-70, "");
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|5|0|70||75|D|75", "10/04/2026|2|rama|0|2|75|D|73|D|75"}));
    Open(70, "");
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|5|0|70||65|C|70", "10/04/2026|2|rama|0|2|65|C|67|C|72"}));
}

TEST_F(LedgerTest, AClosingOfExactlyNoughtReadsDebit)
{
    Post({.tranId = 1, .debit = "rama", .credit = "raoK", .amount = 0.1});
    Post({.tranId = 2, .debit = "rama", .credit = "raoK", .amount = 0.2});
    Post({.tranId = 3, .amount = 0.3});
    PrintCash();
    EXPECT_EQ(Staged().last(), "10/04/2026|3|rama|0.3|0|0.3|C|0|D|0.3");
}

TEST_F(LedgerTest, ABalanceThatCameToExactlyNoughtBeforeTheDaysIsNone)
{
    Post({.date = "10/03/2026", .tranId = 1, .debit = "rama", .credit = "raoK", .amount = 0.1});
    Post({.date = "10/03/2026", .tranId = 2, .debit = "rama", .credit = "raoK", .amount = 0.2});
    Post({.date = "10/03/2026", .tranId = 3, .amount = 0.3});
    PrintCash();
    EXPECT_EQ(TheBox.Shown, Lines({NothingInCash}));
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(LedgerTest, AnOpeningOfNoughtAndNoTransactionGiveTheMessageAndNoReport)
{
    Run("insert into LedgersMaster(CompanyId,DAmount) values(1,9)");
    PrintCash();
    EXPECT_EQ(TheBox.Shown, Lines({NothingInCash}));
    EXPECT_EQ(TheBox.Titles, Lines({" Cash Book"}));
    EXPECT_EQ(Staged(), QStringList());
    AddAccount("baÐk", "Bank", "");
    Print<frmReportCashBook>("B", "01042026{ENTER}30042026{ENTER}baÐk{ENTER}%i");
    EXPECT_EQ(TheBox.Shown.last(), NothingInTheBank);
    EXPECT_EQ(TheBox.Titles.last(), " Bank Book");
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(LedgerTest, AnOpeningAndNoTransactionInTheDaysAreOneRowWithTheBalanceAsItsOnlyFigure)
{
    const char* rows = "select * from LedgersMaster";
    Open(-1000.5, "D");
    Post({.date = "01/05/2026", .amount = 7});
    PrintCash();
    EXPECT_EQ(Rows(rows),
        Lines(
            {"raoK|01/04/2026|30/04/2026|1|01/04/2026|NULL|NULL|NULL|1000.5|0|NULL|NULL|NULL|NULL|NULL|NULL|"
             "NULL|NULL"}));
    EXPECT_TRUE(ReportTexts().contains("मागील शिल्लक"));
    EXPECT_EQ(ReportTexts().count("1000.50"), 2) << "the row, and the total";
    Post({.date = "31/03/2026", .debit = "rama", .credit = "raoK", .amount = 1200});
    PrintCash();
    EXPECT_EQ(Rows("select TranDate,DAmount,CAmount from LedgersMaster"), Lines({"01/04/2026|0|199.5"}));
    EXPECT_EQ(TheBox.Shown, QStringList());
}

TEST_F(LedgerTest, SeveralOfOneDateAndNumberStayInTheOrderOfTheStatement)
{
    Post({.tranId = 2, .credit = "gaNaoSa", .amount = 1});
    Post({.tranId = 1, .credit = "saIta", .amount = 2});
    Post({.tranId = 1, .credit = "rama", .amount = 3});
    Post({.tranId = 1, .credit = "maaQava", .amount = 4});
    PrintCash();
    const QStringList order = Rows("Select CAccountName from TransactionsMaster order by TranDate,tranId");
    EXPECT_EQ(order.last(), "gaNaoSa");
    EXPECT_EQ(Rows("select AccountName from LedgersMaster"), order);
    QStringList printed;
    for (const QString& text : ReportTexts())
        for (const QString& name : order)
            if (text == Seen(name.toUtf8()))
                printed.append(name);
    EXPECT_EQ(printed, order);
}

TEST_F(LedgerTest, ATransactionWithTheLedgerOnBothSidesMovesBothAndShowsItsCredit)
{
    Open(-100, "D");
    Post({.date = "31/03/2026", .credit = " raoK", .amount = 9});
    Post({.credit = " raoK", .amount = 30});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|raoK|0|30|100|D|100|D|130"}));
    EXPECT_TRUE(ReportTexts().join(u' ').contains("दोन्ही बाजू याच खात्याच्या"));
}

TEST_F(LedgerTest, AnAccountWithoutARowHasAnEmptyOpeningAndTheReportSaysSo)
{
    Run("delete * from AccountsMaster");
    PrintCash();
    EXPECT_EQ(TheBox.Shown, Lines({NothingInCash}));
    TheBox.Shown.clear();
    Post({.tranId = 1, .amount = 30});
    Post({.tranId = 2, .debit = "rama", .credit = "raoK", .amount = 50});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|1|rama|30|0|0||30|D|30", "10/04/2026|2|rama|0|50|30|D|20|C|50"}));
    EXPECT_EQ(TheBox.Shown, QStringList());
    const QString sentence = "या नावाचे खाते खात्यांच्या यादीत नाही; आरंभीची शिल्लक धरलेली नाही.";
    EXPECT_TRUE(ReportTexts().contains(sentence));
    AddAccount("raoK", "Cash", "");
    PrintCash();
    EXPECT_FALSE(ReportTexts().contains(sentence));
}

TEST_F(LedgerTest, ThatAnAccountHasNoRowIsSaidWhateverHappenedInIt)
{
    const QString sentence = "या नावाचे खाते खात्यांच्या यादीत नाही; आरंभीची शिल्लक धरलेली नाही.";
    Open(-70, "");
    Post({.amount = 5});
    PrintCash();
    EXPECT_FALSE(ReportTexts().contains(sentence)) << "an opening without a side is counted";
    Run("delete * from AccountsMaster");
    AddAccount("raoK", "Cash", "", 9, "D", 2);
    PrintCash();
    EXPECT_TRUE(ReportTexts().contains(sentence)) << "an account of another company";
    Post({.date = "31/03/2026", .amount = 7});
    PrintCash();
    EXPECT_TRUE(ReportTexts().contains(sentence)) << "something happened before";
    Run("delete * from TransactionsMaster where TranDate=#04/10/2026#");
    PrintCash();
    EXPECT_TRUE(ReportTexts().contains(sentence)) << "the balance alone";
    Post({.date = "09/04/2026", .amount = 0});
    Post({.amount = 5});
    PrintCash();
    EXPECT_TRUE(ReportTexts().contains(sentence)) << "behind a transaction of nought";
    Print<frmReportCashBook>("B", "01042026{ENTER}30042026{ENTER}raoK{ENTER}%i");
    EXPECT_TRUE(ReportTexts().contains(sentence)) << "the bank book";
    AddAccount("raoK", "Bank", "");
    Print<frmReportCashBook>("B", "01042026{ENTER}30042026{ENTER}raoK{ENTER}%i");
    EXPECT_FALSE(ReportTexts().contains(sentence));
}

TEST_F(LedgerTest, NamesAreComparedWithoutTheBlanksAtTheirEnds)
{
    Post({.tranId = 1, .debit = " raoK ", .credit = "rama ", .amount = 30});
    Post({.tranId = 2, .debit = "rama", .credit = " raoK", .amount = 10});
    Post({.tranId = 3, .debit = "raoKa", .credit = "rama", .amount = 99});
    PrintCash();
    EXPECT_EQ(
        Staged(), Lines({"10/04/2026|1|rama |30|0|0|D|30|D|30", "10/04/2026|2|rama|0|10|30|D|20|D|30"}));
}

TEST_F(LedgerTest, OnlyTheSelectedCompanyCounts)
{
    Run("update AccountsMaster set CompanyId=2 where AccountName='raoK'");
    AddAccount("raoK", "Cash", "", -40);
    Run("update AccountsMaster set OpeningBalance=-9000 where CompanyId=2");
    Post({.date = "31/03/2026", .amount = 9000, .company = 2});
    Post({.tranId = 1, .amount = 9000, .company = 2});
    Post({.tranId = 2, .amount = 5});
    PrintCash();
    EXPECT_EQ(Staged(), Lines({"10/04/2026|2|rama|5|0|40|D|45|D|45"}));
}

TEST_F(LedgerTest, ATransactionOfNoughtIsLeftOut)
{
    Post({.tranId = 1, .amount = 0});
    PrintCash();
    EXPECT_EQ(Staged(), QStringList());
    EXPECT_EQ(TheBox.Shown, QStringList());
    EXPECT_TRUE(ReportTexts().contains("या काळात रकमेचा एकही व्यवहार नाही."));
    Post({.tranId = 2, .amount = 5});
    PrintCash();
    EXPECT_EQ(Rows("select TranId from LedgersMaster"), Lines({"2"}));
}

TEST_F(LedgerTest, TwoRunsInARowGiveTheSame)
{
    Open(-1000, "D");
    Post({.amount = 30});
    PrintCash();
    const QStringList rows = Rows("select * from LedgersMaster");
    const QStringList texts = ReportTexts();
    EXPECT_EQ(rows.size(), 1);
    PrintCash();
    EXPECT_EQ(Rows("select * from LedgersMaster"), rows);
    EXPECT_EQ(ReportTexts(), texts);
}

TEST_F(LedgerTest, ABanksBookIsTheOneOfTheChosenBank)
{
    AddAccount("baÐk", "Bank", "", -70);
    Post({.tranId = 1, .debit = "baÐk", .amount = 30});
    Post({.tranId = 2, .amount = 9000});
    Print<frmReportCashBook>("B", "01042026{ENTER}30042026{ENTER}baÐk{ENTER}%i");
    EXPECT_EQ(Rows("select LedgerName,TranId,OpeningBalance,ClosingBalance from LedgersMaster"),
        Lines({"baÐk|1|70|100"}));
    EXPECT_EQ(TheWindow.Subject(), "बँक 01-04-2026 ते 30-04-2026");
}

TEST_F(LedgerTest, WithoutABankThereIsNoLedger)
{
    Post({.amount = 30});
    Print<frmReportCashBook>("B", "01042026{ENTER}30042026{ENTER}{ENTER}%i");
    EXPECT_EQ(TheBox.Shown, Lines({NothingInTheBank}));
    EXPECT_TRUE(TheWindow.Shown.empty());
}

TEST_F(LedgerTest, ABankWithAnApostropheEndsTheProgramAndChangesNothing)
{
    Run("insert into LedgersMaster(CompanyId,DAmount) values(1,9)");
    gAppState.gReportMode = "B";
    Type<frmReportCashBook>("01042026{ENTER}30042026{ENTER}ba'k{ENTER}%i");
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Rows("select DAmount from LedgersMaster"), Lines({"9"}));
}

TEST_F(LedgerTest, ARowThatCanNotBeStagedLeavesTheLedgerBefore)
{
    Run("insert into LedgersMaster(CompanyId,DAmount) values(1,9)");
    Post({.tranId = 1, .amount = 30});
    Post({.tranId = 2, .amount = 40});
    gCn.RunScript("update TransactionsMaster set Narration='rama''s' where TranId=2");
    gAppState.gReportMode = "C";
    Type<frmReportCashBook>(April);
    EXPECT_TRUE(Failure);
    EXPECT_EQ(Rows("select DAmount from LedgersMaster"), Lines({"9"}));
}

TEST_F(LedgerTest, AMissingTemplateEndsTheProgramWhenTheRowsAreStaged)
{
    Post({.amount = 30});
    RemoveTemplate("CashBook.rpt");
    gAppState.gReportMode = "C";
    Type<frmReportCashBook>(April);
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Staged().size(), 1);
}

TEST_F(LedgerTest, DaysTheWrongWayRoundHaveTheBalanceOnly)
{
    Open(-5, "D");
    Post({.amount = 30});
    PrintCash("20042026{ENTER}01042026{ENTER}%i");
    EXPECT_EQ(Rows("select TranDate,DAmount,CAmount from LedgersMaster"), Lines({"20/04/2026|35|0"}));
}

TEST_F(LedgerTest, TheBarIsShownWhileTheRowsBeforeAndThoseOfTheDaysAreWalked)
{
    for (int row = 1; row <= 3; ++row)
        Post({.date = "31/03/2026", .tranId = row, .amount = 1});
    for (int row = 1; row <= 5; ++row)
        Post({.tranId = row, .amount = 1});
    std::unique_ptr<PaintedStaging> bar;
    InMode<frmReportCashBook>("C", [&](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}");
        clerk.Do([&] { bar = std::make_unique<PaintedStaging>(clerk.Top()); });
        EXPECT_FALSE(bar->IsShown());
        Type(clerk, "%i");
        EXPECT_FALSE(bar->IsShown());
    });
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->Messages.value(0), "Generating the Report");
    for (const char* seen : {"33 % ", "66 % ", "20 % ", "40 % ", "60 % ", "80 % ", "100 % "})
        EXPECT_TRUE(bar->Seen.contains(QString::fromUtf8(seen))) << seen;
}

TEST_F(LedgerTest, KeysTypedWhileItIsStagedWaitForItsEnd)
{
    for (int row = 1; row <= 200; ++row)
        Post({.tranId = row, .amount = 1});
    InMode<frmReportCashBook>("C", [&](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}");
        clerk.TypeAhead("%i{ESC}");
    });
    EXPECT_EQ(One("select count(*) from LedgersMaster"), "200");
    EXPECT_EQ(TheWindow.Shown.size(), 1U);
}

// The second reckoning: in whole paise, from the transactions as they were posted.

namespace {

struct Posted {
    QDate day;
    int tranId = 0;
    bool cashIsDebited = false;
    std::int64_t paise = 0;
};

QString Rupees(std::int64_t paise)
{
    return ShortestDecimal(static_cast<double>(std::abs(paise)) / 100);
}

// The cash in hand in paise; what a day took in and gave out, with what was there in the morning.
QStringList Reckoned(std::vector<Posted> all, std::int64_t inHand, const QDate& from, const QDate& to)
{
    std::stable_sort(all.begin(), all.end(), [](const Posted& one, const Posted& other) {
        return std::pair(one.day, one.tranId) < std::pair(other.day, other.tranId);
    });
    const auto side = [](std::int64_t cash) { return cash >= 0 ? QString("D") : QString("C"); };
    QStringList lines;
    std::map<QDate, std::pair<std::int64_t, std::int64_t>> days;
    for (const Posted& each : all) {
        const std::int64_t before = inHand;
        inHand += each.cashIsDebited ? each.paise : -each.paise;
        if (each.day < from || each.day > to)
            continue;
        const auto [day, isNew] =
            days.try_emplace(each.day, std::max<std::int64_t>(before, 0), std::max<std::int64_t>(-before, 0));
        (each.cashIsDebited ? day->second.first : day->second.second) += each.paise;
        lines.append(QStringList(
            {DateText(each.day), QString::number(each.tranId),
                each.cashIsDebited ? Rupees(each.paise) : QString("0"),
                each.cashIsDebited ? QString("0") : Rupees(each.paise), Rupees(before), side(before),
                Rupees(inHand), side(inHand), Rupees(std::max(day->second.first, day->second.second))})
                         .join(u'|'));
    }
    return lines;
}

}

TEST_F(LedgerTest, AQuarterOfRandomTransactionsAgreesWithASecondReckoningInPaise)
{
    std::mt19937 dice(20260415);
    std::vector<Posted> all;
    for (int i = 1; i <= 400; ++i) {
        const auto paise = static_cast<std::int64_t>(1 + dice() % 2000000);
        const Posted posted{QDate(2026, 3, 15).addDays(dice() % 60), i, dice() % 2 == 0, paise};
        all.push_back(posted);
        Post({.date = DateText(posted.day).toLatin1().constData(),
            .tranId = i,
            .debit = posted.cashIsDebited ? "raoK" : "rama",
            .credit = posted.cashIsDebited ? "rama" : "raoK",
            .amount = static_cast<double>(posted.paise) / 100});
    }
    Open(-1234.56, "D");
    PrintCash();
    const QStringList reckoned = Reckoned(all, 123456, QDate(2026, 4, 1), QDate(2026, 4, 30));
    EXPECT_GT(reckoned.size(), 100);
    EXPECT_EQ(Rows("select TranDate,TranId,DAmount,CAmount,OpeningBalance,OpeningDorC,ClosingBalance,"
                   "ClosingDorC,Total from LedgersMaster"),
        reckoned);
}

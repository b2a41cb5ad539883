// What was bought and sold in a range of days, by the accounts and as it was measured.

#include "tests/reports/BooksTest.h"

#include "platform/database/Sql.h"

#include <map>
#include <random>

namespace {

constexpr const char* ThreeDays = "10042026{ENTER}12042026{ENTER}%i";

class PurchaseSalesTest : public BooksTest {
protected:
    void PrintIn(const char* mode, const char* keys = ThreeDays)
    {
        Print<frmReportPurchaseSales>(mode, keys);
    }
    QStringList Days() { return Rows("select TranDate,DAmount,CAmount from LedgersMaster"); }
};

}

// By the accounts

TEST_F(PurchaseSalesTest, ADayWithNoTransactionIsPrintedWithNoughts)
{
    Post({.date = "10/04/2026", .type = "raoK ivaËI", .amount = 100.25});
    PrintIn("PS");
    EXPECT_EQ(Rows("select CompanyId,TranDate,CAmount,DAmount,FromDate,ToDate from LedgersMaster"),
        Lines({"1|10/04/2026|100.25|0|10/04/2026|12/04/2026", "1|11/04/2026|0|0|10/04/2026|12/04/2026",
            "1|12/04/2026|0|0|10/04/2026|12/04/2026"}));
    const QStringList texts = ReportTexts();
    EXPECT_TRUE(texts.contains("11/04/2026"));
    EXPECT_EQ(texts.count("0.00"), 10)
        << "two purchases, sales and differences, and the sums of the purchases";
}

TEST_F(PurchaseSalesTest, CashAndCreditAreSummedAndNoOtherKindOfTransaction)
{
    Post({.type = "raoK ivaËI", .amount = 1});
    Post({.type = "]Qaar ivaËI", .amount = 20});
    Post({.type = "raoK KrodI", .amount = 300});
    Post({.type = "]Qaar KrodI", .amount = 4000});
    for (const char* type : {"pomaonT", "irsaIT", "", "ivaËI"})
        Post({.type = type, .amount = 90000});
    PrintIn("PS", "10042026{ENTER}10042026{ENTER}%i");
    EXPECT_EQ(Days(), Lines({"10/04/2026|4300|21"}));
    EXPECT_EQ(Rows("select CompanyId,TranDate,TranType,Amount,TranId from TransactionsMasterTemp"),
        Lines({"1|10/04/2026|raoK ivaËI|1|NULL", "1|10/04/2026|]Qaar ivaËI|20|NULL",
            "1|10/04/2026|raoK KrodI|300|NULL", "1|10/04/2026|]Qaar KrodI|4000|NULL"}));
}

TEST_F(PurchaseSalesTest, OnlyTheDaysOfTheSelectedCompanyCount)
{
    for (const char* date : {"09/04/2026", "10/04/2026", "12/04/2026", "13/04/2026"}) {
        Post({.date = date, .type = "raoK ivaËI", .amount = 10});
        Post({.date = date, .type = "raoK KrodI", .amount = 7, .company = 2});
    }
    Run("insert into TransactionsMasterTemp(CompanyId,TranDate,TranType,Amount) "
        "values(1,'11/04/2026','raoK ivaËI',99)");
    Run("insert into LedgersMaster(CompanyId,DAmount) values(1,9)");
    PrintIn("PS");
    EXPECT_EQ(Days(), Lines({"10/04/2026|0|10", "11/04/2026|0|0", "12/04/2026|0|10"}));
    EXPECT_EQ(One("select count(*) from TransactionsMasterTemp"), "2");
}

TEST_F(PurchaseSalesTest, TheDatesOfTheOtherReportsStayAsTheyAre)
{
    Run("insert into ReportDates(CompanyId) values(77)");
    PrintIn("PS");
    EXPECT_EQ(Rows("select CompanyId from ReportDates"), Lines({"77"}));
    EXPECT_TRUE(ReportTexts().contains("10/04/2026 ते 12/04/2026"));
}

TEST_F(PurchaseSalesTest, AQuarterOfRandomTransactionsAgreesWithASecondReckoningInPaise)
{
    std::mt19937 dice(20260415);
    std::map<QDate, std::pair<std::int64_t, std::int64_t>> days; // bought and sold, in paise
    for (QDate day(2026, 4, 1); day <= QDate(2026, 6, 30); day = day.addDays(1))
        days[day] = {};
    const char* types[] = {"raoK KrodI", "]Qaar KrodI", "raoK ivaËI", "]Qaar ivaËI", "pomaonT"};
    for (int i = 1; i <= 300; ++i) {
        const QDate day = QDate(2026, 3, 20).addDays(dice() % 110);
        const std::size_t type = dice() % 5;
        const std::int64_t paise = 1 + dice() % 3000000;
        Post({.date = DateText(day).toLatin1().constData(),
            .tranId = i,
            .type = types[type],
            .amount = static_cast<double>(paise) / 100});
        if (const auto found = days.find(day); found != days.end() && type < 4)
            (type < 2 ? found->second.first : found->second.second) += paise;
    }
    PrintIn("PS", "01042026{ENTER}30062026{ENTER}%i");
    QStringList reckoned;
    std::int64_t bought = 0;
    std::int64_t sold = 0;
    for (const auto& [day, sums] : days) {
        bought += sums.first;
        sold += sums.second;
        reckoned.append(DateText(day) + u'|' + ShortestDecimal(static_cast<double>(sums.first) / 100) + u'|'
            + ShortestDecimal(static_cast<double>(sums.second) / 100));
    }
    EXPECT_EQ(Days(), reckoned);
    const QStringList texts = ReportTexts();
    for (const std::int64_t whole : {bought, sold, sold - bought})
        EXPECT_EQ(texts.count(Format(static_cast<double>(whole) / 100, u"######0.00")), 2)
            << "in the summary and below the list";
}

TEST_F(PurchaseSalesTest, DaysTheWrongWayRoundAreNone)
{
    PrintIn("PS", "12042026{ENTER}10042026{ENTER}%i");
    EXPECT_EQ(Days(), QStringList());
    EXPECT_TRUE(ReportTexts().contains("निवडलेल्या काळात एकही दिवस नाही."));
}

TEST_F(PurchaseSalesTest, RowsOfNoCompanyAreTidiedAway)
{
    gAppState.gCompanyId = 0;
    AddDelivery("10/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    AddSale("10/04/2026", "sakaL", 1, "ha^Tola", "gaaya", 5, 4, 8.5);
    for (const char* mode : {"PS", "MP", "MS"})
        PrintIn(mode);
    for (const char* table : {"LedgersMaster", "MilkCollectionsTemp", "MilkSalesTemp"})
        EXPECT_EQ(One("select count(*) from " + QString::fromLatin1(table)), "0") << table;
    EXPECT_EQ(TheWindow.Shown.size(), 3U);
}

// As it was measured

TEST_F(PurchaseSalesTest, TheDeliveriesOfTheDaysAreCopied)
{
    for (const char* date : {"09/04/2026", "10/04/2026", "12/04/2026", "13/04/2026"})
        AddDelivery(date, "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    Run("update MilkCollections set CompanyId=2 where CollectionDate=#04/12/2026#");
    AddDelivery("12/04/2026", "saMQyaakaL", 2, 1, "rama", "mhOsa", 2.5, 7, 45);
    AddSale("12/04/2026", "sakaL", 1, "ha^Tola", "gaaya", 5, 4, 8.5);
    Run("insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,77)");
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,77)");
    Run("insert into ReportDates(CompanyId) values(77)");
    PrintIn("MP");
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp"),
        Lines({"1|10/04/2026|sakaL|1|1|rama|gaaya|5|4|30|150|0|6.30|8.5",
            "1|12/04/2026|saMQyaakaL|2|1|rama|mhOsa|2.5|7|45|112.5|0|6.30|8.5"}));
    EXPECT_EQ(Rows("select SalesNo from MilkSalesTemp"), Lines({"77"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|10/04/2026|12/04/2026"}));
}

TEST_F(PurchaseSalesTest, TheSalesOfTheDaysAreCopied)
{
    for (const char* date : {"09/04/2026", "10/04/2026", "12/04/2026", "13/04/2026"})
        AddSale(date, "sakaL", 1, "ha^Tola", "gaaya", 5, 4, 8.5);
    Run("update MilkSales set CompanyId=2 where SalesDate=#04/12/2026#");
    AddDelivery("12/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    Run("insert into MilkCollectionsTemp(CompanyId,CollectionNo) values(1,77)");
    Run("insert into MilkSalesTemp(CompanyId,SalesNo) values(1,77)");
    PrintIn("MS");
    EXPECT_EQ(Rows("select * from MilkSalesTemp"),
        Lines({"1|10/04/2026|sakaL|raoK|1|1|ha^Tola|gaaya|5|4|40|200|0|8.5|0|0|0"}));
    EXPECT_EQ(Rows("select CollectionNo from MilkCollectionsTemp"), Lines({"77"}));
    EXPECT_EQ(Rows("select * from ReportDates"), Lines({"1|10/04/2026|12/04/2026"}));
}

TEST_F(PurchaseSalesTest, WithoutRowsAnEmptyListIsPrintedWithoutAMessage)
{
    for (const auto& [mode, sentence] : {std::pair("MP", "10/04/2026 ते 12/04/2026 या काळात दुधाची नोंद नाही."),
             {"MS", "10/04/2026 ते 12/04/2026 या काळात विक्रीची नोंद नाही."}}) {
        PrintIn(mode);
        EXPECT_TRUE(ReportTexts().contains(QString::fromUtf8(sentence))) << mode;
        EXPECT_FALSE(ReportTexts().contains("यादी")) << mode;
    }
    EXPECT_EQ(TheBox.Shown, QStringList());
}

TEST_F(PurchaseSalesTest, TwoRunsInARowGiveTheSame)
{
    Post({.type = "raoK ivaËI", .amount = 10});
    AddDelivery("10/04/2026", "sakaL", 1, 1, "rama", "gaaya", 5, 4, 30);
    AddSale("10/04/2026", "sakaL", 1, "ha^Tola", "gaaya", 5, 4, 8.5);
    for (const char* mode : {"PS", "MP", "MS"}) {
        PrintIn(mode);
        const QStringList texts = ReportTexts();
        PrintIn(mode);
        EXPECT_EQ(ReportTexts(), texts) << mode;
        EXPECT_LE(One("select count(*) from ReportDates").toInt(), 1);
    }
}

// The second reckoning of the summaries: in millilitres and paise, from the rows as they were made.
TEST_F(PurchaseSalesTest, TheSummariesOfRandomMilkStandBeforeTheListAndAgreeWithASecondReckoning)
{
    std::mt19937 dice(20260415);
    for (const char* mode : {"MP", "MS"}) {
        std::map<QString, std::pair<std::int64_t, std::int64_t>> sums; // by word, in millilitres and paise
        for (int i = 1; i <= 120; ++i) {
            const QDate day = QDate(2026, 4, 10).addDays(dice() % 3);
            const char* shift = dice() % 2 ? "sakaL" : "saMQyaakaL";
            const char* animal = dice() % 2 ? "gaaya" : "mhOsa";
            const std::int64_t halfLitres = 1 + dice() % 60; // an amount at 40 a litre is exact
            const double liters = static_cast<double>(halfLitres) / 2;
            const QByteArray date = DateText(day).toLatin1();
            if (QLatin1String(mode) == u"MP")
                AddDelivery(date.constData(), shift, i, 1, "rama", animal, liters, 4, 40);
            else
                AddSale(date.constData(), shift, i, "ha^Tola", animal, liters, 4, 8.5);
            for (const QString& word : {QString::fromLatin1(animal), DateText(day), QString()}) {
                sums[word].first += halfLitres * 500;
                sums[word].second += halfLitres * 2000;
            }
        }
        PrintIn(mode);
        const QStringList texts = ReportTexts();
        const qsizetype list = texts.indexOf("यादी");
        ASSERT_GT(list, 0) << mode;
        for (const auto& [word, sum] : sums) {
            const QString liters = Format(static_cast<double>(sum.first) / 1000, u"#####0.000");
            const QString rupees = Format(static_cast<double>(sum.second) / 100, u"######0.00");
            EXPECT_LT(texts.indexOf(liters), list) << mode << ' ' << word.toStdString();
            EXPECT_NE(texts.indexOf(liters), -1) << mode << ' ' << word.toStdString();
            EXPECT_LT(texts.indexOf(rupees), list) << mode << ' ' << word.toStdString();
            EXPECT_NE(texts.indexOf(rupees), -1) << mode << ' ' << word.toStdString();
        }
        EXPECT_NE(texts.lastIndexOf(Format(static_cast<double>(sums[QString()].second) / 100, u"0.00")), -1);
        EXPECT_GT(texts.lastIndexOf(Format(static_cast<double>(sums[QString()].second) / 100, u"0.00")), list)
            << "below the list, too";
    }
}

TEST_F(PurchaseSalesTest, AMissingTemplateEndsTheProgramWhenTheRowsAreStaged)
{
    RemoveTemplate("PurchaseSalesReport.rpt");
    gAppState.gReportMode = "PS";
    Type<frmReportPurchaseSales>(ThreeDays);
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Days().size(), 3);
}

TEST_F(PurchaseSalesTest, TheBarIsShownWhileTheTransactionsAreCopiedAndTheDaysSummed)
{
    for (int row = 1; row <= 3; ++row)
        Post({.tranId = row, .type = "raoK ivaËI", .amount = 1});
    std::unique_ptr<PaintedStaging> bar;
    InMode<frmReportPurchaseSales>("PS", [&](Clerk& clerk) {
        Type(clerk, "10042026{ENTER}14042026{ENTER}");
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

TEST_F(PurchaseSalesTest, KeysTypedWhileTheDaysAreStagedWaitForTheirEnd)
{
    InMode<frmReportPurchaseSales>("PS", [&](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}31122026{ENTER}");
        clerk.TypeAhead("%i{ESC}");
    });
    EXPECT_EQ(One("select count(*) from LedgersMaster"), "275");
    EXPECT_EQ(TheWindow.Shown.size(), 1U);
}

// The receipt of a sale, by the settings, from the staged row to the sheet.

#include "tests/sales/MilkSalesTest.h"

#include "platform/shell/AppFolder.h"
#include "tests/support/FakePrinter.h"
#include "tests/support/FakeReportWindow.h"

#include <QFile>

namespace {

class SaleReceiptTest : public MilkSalesTest {
protected:
    ~SaleReceiptTest() override
    {
        Window.Shown.clear();
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
    }

    void Wish(const char* status)
    {
        Run(QStringLiteral("update AutoSettings set MSRPrintStatus='%1'").arg(QString::fromUtf8(status)));
    }

    void PrintOnPaper()
    {
        ReportSurroundings::Current() = {
            &Window, &Printer, [](const QString& path) { return LocalPath(path); }};
        PrintForReal();
    }

    QStringList Staged() { return Rows("select * from MilkSalesReceipt"); }

    // The texts of the one page that was shown.
    QString ShownTexts()
    {
        EXPECT_EQ(Window.Shown.size(), 1U);
        Window.Shown.front()->Complete();
        EXPECT_EQ(Window.Shown.front()->PageCount(), 1U);
        QStringList texts;
        for (const PlacedItem& item : Window.Shown.front()->PageAt(0).items)
            texts.append(item.text);
        return texts.join(u'|');
    }

    FakeReportWindow Window;
    FakePrinter Printer;
};

TEST_F(SaleReceiptTest, SaveOnlyStagesNothing)
{
    Run("insert into MilkSalesReceipt(CompanyId,SalesNo) values(1,77)");
    InTheMorning([](Clerk& clerk) { Sell(clerk, "raoK", "1", "1.5", "4.2"); });
    EXPECT_TRUE(Printed.empty());
    EXPECT_EQ(One("select SalesNo from MilkSalesReceipt"), "77");
}

TEST_F(SaleReceiptTest, EachSaleIsStagedByItselfAndShownOrPrinted)
{
    Wish("saovh va sËIna");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Staged(), Rows("select * from MilkSales where SalesNo=1"));
        Wish("saovh va ip`MT");
        Sell(clerk, "saMGa", "2", "10", "7");
        EXPECT_EQ(Staged(), Rows("select * from MilkSales where SalesNo=2"));
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
    });
    EXPECT_FALSE(Failure);
    ASSERT_EQ(Printed.size(), 2U);
    EXPECT_EQ(Printed[0].fileName, "C:\\Tarvel01\\Vetrolan\\MilkSalesReceiptShenoli.rpt");
    EXPECT_EQ(Printed[0].destination, ReportDestination::Window);
    EXPECT_EQ(Printed[1].destination, ReportDestination::Printer);
    EXPECT_EQ(Printed[1].subject.toStdString(), "संघ म्हैस सकाळ 15-04-2026");
}

TEST_F(SaleReceiptTest, AChangeIsStagedAsItIsNow)
{
    Wish("saovh va ip`MT");
    InTheMorning([](Clerk& clerk) {
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        Type(clerk, "{UP}{ENTER}{ENTER}{ENTER}2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    EXPECT_EQ(Staged(), QStringList("1|15/04/2026|sakaL|raoK|1|0|raoK|gaaya|2|4.2|48|96|2|0|0|0|0"));
    EXPECT_EQ(Printed.size(), 2U);
}

TEST_F(SaleReceiptTest, AReceiptForTheScreenShowsTheSale)
{
    PrintOnPaper();
    Wish("saovh va sËIna");
    InTheMorning([](Clerk& clerk) { Sell(clerk, "saMGa", "2", "10.5", "7.1"); });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    const QString all = ShownTexts();
    EXPECT_EQ(Window.Titles(), QStringList("दूध विक्री पावती"));
    for (const char* part : {"15/04/2026", "10.500", "7.1", "58.00", "609.00", "ग्राहक प्रत", "संस्था प्रत"})
        EXPECT_TRUE(all.contains(part)) << part << ' ' << all.toStdString();
    EXPECT_TRUE(all.contains(Seen("saMGa")));
    EXPECT_FALSE(all.contains("आपले मोजमाप")) << "without one of its own";
}

TEST_F(SaleReceiptTest, TheSocietysOwnMeasureStandsOnItsHalf)
{
    PrintOnPaper();
    Wish("saovh va sËIna");
    InTheMorning([](Clerk& clerk) {
        Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}10{F9}10.5{ENTER}{ENTER}4.15{ENTER}33.4{ENTER}8.5{ENTER}");
        Type(clerk, "{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    const QString all = ShownTexts();
    for (const char* part : {"आपले मोजमाप", "10.500", "4.15", "8.50", "33.40", "350.70"})
        EXPECT_EQ(all.count(part), 1) << part << ' ' << all.toStdString();
}

TEST_F(SaleReceiptTest, ASnfOrAFatOfItsOwnIsAMeasureToo)
{
    PrintOnPaper();
    Wish("saovh va sËIna");
    for (const auto& [keys, figure] : {std::pair("{ENTER}{ENTER}{ENTER}{ENTER}8.5{ENTER}", "8.50"),
             {"{ENTER}{ENTER}4.15{ENTER}{ENTER}{ENTER}", "4.15"}}) {
        Window.Shown.clear();
        InTheMorning([keys = keys](Clerk& clerk) {
            Type(clerk, "{ENTER}saMGa{ENTER}1{ENTER}10{F9}10");
            Type(clerk, keys);
            Type(clerk, "{ENTER}4{ENTER}{ENTER}{ENTER}{ENTER}");
        });
        ASSERT_FALSE(Failure) << Failure->Text().toStdString();
        const QString all = ShownTexts();
        EXPECT_EQ(all.count("आपले मोजमाप"), 1) << keys;
        EXPECT_EQ(all.count(figure), 1) << all.toStdString();
    }
}

TEST_F(SaleReceiptTest, APrinterThatRefusesIsToldAndTheSaleIsInTheBooks)
{
    Printer.Answer.fault = "no paper";
    PrintOnPaper();
    Wish("saovh va ip`MT");
    InTheMorning([this](Clerk& clerk) {
        Sell(clerk, "raoK", "1", "1.5", "4.2");
        EXPECT_EQ(Window.Told, QStringList("no paper"));
        EXPECT_EQ(Focus(clerk), "txtSalesNo");
        EXPECT_EQ(Reads(clerk, "txtSalesNo"), "2");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Books().size(), 1);
}

TEST_F(SaleReceiptTest, AMissingTemplateIsAnErrorBehindTheSave)
{
    PrintOnPaper();
    ASSERT_TRUE(QFile::remove(FolderFile("MilkSalesReceiptShenoli.rpt")));
    Wish("saovh va sËIna");
    InTheMorning([](Clerk& clerk) { Sell(clerk, "raoK", "1", "1.5", "4.2"); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), RunTimeError::FileNotFound);
    EXPECT_EQ(Books().size(), 1);
}

}

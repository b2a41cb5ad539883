#include "platform/report/SystemPrinter.h"
#include "tests/platform/report/ReportTest.h"
#include "tests/support/FakePrinter.h"
#include "tests/support/FakeReportWindow.h"

#include <QFile>

namespace {

const QString Logon = "dsn=VetrolanDSN;pwd=secret";

class ReportControlTest : public ReportTest {
protected:
    ReportControlTest()
    {
        ReportSurroundings::Current() = {
            &Window, &ThePrinter, [this](const QString& path) { return File(path.section(u'\\', -1)); }};
        Write("List.rpt",
            "<report name=\"List\" paper=\"A4\"><source name=\"p\" table=\"MilkPayments\" "
            "order=\"MemberNo\"/>"
            "<table source=\"p\"><col>{MemberNo}</col></table></report>");
        Control.SetReportFileName("C:\\Tarvel01\\Vetrolan\\List.rpt");
        Control.SetLogon(Logon);
        for (const int member : {1, 2})
            Run(QStringLiteral("insert into MilkPayments(PaymentDate,MemberNo) values('0%1/04/2026',%1)")
                    .arg(member));
    }
    ~ReportControlTest() override
    {
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
    }

    // So many that they fill many pages.
    void AddManyPayments()
    {
        connection->RunScript("with recursive n(i) as (select 3 union all select i+1 from n where i<2000) "
                              "insert into MilkPayments(MemberNo) select i from n");
    }

    QString ErrorOfPrinting()
    {
        try {
            Control.Print();
        } catch (const RunTimeError& error) {
            return error.Text();
        }
        ADD_FAILURE() << "it was printed";
        return {};
    }

    QString ShownTexts(std::size_t report = 0)
    {
        Window.Shown.at(report)->Complete();
        return Texts(Window.Shown.at(report)->PageAt(0)).join(u' ');
    }

    FakeReportWindow Window;
    FakePrinter ThePrinter;
    ReportControl Control;
};

}

TEST_F(ReportControlTest, TheWindowGetsTheReportWithItsFirstPage)
{
    EXPECT_TRUE(Control.Print());
    ASSERT_EQ(Window.Shown.size(), 1U);
    EXPECT_EQ(Window.Shown[0]->PageCount(), 1U);
    EXPECT_EQ(ShownTexts(), "1 2");
    EXPECT_EQ(ThePrinter.Jobs.size(), 0U);
}

TEST_F(ReportControlTest, TheSelectionFormulaNarrowsIt)
{
    Control.SetSelectionFormula("{MilkPayments.PaymentDate} = DateTime (2026,4,2,00, 00, 00)");
    Control.Print();
    EXPECT_EQ(ShownTexts(), "2");
}

TEST_F(ReportControlTest, EachPrintShowsTheTablesOfItsMoment)
{
    AddManyPayments();
    Control.Print();
    EXPECT_FALSE(Window.Shown[0]->IsComplete());
    Run("delete * from MilkPayments");
    Run("insert into MilkPayments(MemberNo) values(77)");
    Control.Print();
    EXPECT_EQ(ShownTexts(1), "77");
    EXPECT_TRUE(Window.Shown[0]->IsComplete());
    EXPECT_EQ(Texts(Window.Shown[0]->PageAt(Window.Shown[0]->PageCount() - 1)).last(), "2000")
        << "the first report shows the rows of its own moment to the end";
}

TEST_F(ReportControlTest, ThePrinterGetsItAndTheWindowDoesnt)
{
    Control.SetDestination(ReportDestination::Printer);
    EXPECT_TRUE(Control.Print());
    EXPECT_EQ(ThePrinter.Jobs.size(), 1U);
    EXPECT_TRUE(Window.Shown.empty());
}

TEST_F(ReportControlTest, APrinterThatRefusesIsToldAndChangesNothing)
{
    ThePrinter.Answer = {"no paper"};
    Control.SetDestination(ReportDestination::Printer);
    EXPECT_FALSE(Control.Print());
    EXPECT_EQ(Window.Told, QStringList({"no paper"}));
}

TEST_F(ReportControlTest, AMissingTemplateIsAnErrorThatNamesIt)
{
    Control.SetReportFileName("C:\\Tarvel01\\Vetrolan\\Gone.rpt");
    EXPECT_TRUE(ErrorOfPrinting().contains("C:\\Tarvel01\\Vetrolan\\Gone.rpt"));
}

TEST_F(ReportControlTest, AFaultyTemplateIsAnErrorThatListsAllFaults)
{
    Write("List.rpt",
        "<report name=\"List\" paper=\"A4\">\n<source name=\"p\" table=\"MilkPayments\"/>\n"
        "<text>{Surname}</text>\n<text>{Town}</text><blink/></report>");
    const QString text = ErrorOfPrinting();
    qsizetype before = -1;
    for (const char16_t* fault : {u":3: there is no column \"Surname\" in MilkPayments",
             u":4: <blink> isn't known here", u":4: there is no column \"Town\" in MilkPayments"}) {
        const qsizetype at = text.indexOf(QString::fromUtf16(fault));
        EXPECT_GT(at, before) << text.toStdString();
        before = at;
    }
    Write("List.rpt", "<report");
    EXPECT_TRUE(ErrorOfPrinting().contains("no XML"));
}

TEST_F(ReportControlTest, AFormulaThatCantBeReadIsAnErrorThatShowsIt)
{
    Control.SetSelectionFormula("{MilkPayments.PaymentDate} == 5");
    EXPECT_TRUE(ErrorOfPrinting().contains("{MilkPayments.PaymentDate} == 5"));
}

TEST_F(ReportControlTest, AWrongPasswordIsAnErrorAndTheRightOnePrintsAfterwards)
{
    Control.SetLogon("dsn=VetrolanDSN;pwd=wrong");
    const QString error = ErrorOfPrinting();
    EXPECT_NE(error, QString());
    EXPECT_EQ(ErrorOfPrinting(), error) << "nothing of the first attempt is used";
    Control.SetLogon(Logon);
    EXPECT_TRUE(Control.Print());
    EXPECT_EQ(ShownTexts(), "1 2");
}

TEST_F(ReportControlTest, AReportReadsTheBooksThatWereOpenedInPreparingForIt)
{
    Control.Prepare();
    ASSERT_TRUE(QFile::rename(File("books.mdb"), File("moved.mdb")));
    EXPECT_TRUE(Control.Print());
    EXPECT_EQ(ShownTexts(), "1 2");
    ReportControl::CloseConnections();
    EXPECT_NE(ErrorOfPrinting(), QString()) << "without preparing they would have been missing";
}

TEST_F(ReportControlTest, PreparingAgainNeitherDisturbsAReportThatIsBeingReadNorPrintsAnything)
{
    AddManyPayments();
    Control.Print();
    Control.Prepare();
    Control.Prepare();
    EXPECT_FALSE(Window.Shown[0]->IsComplete());
    EXPECT_EQ(Window.Shown.size(), 1U);
    EXPECT_EQ(ThePrinter.Jobs.size(), 0U);
    EXPECT_TRUE(Control.Print());
    EXPECT_TRUE(ShownTexts(1).startsWith("1 2 3 4 "));
}

TEST_F(ReportControlTest, PreparingLeavesAWrongPasswordForThePrintingToTellAndTheBooksThatAreOpenAlone)
{
    Control.Prepare();
    Control.SetLogon("dsn=VetrolanDSN;pwd=wrong");
    EXPECT_NO_THROW(Control.Prepare());
    EXPECT_NE(ErrorOfPrinting(), QString());
    Control.SetLogon(Logon);
    EXPECT_TRUE(Control.Print());
    EXPECT_EQ(ShownTexts(), "1 2");
}

TEST_F(ReportControlTest, PreparingLeavesAMissingOrFaultyTemplateForThePrintingToTell)
{
    const QString missing = "C:\\Tarvel01\\Vetrolan\\Missing.rpt";
    const QString faulty = "C:\\Tarvel01\\Vetrolan\\Faulty.rpt";
    Write("Faulty.rpt", "<report name=\"Faulty\" paper=\"A9\"/>");
    for (const QString& file : {missing, faulty}) {
        Control.SetReportFileName(file);
        EXPECT_NO_THROW(Control.Prepare());
        EXPECT_NE(ErrorOfPrinting(), QString());
    }
    EXPECT_TRUE(Window.Shown.empty());
}

TEST_F(ReportControlTest, AfterClosingTheBooksCanBeReplacedAndAreOpenedAnew)
{
    Control.Print();
    ReportControl::CloseConnections();
    EXPECT_TRUE(Window.Shown[0]->IsComplete());
    Run("delete * from MilkPayments");
    Control.Print();
    EXPECT_EQ(ShownTexts(1), QString());
    EXPECT_EQ(ShownTexts(0), "1 2");
}

TEST(SystemPrinterTest, WithoutAPrintServiceThereIsAClearAnswer)
{
    qputenv("CUPS_SERVER", "/nonexistent/print.sock");
    const std::unique_ptr<Printer> printer = MakeSystemPrinter();
    EXPECT_EQ(printer->Names(), QStringList());
    const Outcome outcome = printer->Print({"/tmp/none.pdf", {}, {}, QSizeF(100, 100)});
    EXPECT_TRUE(outcome.fault.contains("There is no printer."));
    const Outcome named = printer->Print({"/tmp/none.pdf", {}, "lp", QSizeF(100, 100)});
    EXPECT_TRUE(named.fault.contains("lp"));
    qunsetenv("CUPS_SERVER");
}

#include "ReportTest.h"

#include "ReportControl.h"

#include <QFile>

namespace {

class FakeWindow final : public ReportWindow {
public:
    void Show(std::shared_ptr<Report> report) override { Shown.push_back(std::move(report)); }
    void Tell(const QString& sentence) override { Told.append(sentence); }

    std::vector<std::shared_ptr<Report>> Shown;
    QStringList Told;
};

class FakePrinter final : public Printer {
public:
    QStringList Names() override { return {}; }
    Outcome Print(const PrintJob&) override
    {
        ++Jobs;
        return Answer;
    }

    int Jobs = 0;
    Outcome Answer;
};

class ReportControlTest : public ReportTest {
protected:
    ReportControlTest()
    {
        ReportSurroundings::Current() = {
            &Window, &ThePrinter, [this](const QString& path) { return File(path.section(u'\\', -1)); }};
        Write(QStringLiteral("List.rpt"),
            QStringLiteral("<report name=\"List\" paper=\"A4\"><source name=\"p\" table=\"MilkPayments\" "
                           "order=\"MemberNo\"/>"
                           "<table source=\"p\"><col>{MemberNo}</col></table></report>"));
        Control.SetReportFileName(QStringLiteral("C:\\Tarvel01\\Vetrolan\\List.rpt"));
        Control.SetLogon(QStringLiteral("dsn=VetrolanDSN;pwd=secret"));
        for (const int member : {1, 2})
            Run(QStringLiteral("insert into MilkPayments(PaymentDate,MemberNo) values('0%1/04/2026',%1)")
                    .arg(member));
    }
    ~ReportControlTest() override
    {
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
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

    FakeWindow Window;
    FakePrinter ThePrinter;
    ReportControl Control;
};

}

TEST_F(ReportControlTest, TheWindowGetsTheReportWithItsFirstPage)
{
    EXPECT_TRUE(Control.Print());
    ASSERT_EQ(Window.Shown.size(), 1U);
    EXPECT_EQ(Window.Shown[0]->PageCount(), 1U);
    EXPECT_EQ(ShownTexts(), QStringLiteral("1 2"));
    EXPECT_EQ(ThePrinter.Jobs, 0);
}

TEST_F(ReportControlTest, TheSelectionFormulaNarrowsIt)
{
    Control.SetSelectionFormula(
        QStringLiteral("{MilkPayments.PaymentDate} = DateTime (2026,4,2,00, 00, 00)"));
    Control.Print();
    EXPECT_EQ(ShownTexts(), QStringLiteral("2"));
}

TEST_F(ReportControlTest, EachPrintShowsTheTablesOfItsMoment)
{
    connection->RunScript(
        QStringLiteral("with recursive n(i) as (select 3 union all select i+1 from n where i<2000) "
                       "insert into MilkPayments(MemberNo) select i from n"));
    Control.Print();
    EXPECT_FALSE(Window.Shown[0]->IsComplete());
    Run(QStringLiteral("delete * from MilkPayments"));
    Run(QStringLiteral("insert into MilkPayments(MemberNo) values(77)"));
    Control.Print();
    EXPECT_EQ(ShownTexts(1), QStringLiteral("77"));
    EXPECT_TRUE(Window.Shown[0]->IsComplete());
    EXPECT_EQ(Texts(Window.Shown[0]->PageAt(Window.Shown[0]->PageCount() - 1)).last(), QStringLiteral("2000"))
        << "the first report shows the rows of its own moment to the end";
}

TEST_F(ReportControlTest, ThePrinterGetsItAndTheWindowDoesnt)
{
    Control.SetDestination(ReportDestination::Printer);
    EXPECT_TRUE(Control.Print());
    EXPECT_EQ(ThePrinter.Jobs, 1);
    EXPECT_TRUE(Window.Shown.empty());
}

TEST_F(ReportControlTest, APrinterThatRefusesIsToldAndChangesNothing)
{
    ThePrinter.Answer = {QStringLiteral("no paper")};
    Control.SetDestination(ReportDestination::Printer);
    EXPECT_FALSE(Control.Print());
    EXPECT_EQ(Window.Told, QStringList({QStringLiteral("no paper")}));
}

TEST_F(ReportControlTest, AMissingTemplateIsAnErrorThatNamesIt)
{
    Control.SetReportFileName(QStringLiteral("C:\\Tarvel01\\Vetrolan\\Gone.rpt"));
    EXPECT_TRUE(ErrorOfPrinting().contains(QStringLiteral("C:\\Tarvel01\\Vetrolan\\Gone.rpt")));
}

TEST_F(ReportControlTest, AFaultyTemplateIsAnErrorThatListsAllFaults)
{
    Write(QStringLiteral("List.rpt"),
        QStringLiteral("<report name=\"L\" paper=\"A4\">\n<source name=\"p\" table=\"MilkPayments\"/>\n"
                       "<text>{Surname}</text>\n<text>{Town}</text><blink/></report>"));
    const QString text = ErrorOfPrinting();
    for (const char16_t* fault : {u":3: there is no column \"Surname\" in MilkPayments",
             u":4: there is no column \"Town\" in MilkPayments", u":4: <blink> isn't known here"})
        EXPECT_TRUE(text.contains(QString::fromUtf16(fault))) << text.toStdString();
    Write(QStringLiteral("List.rpt"), QStringLiteral("<report"));
    EXPECT_TRUE(ErrorOfPrinting().contains(QStringLiteral("no XML")));
}

TEST_F(ReportControlTest, AFormulaThatCantBeReadIsAnErrorThatShowsIt)
{
    Control.SetSelectionFormula(QStringLiteral("{MilkPayments.PaymentDate} == 5"));
    EXPECT_TRUE(ErrorOfPrinting().contains(QStringLiteral("{MilkPayments.PaymentDate} == 5")));
}

TEST_F(ReportControlTest, AWrongPasswordIsAnError)
{
    Control.SetLogon(QStringLiteral("dsn=VetrolanDSN;pwd=wrong"));
    EXPECT_NE(ErrorOfPrinting(), QString());
}

TEST_F(ReportControlTest, AfterClosingTheBooksCanBeReplacedAndAreOpenedAnew)
{
    Control.Print();
    ReportControl::CloseConnections();
    EXPECT_TRUE(Window.Shown[0]->IsComplete());
    Run(QStringLiteral("delete * from MilkPayments"));
    Control.Print();
    EXPECT_EQ(ShownTexts(1), QString());
    EXPECT_EQ(ShownTexts(0), QStringLiteral("1 2"));
}

TEST(SystemPrinter, WithoutAPrintServiceThereIsAClearAnswer)
{
    qputenv("CUPS_SERVER", "/nonexistent/print.sock");
    const std::unique_ptr<Printer> printer = MakeSystemPrinter();
    EXPECT_EQ(printer->Names(), QStringList());
    const Outcome outcome = printer->Print({QStringLiteral("/tmp/none.pdf"), {}, {}, QSizeF(100, 100)});
    EXPECT_TRUE(outcome.fault.contains(QStringLiteral("There is no printer.")));
    const Outcome named =
        printer->Print({QStringLiteral("/tmp/none.pdf"), {}, QStringLiteral("lp"), QSizeF(100, 100)});
    EXPECT_TRUE(named.fault.contains(QStringLiteral("lp")));
    qunsetenv("CUPS_SERVER");
}

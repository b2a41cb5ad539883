#include "tests/support/SocietyTest.h"

#include "core/preview/TemplateReport.h"

namespace {

class TemplateReportTest : public SocietyTest {
protected:
    TemplateReportTest()
    {
        TemplateReport::Engine() = [this](const TemplateReport::Run& run) { Printed.push_back(run); };
    }
    ~TemplateReportTest() override { TemplateReport::Engine() = m_engine; }

    std::vector<TemplateReport::Run> Printed;

private:
    const std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
};

}

TEST_F(TemplateReportTest, ItIsToldTheTemplateOfAppFolderTheBooksAndWhatTheScreenWants)
{
    TemplateReport report(u"BankMilkPayment.rpt");
    report.SetSubject("15-04-2026");
    report.SetSelectionFormula("{MilkPayments.PaymentDate} = DateTime (2026,4,15,00, 00, 00)");
    report.Print();
    report.SetDestination(ReportDestination::Printer);
    report.SetTemplate(u"CashMilkPayment.rpt");
    report.Print();

    ASSERT_EQ(Printed.size(), 2);
    EXPECT_EQ(Printed[0].fileName.toStdString(), "C:\\Tarvel01\\Vetrolan\\BankMilkPayment.rpt");
    EXPECT_EQ(Printed[0].logon, Logon());
    EXPECT_EQ(Printed[0].destination, ReportDestination::Window);
    EXPECT_EQ(Printed[1].fileName.toStdString(), "C:\\Tarvel01\\Vetrolan\\CashMilkPayment.rpt");
    EXPECT_EQ(Printed[1].destination, ReportDestination::Printer);
    for (const TemplateReport::Run& run : Printed) {
        EXPECT_EQ(run.subject.toStdString(), "15-04-2026") << "what is set stays";
        EXPECT_EQ(run.formula.toStdString(), "{MilkPayments.PaymentDate} = DateTime (2026,4,15,00, 00, 00)");
    }
}

TEST_F(TemplateReportTest, WithoutATemplateTheClerkIsToldAndNothingIsPrinted)
{
    TemplateReport().Print();
    EXPECT_TRUE(Printed.empty());
    EXPECT_EQ(TheBox.Shown, QStringList("निवडलेल्या पावती प्रकाराचा नमुना येथे नाही."));
}

TEST_F(TemplateReportTest, TheRecordsOfAReportAreCountedBeforeItsRun)
{
    for (int number : {1, 2, 3})
        AddMember(number, "rama");
    EXPECT_EQ(TemplateReport().CountRecords("select * from MembersMaster"), 3);
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(TemplateReportTest, NoRecordsAreToldUnderTheTitleOfTheReportAndNothingIsPrinted)
{
    TemplateReport report(u"MilkSalesComparisonReport.rpt");
    report.SetTitle("Comparison Statement");
    EXPECT_EQ(report.CountRecords("select * from MilkSales"), 0);
    EXPECT_EQ(TheBox.Shown, QStringList("No Records in the Given Crieteria"));
    EXPECT_EQ(TheBox.Titles, QStringList("Comparison Statement"));
    EXPECT_TRUE(Printed.empty());
}

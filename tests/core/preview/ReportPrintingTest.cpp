#include "core/start/Program.h"
#include "tests/core/ScreenFace.h"
#include "tests/core/preview/ReportPreviewTest.h"

#include <QFile>

namespace {

const QString Refusal = "प्रिंटरने काम घेतले नाही.";

class ReportPrintingTest : public ReportPreviewTest {
protected:
    ReportPrintingTest()
    {
        AddDeliveries(3, [](int) { return "अशोक शिंदे"; });
        WriteTableTemplate();
    }

    // Runs the program, prints with a control while one of its screens stands, and returns the one box that
    // ends it.
    QString EndOfProgram(const ReportControl& control)
    {
        m_handover.reset();
        gCn.Close();
        int exitCode = -1;
        TheBox.Shown.clear();
        Failure = TheClerk.Play([&] { exitCode = RunProgram(); },
            [&](Clerk& clerk) {
                clerk.Do([&] { ReportControl(control).Print(); });
                EXPECT_EQ(OnTop(clerk), "");
            });
        EXPECT_EQ(exitCode, 1);
        return TheBox.Shown.size() == 1 ? TheBox.Shown.first()
                                        : QStringLiteral("%1 boxes").arg(TheBox.Shown.size());
    }
};

}

TEST_F(ReportPrintingTest, TheReportGoesToTheOnlyPrinterWithoutAQuestion)
{
    Show([this](Clerk& clerk) {
        Type(clerk, "^p");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(State(clerk), "छपाईला पाठवले: Office");
        ASSERT_EQ(m_printer->Jobs.size(), 1U);
        EXPECT_EQ(m_printer->Jobs.front().title, "Deliveries");
        EXPECT_EQ(m_printer->Jobs.front().printer, "Office");
        EXPECT_TRUE(m_printer->Printed.first().contains("अशोक शिंदे"));
    });
    EXPECT_TRUE(TheBox.Shown.isEmpty());
}

TEST_F(ReportPrintingTest, OneOfSeveralPrintersIsChosen)
{
    m_printer->There = {"Office", "Roll"};
    Show([this](Clerk& clerk) {
        Type(clerk, "^p");
        EXPECT_EQ(OnTop(clerk), "frmReportPrinter");
        EXPECT_EQ(Reads(clerk, "lstPrinters"), "Office");
        Type(clerk, "{DOWN}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        ASSERT_EQ(m_printer->Jobs.size(), 1U);
        EXPECT_EQ(m_printer->Jobs.front().printer, "Roll");
    });
}

TEST_F(ReportPrintingTest, EscAmongThePrintersPrintsNothing)
{
    m_printer->There = {"Office", "Roll"};
    Show([this](Clerk& clerk) {
        Type(clerk, "^p{ESC}");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_TRUE(m_printer->Jobs.empty());
    });
}

TEST_F(ReportPrintingTest, ARefusalIsAPlainMessageAndNothingOfTheBooksIsLost)
{
    m_printer->Answer = {Refusal};
    const QStringList before = Rows("select * from MilkCollectionsTemp");
    Show([](Clerk& clerk) {
        Type(clerk, "^p");
        EXPECT_EQ(OnTop(clerk), "frmReportPreview");
        EXPECT_EQ(State(clerk), QString());
    });
    EXPECT_EQ(TheBox.Shown, QStringList(Refusal));
    EXPECT_EQ(Rows("select * from MilkCollectionsTemp"), before);
}

TEST_F(ReportPrintingTest, WithoutAPrinterTheRefusalIsToldToo)
{
    m_printer->There.clear();
    m_printer->Answer = {Refusal};
    Show([](Clerk& clerk) { Type(clerk, "^p"); });
    EXPECT_EQ(TheBox.Shown, QStringList(Refusal));
}

TEST_F(ReportPrintingTest, WhatIsPrintedLiesWithTheBooksAndIsSweptAtTheNextStart)
{
    Show([](Clerk& clerk) { Type(clerk, "^p"); });
    ASSERT_EQ(m_printer->Jobs.size(), 1U);
    const QString printed = m_printer->Jobs.front().file;
    EXPECT_EQ(QFileInfo(printed).absoluteFilePath(), FolderFile(QFileInfo(printed).fileName()));
    EXPECT_TRUE(QFile(printed).open(QIODevice::WriteOnly)) << "as if the program had been killed";
    m_handover.reset();
    m_handover.emplace(std::make_unique<FakePrinter>());
    EXPECT_FALSE(QFile::exists(printed));
    EXPECT_TRUE(QFile::exists(FolderFile("Morvelta.mdb")));
}

TEST_F(ReportPrintingTest, APrintWithoutThePreviewTellsTheRefusalAndGoesOn)
{
    m_printer->Answer = {Refusal};
    ReportControl control = Control();
    control.SetDestination(ReportDestination::Printer);
    EXPECT_FALSE(control.Print());
    EXPECT_EQ(TheBox.Shown, QStringList(Refusal));
    m_printer->Answer = {};
    EXPECT_TRUE(control.Print());
    EXPECT_EQ(m_printer->Printed.size(), 2);
}

TEST_F(ReportPrintingTest, ATemplatesFaultsAreAllShownInTheBoxThatEndsTheProgram)
{
    WriteTemplate("<report name=\"Deliveries\" paper=\"A4\">\n"
                  "<source name=\"c\" table=\"MilkCollectionsTemp\"/>\n"
                  "<banner/>\n"
                  "<table source=\"c\">\n"
                  "<col>{Colour}</col>\n"
                  "<col w=\"900\">{MemberName}</col>\n"
                  "</table></report>");
    const QString box = EndOfProgram(Control());
    for (const char* piece :
        {"Deliveries.rpt:3:", "banner", "Deliveries.rpt:5:", "Colour", "Deliveries.rpt:4:", "904"})
        EXPECT_TRUE(box.contains(QLatin1String(piece))) << piece << " in " << qPrintable(box);
}

TEST_F(ReportPrintingTest, AMissingTemplateIsNamedInTheBoxThatEndsTheProgram)
{
    ASSERT_TRUE(QFile::remove(FolderFile("Deliveries.rpt")));
    EXPECT_TRUE(EndOfProgram(Control()).contains("Deliveries.rpt"));
}

TEST_F(ReportPrintingTest, AFormulaThatCantBeReadIsShownInTheBoxThatEndsTheProgram)
{
    ReportControl control = Control();
    const QString formula = "{MilkCollectionsTemp.CollectionNo} near 5";
    control.SetSelectionFormula(formula);
    EXPECT_TRUE(EndOfProgram(control).contains(formula));
}

TEST_F(ReportPrintingTest, ASelectionFormulaNarrowsWhatIsShown)
{
    ReportControl control = Control();
    control.SetSelectionFormula("{MilkCollectionsTemp.CollectionNo} = 2");
    control.SetDestination(ReportDestination::Printer);
    ASSERT_TRUE(control.Print());
    EXPECT_TRUE(m_printer->Printed.first().contains("1.00"));
    EXPECT_FALSE(m_printer->Printed.first().contains("1.50"));
}

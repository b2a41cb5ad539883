#include "tests/collection/EachCounterTest.h"

#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "tests/support/FakePrinter.h"
#include "tests/support/FakeReportWindow.h"

namespace {

// The slip as each counter hands it to the reports, and what becomes of a counter whose printer refuses.
class SlipTest : public EachCounterTest {
protected:
    SlipTest() { Set("PrintStatus", "haoya"); }
    ~SlipTest() override
    {
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
    }

    void PrintOn(FakePrinter& printer)
    {
        ReportSurroundings::Current() = {
            &Window, &printer, [](const QString& path) { return LocalPath(path); }};
        PrintForReal();
    }

    void ChooseLayout(const QString& type) { Run(Sql(u"update AutoSettings set ReceiptType='", type, u"'")); }

    FakeReportWindow Window;
};

INSTANTIATE_TEST_SUITE_P(AtEach, SlipTest, Counters(), CounterName);

TEST_P(SlipTest, EachOfTheEightTypesHasItsTemplate)
{
    const QStringList templates = Of({"MilkReceipt1.rpt", "MilkReceipt2.rpt", "MilkReceiptBhl.rpt",
        "MilkReceiptGhlp.rpt", "MilkReceiptAtk.rpt", "MilkReceiptShenoli Epson LX 300.rpt",
        "MilkReceiptNerli With Time.rpt", "MilkReceiptNerli Minimised With Time XP.rpt"});
    InTheShift([&](Clerk& clerk) {
        for (int type = 1; type <= 8; ++type) {
            ChooseLayout(QString(u'T') + QChar(0x61) + QChar(0x161) + u'p' + u' ' + QString::number(type));
            AddMember(100 + type, Sql(u"saBaasad", type), "gaaya");
            Deliver(clerk, 100 + type, "2", "4.5");
        }
    });
    EXPECT_EQ(Error(), "");
    ASSERT_EQ(Printed.size(), 8U);
    for (std::size_t at = 0; at < Printed.size(); ++at)
        EXPECT_EQ(Printed[at].fileName, "C:\\Tarvel01\\Vetrolan\\" + templates[static_cast<qsizetype>(at)]);
}

TEST_P(SlipTest, AFirstSlipOfAnUnknownTypeIsToldAndTheCounterGoesOn)
{
    ChooseLayout("9");
    InTheShift([this](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(TheBox.Shown, QStringList("निवडलेल्या पावती प्रकाराचा नमुना येथे नाही."));
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        Deliver(clerk, 2, "2", "8");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_TRUE(Printed.empty());
    EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70", "2|2|saIta|mhOsa|2|8|49|98"}));
}

TEST_P(SlipTest, APrinterThatRefusesIsToldAndTheCounterGoesOn)
{
    FakePrinter printer;
    printer.Answer.fault = "no paper";
    PrintOn(printer);
    InTheShift([&](Clerk& clerk) {
        Deliver(clerk, 1, "2", "4.5");
        EXPECT_EQ(printer.Jobs.size(), 1U);
        EXPECT_EQ(Window.Told, Of({"no paper"}));
        EXPECT_EQ(Books(), Of({"1|1|rama|gaaya|2|4.5|35|70"}));
        EXPECT_EQ(Copy(), Books());
        EXPECT_EQ(Focus(clerk), "txtCollectionNo");
        EXPECT_EQ(Reads(clerk, "txtCollectionNo"), "2");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "");
        printer.Answer = {};
        Deliver(clerk, 2, "2", "8");
    });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(printer.Jobs.size(), 2U);
    EXPECT_EQ(Window.Told.size(), 1) << "the next slip is printed";
    EXPECT_EQ(Books().last().toStdString(), "2|2|saIta|mhOsa|2|8|49|98");
}

TEST_P(SlipTest, ASlipForTheScreenOpensTheReport)
{
    FakePrinter printer;
    PrintOn(printer);
    Run(QString::fromUtf8("update AutoSettings set PrintStatus='f@t sËIna'"));
    InTheShift([](Clerk& clerk) { Deliver(clerk, 1, "2", "4.5"); });
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(printer.Jobs.size(), 0U);
    ASSERT_EQ(Window.Shown.size(), 1U);
    Window.Shown.front()->Complete();
    QStringList texts;
    for (const PlacedItem& item : Window.Shown.front()->PageAt(0).items)
        texts.append(item.text);
    EXPECT_TRUE(texts.join(u' ').contains(Seen("rama"))) << texts.join(u'|').toStdString();
    EXPECT_TRUE(texts.contains("70.00")) << texts.join(u'|').toStdString();
    Window.Shown.clear();
}

}

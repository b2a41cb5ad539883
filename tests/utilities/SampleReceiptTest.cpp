#include "tests/utilities/AutoSettingsTest.h"

#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "tests/support/FakeReportWindow.h"

#include <QFile>

namespace {

// The folder holds a plain template under each name, which a report carries as its own name.
class SampleReceiptTest : public AutoSettingsTest {
protected:
    SampleReceiptTest()
    {
        ReportSurroundings::Current() = {
            &Window, nullptr, [](const QString& path) { return LocalPath(path); }};
    }
    ~SampleReceiptTest() override
    {
        Window.Shown.clear();
        ReportControl::CloseConnections();
        ReportSurroundings::Current() = {};
    }

    void AddTemplate(const QString& name)
    {
        QFile file(FolderFile(name + ".rpt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral(
            "<report name=\"%1\" paper=\"A4\">\n<source name=\"r\" table=\"MilkReceipt\"/>\n"
            "<table source=\"r\"><col w=\"*\" head=\"No\">{MemberNo}</col></table>\n</report>\n")
                       .arg(name)
                       .toUtf8());
    }

    // Presses the button of the sample.
    static void PrintSample(Clerk& clerk)
    {
        GoTo(clerk, "cmdReceipt");
        clerk.Type("{ENTER}");
    }

    FakeReportWindow Window;
};

// The names that differ from those of the counters are those of 6 and 8.
const char* const Samples[] = {"MilkReceipt1", "MilkReceipt2", "MilkReceiptBhl", "MilkReceiptGhlp",
    "MilkReceiptAtk", "MilkReceiptShenoli", "MilkReceiptNerli With Time",
    "MilkReceiptNerli Minimised With Time"};

}

TEST_F(SampleReceiptTest, EachLayoutHasItsTemplate)
{
    for (const char* name : Samples)
        AddTemplate(Q(name));
    Settings([&](Clerk& clerk) {
        for (int layout = 0; layout < 8; ++layout) {
            GoTo(clerk, "ComboReceipt");
            clerk.Press("ComboReceipt");
            PickFromList(clerk, layout);
            clerk.Press("cmdReceipt");
            EXPECT_EQ(Window.Titles(), QStringList(Q(Samples[layout]))) << "layout " << layout + 1;
            Window.Shown.clear();
        }
    });
}

TEST_F(SampleReceiptTest, StagesTheRowOfTheSampleBillInPlaceOfTheLastSlip)
{
    AddTemplate("MilkReceipt1");
    Run("insert into MilkReceipt(CompanyId,MemberNo,MemberName) values(1,77,'rama')");
    const QString columns = "CollectionTime,CollectionNo,MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount,"
                            "ActualCollectionTime";
    Settings([&](Clerk& clerk) {
        PrintSample(clerk);
        EXPECT_EQ(Rows(Sql(u"select ", columns, u" from MilkReceipt")),
            Rows(Sql(u"select ", columns, u" from MRView")));
        EXPECT_EQ(Rows("select count(*),min(CompanyId) from MilkReceipt"), QStringList("1|1"));
        PrintSample(clerk);
        EXPECT_EQ(One("select count(*) from MilkReceipt"), "1") << "a second sample takes its place";
    });
    EXPECT_EQ(Window.Shown.size(), 2U);
}

TEST_F(SampleReceiptTest, TheRowsTakeTheCompanyOfTheScreen)
{
    AddTemplate("MilkReceipt1");
    gAppState.gCompanyId = 4;
    Given("CompanyId=4");
    Settings([&](Clerk& clerk) { PrintSample(clerk); });
    EXPECT_EQ(Rows("select CompanyId from MilkReceipt"), QStringList("4"));
}

TEST_F(SampleReceiptTest, WithoutACompanyTheSampleIsTidiedAwayBeforeItIsShown)
{
    AddTemplate("MilkReceipt1");
    gAppState.gCompanyId = 0;
    Given("CompanyId=0");
    Settings([&](Clerk& clerk) { PrintSample(clerk); });
    EXPECT_EQ(Window.Shown.size(), 1U);
    EXPECT_EQ(One("select count(*) from MilkReceipt"), "0");
}

TEST_F(SampleReceiptTest, TheReportReadsWhatIsStaged)
{
    AddTemplate("MilkReceipt1");
    Settings([&](Clerk& clerk) { PrintSample(clerk); });
    ASSERT_EQ(Window.Shown.size(), 1U);
    Report& report = *Window.Shown.front();
    report.Complete();
    QStringList texts;
    for (const PlacedItem& item : report.PageAt(0).items)
        texts.append(item.text);
    EXPECT_TRUE(texts.contains(One("select MemberNo from MRView"))) << texts.join(u'|').toStdString();
}

TEST_F(SampleReceiptTest, IsMadeFromTheFieldAndSavesNothing)
{
    AddTemplate("MilkReceiptBhl");
    const QStringList before = Rows("select * from AutoSettings");
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "ComboReceipt");
        clerk.Type("3");
        clerk.Press("cmdReceipt");
    });
    EXPECT_EQ(Window.Titles(), QStringList("MilkReceiptBhl"));
    EXPECT_EQ(Rows("select * from AutoSettings"), before);
}

TEST_F(SampleReceiptTest, WithoutALayoutTheTemplateBeforeIsTakenAgain)
{
    AddTemplate("MilkReceipt1");
    Settings([&](Clerk& clerk) {
        PrintSample(clerk);
        Put(clerk, "ComboReceipt", "");
        clerk.Type("{ENTER}");
    });
    EXPECT_EQ(Window.Titles(), QStringList({"MilkReceipt1", "MilkReceipt1"}));
}

TEST_F(SampleReceiptTest, BeforeALayoutWasEverChosenTheClerkIsTold)
{
    Given("ReceiptType=''");
    Settings([&](Clerk& clerk) {
        PrintSample(clerk);
        EXPECT_EQ(TheBox.Shown, QStringList("निवडलेल्या पावती प्रकाराचा नमुना येथे नाही."));
        EXPECT_EQ(clerk.ScreenName(), "frmAutoSettings");
    });
    EXPECT_EQ(Window.Titles(), QStringList());
    EXPECT_EQ(One("select count(*) from MilkReceipt"), "1");
}

TEST_F(SampleReceiptTest, AMissingTemplateEndsTheProgramWithTheRowStaged)
{
    QFile::remove(FolderFile("MilkReceipt1.rpt"));
    On<frmAutoSettings>([&](Clerk& clerk) { PrintSample(clerk); });
    ASSERT_TRUE(Failure);
    EXPECT_EQ(Failure->Number(), int(RunTimeError::FileNotFound));
    EXPECT_EQ(One("select count(*) from MilkReceipt"), "1");
    EXPECT_EQ(Window.Titles(), QStringList());
}

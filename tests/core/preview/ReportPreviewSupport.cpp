#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Shivaji01.h"
#include "tests/core/ScreenFace.h"
#include "tests/core/preview/ReportPreviewTest.h"

#include <QFile>

ReportPreviewTest::ReportPreviewTest()
{
    auto printer = std::make_unique<FakePrinter>();
    m_printer = printer.get();
    m_handover.emplace(std::move(printer));
}

void ReportPreviewTest::AddDeliveries(int count, const std::function<QString(int)>& name)
{
    Transaction all(gCn);
    for (int number = 1; number <= count; ++number)
        Run(Sql(u"insert into MilkCollectionsTemp(CompanyId,CollectionDate,CollectionNo,MemberNo,MemberName,"
                u"Liters) values(1,'05/04/2026',",
            number, u",", number, u",'", Shivaji01::FromUnicode(name(number)), u"',", number / 2.0, u")"));
    all.Commit();
}

void ReportPreviewTest::WriteTemplate(const QString& text)
{
    QFile file(FolderFile("Deliveries.rpt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

void ReportPreviewTest::WritePagesTemplate()
{
    WriteTemplate("<report name=\"Deliveries\" paper=\"A4\" font=\"Noto Sans Devanagari 12\">\n"
                  "<source name=\"c\" table=\"MilkCollectionsTemp\" order=\"CollectionNo\"/>\n"
                  "<pageheader><text bold=\"1\" size=\"16\" align=\"center\">{$society}</text></pageheader>\n"
                  "<pagefooter><text align=\"right\">पान {#page} पैकी {#pages}</text></pagefooter>\n"
                  "<each source=\"c\" newpage=\"1\"><text>{MemberName}</text>"
                  "<text>{CollectionDate}</text><text>{Liters|0.00}</text></each>\n"
                  "</report>");
}

void ReportPreviewTest::WriteTableTemplate()
{
    WriteTemplate(
        "<report name=\"Deliveries\" paper=\"A4\" margin=\"12\" font=\"Noto Sans Devanagari 9\">\n"
        "<source name=\"c\" table=\"MilkCollectionsTemp\" order=\"CollectionNo\"/>\n"
        "<pageheader><text bold=\"1\" size=\"16\" align=\"center\">{$society}</text>"
        "<text align=\"right\">पान {#page} / {#pages}</text><rule/></pageheader>\n"
        "<table source=\"c\" lines=\"1\"><col w=\"16\" head=\"क्र.\" align=\"right\">{CollectionNo}</col>"
        "<col w=\"*\" head=\"नाव\">{MemberName}</col>"
        "<col w=\"30\" head=\"दिनांक\">{CollectionDate}</col>"
        "<col w=\"30\" head=\"लिटर्स\" align=\"right\" total=\"sum\">{Liters|0.00}</col>"
        "<total label=\"एकूण\"/></table>\n"
        "</report>");
}

ReportControl ReportPreviewTest::Control() const
{
    ReportControl control;
    control.SetReportFileName("C:\\Tarvel01\\Vetrolan\\Deliveries.rpt");
    control.SetLogon(Logon());
    return control;
}

void ReportPreviewTest::Show(const std::function<void(Clerk&)>& script)
{
    Failure = TheClerk.Play([this] { Control().Print(); }, script);
    EXPECT_FALSE(Failure) << qPrintable(Failure ? Failure->Text() : QString());
}

QString ReportPreviewTest::Pages(Clerk& clerk)
{
    return LabelOf(clerk, "lblPages");
}

QString ReportPreviewTest::Zoom(Clerk& clerk)
{
    return LabelOf(clerk, "lblZoom");
}

QString ReportPreviewTest::State(Clerk& clerk)
{
    return LabelOf(clerk, "lblState");
}

void ReportPreviewTest::WaitForLastPage(Clerk& clerk)
{
    constexpr int MostRounds = 100000;
    for (int round = 0; round < MostRounds && Pages(clerk).endsWith(u'…'); ++round)
        clerk.Do([] {});
    ASSERT_FALSE(Pages(clerk).endsWith(u'…')) << "the report is never complete";
}

void ReportPreviewTest::SaveAs(Clerk& clerk, const QString& key, const QString& name)
{
    clerk.Type(key);
    ASSERT_EQ(OnTop(clerk), "frmReportFile");
    clerk.Type(name + "{ENTER}" + m_folder.path() + "{ENTER}");
    ASSERT_EQ(Focus(clerk), "cmdSave");
    Type(clerk, "{ENTER}");
}

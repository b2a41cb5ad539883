#include "tests/platform/report/ReportTest.h"

#include "platform/database/Sql.h"
#include "platform/report/LayoutCheck.h"
#include "platform/text/Shivaji01.h"

#include <QFile>

#include <algorithm>

ReportTest::ReportTest()
{
    DataSource::Register("VetrolanDSN", File("books.mdb"));
    RunSeen("insert into CompanySelected(CompanyId,CompanyName,AccountingYear,FromDate,ToDate) "
            "values(1,'[श्री महालक्ष्मी दूध संस्था]','2026-2027','01/04/2026','31/03/2027')");
    Run("insert into ReportDates(CompanyId,FromDate,ToDate) values(1,'01/04/2026','10/04/2026')");
}

int ReportTest::RunSeen(QString statement)
{
    for (qsizetype open = statement.indexOf(u'['); open >= 0; open = statement.indexOf(u'[', open)) {
        const qsizetype close = statement.indexOf(u']', open);
        const QString stored = Shivaji01::FromUnicode(QStringView(statement).mid(open + 1, close - open - 1));
        statement.replace(open, close - open + 1, stored);
        open += stored.size();
    }
    return Run(statement);
}

void ReportTest::AddDelivery(
    int number, const QString& shift, const QString& name, double liters, double fat, double amount)
{
    RunSeen(Sql(
        u"insert into MilkCollectionsTemp(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
        u"MemberName,Liters,Fat,Amount) values(1,'05/04/2026','[",
        shift, u"]',", number, u",", number, u",'[", name, u"]',", liters, u",", fat, u",", amount, u")"));
}

TemplateFaults ReportTest::CheckFile(const QString& file)
{
    TemplateFaults faults;
    ReadForLayout(file, *connection, faults);
    return faults;
}

std::unique_ptr<Report> ReportTest::Make(const QString& text, const Selection& selection)
{
    TemplateFaults faults;
    ReportTemplate report = ReportTemplate::ReadText(text, "test.rpt", faults);
    const TemplateFaults more = CheckForLayout(report, *connection);
    faults.insert(faults.end(), more.begin(), more.end());
    for (const TemplateFault& fault : faults)
        ADD_FAILURE() << fault.Line().toStdString();
    return std::make_unique<Report>(std::move(report), connection, selection);
}

QStringList ReportTest::Texts(const Page& page)
{
    QStringList texts;
    for (const PlacedItem& item : page.items) {
        if (item.kind == PlacedItem::Kind::Text)
            texts.append(item.text);
    }
    return texts;
}

QStringList ReportTest::AllTexts(const QString& text)
{
    const std::unique_ptr<Report> report = Make(text);
    report->Complete();
    QStringList texts;
    for (std::size_t i = 0; i < report->PageCount(); ++i)
        texts += Texts(report->PageAt(i));
    return texts;
}

PlacedItem ReportTest::Item(const Page& page, const QString& text)
{
    const auto found = std::find_if(
        page.items.begin(), page.items.end(), [&](const PlacedItem& item) { return item.text == text; });
    if (found != page.items.end())
        return *found;
    ADD_FAILURE() << "no such text on the page: " << text.toStdString();
    return {};
}

void ReportTest::ExpectGolden(const Report& report, const QString& name)
{
    QStringList lines;
    for (std::size_t i = 0; i < report.PageCount(); ++i)
        lines += Describe(report.PageAt(i), report.Fonts());
    const QString seen = lines.join(u'\n') + "\n";
    QFile golden(QStringLiteral(GOLDEN_FOLDER "/") + name);
    if (qEnvironmentVariableIsSet("VETROLAN_RENEW")) {
        ASSERT_TRUE(golden.open(QIODevice::WriteOnly));
        golden.write(seen.toUtf8());
    } else {
        ASSERT_TRUE(golden.open(QIODevice::ReadOnly));
        EXPECT_EQ(seen, QString::fromUtf8(golden.readAll()))
            << "if the change is wanted: VETROLAN_RENEW=1 report_tests";
    }
}

#include "tests/reports/TemplateGoldenTest.h"

#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "platform/shell/AppFolder.h"
#include "tests/support/PdfText.h"
#include "tools/setup/Society.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

constexpr const char* Renewal = "VETROLAN_RENEW=1 ctest --preset check -R ShippedTemplates";

// The lines of both texts that the other one lacks, the first few of them.
std::string Difference(const QStringList& golden, const QStringList& now)
{
    constexpr int Most = 12;
    std::string lines;
    int told = 0;
    for (qsizetype i = 0; i < std::max(golden.size(), now.size()) && told < Most; ++i) {
        if (golden.value(i) == now.value(i))
            continue;
        ++told;
        lines += std::to_string(i + 1) + "\n- " + golden.value(i).toStdString() + "\n+ "
            + now.value(i).toStdString() + "\n";
    }
    return lines;
}

QStringList PlacedLines(Report& report)
{
    report.Complete();
    QStringList lines;
    for (std::size_t at = 0; at < report.PageCount(); ++at) {
        const Page& page = report.PageAt(at);
        lines.append(QStringLiteral("page %1 %2x%3")
                         .arg(at + 1)
                         .arg(static_cast<double>(page.width), 0, 'f', 0)
                         .arg(static_cast<double>(page.height), 0, 'f', 0));
        lines += Describe(page, report.Fonts());
    }
    return lines;
}

}

TemplateGoldenTest::TemplateGoldenTest()
{
    gCn.Close();
    const QString folder = LocalPath(Paths::AppFolder);
    QDir(folder).removeRecursively();
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री महालक्ष्मी सहकारी दूध उत्पादक संस्था");
    plan.year = QStringLiteral("2026-2027");
    plan.password = QStringLiteral("Doodh#26");
    plan.demo = true;
    CopySociety(folder, plan);
    LoadAppState();
}

QString TemplateGoldenTest::FileOfGolden(const QString& name)
{
    return QDir(QStringLiteral(GOLDEN_FOLDER)).filePath(name + QStringLiteral(".txt"));
}

void TemplateGoldenTest::ComparePdfWithItems(Report& report) const
{
    const QString pdf = FolderFile("read.pdf");
    ASSERT_EQ(report.SavePdf(pdf).fault, QString());
    QStringList placed = WordsOf(ReportTexts().join(u' '));
    placed.sort();
    for (const QStringList& way : {QStringList(), QStringList("-layout")}) {
        QStringList words = WordsOf(PdfText(pdf, way));
        words.sort();
        EXPECT_TRUE(words == placed) << Difference(placed, words) << way.join(u' ').toStdString();
    }
}

void TemplateGoldenTest::CompareWithGolden(const QString& name) const
{
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    ASSERT_EQ(TheWindow.Shown.size(), 1U);
    Report& report = *TheWindow.Shown.back();
    const QStringList now = PlacedLines(report);
    ComparePdfWithItems(report);
    if (qEnvironmentVariableIsSet("VETROLAN_PDFS")) {
        const QString pdf = QDir(qEnvironmentVariable("VETROLAN_PDFS")).filePath(name + u".pdf");
        EXPECT_EQ(report.SavePdf(pdf).fault, QString());
    }
    QFile file(FileOfGolden(name));
    if (qEnvironmentVariableIsSet("VETROLAN_RENEW")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(now.join(u'\n').toUtf8() + '\n');
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file; made by: " << Renewal;
    const QStringList golden = QString::fromUtf8(file.readAll()).chopped(1).split(u'\n');
    EXPECT_TRUE(golden == now) << Difference(golden, now) << "renewed by: " << Renewal;
}

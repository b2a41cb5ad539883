#pragma once

#include "platform/database/DataSource.h"
#include "platform/report/Report.h"
#include "platform/text/RunTimeError.h"
#include "tests/platform/template/TemplateTest.h"
#include "tests/support/PdfText.h"

// Reports over fresh books with the delivered tables.
class ReportTest : public TemplateTest {
protected:
    ReportTest();

    static inline const QString Morning = QStringLiteral("सकाळ");
    static constexpr double PointsPerMillimetre = Paper::PointsPerMillimetre;

    int Run(const QString& statement) { return connection->Execute(statement); }

    // Puts Devanagari between the marks [ and ] into the stored encoding, and runs the statement.
    int RunSeen(QString statement);

    // A delivery of the staging table of collections; name and shift in Devanagari.
    void AddDelivery(
        int number, const QString& shift, const QString& name, double liters, double fat, double amount);

    // A report over a template without faults; the test fails if it has any.
    std::unique_ptr<Report> Make(const QString& text, const Selection& selection = {});

    // The texts of a page in the order of their placing.
    static QStringList Texts(const Page& page);

    // The texts of all pages of a template, completed.
    QStringList AllTexts(const QString& text);

    // The first item of a page that has this text; the test fails if there is none.
    static PlacedItem Item(const Page& page, const QString& text);

    // Holds all items of all pages against the golden file of that name.
    static void ExpectGolden(const Report& report, const QString& name);

private:
    // With the fonts of the machine, as the program checks it.
    TemplateFaults CheckFile(const QString& file) override;
};

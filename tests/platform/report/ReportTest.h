#pragma once

#include "platform/database/Connection.h"
#include "platform/database/DataSource.h"
#include "platform/report/Report.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/PdfText.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <ostream>

// Makes the test framework print texts that differ.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QStringList& texts, std::ostream* out);

// Fresh books with the delivered tables for each test, and templates written into the test.
class ReportTest : public ::testing::Test {
protected:
    ReportTest();

    static inline const QString Morning = QStringLiteral("सकाळ");

    int Run(const QString& statement) { return connection->Execute(statement); }

    // Puts Devanagari between the marks [ and ] into the stored encoding, and runs the statement.
    int RunSeen(QString statement);

    // A delivery of the staging table of collections; name and shift in Devanagari.
    void AddDelivery(
        int number, const QString& shift, const QString& name, double liters, double fat, double amount);

    // All faults of a template in a file of that name, each as "line: text".
    QStringList Faults(const QString& text, const QString& name = QStringLiteral("Test"));
    QStringList FaultsOfFile(const QString& file);

    // The text of the one fault that a template of some elements has; the test fails if it has none, or more.
    QString OnlyFault(const QString& elements);

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

    QString File(const QString& name) const { return folder.filePath(name); }
    QString Write(const QString& name, const QString& text) const;

    QTemporaryDir folder;
    std::shared_ptr<Connection> connection = std::make_shared<Connection>();
};

// A template of one sheet around some elements; the first source is the collections, named c.
QString Template(const QString& elements, const QString& attributes = QStringLiteral("paper=\"A4\""));

#pragma once

#include "platform/database/Connection.h"
#include "platform/template/ReportTemplate.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <ostream>

// Makes the test framework print texts that differ.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QStringList& texts, std::ostream* out);

// Fresh books with the delivered tables for each test, and templates written into the test.
class TemplateTest : public ::testing::Test {
protected:
    TemplateTest();

    // All faults of a template in a file of that name, each as "line: text".
    QStringList Faults(const QString& text, const QString& name = QStringLiteral("Test"));
    QStringList FaultsOfFile(const QString& file);

    // The text of the one fault that a template of some elements has; the test fails if it has none, or more.
    QString OnlyFault(const QString& elements);

    QString File(const QString& name) const { return folder.filePath(name); }
    QString Write(const QString& name, const QString& text) const;

    QTemporaryDir folder;
    std::shared_ptr<Connection> connection = std::make_shared<Connection>();

private:
    // Reads a file and checks it the way that the test is about: here without the fonts of the machine.
    virtual TemplateFaults CheckFile(const QString& file);
};

// A template of one sheet around some elements; the first source is the collections, named c.
QString Template(const QString& elements, const QString& attributes = QStringLiteral("paper=\"A4\""));

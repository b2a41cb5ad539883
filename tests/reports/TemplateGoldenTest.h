#pragma once

#include "tests/reports/ReportsTest.h"

// The demonstration, whose reports are compared with golden files of what they place.
class TemplateGoldenTest : public ReportsTest {
protected:
    TemplateGoldenTest();

    static QString FileOfGolden(const QString& name);

    // Compares the last report with its PDF and its golden file, or writes the file anew. VETROLAN_PDFS names
    // a folder that gets the report as a PDF, to be looked at.
    void CompareWithGolden(const QString& name) const;

    // Whoever reads the PDF finds each word that was placed, whole, and no other.
    void ComparePdfWithItems(Report& report) const;
};

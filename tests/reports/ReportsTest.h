#pragma once

#include "tests/support/FakeReportWindow.h"
#include "tests/support/SocietyTest.h"

#include <ostream>

// Makes the test framework print texts that differ.
void PrintTo(const QStringList& texts, std::ostream* out);

// A society with its templates, and one clerk at a report screen.
class ReportsTest : public SocietyTest {
protected:
    ReportsTest();
    ~ReportsTest() override;

    using SocietyTest::Type;

    // Opens a screen and types; a run-time error is kept in `Failure`.
    template <class S> void Type(const char* keys)
    {
        On<S>([keys](Clerk& clerk) { clerk.Type(QString::fromUtf8(keys)); });
    }

    // Does something with another society selected.
    static void InCompany(int company, const std::function<void()>& action);

    // The texts of the last report, page by page; the test fails if none was shown.
    QStringList ReportTexts() const;

    // Takes a template away from AppFolder.
    void RemoveTemplate(const QString& name) const;

    void AddDelivery(const char* date, const char* shift, int number, int member, const char* name,
        const char* animal, double liters, double fat, double rate);
    void AddSale(const char* date, const char* shift, int number, const char* customer, const char* animal,
        double liters, double fat, double snf);

    FakeReportWindow TheWindow;
};

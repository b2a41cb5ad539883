#pragma once

#include "ReportControl.h"
#include "SocietyTest.h"

#include <ostream>

// Makes the test framework print texts that differ.
void PrintTo(const QStringList& texts, std::ostream* out);

// A window that keeps the reports that it is shown.
class FakeReportWindow final : public ReportWindow {
public:
    void Show(std::shared_ptr<Report> report) override { Shown.push_back(std::move(report)); }
    void Tell(const QString& sentence) override { Told.append(sentence); }

    std::vector<std::shared_ptr<Report>> Shown;
    QStringList Told;
};

// A society with its templates, and one clerk at a report screen.
class ReportsTest : public SocietyTest {
protected:
    ReportsTest();
    ~ReportsTest() override;

    // Opens a screen and types; a run-time error is kept in `Failure`.
    template <class S> void Type(const char* keys)
    {
        On<S>([keys](Clerk& clerk) { clerk.Type(QString::fromUtf8(keys)); });
    }

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

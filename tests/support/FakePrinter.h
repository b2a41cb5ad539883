#pragma once

#include "platform/report/Printer.h"
#include "tests/support/PdfText.h"

#include <vector>

// A printer that takes every job, unless a test says otherwise.
class FakePrinter final : public Printer {
public:
    explicit FakePrinter(const QStringList& there = {QStringLiteral("Office")}) : There(there) { }

    QStringList There;
    Outcome Answer;
    std::vector<PrintJob> Jobs;
    QStringList Printed; // what can be read on the paper

    QStringList Names() override { return There; }
    Outcome Print(const PrintJob& job) override
    {
        Jobs.push_back(job);
        Printed.append(PdfText(job.file, {QStringLiteral("-layout")}));
        return Answer;
    }
};

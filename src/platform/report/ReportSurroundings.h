#pragma once

#include "platform/report/Report.h"

#include <functional>

// Where a report is shown, and where the machine's refusals are told. Whoever installs one owns it.
class ReportWindow {
public:
    virtual ~ReportWindow() = default;

    // Shows a report whose first page has been laid out; the window lays out the rest when it has time, and
    // keeps the report as long as it is looked at.
    virtual void Show(std::shared_ptr<Report> report) = 0;

    // Tells the clerk one sentence, such as why nothing was printed.
    virtual void Tell(const QString& sentence) = 0;
};

// What the report controls of the screens work with.
struct ReportSurroundings {
    ReportWindow* window = nullptr;
    Printer* printer = nullptr;
    std::function<QString(const QString&)> localPath; // where a path of AppFolder lies on this machine

    // Those of the program; there is neither window nor printer until somebody puts one in.
    static ReportSurroundings& Current();
};

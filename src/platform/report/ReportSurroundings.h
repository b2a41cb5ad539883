#pragma once

#include "platform/report/Report.h"

#include <functional>

// Shows reports, and says why one couldn't be printed. It is owned by whoever installs it.
class ReportWindow {
public:
    virtual ~ReportWindow() = default;

    // Shows a report whose first page is laid out. The window lays out the rest when it has time, and keeps
    // the report as long as it is shown.
    virtual void Show(std::shared_ptr<Report> report) = 0;

    // Tells the clerk a sentence, such as why nothing was printed.
    virtual void Tell(const QString& sentence) = 0;
};

// What the report controls of all screens work with.
struct ReportSurroundings {
    ReportWindow* window = nullptr;
    Printer* printer = nullptr;
    std::function<QString(const QString&)> localPath; // turns a path below AppFolder into one of this machine

    // The ones of this program. Window and printer are null until they are installed.
    static ReportSurroundings& Current();
};

#pragma once

#include "platform/report/ReportControl.h"
#include "platform/report/SystemPrinter.h"

// While it lives, report controls have what they need: the preview, a printer, and AppFolder's place on this
// machine, where the templates and the files for the printer are. Its destructor closes the books that were
// opened for reports.
class ReportHandover {
public:
    explicit ReportHandover(std::unique_ptr<Printer> printer = MakeSystemPrinter());
    ~ReportHandover();
    ReportHandover(const ReportHandover&) = delete;
    ReportHandover& operator=(const ReportHandover&) = delete;

private:
    // Shows the preview over the screen that prints; returns when it is closed.
    class Window final : public ReportWindow {
    public:
        void Show(std::shared_ptr<Report> report) override;
        void Tell(const QString& sentence) override;
    };

    Window m_window;
    std::unique_ptr<Printer> m_printer;
};

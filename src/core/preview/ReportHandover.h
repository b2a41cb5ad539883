#pragma once

#include "platform/report/ReportControl.h"
#include "platform/report/SystemPrinter.h"

// Gives the report controls of the screens what they work with, as long as it lives: the preview, a printer,
// and the way to the templates of AppFolder, where what goes to the printer lies, too. When it goes, the
// books that were opened for reports are closed.
class ReportHandover {
public:
    explicit ReportHandover(std::unique_ptr<Printer> printer = MakeSystemPrinter());
    ~ReportHandover();
    ReportHandover(const ReportHandover&) = delete;
    ReportHandover& operator=(const ReportHandover&) = delete;

private:
    // Opens the preview over the screen that prints, and returns when it was closed.
    class Window final : public ReportWindow {
    public:
        void Show(std::shared_ptr<Report> report) override;
        void Tell(const QString& sentence) override;
    };

    Window m_window;
    std::unique_ptr<Printer> m_printer;
};

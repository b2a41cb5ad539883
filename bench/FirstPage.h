#pragma once

#include "bench/Work.h"
#include "core/preview/ReportHandover.h"
#include "core/preview/TemplateReport.h"

// A report on the screen, from the button of its screen until the first page has been painted.
class FirstPage : public Work {
public:
    ~FirstPage() override;

protected:
    // `keys` leads to the button of the screen in this mode.
    FirstPage(const char* screen, const QString& mode, const QString& keys);

    struct Times {
        double staging = 0; // from the key, in seconds
        double page = 0; // from the end of the staging
    };

    // Prints it, waits for the page, and leaves preview and screen.
    Times ShowPage();

private:
    using Clock = std::chrono::steady_clock;

    const ReportHandover m_reports;
    std::function<void(const TemplateReport::Run&)> m_engine;
    const char* m_screen;
    QString m_mode;
    QString m_keys;
    Clock::time_point m_staged;
};

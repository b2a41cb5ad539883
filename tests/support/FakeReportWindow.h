#pragma once

#include "platform/report/ReportControl.h"

#include <QStringList>

#include <vector>

// A window that keeps the reports that it is shown, and what it is told.
class FakeReportWindow final : public ReportWindow {
public:
    void Show(std::shared_ptr<Report> report) override { Shown.push_back(std::move(report)); }
    void Tell(const QString& sentence) override { Told.append(sentence); }

    std::vector<std::shared_ptr<Report>> Shown;
    QStringList Told;

    // What the last of them is about.
    QString Subject() const { return Shown.empty() ? QString() : Shown.back()->Subject(); }

    // What the clerk knows the reports by.
    QStringList Titles() const
    {
        QStringList titles;
        for (const std::shared_ptr<Report>& report : Shown)
            titles.append(report->Title());
        return titles;
    }
};

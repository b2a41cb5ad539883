#pragma once

#include "core/preview/ReportPreviewPage.h"
#include "platform/forms/Screen.h"
#include "platform/forms/TextField.h"

#include <memory>

// Shows a report, to leaf through, search, print and save. The first page is there at once; the others are
// laid out while the clerk looks at it.
class frmReportPreview final : public Screen {
public:
    // The report's first page has to be laid out already.
    explicit frmReportPreview(std::shared_ptr<Report> report);
    ~frmReportPreview() override;

private:
    // What is done as soon as the last page is laid out.
    enum class Awaited { Nothing, LastPage, NextHit, PreviousHit };

    std::shared_ptr<Report> m_report;

    Label lblTitle{this, "lblTitle"};
    Label lblPages{this, "lblPages"};
    Label lblZoom{this, "lblZoom"};
    ReportPageView picPage{this, "picPage", *m_report};
    Label lblSearch{this, "lblSearch", Plain(u"शोधा")};
    TextField txtSearch{this, "txtSearch"};
    Label lblState{this, "lblState"};

    void BuildWindow();
    void Shown() override;
    bool KeyDown(const QKeyEvent& key) override;
    void Escape() override;
    void Enter() override;

    bool CommandKey(const QKeyEvent& key);
    bool SizeKey(const QKeyEvent& key);
    bool PageKey(const QKeyEvent& key);

    void LayOutMore();
    void Complete();
    void TellComplete();
    void ShowPosition();
    void TellState(const QString& text);

    void GoTo(std::size_t number, ReportPageView::Edge edge = ReportPageView::Edge::Top);
    void NextPage();
    void PreviousPage();

    // Scrolls the page; at its edge, turns it.
    void Down(int steps);
    void Up(int steps);

    void LastPage();

    void Search();
    void FindNext(int step);
    void RefreshHits();
    void ShowHit(std::size_t hit);
    void TellHit();
    bool HitIsShown() const;

    void Print();
    void Save(const QString& ending, Outcome (Report::*save)(const QString&));

    Awaited m_awaited = Awaited::Nothing;
    bool m_toldComplete = false;
    QString m_searched; // as it is stored
    std::vector<Report::Found> m_hits; // from the first page to the last
    std::size_t m_hit = 0; // the one that was shown last
};

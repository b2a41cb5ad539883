#pragma once

#include "core/menu/Keys.h"
#include "core/preview/ReportPageView.h"
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

    // Those to look at the pages, and those of the screen.
    static Keys::Places KeyPlaces();

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

    static constexpr QStringView PagePlace = u"frmReportPreview.page";

    void BuildWindow();
    QWidget* KeyStrips() const;
    void Shown() override;
    bool KeyDown(const QKeyEvent& key) override;
    void Escape() override;
    void Enter() override;

    void LayOutMore();
    void Complete();
    void TellComplete();
    void ShowPosition();
    void TellState(const QString& text);

    void GoTo(std::size_t number, ReportPageView::Edge edge = ReportPageView::Edge::Top);
    void NextPage();
    void PreviousPage();
    void FirstPage() { GoTo(0); }
    void LastPage();

    // Scrolls the page; at its edge, turns it.
    void Scroll(int steps);
    void WindowDown() { Scroll(ReportPageView::StepsOfWindow); }
    void WindowUp() { Scroll(-ReportPageView::StepsOfWindow); }
    void Down() { Scroll(1); }
    void Up() { Scroll(-1); }
    void Left() { picPage.Scroll(-1, 0); }
    void Right() { picPage.Scroll(1, 0); }

    void Enlarge() { picPage.Enlarge(); }
    void Reduce() { picPage.Reduce(); }
    void FitWidth() { picPage.SetFit(ReportPageView::Fit::Width); }
    void FitPage() { picPage.SetFit(ReportPageView::Fit::WholePage); }
    void FullSize() { picPage.SetPercent(100); }

    void AskForWords() { txtSearch.SetFocus(); }
    void Search();
    void FindNextHit() { FindNext(1); }
    void FindPreviousHit() { FindNext(-1); }
    void FindNext(int step);
    void RefreshHits();
    void ShowHit(std::size_t hit);
    void TellHit();
    bool HitIsShown() const;

    void Print();
    void SavePdf() { Save(QStringLiteral("pdf"), &Report::SavePdf); }
    void SaveCsv() { Save(QStringLiteral("csv"), &Report::SaveCsv); }
    void Save(const QString& ending, Outcome (Report::*save)(const QString&));

    void ShowTutor();

    const Keys::Places m_keys = KeyPlaces();
    Awaited m_awaited = Awaited::Nothing;
    bool m_toldComplete = false;
    QString m_searched; // as it is stored
    std::vector<Report::Found> m_hits; // from the first page to the last
    std::size_t m_hit = 0; // the one that was shown last
};

#include "core/preview/ReportPreview.h"

#include "core/menu/CommonKeys.h"
#include "core/messages/Messages.h"
#include "core/preview/ReportPreviewDialogs.h"
#include "core/preview/ReportPreviewSearch.h"
#include "platform/report/ReportControl.h"

#include <QElapsedTimer>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int SliceMilliseconds = 8; // of laying out before keys are looked at again

// A character or a move of the caret, which a field needs for typing.
bool IsForTyping(const QKeyEvent& key)
{
    const bool isCharacter = key.key() < Qt::Key_Escape;
    return isCharacter || (key.key() >= Qt::Key_Home && key.key() <= Qt::Key_Down);
}

}

Keys::Places frmReportPreview::KeyPlaces()
{
    using S = frmReportPreview;
    return {
        {PagePlace.toString(), Plain(u"रिपोर्ट, पाने पाहताना"),
            {{QStringLiteral("PgDn"), Plain(u"पुढे"), &S::WindowDown},
                {QStringLiteral("PgUp"), Plain(u"मागे"), &S::WindowUp},
                {QStringLiteral("Home"), Plain(u"पहिले"), &S::FirstPage},
                {QStringLiteral("End"), Plain(u"शेवटचे"), &S::LastPage},
                {QStringLiteral("↑ ↓ ← →"), Plain(u"सरकवा"), {&S::Up, &S::Down, &S::Left, &S::Right}},
                {QStringLiteral("+"), Plain(u"मोठे"), &S::Enlarge},
                {QStringLiteral("−"), Plain(u"लहान"), &S::Reduce},
                {QStringLiteral("F5"), Plain(u"रुंदीभर"), &S::FitWidth},
                {QStringLiteral("F6"), Plain(u"पूर्ण पान"), &S::FitPage},
                {QStringLiteral("F7"), Plain(u"100 %"), &S::FullSize}}},
        {QStringLiteral("frmReportPreview"), Plain(u"रिपोर्ट पाहणे"),
            {{QStringLiteral("Ctrl+P"), Plain(u"छापा"), &S::Print},
                {QStringLiteral("Ctrl+F"), Plain(u"शोधा"), &S::AskForWords},
                {QStringLiteral("F3"), Plain(u"पुढे शोधा"), &S::FindNextHit},
                {QStringLiteral("Shift+F3"), Plain(u"मागे शोधा"), &S::FindPreviousHit},
                {QStringLiteral("Ctrl+S"), Plain(u"PDF जतन"), &S::SavePdf},
                {QStringLiteral("Ctrl+E"), Plain(u"CSV जतन"), &S::SaveCsv},
                CommonKeys::TutorKey(&S::ShowTutor), KeyHints::Leave}},
    };
}

frmReportPreview::frmReportPreview(std::shared_ptr<Report> report)
    : Screen("frmReportPreview")
    , m_report(std::move(report))
{
    BuildWindow();
}

frmReportPreview::~frmReportPreview() = default;

void frmReportPreview::Shown()
{
    ShowPosition();
    After(0, [this] { LayOutMore(); });
}

// Laying out

void frmReportPreview::LayOutMore()
{
    QElapsedTimer slice;
    slice.start();
    while (slice.elapsed() < SliceMilliseconds && m_report->LayOutNext()) { }
    if (m_report->IsComplete())
        TellComplete();
    else
        After(0, [this] { LayOutMore(); });
}

void frmReportPreview::Complete()
{
    m_report->Complete();
    TellComplete();
}

void frmReportPreview::TellComplete()
{
    if (m_toldComplete)
        return;
    m_toldComplete = true;
    picPage.Redraw();
    ShowPosition();
    if (!m_searched.isEmpty())
        RefreshHits();
    switch (std::exchange(m_awaited, Awaited::Nothing)) {
    case Awaited::LastPage:
        LastPage();
        break;
    case Awaited::NextHit:
        FindNext(1);
        break;
    case Awaited::PreviousHit:
        FindNext(-1);
        break;
    case Awaited::Nothing:
        break;
    }
}

void frmReportPreview::ShowPosition()
{
    const QString count =
        m_report->IsComplete() ? QString::number(m_report->PageCount()) : QStringLiteral("…");
    lblPages.SetFigure(QStringLiteral("%1 / %2").arg(picPage.Text(), count));
    lblZoom.SetFigure(QStringLiteral("%1 %").arg(picPage.Percent()));
}

void frmReportPreview::TellState(const QString& text)
{
    lblState.SetFigure(text);
    lblState.Widget()->repaint(); // what follows may take a while
}

// Keys

// In the search, what a field needs for typing doesn't move the page.
bool frmReportPreview::KeyDown(const QKeyEvent& key)
{
    const bool isTyped = txtSearch.HasFocus() && IsForTyping(key);
    if (!Keys::Answer(*this, Keys::Of(m_keys, Name()), key)
        && (isTyped || !Keys::Answer(*this, Keys::Of(m_keys, PagePlace.toString()), key)))
        return false;
    ShowPosition();
    return true;
}

void frmReportPreview::ShowTutor()
{
    CommonKeys::Tutor();
}

// Esc leaves the search first.
void frmReportPreview::Escape()
{
    if (picPage.HasFocus())
        Close();
    else
        picPage.SetFocus();
}

void frmReportPreview::Enter()
{
    if (txtSearch.HasFocus())
        Search();
}

// Pages

void frmReportPreview::GoTo(std::size_t number, ReportPageView::Edge edge)
{
    m_awaited = Awaited::Nothing;
    TellState({});
    picPage.ShowPage(number, edge);
    ShowPosition();
}

void frmReportPreview::NextPage()
{
    const std::size_t next = picPage.Page() + 1;
    if (next == m_report->PageCount())
        m_report->LayOutNext();
    if (next < m_report->PageCount())
        GoTo(next);
    if (m_report->IsComplete())
        TellComplete();
}

void frmReportPreview::PreviousPage()
{
    if (picPage.Page() > 0)
        GoTo(picPage.Page() - 1, ReportPageView::Edge::Bottom);
}

void frmReportPreview::Scroll(int steps)
{
    if (picPage.Scroll(0, steps))
        return;
    if (steps > 0)
        NextPage();
    else
        PreviousPage();
}

void frmReportPreview::LastPage()
{
    if (m_report->IsComplete()) {
        GoTo(m_report->PageCount() - 1);
        return;
    }
    m_awaited = Awaited::LastPage;
    TellState(QStringLiteral("शेवटचे पान तयार होत आहे …"));
}

// Searching

void frmReportPreview::Search()
{
    m_searched = txtSearch.Text().trimmed();
    picPage.SetFocus();
    picPage.Mark({});
    TellState({});
    RefreshHits();
    FindNext(1);
}

// The marked place keeps its mark, but its number among the places may have changed.
void frmReportPreview::RefreshHits()
{
    const bool wasShown = HitIsShown();
    const Report::Found shown = wasShown ? m_hits[m_hit] : Report::Found{};
    m_hits = FindInReport(*m_report, m_searched);
    const auto same = std::find_if(m_hits.begin(), m_hits.end(),
        [&](const Report::Found& hit) { return hit.page == shown.page && hit.rect == shown.rect; });
    if (!wasShown || same == m_hits.end())
        return;
    m_hit = static_cast<std::size_t>(same - m_hits.begin());
    TellHit();
}

bool frmReportPreview::HitIsShown() const
{
    return m_hit < m_hits.size() && picPage.Page() == m_hits[m_hit].page
        && picPage.Marked() == m_hits[m_hit].rect;
}

// Goes to the next place in the direction of `step`, from the marked one, or from the page that is shown.
// Past the last page that is laid out it waits for the rest; past the end it starts over.
void frmReportPreview::FindNext(int step)
{
    if (m_searched.isEmpty()) {
        txtSearch.SetFocus();
        return;
    }
    const auto count = static_cast<std::ptrdiff_t>(m_hits.size());
    std::ptrdiff_t next = 0;
    if (HitIsShown()) {
        next = static_cast<std::ptrdiff_t>(m_hit) + step;
    } else {
        const auto from = std::find_if(m_hits.begin(), m_hits.end(),
            [this](const Report::Found& hit) { return hit.page >= picPage.Page(); });
        next = from - m_hits.begin() - (step < 0 ? 1 : 0);
    }
    if ((next < 0 || next >= count) && !m_report->IsComplete()) {
        m_awaited = step > 0 ? Awaited::NextHit : Awaited::PreviousHit;
        TellState(QStringLiteral("शोधत आहे …"));
    } else if (count == 0) {
        picPage.Mark({});
        TellState(QStringLiteral("सापडले नाही"));
    } else {
        ShowHit(static_cast<std::size_t>((next + count) % count));
    }
}

void frmReportPreview::ShowHit(std::size_t hit)
{
    m_hit = hit;
    const Report::Found& found = m_hits[hit];
    if (found.page != picPage.Page())
        GoTo(found.page);
    picPage.Mark(found.rect);
    TellHit();
}

void frmReportPreview::TellHit()
{
    const QString count = m_report->IsComplete() ? QString::number(m_hits.size()) : QStringLiteral("…");
    TellState(QStringLiteral("सापडले: %1 / %2").arg(QString::number(m_hit + 1), count));
}

// What becomes of it

void frmReportPreview::Print()
{
    Printer& printer = *ReportSurroundings::Current().printer;
    const QStringList printers = printer.Names();
    QString chosen = printers.value(0);
    if (printers.size() > 1) {
        frmReportPrinter choice(printers);
        choice.ShowModal();
        if (choice.Chosen.isEmpty())
            return;
        chosen = choice.Chosen;
    }
    TellState(QStringLiteral("छपाईला पाठवत आहे …"));
    Complete();
    const Outcome outcome = m_report->Print(printer, chosen);
    TellState(outcome.Done() ? QStringLiteral("छपाईला पाठवले: %1").arg(chosen) : QString());
    if (!outcome.Done())
        ShowPlain(outcome.fault);
}

void frmReportPreview::Save(const QString& ending, Outcome (Report::*save)(const QString&))
{
    frmReportFile dialog(m_report->Title(), m_report->Subject(), ending);
    dialog.ShowModal();
    if (dialog.FileName.isEmpty())
        return;
    TellState(QStringLiteral("जतन करत आहे …"));
    Complete();
    const Outcome outcome = (m_report.get()->*save)(dialog.FileName);
    TellState(outcome.Done() ? QStringLiteral("जतन केले: %1").arg(dialog.FileName) : QString());
    if (!outcome.Done())
        ShowPlain(outcome.fault);
}

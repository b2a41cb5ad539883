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

bool IsControl(const QKeyEvent& key, Qt::Key letter)
{
    return key.key() == letter && key.modifiers().testFlag(Qt::ControlModifier);
}

}

frmReportPreview::frmReportPreview(std::shared_ptr<Report> report)
    : Screen("frmReportPreview")
    , m_report(std::move(report))
{
    picPage.KeyDown = [this](const QKeyEvent& key) { return PageKey(key); };
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

bool frmReportPreview::KeyDown(const QKeyEvent& key)
{
    if (!CommandKey(key) && !SizeKey(key))
        return CommonKeys::Tutor(key);
    ShowPosition();
    return true;
}

bool frmReportPreview::CommandKey(const QKeyEvent& key)
{
    if (IsControl(key, Qt::Key_F))
        txtSearch.SetFocus();
    else if (IsControl(key, Qt::Key_P))
        Print();
    else if (IsControl(key, Qt::Key_S))
        Save(QStringLiteral("pdf"), &Report::SavePdf);
    else if (IsControl(key, Qt::Key_E))
        Save(QStringLiteral("csv"), &Report::SaveCsv);
    else if (key.key() == Qt::Key_F3)
        FindNext(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
    else
        return false;
    return true;
}

bool frmReportPreview::SizeKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_F5:
        picPage.SetFit(ReportPageView::Fit::Width);
        return true;
    case Qt::Key_F6:
        picPage.SetFit(ReportPageView::Fit::WholePage);
        return true;
    case Qt::Key_F7:
        picPage.SetPercent(100);
        return true;
    case Qt::Key_PageDown:
        Down(ReportPageView::StepsOfWindow);
        return true;
    case Qt::Key_PageUp:
        Up(ReportPageView::StepsOfWindow);
        return true;
    default:
        return false;
    }
}

// The keys that a field needs for typing.
bool frmReportPreview::PageKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Home:
        GoTo(0);
        break;
    case Qt::Key_End:
        LastPage();
        break;
    case Qt::Key_Down:
        Down(1);
        break;
    case Qt::Key_Up:
        Up(1);
        break;
    case Qt::Key_Right:
        picPage.Scroll(1, 0);
        break;
    case Qt::Key_Left:
        picPage.Scroll(-1, 0);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        picPage.Enlarge();
        break;
    case Qt::Key_Minus:
        picPage.Reduce();
        break;
    default:
        return false;
    }
    ShowPosition();
    return true;
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

void frmReportPreview::Down(int steps)
{
    if (!picPage.Scroll(0, steps))
        NextPage();
}

void frmReportPreview::Up(int steps)
{
    if (!picPage.Scroll(0, -steps))
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

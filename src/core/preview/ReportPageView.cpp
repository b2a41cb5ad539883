#include "core/preview/ReportPageView.h"

#include "platform/forms/Look.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <deque>

namespace {

constexpr int Margin = 14; // pixels around the page
constexpr int FrameWidth = 2;
constexpr int StepsOfView = ReportPageView::StepsOfWindow + 1; // a step is the window divided by this
constexpr double LargestFitted = 2; // a small slip isn't enlarged beyond this
constexpr double LongestSide = 16000; // pixels; the page of a roll can be metres long
constexpr std::size_t KeptPictures = 3;
constexpr int Percents[] = {25, 33, 50, 67, 75, 100, 125, 150, 175, 200, 250, 300};

}

class ReportPageView::Sheet final : public QAbstractScrollArea {
public:
    explicit Sheet(Report& report) : m_report(report)
    {
        setFrameShape(QFrame::NoFrame);
        setViewportMargins(FrameWidth, FrameWidth, FrameWidth, FrameWidth);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or the width to fit to would change with it
        for (QScrollBar* bar : {verticalScrollBar(), horizontalScrollBar()})
            bar->setFocusPolicy(Qt::NoFocus);
    }

    std::size_t Page() const { return m_page; }
    QRectF Marked() const { return m_mark; }
    int Percent() const { return static_cast<int>(std::lround(m_scale / PaperScale() * 100)); }

    void ShowPage(std::size_t page, Edge edge)
    {
        m_page = page;
        m_mark = QRectF();
        Arrange();
        verticalScrollBar()->setValue(edge == Edge::Top ? 0 : verticalScrollBar()->maximum());
    }

    void SetFit(Fit fit)
    {
        m_fit = fit;
        Arrange();
    }

    void SetPercent(int percent)
    {
        m_fit = Fit::None;
        m_wanted = percent / 100.0;
        Arrange();
    }

    bool Scroll(int right, int down)
    {
        const int x = horizontalScrollBar()->value();
        const int y = verticalScrollBar()->value();
        horizontalScrollBar()->setValue(x + right * viewport()->width() / StepsOfView);
        verticalScrollBar()->setValue(y + down * viewport()->height() / StepsOfView);
        return horizontalScrollBar()->value() != x || verticalScrollBar()->value() != y;
    }

    void Mark(const QRectF& place)
    {
        m_mark = place;
        if (!place.isEmpty()) {
            const QRectF seen = OnPage(place);
            BringIntoView(*horizontalScrollBar(), seen.left(), seen.right());
            BringIntoView(*verticalScrollBar(), seen.top(), seen.bottom());
        }
        viewport()->update();
    }

    void Redraw()
    {
        m_pictures.clear();
        viewport()->update();
    }

    void ShowFocus(bool held)
    {
        m_hasFocus = held;
        update();
    }

protected:
    void resizeEvent(QResizeEvent*) override { Arrange(); }

    // The colour of the frame shows whether keys go to the page.
    bool event(QEvent* event) override
    {
        const bool done = QAbstractScrollArea::event(event);
        if (event->type() == QEvent::Paint) {
            QPainter painter(this);
            painter.fillRect(rect(), QColor(m_hasFocus ? Look::FocusColour : Look::Quiet));
        }
        return done;
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(viewport());
        painter.fillRect(viewport()->rect(), QColor(Look::Quiet).darker(118));
        const QImage& picture = Picture();
        const QRectF page(PageCorner(), picture.deviceIndependentSize());
        painter.fillRect(page.translated(3, 3), QColor(0, 0, 0, 70));
        painter.drawImage(page.topLeft(), picture);
        if (m_mark.isEmpty())
            return;
        const QRectF mark = OnPage(m_mark).translated(PageCorner()).adjusted(-3, -2, 3, 2);
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.fillRect(mark, QColor(Look::FocusColour));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setPen(QPen(QColor(Look::GuideInk), 2));
        painter.drawRect(mark);
    }

private:
    struct Kept {
        std::size_t page;
        double scale;
        QImage picture;
    };

    QSizeF PaperSize() const
    {
        const ::Page& page = m_report.PageAt(m_page);
        return {page.width, page.height};
    }

    // Pixels for each point at the size of the paper.
    double PaperScale() const { return logicalDpiX() / 72.0; }

    double ScaleWanted() const
    {
        const QSizeF paper = PaperSize();
        const double wide = (viewport()->width() - 2 * Margin) / paper.width();
        const double high = (viewport()->height() - 2 * Margin) / paper.height();
        const double most = LargestFitted * PaperScale();
        switch (m_fit) {
        case Fit::Best:
            return std::min(high >= PaperScale() ? std::min(wide, high) : wide, most);
        case Fit::Width:
            return std::min(wide, most);
        case Fit::WholePage:
            return std::min({wide, high, most});
        case Fit::None:
            break;
        }
        return m_wanted * PaperScale();
    }

    // Resizes the page on the screen; the middle of the view stays where it is.
    void Arrange()
    {
        const QSizeF paper = PaperSize();
        const double longest = LongestSide / (std::max(paper.width(), paper.height()) * devicePixelRatioF());
        const double least = Percents[0] / 100.0 * PaperScale() / 4;
        m_scale = std::min(std::max(ScaleWanted(), least), longest);
        SetRange(*horizontalScrollBar(), paper.width() * m_scale, viewport()->width());
        SetRange(*verticalScrollBar(), paper.height() * m_scale, viewport()->height());
        viewport()->update();
    }

    static void SetRange(QScrollBar& bar, double page, int window)
    {
        const double whole = std::max(1.0, bar.maximum() + static_cast<double>(bar.pageStep()));
        const double middle = (bar.value() + bar.pageStep() / 2.0) / whole;
        const bool wasAtStart = bar.value() == 0;
        const int length = static_cast<int>(std::lround(page)) + 2 * Margin;
        bar.setPageStep(window);
        bar.setRange(0, std::max(0, length - window));
        bar.setValue(wasAtStart ? 0 : static_cast<int>(middle * length - window / 2.0));
    }

    static void BringIntoView(QScrollBar& bar, double from, double to)
    {
        const int first = static_cast<int>(from);
        const int last = static_cast<int>(std::ceil(to)) + 2 * Margin;
        if (first < bar.value() || last > bar.value() + bar.pageStep())
            bar.setValue((first + last - bar.pageStep()) / 2);
    }

    QRectF OnPage(const QRectF& points) const
    {
        return {points.topLeft() * m_scale, points.size() * m_scale};
    }

    QPoint PageCorner() const
    {
        const QSizeF size = PaperSize() * m_scale;
        const int x = static_cast<int>((viewport()->width() - size.width()) / 2);
        const int y = static_cast<int>((viewport()->height() - size.height()) / 2);
        return {std::max(x, Margin - horizontalScrollBar()->value()),
            std::max(y, Margin - verticalScrollBar()->value())};
    }

    const QImage& Picture()
    {
        const double ratio = devicePixelRatioF();
        const double scale = m_scale * ratio;
        const auto kept = std::find_if(m_pictures.begin(), m_pictures.end(),
            [&](const Kept& one) { return one.page == m_page && one.scale == scale; });
        if (kept != m_pictures.end())
            return kept->picture;
        if (m_pictures.size() == KeptPictures)
            m_pictures.pop_front();
        QImage picture = m_report.Image(m_page, scale);
        picture.setDevicePixelRatio(ratio);
        return m_pictures.emplace_back(Kept{m_page, scale, std::move(picture)}).picture;
    }

    Report& m_report;
    std::size_t m_page = 0;
    Fit m_fit = Fit::Best;
    double m_wanted = 1; // of the paper's size, when it isn't fitted
    double m_scale = 1; // pixels a point
    QRectF m_mark;
    std::deque<Kept> m_pictures; // the latest last
    bool m_hasFocus = false;
};

ReportPageView::ReportPageView(Screen* screen, const char* name, Report& report)
    : Control(screen, name, new Sheet(report))
{
}

ReportPageView::Sheet& ReportPageView::View() const
{
    return *static_cast<Sheet*>(Widget());
}

void ReportPageView::ShowPage(std::size_t page, Edge edge)
{
    View().ShowPage(page, edge);
}

std::size_t ReportPageView::Page() const
{
    return View().Page();
}

void ReportPageView::SetFit(Fit fit)
{
    View().SetFit(fit);
}

void ReportPageView::SetPercent(int percent)
{
    View().SetPercent(percent);
}

int ReportPageView::Percent() const
{
    return View().Percent();
}

void ReportPageView::Enlarge()
{
    const auto* larger = std::upper_bound(std::begin(Percents), std::end(Percents), Percent());
    SetPercent(larger == std::end(Percents) ? *std::prev(larger) : *larger);
}

void ReportPageView::Reduce()
{
    const auto* smaller = std::lower_bound(std::begin(Percents), std::end(Percents), Percent());
    SetPercent(smaller == std::begin(Percents) ? *smaller : *std::prev(smaller));
}

bool ReportPageView::Scroll(int right, int down)
{
    return View().Scroll(right, down);
}

void ReportPageView::Mark(const QRectF& place)
{
    View().Mark(place);
}

QRectF ReportPageView::Marked() const
{
    return View().Marked();
}

void ReportPageView::Redraw()
{
    View().Redraw();
}

QString ReportPageView::Text() const
{
    return QString::number(Page() + 1);
}

void ReportPageView::ShowFocus(bool held)
{
    View().ShowFocus(held);
}

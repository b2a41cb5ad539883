#pragma once

#include "platform/forms/Control.h"
#include "platform/report/Report.h"

// One page of a report on the screen: fitted to the window or at a size that the clerk chose, with the found
// text marked.
class ReportPageView final : public Control {
public:
    // Best shows the whole page if it can be read like that, as a slip can, and its whole width otherwise.
    enum class Fit { Best, Width, WholePage, None };
    enum class Edge { Top, Bottom };

    // The report must outlive the view.
    ReportPageView(Screen* screen, const char* name, Report& report);

    // Shows a page that has been laid out, counted from 0, from its top or from its bottom.
    void ShowPage(std::size_t page, Edge edge = Edge::Top);
    std::size_t Page() const;

    // How large the page is shown; 100 is its size on paper.
    void SetFit(Fit fit);
    void SetPercent(int percent);
    int Percent() const;

    // Goes to the next larger or smaller size.
    void Enlarge();
    void Reduce();

    // Scrolls by so many steps; false if the page is at its edge already.
    bool Scroll(int right, int down);

    // The steps of a whole window, less a line or two, so that the eye finds its place again.
    static constexpr int StepsOfWindow = 7;

    // Marks a place of the page, in points, and scrolls to it; an empty place removes the mark.
    void Mark(const QRectF& place);
    QRectF Marked() const;

    // Repaints the page after more was laid out: it may show the number of pages.
    void Redraw();

    // The number of the page, counted from 1.
    QString Text() const override;

protected:
    bool KeyPress(const QKeyEvent&) override { return true; }
    void ShowFocus(bool held) override;

private:
    class Sheet;
    Sheet& View() const;
};

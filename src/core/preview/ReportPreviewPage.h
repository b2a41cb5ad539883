#pragma once

#include "platform/forms/Control.h"
#include "platform/report/Report.h"

// One page of a report as it is looked at: fitted to the window or as large as the clerk wants it, with the
// place of a found text marked.
class ReportPageView final : public Control {
public:
    // Best shows the whole page where it can be read so, as that of a slip, and else its width.
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

    // The next larger or smaller of the sizes that the eye tells apart.
    void Enlarge();
    void Reduce();

    // Moves the page under the window by so many steps; false if it is at its edge already.
    bool Scroll(int right, int down);

    // The steps that show what stood outside of the window, and one line or two of what stood in it.
    static constexpr int StepsOfWindow = 7;

    // Marks a place of the page, in points, and brings it into view; an empty place takes the mark away.
    void Mark(const QRectF& place);
    QRectF Marked() const;

    // Paints anew what has been laid out further, such as the number of pages.
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

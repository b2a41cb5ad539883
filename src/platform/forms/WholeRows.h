#pragma once

#include <QAbstractItemView>
#include <QPaintEvent>

// A list or table that shows whole rows only: a row that the lower edge would cut isn't painted until it is
// scrolled to.
template <class View> class WholeRows : public View {
public:
    using View::View;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPaintEvent whole(event->region() & QRect(0, 0, this->viewport()->width(), WholeHeight()));
        View::paintEvent(&whole);
    }

    // Where the last whole row ends, in pixels.
    int WholeHeight() const
    {
        const int height = this->viewport()->height();
        const QRect last = this->visualRect(this->indexAt(QPoint(1, height - 1)));
        return last.isValid() && last.bottom() >= height && last.top() > 0 ? last.top() : height;
    }
};

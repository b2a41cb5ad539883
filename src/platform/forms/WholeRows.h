#pragma once

#include <QAbstractItemView>
#include <QPaintEvent>

// A list or a table that shows whole rows only: one that the lower edge would cut is left out, and comes when
// it is scrolled to.
template <class View> class WholeRows : public View {
public:
    using View::View;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPaintEvent whole(event->region() & QRect(0, 0, this->viewport()->width(), WholeHeight()));
        View::paintEvent(&whole);
    }

    // Where the last whole row ends.
    int WholeHeight() const
    {
        const int height = this->viewport()->height();
        const QRect last = this->visualRect(this->indexAt(QPoint(1, height - 1)));
        return last.isValid() && last.bottom() >= height && last.top() > 0 ? last.top() : height;
    }
};

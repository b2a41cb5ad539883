#include "platform/forms/ColumnBar.h"

#include "platform/forms/DataGrid.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

ColumnBar::ColumnBar(const DataGrid& grid) : m_table(*static_cast<const QTableView*>(grid.Widget()))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // Queued, so that it runs once all columns have their widths; that is still before anything is painted.
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this, &ColumnBar::Place,
        Qt::QueuedConnection);
}

void ColumnBar::Put(QWidget& part, int first, int last)
{
    part.setParent(this);
    m_parts.push_back({&part, first, last});
}

QSize ColumnBar::sizeHint() const
{
    int height = 0;
    for (const Part& part : m_parts)
        height = std::max(height, part.widget->sizeHint().expandedTo(part.widget->minimumSize()).height());
    return {0, height};
}

void ColumnBar::resizeEvent(QResizeEvent*)
{
    Place();
}

// A part has changed its size.
bool ColumnBar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(event);
}

void ColumnBar::Place()
{
    const QHeaderView& header = *m_table.horizontalHeader();
    for (const Part& part : m_parts) {
        const int left = m_table.frameWidth() + header.sectionViewportPosition(part.first);
        const int right =
            m_table.frameWidth() + header.sectionViewportPosition(part.last) + header.sectionSize(part.last);
        part.widget->setGeometry(left, 0, right - left, height());
    }
}

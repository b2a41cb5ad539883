#include "DropList.h"

#include "Screen.h"

#include <algorithm>

DropList::DropList(Screen& screen, const std::function<void(int)>& picked)
    : m_screen(screen)
    , m_list(std::make_unique<QListView>(&screen))
{
    m_list->setModel(&m_rows);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVisible(false);
    QPalette palette = m_list->palette();
    palette.setColor(QPalette::Base, Qt::white);
    m_list->setPalette(palette);
    QObject::connect(m_list.get(), &QListView::clicked, m_list.get(),
        [picked](const QModelIndex& index) { picked(index.row()); });
}

void DropList::OpenAt(const QWidget& field)
{
    m_open = m_rows.rowCount() > 0;
    if (m_open) {
        Place(field);
        m_list->raise();
    }
    m_list->setVisible(m_open);
}

void DropList::Close()
{
    m_open = false;
    m_list->setVisible(false);
}

int DropList::CurrentRow() const
{
    return m_list->currentIndex().row();
}

void DropList::SetCurrentRow(int row)
{
    m_list->setCurrentIndex(row < 0 ? QModelIndex() : m_rows.index(row));
}

void DropList::Place(const QWidget& field)
{
    constexpr int most = 8; // rows that are seen at a time
    const QPoint corner = field.mapTo(&m_screen, QPoint(0, 0));
    const int below = m_screen.height() - corner.y() - field.height();
    const int shown = std::min(m_rows.rowCount(), most);
    const int wanted = m_list->sizeHintForRow(0) * shown + 2 * m_list->frameWidth();
    const bool above = below < wanted && below < corner.y();
    const int height = std::min(wanted, above ? corner.y() : below);
    const int top = above ? corner.y() - height : corner.y() + field.height();
    m_list->setGeometry(corner.x(), top, field.width(), height);
}

#include "platform/forms/DropList.h"

#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"
#include "platform/forms/WholeRows.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int MarkMargin = 8; // between a text, its mark, and the edge of the list
constexpr int LetterMargin = 3; // above and below a text, for the marks over its letters

// Gives a row room for its letters, and paints its mark at the right edge, in the colour of its text.
class RowLook final : public QStyledItemDelegate {
public:
    explicit RowLook(const QStringList& marks) : m_marks(marks) { }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize usual = QStyledItemDelegate::sizeHint(option, index);
        const int text = option.fontMetrics.boundingRect(index.data().toString()).height();
        return {usual.width(), std::max(usual.height(), text) + 2 * Look::Pixels(LetterMargin)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QString mark = m_marks.value(index.row());
        const int width = mark.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(mark) + 2 * MarkMargin;
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text =
            row.fontMetrics.elidedText(row.text, Qt::ElideRight, row.rect.width() - width - MarkMargin);
        row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        const bool marked = row.state.testFlag(QStyle::State_Selected);
        painter->setPen(row.palette.color(marked ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(row.rect.adjusted(0, 0, -MarkMargin, 0), Qt::AlignRight | Qt::AlignVCenter, mark);
    }

private:
    const QStringList& m_marks;
};

}

DropList::DropList(Screen& screen, const std::function<void(int)>& picked)
    : m_screen(screen)
    , m_look(std::make_unique<RowLook>(m_marks))
    , m_list(std::make_unique<WholeRows<QListView>>(&screen))
{
    m_list->setModel(&m_rows);
    m_list->setItemDelegate(m_look.get());
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

DropList::~DropList() = default;

void DropList::SetRows(const QStringList& texts, const QStringList& marks)
{
    m_marks = marks;
    m_rows.setStringList(texts);
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
    const QModelIndex index = row < 0 ? QModelIndex() : m_rows.index(row);
    m_list->setCurrentIndex(index);
    if (m_open)
        m_list->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void DropList::Place(const QWidget& field)
{
    constexpr int most = 8; // rows that are shown at a time
    const QPoint corner = field.mapTo(&m_screen, QPoint(0, 0));
    const int below = m_screen.height() - corner.y() - field.height();
    const int shown = std::min(m_rows.rowCount(), most);
    const int row = m_list->sizeHintForRow(0);
    const int frame = 2 * m_list->frameWidth();
    const int wanted = row * shown + frame;
    const bool above = below < wanted && below < corner.y();
    const int room = std::min(wanted, above ? corner.y() : below);
    const int height = std::max(1, (room - frame) / row) * row + frame;
    const int top = above ? corner.y() - height : corner.y() + field.height();
    m_list->setGeometry(corner.x(), top, field.width(), height);
}

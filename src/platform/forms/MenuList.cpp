#include "platform/forms/MenuList.h"

#include "platform/forms/Look.h"
#include "platform/forms/WholeRows.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>

#include <utility>

namespace {

// Adds some room around each entry, which makes the lines easier to follow.
class RoomyEntry final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index)
            + QSize(2 * Look::Pixels(Indent), Look::Pixels(Air));
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem entry = option;
        initStyleOption(&entry, index);
        const QString text = std::exchange(entry.text, QString());
        entry.widget->style()->drawControl(QStyle::CE_ItemViewItem, &entry, painter, entry.widget);
        const bool isCurrent = entry.state.testFlag(QStyle::State_Selected);
        painter->setFont(entry.font);
        painter->setPen(entry.palette.color(isCurrent ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(entry.rect.adjusted(Look::Pixels(Indent), 0, 0, 0), Qt::AlignVCenter, text);
    }

private:
    static constexpr int Indent = 10;
    static constexpr int Air = 3;
};

QListWidget& ListOf(const Control& control)
{
    return *static_cast<QListWidget*>(control.Widget());
}

}

MenuList::MenuList(Screen* screen, const char* name, const Handler& chosen)
    : Control(screen, name, new WholeRows<QListWidget>)
{
    Chosen = chosen.On(*screen);
    QListWidget& list = ListOf(*this);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.setFont(Look::Font(Look::Size::Menu));
    list.setSpacing(1);
    list.setItemDelegate(new RoomyEntry(&list));
    QObject::connect(
        &list, &QListWidget::itemDoubleClicked, &list, [this] { RunEvent([this] { Choose(); }); });
    MenuList::ShowFocus(false);
}

void MenuList::SetEntries(const std::vector<Caption>& entries)
{
    m_entries = entries;
    QListWidget& list = ListOf(*this);
    list.clear();
    for (const Caption& entry : entries)
        list.addItem(entry.Seen());
}

int MenuList::CurrentIndex() const
{
    return ListOf(*this).currentRow();
}

void MenuList::SetCurrentIndex(int index)
{
    ListOf(*this).setCurrentRow(index);
}

QString MenuList::Text() const
{
    const int at = CurrentIndex();
    return at < 0 ? QString() : m_entries[at].Text();
}

void MenuList::Choose()
{
    if (CanTakeFocus() && CurrentIndex() >= 0 && Chosen)
        Chosen();
}

bool MenuList::KeyPress(const QKeyEvent& key)
{
    const int last = static_cast<int>(m_entries.size()) - 1;
    switch (key.key()) {
    case Qt::Key_Up:
        SetCurrentIndex(std::max(CurrentIndex() - 1, 0));
        break;
    case Qt::Key_Down:
        SetCurrentIndex(std::min(CurrentIndex() + 1, last));
        break;
    case Qt::Key_Home:
        SetCurrentIndex(0);
        break;
    case Qt::Key_End:
        SetCurrentIndex(last);
        break;
    default:
        break;
    }
    return true;
}

void MenuList::ShowFocus(bool held)
{
    Look::SetListColours(*Widget(), held);
}

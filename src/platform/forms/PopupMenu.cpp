#include "platform/forms/PopupMenu.h"

#include "platform/forms/Look.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

namespace {

// The text to show, with '&' before the letter of the key.
QString MenuText(const Caption& caption)
{
    QString text = caption.Seen();
    text.replace(u'&', QStringLiteral("&&"));
    if (const qsizetype at = text.indexOf(caption.Mnemonic(), 0, Qt::CaseInsensitive);
        at >= 0 && !caption.Mnemonic().isNull())
        text.insert(at, u'&');
    return text;
}

bool IsMenuKey(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Menu
        || (key.key() == Qt::Key_F10 && key.modifiers().testFlag(Qt::ShiftModifier));
}

}

PopupMenu::PopupMenu(Control& control, const std::vector<Entry>& entries)
    : m_control(control)
    , m_menu(std::make_unique<QMenu>(control.Widget()))
{
    m_menu->setFont(Look::Font(Look::Size::Menu));
    for (const Entry& entry : entries)
        connect(m_menu->addAction(MenuText(entry.caption)), &QAction::triggered, this,
            [this, chosen = entry.chosen] { m_control.RunEvent(chosen); });
    // This filter must come before that of the screen, which ignores the right button.
    control.Widget()->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(control.Widget()))
        area->viewport()->installEventFilter(this);
}

PopupMenu::~PopupMenu() = default;

bool PopupMenu::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = *static_cast<QMouseEvent*>(event);
        if (press.button() != Qt::RightButton)
            return false;
        OpenAt(press.globalPosition().toPoint());
        return true;
    }
    if (event->type() == QEvent::KeyPress && IsMenuKey(*static_cast<QKeyEvent*>(event))) {
        OpenAt(m_control.Widget()->mapToGlobal(m_control.Widget()->rect().center()));
        return true;
    }
    return false;
}

void PopupMenu::OpenAt(QPoint place)
{
    m_control.RunEvent([this, place] {
        m_control.SetFocus();
        if (m_control.HasFocus())
            m_menu->popup(place);
    });
}

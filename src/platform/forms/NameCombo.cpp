#include "NameCombo.h"

#include "Look.h"
#include "Screen.h"
#include "Shivaji01.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

NameCombo::NameCombo(Screen* screen, const char* name)
    : TextField(screen, name)
    , m_list(std::make_unique<QListView>(screen))
{
    m_list->setModel(&m_seen);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVisible(false);
    QPalette palette = m_list->palette();
    palette.setColor(QPalette::Base, Qt::white);
    m_list->setPalette(palette);
    QObject::connect(m_list.get(), &QListView::clicked, m_list.get(), [this](const QModelIndex& index) {
        RunEvent([this, index] {
            Pick(index.row());
            DropDown(false);
        });
    });
}

void NameCombo::SetItems(const QStringList& names)
{
    m_names = names;
    QStringList seen;
    seen.reserve(names.size());
    for (const QString& name : names)
        seen.append(Shivaji01::ToUnicode(name));
    m_seen.setStringList(seen);
    DropDown(m_dropped);
}

void NameCombo::AddItem(const QString& name)
{
    m_names.append(name);
    m_seen.insertRow(m_seen.rowCount());
    m_seen.setData(m_seen.index(m_seen.rowCount() - 1), Shivaji01::ToUnicode(name));
    if (m_dropped)
        PlaceList();
}

void NameCombo::DropDown(bool open)
{
    m_dropped = open && !m_names.isEmpty();
    if (m_dropped) {
        PlaceList();
        ShowMatch();
        m_list->raise();
    }
    m_list->setVisible(m_dropped);
}

bool NameCombo::KeyPress(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Down && key.key() != Qt::Key_Up)
        return TextField::KeyPress(key);
    const bool down = key.key() == Qt::Key_Down;
    if (key.modifiers().testFlag(Qt::AltModifier)) {
        DropDown(down);
        return true;
    }
    DropDown(true);
    const int row = CurrentRow();
    // At a name that was picked, on to its neighbour; at one that only begins with what was typed, this one.
    const int wanted = row >= 0 && m_names[row] != Text() ? row : row + (down ? 1 : -1);
    if (wanted >= 0 && wanted < m_names.size())
        Pick(wanted);
    return true;
}

int NameCombo::CurrentRow() const
{
    return m_list->currentIndex().row();
}

void NameCombo::ShowFocus(bool held)
{
    TextField::ShowFocus(held);
    if (!held)
        DropDown(false);
}

void NameCombo::Changed()
{
    if (m_dropped)
        ShowMatch();
}

void NameCombo::Pick(int row)
{
    m_list->setCurrentIndex(m_seen.index(row));
    SetText(m_names[row]);
    SelectAll();
    if (Change)
        Change();
}

// Below the field, or above it where there is more room.
void NameCombo::PlaceList()
{
    const QWidget& line = *Widget();
    const Screen& screen = Owner();
    const QPoint field = line.mapTo(&screen, QPoint(0, 0));
    const int below = screen.height() - field.y() - line.height();
    const int shown = static_cast<int>(std::min<qsizetype>(m_names.size(), 8));
    const int wanted = m_list->sizeHintForRow(0) * shown + 2 * m_list->frameWidth();
    const bool above = below < wanted && below < field.y();
    const int height = std::min(wanted, above ? field.y() : below);
    m_list->setGeometry(
        field.x(), above ? field.y() - height : field.y() + line.height(), line.width(), height);
}

// It stays at a name that is the one: two members may have the same.
void NameCombo::ShowMatch()
{
    const QString stored = Text();
    if (const int row = CurrentRow(); row >= 0 && m_names[row] == stored)
        return;
    const QString seen = Seen();
    const QStringList names = m_seen.stringList();
    qsizetype row = m_names.indexOf(stored);
    for (qsizetype at = 0; row < 0 && at < names.size(); ++at)
        if (m_names[at].startsWith(stored) || names[at].startsWith(seen))
            row = at;
    m_list->setCurrentIndex(row < 0 ? QModelIndex() : m_seen.index(static_cast<int>(row)));
}

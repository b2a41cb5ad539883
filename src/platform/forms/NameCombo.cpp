#include "NameCombo.h"

#include "Screen.h"
#include "Shivaji01.h"

#include <QKeyEvent>

#include <algorithm>

NameCombo::NameCombo(Screen* screen, const char* name)
    : TextField(screen, name)
    , m_list(*screen, [this](int row) {
        RunEvent([this, row] {
            Pick(row);
            DropDown(false);
        });
    })
{
}

void NameCombo::SetItems(const QStringList& names)
{
    m_names = names;
    QStringList seen;
    seen.reserve(names.size());
    for (const QString& name : names)
        seen.append(Shivaji01::ToUnicode(name));
    m_list.Rows().setStringList(seen);
    DropDown(IsDroppedDown());
}

void NameCombo::AddItem(const QString& name)
{
    AddItems({name});
}

void NameCombo::AddItems(const QStringList& names)
{
    m_names += names;
    QStringListModel& seen = m_list.Rows();
    int row = seen.rowCount();
    seen.insertRows(row, static_cast<int>(names.size()));
    for (const QString& name : names)
        seen.setData(seen.index(row++), Shivaji01::ToUnicode(name));
    if (IsDroppedDown())
        m_list.OpenAt(*Widget());
}

void NameCombo::DropDown(bool open)
{
    if (!open) {
        m_list.Close();
        return;
    }
    m_list.OpenAt(*Widget());
    ShowMatch();
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
    const int row = m_list.CurrentRow();
    // At a name that was picked, on to its neighbour; at one that only begins with what was typed, this one.
    const int wanted = row >= 0 && m_names[row] != Text() ? row : row + (down ? 1 : -1);
    if (wanted >= 0 && wanted < m_names.size())
        Pick(wanted);
    return true;
}

void NameCombo::ShowFocus(bool held)
{
    TextField::ShowFocus(held);
    if (!held)
        DropDown(false);
}

void NameCombo::Changed()
{
    if (IsDroppedDown())
        ShowMatch();
}

void NameCombo::Pick(int row)
{
    m_list.SetCurrentRow(row);
    SetText(m_names[row]);
    SelectAll();
    if (Change)
        Change();
}

// It stays at a name that is the one: two members may have the same.
void NameCombo::ShowMatch()
{
    const QString stored = Text();
    if (const int row = m_list.CurrentRow(); row >= 0 && m_names[row] == stored)
        return;
    m_list.SetCurrentRow(MatchOf(stored));
}

// The row of a name, or else the first one that begins with it, as it is stored or as it is seen; -1 is none.
int NameCombo::MatchOf(const QString& stored)
{
    const QString seen = Seen();
    const QStringList names = m_list.Rows().stringList();
    qsizetype row = m_names.indexOf(stored);
    for (qsizetype at = 0; row < 0 && at < names.size(); ++at)
        if (m_names[at].startsWith(stored) || names[at].startsWith(seen))
            row = at;
    return static_cast<int>(row);
}

void NameCombo::TakeMatch()
{
    const QString stored = Text();
    const QString word = stored.trimmed();
    if (word.isEmpty() || m_names.contains(stored))
        return;
    const auto same = std::find_if(
        m_names.begin(), m_names.end(), [&](const QString& name) { return name.trimmed() == word; });
    if (same != m_names.end())
        SetText(*same);
    else if (const int row = MatchOf(stored); row >= 0)
        SetText(m_names[row]);
}

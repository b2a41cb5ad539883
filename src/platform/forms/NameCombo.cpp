#include "platform/forms/NameCombo.h"

#include "platform/forms/Screen.h"
#include "platform/text/Shivaji01.h"

#include <QCollator>
#include <QKeyEvent>

#include <algorithm>

namespace {

// Sorts names as they are read, and equal names by their numbers.
std::vector<NameCombo::Entry> ByAlphabet(const std::vector<NameCombo::Entry>& names)
{
    static const QCollator alphabet(QLocale(QLocale::Marathi, QLocale::India));
    struct Place {
        QCollatorSortKey key;
        int number;
        const NameCombo::Entry* entry;
    };
    std::vector<Place> places;
    places.reserve(names.size());
    for (const NameCombo::Entry& entry : names)
        places.push_back({alphabet.sortKey(Shivaji01::ToUnicode(entry.name)), entry.number.toInt(), &entry});
    std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : a.number < b.number;
    });
    std::vector<NameCombo::Entry> sorted;
    sorted.reserve(places.size());
    for (const Place& place : places)
        sorted.push_back(*place.entry);
    return sorted;
}

// The reading of an unfinished name: a blank at the end means that the last word is complete.
QString BegunReading(const QString& stored)
{
    QString reading = Shivaji01::Reading(stored);
    if (!reading.isEmpty() && stored.back().isSpace())
        reading += u' ';
    return reading;
}

}

NameCombo::NameCombo(Screen* screen, const char* name, const Handler& lostFocus)
    : TextField(screen, name, lostFocus)
    , m_list(*screen, [this](int row) {
        RunEvent([this, row] {
            Pick(row);
            DropDown(false);
        });
    })
{
    AddOwnKey(QStringLiteral("↓"));
}

void NameCombo::OpenOnFocus(const std::function<bool()>& fill)
{
    GotFocus = [fill] {
        if (!fill || fill())
            SendKeys(QStringLiteral("%{Down}"));
    };
}

void NameCombo::SetItems(const QStringList& words)
{
    m_given.clear();
    for (const QString& word : words)
        m_given.push_back({word, {}});
    m_numbered.clear();
    m_rows = m_given;
    m_byAlphabet = false;
    ShowRows();
}

void NameCombo::SetNames(const std::vector<Entry>& names)
{
    if (m_byAlphabet && names == m_given) {
        DropDown(IsDroppedDown());
        return;
    }
    m_given.clear();
    m_numbered.clear();
    m_rows.clear();
    if (names.empty())
        ShowRows();
    AddNames(names);
}

void NameCombo::AddNames(const std::vector<Entry>& names)
{
    m_given.insert(m_given.end(), names.begin(), names.end());
    m_byAlphabet = true;
    const std::size_t before = m_rows.size();
    for (const Entry& entry : names) {
        const std::pair row(entry.name, entry.number);
        if (m_numbered.contains(row))
            continue;
        if (!entry.number.isEmpty())
            m_numbered.insert(row);
        m_rows.push_back(entry);
    }
    if (m_rows.size() == before)
        return;
    m_rows = ByAlphabet(m_rows);
    ShowRows();
}

void NameCombo::PutFirst(const QString& word)
{
    m_given.insert(m_given.begin(), {word, {}});
    m_rows.insert(m_rows.begin(), {word, {}});
    ShowRows();
}

QStringList NameCombo::Items() const
{
    QStringList names;
    for (const Entry& entry : m_given)
        names.append(entry.name);
    return names;
}

void NameCombo::ShowRows()
{
    QStringList seen;
    QStringList numbers;
    m_readings.clear();
    for (const Entry& entry : m_rows) {
        seen.append(Shivaji01::ToUnicode(entry.name));
        m_readings.append(Shivaji01::Reading(entry.name));
        numbers.append(entry.number);
    }
    m_list.SetRows(seen, numbers);
    DropDown(IsDroppedDown());
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
    const int row = m_list.CurrentRow() >= 0 ? m_list.CurrentRow() : MatchOf(Text());
    // From a picked name to its neighbour. If the highlighted name only begins with the text, it is taken
    // first.
    const int wanted = row >= 0 && m_rows[row].name != Text() ? row : row + (down ? 1 : -1);
    if (wanted >= 0 && wanted < static_cast<int>(m_rows.size()))
        Pick(wanted);
    return true;
}

bool NameCombo::KeyBeforeScreen(const QKeyEvent& key)
{
    if (!IsDroppedDown())
        return false;
    switch (key.key()) {
    case Qt::Key_Escape:
        DropDown(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        if (const int row = m_list.CurrentRow(); row >= 0)
            Take(row);
        DropDown(false);
        return false; // the screen handles it
    default:
        return false;
    }
}

void NameCombo::ShowFocus(bool held)
{
    TextField::ShowFocus(held);
    if (!held)
        DropDown(false);
}

void NameCombo::Changed()
{
    m_picked.clear();
    if (IsDroppedDown())
        ShowMatch();
}

void NameCombo::SetEntry(const Entry& entry)
{
    SetText(entry.name);
    m_picked = entry.number;
    ShowMatch();
}

void NameCombo::Take(int row)
{
    const Entry taken = m_rows[row];
    const bool isOther = taken.name != Text();
    m_list.SetCurrentRow(row);
    SetEntry(taken);
    if (isOther && Change)
        Change();
}

void NameCombo::Pick(int row)
{
    Take(row);
    SelectAll();
}

// A picked name stays highlighted: two members may have the same name.
void NameCombo::ShowMatch()
{
    const int row = m_list.CurrentRow();
    const bool stays = row >= 0 && m_rows[row].name == Text() && MayMean(m_rows[row].number);
    m_list.SetCurrentRow(stays ? row : HighlightOf(Text()));
}

int NameCombo::HighlightOf(const QString& stored) const
{
    const int row = MatchOf(stored);
    return m_takesBeginnings || (row >= 0 && m_rows[row].name == stored) ? row : -1;
}

// The row with this name (if there are several, the one with the picked number), or else the first that
// begins with it as it is stored, shown or read; -1 if there is none.
int NameCombo::MatchOf(const QString& stored) const
{
    if (stored.isEmpty())
        return -1;
    const auto same = std::find_if(m_rows.begin(), m_rows.end(),
        [&](const Entry& entry) { return entry.name == stored && MayMean(entry.number); });
    if (same != m_rows.end())
        return static_cast<int>(same - m_rows.begin());
    const QString seen = Seen();
    const QString reading = BegunReading(stored);
    const QStringList texts = m_list.Rows();
    for (qsizetype row = 0; row < texts.size(); ++row)
        if (m_rows[row].name.startsWith(stored) || texts[row].startsWith(seen)
            || (!reading.isEmpty() && m_readings[row].startsWith(reading)))
            return static_cast<int>(row);
    return -1;
}

void NameCombo::TakeMatch()
{
    const QString stored = Text();
    const QString word = stored.trimmed();
    const auto holds = [this](const auto& isIt) { return std::find_if(m_rows.begin(), m_rows.end(), isIt); };
    if (word.isEmpty() || holds([&](const Entry& entry) { return entry.name == stored; }) != m_rows.end())
        return;
    auto same = holds([&](const Entry& entry) { return entry.name.trimmed() == word; });
    if (same == m_rows.end())
        same = holds([reading = Shivaji01::Reading(word)](
                         const Entry& entry) { return Shivaji01::Reading(entry.name) == reading; });
    if (same != m_rows.end())
        SetText(same->name);
    else if (const int row = MatchOf(stored); row >= 0)
        SetText(m_rows[row].name);
}

#include "platform/forms/ChoiceCombo.h"

#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"
#include "platform/text/Shivaji01.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace {

// The arrow of a field that has a list. Mouse presses on it go to the field.
void PutArrow(QLineEdit& line)
{
    auto* arrow = new QLabel(QStringLiteral("▼"));
    arrow->setFont(Look::Font(Look::Size::Small));
    arrow->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* row = new QHBoxLayout(&line);
    row->setContentsMargins(0, 0, 8, 0);
    row->addStretch(1);
    row->addWidget(arrow);
    line.setTextMargins(4, 0, 28, 0);
    line.setCursor(Qt::ArrowCursor);
}

}

ChoiceCombo::ChoiceCombo(Screen* screen, const char* name, const QStringList& words, const Handler& lostFocus)
    : Field(screen, name, lostFocus)
    , m_list(*screen, [this](int row) {
        RunEvent([this, row] {
            SetText(m_words[row]);
            SelectAll();
            DropDown(false);
        });
    })
{
    Line().setReadOnly(true);
    PutArrow(Line());
    SetWords(words);
    for (const char* key : {"Alt+↓", "↑ ↓", "1 2 3 …"})
        AddOwnKey(QString::fromUtf8(key));
}

void ChoiceCombo::SetWords(const QStringList& words)
{
    m_words = words;
    QStringList seen;
    for (const QString& word : words)
        seen.append(Shivaji01::ToUnicode(word));
    m_list.SetRows(seen);
    DropDown(IsDroppedDown());
}

void ChoiceCombo::SetText(const QString& word)
{
    const QString before = std::exchange(m_word, word);
    Line().setText(Shivaji01::ToUnicode(word));
    Line().setCursorPosition(0);
    m_list.SetCurrentRow(static_cast<int>(m_words.indexOf(m_word)));
    TellChange(before);
}

void ChoiceCombo::DropDown(bool open)
{
    if (!open) {
        m_list.Close();
        return;
    }
    m_list.OpenAt(*Widget());
    m_list.SetCurrentRow(static_cast<int>(m_words.indexOf(m_word)));
}

bool ChoiceCombo::KeyPress(const QKeyEvent& key)
{
    if (m_mouseOnly)
        return true;
    switch (key.key()) {
    case Qt::Key_Down:
    case Qt::Key_Up: {
        const bool down = key.key() == Qt::Key_Down;
        if (key.modifiers().testFlag(Qt::AltModifier))
            DropDown(down);
        else if (IsDroppedDown())
            Walk(down ? 1 : -1);
        return true;
    }
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        SetText({}); // part of a word is not a choice
        return true;
    default:
        break;
    }
    const bool plain = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (plain && !key.text().isEmpty())
        Choose(key.text()[0]);
    else
        CopyKey(key);
    return true;
}

// While the list is open, Esc only closes it.
bool ChoiceCombo::KeyBeforeScreen(const QKeyEvent& key)
{
    if (!IsDroppedDown() || key.key() != Qt::Key_Escape)
        return false;
    DropDown(false);
    return true;
}

void ChoiceCombo::Insert(const QString& text)
{
    if (!m_mouseOnly && !text.isEmpty())
        Choose(text[0]);
}

void ChoiceCombo::ShowFocus(bool held)
{
    Field::ShowFocus(held);
    if (!held)
        DropDown(false);
}

void ChoiceCombo::MouseDone()
{
    DropDown(!IsDroppedDown());
}

void ChoiceCombo::Choose(QChar digit)
{
    const qsizetype place = digit.digitValue();
    if (place < 1 || place > std::min<qsizetype>(m_digits, m_words.size()))
        return;
    SetText(m_words[place - 1]);
    DropDown(false);
}

void ChoiceCombo::Walk(int step)
{
    const qsizetype row = m_words.indexOf(m_word) + step;
    if (row < 0 || row >= m_words.size())
        return;
    SetText(m_words[row]);
    SelectAll();
}

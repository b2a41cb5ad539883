#include "platform/forms/TextField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace {

constexpr QChar Virama(0x094D);

bool IsDevanagari(QChar c)
{
    return c.unicode() >= 0x0900 && c.unicode() <= 0x097F;
}

bool IsJoiner(QChar c)
{
    return c.unicode() == 0x200C || c.unicode() == 0x200D;
}

bool HoldsDevanagari(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), IsDevanagari);
}

bool IsLatinLetter(QChar c)
{
    return c.isLetter() && c.unicode() < 0x80;
}

// Whether the encoding can show a character of the keyboard as itself; Latin letters and digits are keys of
// the layout.
bool HasPlace(QChar c)
{
    return c.unicode() >= 0x80 || c.isLetterOrNumber()
        || Shivaji01::ToUnicode(Shivaji01::FromUnicode(QStringView(&c, 1))) == c;
}

}

TextField::TextField(Screen* screen, const char* name, const Handler& lostFocus)
    : Field(screen, name, lostFocus)
{
}

void TextField::SetText(const QString& stored)
{
    const QString before = m_stored;
    Hold(stored);
    m_caret = m_anchor = stored.size();
    Show();
    Changed();
    TellChange(before);
}

void TextField::Hold(const QString& stored)
{
    m_stored = stored;
    PutIntoLine(Shivaji01::ToUnicode(stored, m_pieces));
}

void TextField::SelectAll()
{
    m_anchor = 0;
    m_caret = m_stored.size();
    Show();
}

bool TextField::KeyPress(const QKeyEvent& key)
{
    if (TypeAltNumber(key))
        return true;
    const bool select = key.modifiers().testFlag(Qt::ShiftModifier);
    switch (key.key()) {
    case Qt::Key_Left:
        MoveCaret(Before(m_caret), select);
        return true;
    case Qt::Key_Right:
        MoveCaret(Behind(m_caret), select);
        return true;
    case Qt::Key_Home:
        MoveCaret(0, select);
        return true;
    case Qt::Key_End:
        MoveCaret(m_stored.size(), select);
        return true;
    case Qt::Key_Backspace:
        Backspace();
        return true;
    case Qt::Key_Delete:
        Delete();
        return true;
    default:
        break;
    }
    if (key.matches(QKeySequence::SelectAll))
        SelectAll();
    else if (key.matches(QKeySequence::Paste))
        Insert(QGuiApplication::clipboard()->text());
    else if (!CopyKey(key) && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        Insert(key.text());
    return true;
}

// A code without a key is typed as four digits while Alt is held; the last digit inserts it.
bool TextField::TypeAltNumber(const QKeyEvent& key)
{
    const bool isDigit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    if (!isDigit || !key.modifiers().testFlag(Qt::AltModifier)) {
        if (key.key() != Qt::Key_Alt)
            m_altDigits.clear();
        return false;
    }
    constexpr int digits = 4;
    m_altDigits += QChar(key.key());
    if (m_altDigits.size() < digits)
        return true;
    if (const char16_t code = Shivaji01::CodeOfAltNumber(m_altDigits.toInt()))
        Insert(QString(QChar(code)));
    m_altDigits.clear();
    return true;
}

void TextField::Insert(const QString& text)
{
    QString taken;
    for (QChar c : text)
        if ((c.isPrint() || IsJoiner(c)) && (!Accepts || Accepts(c)))
            taken += c;
    if (taken.isEmpty())
        return;
    if (IsJoiner(taken[0]) || HoldsDevanagari(taken)) {
        m_inUnicode = true;
        taken.removeIf([](QChar c) { return !HasPlace(c); });
        InsertSeen(taken);
    } else {
        InsertKeys(taken);
    }
}

// Inserts keys of the old layout. After Devanagari came in, a hyphen is a hyphen, not the sign which that key
// gives, until a Latin letter is typed. Characters that the encoding lacks are ignored, since it would show
// them as letters.
void TextField::InsertKeys(const QString& keys)
{
    if (std::any_of(keys.cbegin(), keys.cend(), IsLatinLetter))
        m_inUnicode = false;
    QString stored = keys;
    if (m_inUnicode) {
        stored.clear();
        for (QChar c : keys)
            if (HasPlace(c))
                stored += c.unicode() < 0x80 ? Shivaji01::FromUnicode(QStringView(&c, 1)) : QString(c);
    }
    if (!stored.isEmpty())
        Replace(Selection(), stored);
}

// A sign, or what follows a half letter, becomes part of the syllable before it, which is spelled again. The
// rest of the field keeps its spelling.
void TextField::InsertSeen(const QString& devanagari)
{
    Range range = Selection();
    qsizetype before = Before(range.start);
    while (before > 0 && IsJoiner(m_stored[before]))
        before = Before(before);
    QString whole = Shivaji01::ToUnicode(QStringView(m_stored).mid(before, range.start - before));
    const bool open = whole.endsWith(Virama) || (!whole.isEmpty() && IsJoiner(whole.back()));
    if (open || devanagari[0].isMark() || IsJoiner(devanagari[0])) {
        whole += devanagari;
        range.start = before;
    } else {
        whole = devanagari;
    }
    Replace(range, Shivaji01::FromUnicode(whole));
}

// The line edit shows the composition at its caret. It would also erase the selection without telling us, so
// that is done here first.
void TextField::ShowComposition(const QString& text)
{
    m_inUnicode = m_inUnicode || HoldsDevanagari(text);
    if (!text.isEmpty())
        EraseSelection();
    QInputMethodEvent shown(text, {});
    static_cast<QObject&>(Line()).event(&shown);
}

TextField::Range TextField::Selection() const
{
    return {std::min(m_caret, m_anchor), std::max(m_caret, m_anchor)};
}

void TextField::Replace(Range range, const QString& stored)
{
    QString text = m_stored;
    text.replace(range.start, range.end - range.start, stored);
    if (m_maxLength > 0 && text.size() > m_maxLength && text.size() > m_stored.size())
        return;
    const QString before = m_stored;
    Hold(text);
    m_caret = m_anchor = range.start + stored.size();
    Show();
    Changed();
    TellChange(before);
    if (Change)
        Change();
}

bool TextField::EraseSelection()
{
    if (m_caret == m_anchor)
        return false;
    Replace(Selection(), {});
    return true;
}

// Removes codes until less is shown: a half form without its stem shows more than the full letter. If the
// rest of the piece would join the syllable after the caret, the whole piece is removed.
void TextField::Backspace()
{
    if (EraseSelection() || m_caret == 0)
        return;
    const QStringView before = QStringView(m_stored).left(m_caret);
    const qsizetype seen = Shivaji01::ToUnicode(before).size();
    qsizetype left = m_caret - 1;
    while (left > 0 && Shivaji01::ToUnicode(before.left(left)).size() >= seen)
        --left;
    if (JoinsWhatIsBehind(before.left(left)))
        left = Before(m_caret);
    Replace({left, m_caret}, {});
}

// Whether the syllable after the caret would change with this text before it.
bool TextField::JoinsWhatIsBehind(QStringView before) const
{
    std::vector<Shivaji01::Piece> pieces;
    Shivaji01::ToUnicode(QString(before + QStringView(m_stored).sliced(m_caret)), pieces);
    return m_caret < m_stored.size()
        && std::none_of(pieces.begin(), pieces.end(),
            [&](const Shivaji01::Piece& piece) { return piece.storedStart == before.size(); });
}

void TextField::Delete()
{
    if (!EraseSelection() && m_caret < m_stored.size())
        Replace({m_caret, Behind(m_caret)}, {});
}

void TextField::MoveCaret(qsizetype to, bool select)
{
    m_caret = to;
    if (!select)
        m_anchor = to;
    Show();
}

void TextField::MouseDone()
{
    const auto caret = StoredOf(Line().cursorPosition());
    if (!Line().hasSelectedText()) {
        MoveCaret(caret, false);
        return;
    }
    m_anchor = StoredOf(Line().selectionStart());
    m_caret = StoredOf(Line().selectionStart() + Line().selectedText().size());
    Show();
}

void TextField::Show()
{
    const auto caret = static_cast<int>(SeenOf(m_caret));
    const auto anchor = static_cast<int>(SeenOf(m_anchor));
    if (caret == anchor)
        Line().setCursorPosition(caret);
    else
        Line().setSelection(anchor, caret - anchor);
}

qsizetype TextField::SeenOf(qsizetype stored) const
{
    for (const Shivaji01::Piece& piece : m_pieces)
        if (stored <= piece.storedStart)
            return piece.seenStart;
        else if (stored < piece.storedStart + piece.storedLength)
            return piece.seenStart + piece.seenLength;
    return Seen().size();
}

qsizetype TextField::StoredOf(qsizetype seen) const
{
    for (const Shivaji01::Piece& piece : m_pieces)
        if (seen <= piece.seenStart + piece.seenLength / 2)
            return piece.storedStart;
        else if (seen < piece.seenStart + piece.seenLength)
            return piece.storedStart + piece.storedLength;
    return m_stored.size();
}

qsizetype TextField::Before(qsizetype stored) const
{
    qsizetype start = 0;
    for (const Shivaji01::Piece& piece : m_pieces)
        if (piece.storedStart < stored)
            start = piece.storedStart;
    return start;
}

qsizetype TextField::Behind(qsizetype stored) const
{
    for (const Shivaji01::Piece& piece : m_pieces)
        if (piece.storedStart + piece.storedLength > stored)
            return piece.storedStart + piece.storedLength;
    return m_stored.size();
}

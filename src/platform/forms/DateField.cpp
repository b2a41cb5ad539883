#include "platform/forms/DateField.h"

#include "platform/text/Dates.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int Length = 10;

bool IsSlash(int at)
{
    return at == 2 || at == 5;
}

}

DateField::DateField(Screen* screen, const char* name, const Handler& lostFocus)
    : Field(screen, name, lostFocus)
{
    Line().setInputMethodHints(Qt::ImhDate);
    SetText({});
}

QString DateField::Text() const
{
    return Line().text();
}

void DateField::SetText(const QString& text)
{
    const QString before = Text();
    Line().setText(text.size() == Length ? text : DateMask::Empty.toString());
    Line().setCursorPosition(0);
    TellChange(before);
}

void DateField::SetDate(const QDate& date)
{
    SetText(DateText(date));
}

bool DateField::HoldsDate() const
{
    return IsDate(Text());
}

bool DateField::InsistOnDate(const Caption& wanted)
{
    const bool holds = HoldsDate();
    if (!holds)
        SetFocus(wanted);
    return holds;
}

bool DateField::IsEmptyMask() const
{
    return Text() == DateMask::Empty;
}

QDate DateField::Date() const
{
    return ToDate(Text());
}

void DateField::ShowFocus(bool held)
{
    Field::ShowFocus(held);
    if (held && m_keepsForMending && !HoldsDate())
        Line().setCursorPosition(0);
}

bool DateField::KeyPress(const QKeyEvent& key)
{
    const QString before = Text();
    switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return false;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        Erase(key.key() == Qt::Key_Backspace);
        TellChange(before);
        return true;
    default:
        break;
    }
    if (key.matches(QKeySequence::Paste))
        Insert(QGuiApplication::clipboard()->text());
    else if (!CopyKey(key) && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        Insert(key.text());
    return true;
}

void DateField::Insert(const QString& text)
{
    const QString before = Text();
    for (QChar c : text) {
        if (c.digitValue() >= 0)
            TypeDigit(QChar(u'0' + c.digitValue()));
        else if (c == u'/' || c == u'.' || c == u'-')
            EndPart();
    }
    TellChange(before);
}

void DateField::TypeDigit(QChar digit)
{
    EraseSelection();
    int at = Line().cursorPosition();
    if (IsSlash(at))
        ++at;
    if (at >= Length)
        return;
    Put(at, digit);
    Line().setCursorPosition(IsSlash(at + 1) ? at + 2 : at + 1);
}

// Fills up a day or month of which only one digit was typed: 4 becomes 04.
void DateField::EndPart()
{
    const int start = Line().cursorPosition() - 1;
    if (Line().hasSelectedText() || (start != 0 && start != 3))
        return;
    const QString text = Text();
    if (!text[start].isDigit())
        return;
    if (!text[start + 1].isDigit()) {
        Put(start + 1, text[start]);
        Put(start, u'0');
    }
    Line().setCursorPosition(start + 3);
}

void DateField::Erase(bool backwards)
{
    if (Line().hasSelectedText()) {
        EraseSelection();
        return;
    }
    int at = Line().cursorPosition();
    if (backwards)
        at -= IsSlash(at - 1) ? 2 : 1;
    else if (IsSlash(at))
        ++at;
    if (at < 0 || at >= Length)
        return;
    Put(at, u'_');
    Line().setCursorPosition(backwards ? at : at + 1);
}

void DateField::EraseSelection()
{
    if (!Line().hasSelectedText())
        return;
    const int start = Line().selectionStart();
    const int end = start + static_cast<int>(Line().selectedText().size());
    for (int at = start; at < end; ++at)
        if (!IsSlash(at))
            Put(at, u'_');
    Line().setCursorPosition(start);
}

void DateField::Put(int at, QChar c)
{
    QString text = Text();
    text[at] = c;
    Line().setText(text);
    Line().setCursorPosition(at);
}

#include "platform/forms/Field.h"

#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

Field::Field(Screen* screen, const char* name, const Handler& lostFocus)
    : Control(screen, name, new QLineEdit)
{
    LostFocus = lostFocus.On(*screen);
    Line().setTextMargins(4, 0, 4, 0);
    Line().setContextMenuPolicy(Qt::NoContextMenu);
    Line().setDragEnabled(false);
    Line().setAcceptDrops(false);
}

QLineEdit& Field::Line() const
{
    return *static_cast<QLineEdit*>(Widget());
}

void Field::SelectAll()
{
    Line().selectAll();
}

void Field::SetMaxLength(int characters)
{
    Line().setMaxLength(characters > 0 ? characters : 32767);
}

void Field::SetAlignRight()
{
    Line().setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QString Field::Seen() const
{
    return m_kept.value_or(Line().text());
}

void Field::PutIntoLine(const QString& seen)
{
    if (m_isUnseen)
        m_kept = seen;
    else if (seen == Line().text())
        Line().end(false);
    else
        Line().setText(seen);
}

void Field::SetUnseen(bool unseen)
{
    m_isUnseen = unseen;
    if (!unseen && m_kept)
        PutIntoLine(*std::exchange(m_kept, std::nullopt));
}

void Field::ShowFocus(bool held)
{
    Control::ShowFocus(held);
    m_wasPressed = false;
    if (held)
        SelectAll();
    else
        Line().deselect();
}

// The press that brings the focus keeps the text selected.
bool Field::KeepsPress(bool entering)
{
    if (std::exchange(m_wasPressed, true) && CaretByMouse())
        return false;
    if (!entering)
        SelectAll();
    return true;
}

void Field::TellChange(const QString& before) const
{
    if (TextChanged && Text() != before)
        TextChanged();
}

bool Field::CopyKey(const QKeyEvent& key) const
{
    if (!key.matches(QKeySequence::Copy))
        return false;
    QGuiApplication::clipboard()->setText(Line().selectedText());
    return true;
}

namespace {

// Keys that move the caret or erase; the line edit handles them.
bool IsEditKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return !key.modifiers().testFlag(Qt::AltModifier);
    default:
        return false;
    }
}

bool IsTyped(const QKeyEvent& key)
{
    return !key.text().isEmpty() && key.text()[0].isPrint()
        && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}

NumberField::NumberField(Screen* screen, const char* name, Digits digits, const Handler& lostFocus)
    : Field(screen, name, lostFocus)
    , m_digits(digits)
{
    SetAlignRight();
    Line().setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    QObject::connect(&Line(), &QLineEdit::textEdited, &Line(), [this] {
        if (TextChanged)
            RunEvent(TextChanged);
    });
}

NumberField::NumberField(Screen* screen, const char* name, QStringView pattern, const Handler& lostFocus)
    : NumberField(screen, name, Digits::Decimals, lostFocus)
{
    SetPattern(pattern);
}

double NumberField::Value() const
{
    return Val(Text());
}

bool NumberField::HoldsNumber() const
{
    return IsNumeric(Text());
}

void NumberField::Show(double value)
{
    SetText(m_pattern.isEmpty() ? ShortestDecimal(value) : Format(value, m_pattern));
}

double NumberField::Reformat()
{
    const double value = Value();
    Show(value);
    return value;
}

QString NumberField::Text() const
{
    return Seen();
}

void NumberField::SetText(const QString& text)
{
    const QString before = Text();
    PutIntoLine(text);
    TellChange(before);
}

// Turns digits of any script into 0 to 9, and the comma of the numeric keypad into a point.
QString NumberField::FigureOf(const QString& text, bool keypad) const
{
    QString figures;
    for (QChar c : text) {
        if (c.digitValue() >= 0)
            figures += QChar(u'0' + c.digitValue());
        else if (c == u'.' || (keypad && c == u','))
            figures += u'.';
        else if (m_takesN && c == u'n')
            figures += c;
    }
    return figures;
}

bool NumberField::KeyPress(const QKeyEvent& key)
{
    if (IsEditKey(key))
        return false;
    if (IsTyped(key))
        Insert(FigureOf(key.text(), key.modifiers().testFlag(Qt::KeypadModifier)));
    else if (key.matches(QKeySequence::Paste))
        Insert(QGuiApplication::clipboard()->text());
    else if (key.matches(QKeySequence::SelectAll))
        SelectAll();
    else
        CopyKey(key);
    return true;
}

void NumberField::Insert(const QString& text)
{
    QString figures = FigureOf(text, false);
    if (const qsizetype point = figures.indexOf(u'.'); m_digits == Digits::Whole && point >= 0)
        figures.truncate(point);
    if (m_maxLength > 0)
        figures.truncate(std::max(m_maxLength - Text().size() + Line().selectedText().size(), qsizetype{0}));
    if (!figures.isEmpty()) // inserting an empty text would erase the selection
        Line().insert(figures);
}

ChoiceField::ChoiceField(
    Screen* screen, const char* name, std::vector<Choice> choices, const Handler& lostFocus)
    : Field(screen, name, lostFocus)
    , m_choices(std::move(choices))
{
    Line().setReadOnly(true);
    SetGuide(Shivaji(GuideTo(m_choices)));
    AddOwnKey(QStringLiteral("1 2"));
    AddOwnKey(QStringLiteral("1 2 3"));
}

QString ChoiceField::GuideTo(const std::vector<Choice>& choices)
{
    QStringList named;
    for (const Choice& choice : choices)
        named.append(choice.digit + QStringLiteral(" ¹ ") + choice.word);
    return named.join(QStringLiteral("    "));
}

void ChoiceField::SetText(const QString& word)
{
    const QString before = std::exchange(m_word, word);
    Line().setText(Shivaji01::ToUnicode(word));
    Line().setCursorPosition(0);
    TellChange(before);
}

bool ChoiceField::KeyPress(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Backspace && !m_locked)
        SetText({}); // part of a word is not a choice
    else if (IsTyped(key))
        Choose(key.text()[0]);
    else
        CopyKey(key);
    return true;
}

void ChoiceField::Insert(const QString& text)
{
    Choose(text[0]);
}

void ChoiceField::Choose(QChar digit)
{
    for (const Choice& choice : m_choices)
        if (choice.digit.digitValue() == digit.digitValue() && digit.digitValue() >= 0)
            SetText(choice.word);
}

PlainField::PlainField(Screen* screen, const char* name) : Field(screen, name)
{
    QObject::connect(&Line(), &QLineEdit::textEdited, &Line(), [this] {
        if (Change)
            RunEvent(Change);
        if (TextChanged)
            RunEvent(TextChanged);
    });
}

QString PlainField::Text() const
{
    return Line().text();
}

void PlainField::SetText(const QString& text)
{
    const QString before = Text();
    if (text != before)
        Line().setText(text);
    TellChange(before);
}

// The line edit handles every key.
bool PlainField::KeyPress(const QKeyEvent&)
{
    return false;
}

void PlainField::Insert(const QString& text)
{
    Line().insert(text);
}

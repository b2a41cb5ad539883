#pragma once

#include "platform/forms/Control.h"

#include <QGridLayout>
#include <QSize>

#include <initializer_list>
#include <vector>

// The functions of the screen that answer the keys of a hint, one for each key in their order; none if a
// control or the focus answers them.
class KeyHandlers {
public:
    KeyHandlers() = default;
    KeyHandlers(const Handler& only) : m_handlers{only} { }
    template <class S> KeyHandlers(void (S::*only)()) : m_handlers{Handler(only)} { }
    KeyHandlers(std::initializer_list<Handler> handlers) : m_handlers(handlers) { }

    bool AreNone() const { return m_handlers.empty(); }

    // That of a key of the hint, counted from 0; there must be one.
    const Handler& Of(std::size_t key) const { return m_handlers.at(key); }

private:
    std::vector<Handler> m_handlers;
};

// A key and what it does, for the strip at the bottom of a screen.
struct KeyHint {
    QString key; // "F2", "Ctrl+PgDn"; several of one meaning with blanks between, "↑ ↓"
    Caption action;
    KeyHandlers pressed = {};
    bool lit = true; // whether it does something; if not, it is shown in a dull colour
    bool ofField = false; // a control answers it, and it is dull while one without it has the focus
};

// The parts that every screen is made of, so that all screens look alike.
namespace Layout {

// The height of a field, and the room between fields that stand freely under one another.
inline constexpr int FieldHeight = 38;
inline constexpr int Roomy = 14;

// The widths of a date and of a name that is asked for by itself.
inline constexpr int DateWidth = 150;
inline constexpr int NameWidth = 420;

// The least size of a card: one that asks for a single thing, one that greets, one that is read or asks for
// more.
inline constexpr QSize SmallCard(520, 320);
inline constexpr QSize GreetingCard(640, 400);
inline constexpr QSize WideCard(760, 420);

// On a card: the least room of a message, a line of text that is asked for, and a date that stands alone.
inline constexpr QSize MessageRoom(560, 120);
inline constexpr int LineWidth = 560;
inline constexpr QSize LoneDate(220, 56);

// The list of the main menu, which shows its six entries.
inline constexpr QSize MainList(400, 246);

// A text that names something or stands for itself. No '&' in it marks a letter.
QLabel* Text(const Caption& caption, Qt::Alignment align = Qt::AlignLeft, bool bold = false);

// The band at the top of a screen: its title, and at the right the society and the year.
QWidget* Header(Label& title, Label& company, Label& year);
QWidget* Header(Label& title, Label& company);
QWidget* Header(Label& title);

// The strip of keys at the bottom of a screen. It takes as many rows as it needs. A key that does nothing now
// is dull: a letter whose button can't be pressed, a key of fields that the one in focus hasn't.
QWidget* KeyStrip(const std::vector<KeyHint>& hints);

// Puts the parts of a screen below each other without gaps; `body` takes the remaining room.
void Stack(Screen& screen, QWidget* header, QLayout* body, QWidget* keys);

// A row of buttons, spread evenly.
QLayout* ButtonRow(std::initializer_list<Control*> buttons);

// Fields below each other, each with its caption at the left. A screen reader says the caption as the name of
// the field.
class Form {
public:
    Form();

    // One field with its caption; `width` in pixels, 0 for the width of the form.
    void Row(const Caption& caption, Control& field, int width = 0);

    // One field, and beside it what is told of it, in the room of a name.
    void Row(const Caption& caption, Control& field, int width, Label& told);

    // Several fields after one caption. Each has another caption of its own for a screen reader.
    void Row(const Caption& caption, std::initializer_list<std::pair<Control*, Caption>> fields, int width);

    // A label that fills a row, such as a guide line.
    void Row(Label& label);

    QGridLayout* Grid() const { return m_grid; }

private:
    QGridLayout* m_grid;
    int m_row = 0;
};

// What a screen asks for before it goes to work: the form in the middle, with room below it for a list of
// names that drops down, and the buttons at the foot.
QLayout* InTheMiddle(const Form& form, std::initializer_list<Control*> buttons);

// Makes a label the guide line: it has the colour of guides, and a long text doesn't widen the screen.
void MakeGuide(Label& label);

// Sets the height of a field and, if not 0, its width in pixels.
void SizeField(Control& field, int width);

}

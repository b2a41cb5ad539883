#pragma once

#include "platform/forms/Control.h"

#include <QGridLayout>

#include <initializer_list>

// One key and what it does, as a strip at the foot of a screen shows it.
struct KeyHint {
    QString key; // "F2", "Esc"
    Caption action;
    Handler pressed = {}; // what the screen does at it; none where a control or the focus answers
    bool lit = true; // whether it does something; a key that doesn't stands there in a dull colour
};

// The pieces that every screen is put together from, so that they all look like one program.
namespace Layout {

// The height of a field, and the room between fields that stand freely under one another.
inline constexpr int FieldHeight = 38;
inline constexpr int Roomy = 14;

// The widths of a date and of a name that is asked for by itself.
inline constexpr int DateWidth = 150;
inline constexpr int NameWidth = 420;

// A text that names something or stands for itself. No '&' in it marks a letter.
QLabel* Text(const Caption& caption, Qt::Alignment align = Qt::AlignLeft, bool bold = false);

// The band at the head of a screen: its title, and the society and year at the right.
QWidget* Header(Label& title, Label& company, Label& year);
QWidget* Header(Label& title, Label& company);
QWidget* Header(Label& title);

// The strip at the foot of a screen: the keys and what they do, in as many rows as they need there.
QWidget* KeyStrip(const std::vector<KeyHint>& hints);

// Stacks the parts of a screen without gaps; `body` takes what room is left.
void Stack(Screen& screen, QWidget* header, QLayout* body, QWidget* keys);

// A row of buttons, spread evenly.
QLayout* ButtonRow(std::initializer_list<Control*> buttons);

// Fields under one another, each behind its caption. The caption names the field to a screen reader.
class Form {
public:
    Form();

    // One field behind its caption; `width` in pixels, 0 for as wide as the form.
    void Row(const Caption& caption, Control& field, int width = 0);

    // Several fields behind one caption; each has a caption of its own for a screen reader.
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

// Makes a label a line of guidance: in the colour of guides, never growing the screen.
void MakeGuide(Label& label);

// Gives a field its height and, if not 0, its width.
void SizeField(Control& field, int width);

}

#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Look.h"

#include <QGridLayout>
#include <QLabel>

#include <initializer_list>

class DataGrid;

// What screens of large fields and figures, such as the counters, are put together from.
namespace Pieces {

// The heights of the fields: of those in a line, and of the figures of the milk.
inline constexpr int LineField = 38;
inline constexpr int TallField = 50;

// A caption that stands for itself, in ink.
QLabel* Heading(const Caption& caption, Look::Size size = Look::Size::Normal, bool bold = false);

// Gives a text on a panel the colour of texts.
void SetInk(QWidget& widget);

// A sign of the reckoning, such as "×", between two tall fields.
QLabel* Sign(QStringView sign);

// A sheet with a thin edge, on white.
QFrame* Sheet();

// A field under its caption; `width` in pixels, 0 for what is left.
QLayout* Under(const Caption& caption, Field& field, int width, Look::Size size, int height);

// A field, a button: its height, its width (0 for what is left) and the size of its letters.
QWidget* Sized(Control& control, int width, int height, Look::Size size, bool bold = false);

// A figure that is worked out: right-aligned.
QLabel* Figure(const Label& label, Look::Size size, bool bold = true);

// Fits a list to the room below the entry line: the height of a row, the size of its letters,
// and the height of its head, which has room for captions of two lines.
QWidget* List(
    const DataGrid& grid, int rowHeight = 28, Look::Size size = Look::Size::Normal, int headHeight = 44);

}

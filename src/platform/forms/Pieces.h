#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Look.h"

#include <QGridLayout>
#include <QLabel>

#include <initializer_list>

class DataGrid;

// Parts for screens with large fields and figures, such as the counters.
namespace Pieces {

// The heights of fields in pixels: of those in a line, and of those for the figures of the milk.
inline constexpr int LineField = 38;
inline constexpr int TallField = 50;

// A caption without a field, in the colour of texts.
QLabel* Heading(const Caption& caption, Look::Size size = Look::Size::Normal, bool bold = false);

// Sets the colour of texts for a widget on a panel.
void SetInk(QWidget& widget);

// A sign such as "×" between two tall fields.
QLabel* Sign(QStringView sign);

// A white sheet with a thin border.
QFrame* Sheet();

// A field with its caption above it; `width` in pixels, 0 for the remaining width.
QLayout* Under(const Caption& caption, Field& field, int width, Look::Size size, int height);

// Sets the height, the width (0 for the remaining width) and the type size of a control.
QWidget* Sized(Control& control, int width, int height, Look::Size size, bool bold = false);

// Makes a label show a computed figure: right-aligned.
QLabel* Figure(const Label& label, Look::Size size, bool bold = true);

// Sets the row height, the type size and the head height of a grid below the entry line. The default head has
// room for captions of two lines.
QWidget* List(
    const DataGrid& grid, int rowHeight = 28, Look::Size size = Look::Size::Normal, int headHeight = 44);

}

#pragma once

#include "platform/forms/Field.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"

#include <QGridLayout>
#include <QLabel>

#include <initializer_list>

class DataGrid;

// Parts for screens with large fields and figures, such as the counters.
namespace Pieces {

// The heights of fields in pixels: of those where there is little room, of those in a line, and of those for
// the figures of the milk.
inline constexpr int NarrowField = 34;
inline constexpr int LineField = Layout::FieldHeight;
inline constexpr int TallField = 50;

// A caption without a field: a Layout::Text in a size and in the colour of texts, for a panel or a sheet.
QLabel* Heading(const Caption& caption, Look::Size size = Look::Size::Normal, bool bold = false);

// Sets the colour of texts for a widget on a panel.
void SetInk(QWidget& widget);

// A sign such as "×" between two tall fields.
QLabel* Sign(QStringView sign);

// A white sheet with a thin border.
QFrame* Sheet();

// A field with its caption above it; `width` in pixels, 0 for the remaining width.
QLayout* Under(const Caption& caption, Field& field, int width, Look::Size size, int height);

// The same in the sizes of a line, and of the figures of the milk.
QLayout* InLine(const Caption& caption, Field& field, int width);
QLayout* Tall(const Caption& caption, Field& field, int width);

// Sets the height, the width (0 for the remaining width) and the type size of a control. Fields of a form,
// which have the type of the screen and may grow, are sized by Layout::SizeField.
QWidget* Sized(Control& control, int width, int height, Look::Size size, bool bold = false);

// Makes a label show a computed figure: right-aligned.
QLabel* Figure(const Label& label, Look::Size size, bool bold = true);

// Sets the row height, the type size and the head height of a grid below the entry line. The default head has
// room for captions of two lines.
QWidget* List(
    const DataGrid& grid, int rowHeight = 28, Look::Size size = Look::Size::Normal, int headHeight = 44);

}

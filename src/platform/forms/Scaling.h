#pragma once

#include <QSize>

class QWidget;

// Type and fields as large as the window. A screen is put together in the sizes of the smallest desktop; what
// it was given then (fonts, least and largest sizes, margins and gaps) is kept with each of its parts and
// made larger or smaller with the window.
namespace Scaling {

// The factor for a window. A small one shrinks a screen until it fits; in a large one type grows more slowly
// than the window, so that lists have more rows.
double FactorFor(const QSize& window);

// Gives a screen and all that is in it the sizes of a factor. To be done again for parts that were added
// since.
void Apply(QWidget& screen, double factor);

// The size of type in pixels. It is rounded down: what fits at the factor 1 must fit at any.
int FontPixels(int pixels, double factor);

}

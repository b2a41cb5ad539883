#pragma once

#include <QSize>

class QWidget;

// Scales type and fields to the window. A screen is laid out for the smallest desktop. The sizes that it sets
// then (fonts, minimum and maximum sizes, margins, gaps) are kept with each part and multiplied by a factor
// for the window.
namespace Scaling {

// The factor for a window of this size. A small window shrinks the screen until it fits. In a large one type
// grows more slowly than the window, so that lists show more rows.
double FactorFor(const QSize& window);

// Scales a screen and all that is in it. Call it again when parts were added.
void Apply(QWidget& screen, double factor);

// A type size in pixels, scaled. It is rounded down: what fits at factor 1 must fit at any.
int FontPixels(int pixels, double factor);

}

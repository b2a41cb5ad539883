#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;

// The look of all screens: colours and sizes by their use. Screens name the use, not the value.
namespace Look {

inline constexpr QRgb FocusColour = qRgb(0xFF, 0xC0, 0xC0); // the field or button that holds the focus
inline constexpr QRgb PlainColour = qRgb(0xB4, 0xC4, 0xCD); // a field or button without it
inline constexpr QRgb DateColour = qRgb(0xAF, 0xBF, 0xC9); // the same on the date screen and the counters

inline constexpr QRgb Paper = qRgb(0xEE, 0xF2, 0xF4); // behind the fields
inline constexpr QRgb Band = qRgb(0x24, 0x3B, 0x4A); // the title band and the key strip
inline constexpr QRgb BandText = qRgb(0xFF, 0xFF, 0xFF);
inline constexpr QRgb Ink = qRgb(0x12, 0x1C, 0x22); // text
inline constexpr QRgb Quiet = qRgb(0xDC, 0xE4, 0xE8); // fields that can't be entered now
inline constexpr QRgb DullColour = qRgb(0x6B, 0x7F, 0x8C); // a key that does nothing now
inline constexpr QRgb Ground = qRgb(0xC6, 0xD2, 0xD9); // of the window, where no screen lies
inline constexpr QRgb Shade = qRgba(0x12, 0x1C, 0x22, 0xB0); // over a screen that lies beneath a card
inline constexpr QRgb GuideInk = qRgb(0x8A, 0x1C, 0x1C); // the guide line

// Screens are laid out for the smallest desktop, less its bars. Their parts grow with the window (see
// Scaling).
inline constexpr int ScreenWidth = 1000;
inline constexpr int ScreenHeight = 690;
inline constexpr int DesktopWidth = 1024;
inline constexpr int DesktopHeight = 768;

// How much larger type and fields are in the present window than on the smallest desktop; 1 until there is a
// window.
double Factor();
void SetFactor(double factor);

// Scales a length of the smallest desktop to the present window, for painting.
int Pixels(int length);

enum class Size { Small, Normal, Menu, Large, Title };

// Sets the style, palette and font of the application. `family` is a Devanagari font; empty keeps Qt's own.
void Apply(QApplication& application, const QString& family);

// The font of a size: for laying out a screen, which is scaled later, and for painting, at its present size.
QFont Font(Size size, bool bold = false);
QFont PaintedFont(Size size, bool bold = false);

// Sets the background of a field or button.
void SetBackground(QWidget& widget, QColor colour);

// Sets the colours of a list or table; `focus` says whether it has the focus, which shows in the current row.
void SetListColours(QWidget& widget, bool focus);

}

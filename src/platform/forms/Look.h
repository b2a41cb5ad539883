#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;

// How every screen looks: one palette, one set of sizes. Screens name roles, never values.
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

// Screens are put together in the sizes of the smallest desktop; less its bars, so much room has to do. The
// window gives them theirs.
inline constexpr int ScreenWidth = 1000;
inline constexpr int ScreenHeight = 690;
inline constexpr int DesktopWidth = 1024;
inline constexpr int DesktopHeight = 768;

// How much larger the window is than that, as type and fields show it. 1 until the window is known.
double Factor();
void SetFactor(double factor);

// A length of the base in the window as it is, for what is painted.
int Pixels(int length);

enum class Size { Small, Normal, Menu, Large, Title };

// Gives the application its style, palette and font. `family` is a Devanagari font, or empty if there is
// none.
void Apply(QApplication& application, const QString& family);

// The font of the screens in one of their sizes, as they are put together; and as it is painted.
QFont Font(Size size, bool bold = false);
QFont PaintedFont(Size size, bool bold = false);

// The background of a field or button.
void SetBackground(QWidget& widget, QColor colour);

// The colours of a list or a table, whose current row carries the focus.
void SetListColours(QWidget& widget, bool focus);

}

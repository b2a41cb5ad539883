#pragma once

#include "platform/report/FontTable.h"
#include "platform/template/TextLook.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

// What happens to a text that is too wide. Figures are never cut.
enum class Fit : quint8 { Wrap, Cut, Shrink };

// One thing on a page, in points from the page's upper left corner.
struct PlacedItem {
    enum class Kind : quint8 { Text, Line, Box };
    Kind kind = Kind::Text;
    Align align = Align::Left;
    Fit fit = Fit::Wrap;
    quint8 gray = 0; // of a line or a box: 0 is black, 255 white
    bool goesOn = false; // continues the text of the item before it, directly below
    quint16 font = 0; // index in the report's FontTable
    float x = 0, y = 0, width = 0, height = 0; // a line goes from (x, y) to (x + width, y + height)
    float weight = 0; // of a line
    QString text;

    // Its rectangle on the page; the width and height of a line may be negative, here they aren't.
    QRectF Rect() const;
};

struct Page {
    static constexpr float Tolerance = 0.01F; // for rounding: a piece may be taller than its room by this

    // Stands for the number of pages in a text until that number is known.
    static constexpr QChar CountMark = QChar(0xFDD0);

    float width = 0, height = 0;
    bool restartsPages = false; // page numbers begin at 1 again here
    std::vector<PlacedItem> items;
    std::vector<quint32> waiting; // items whose text contains CountMark
};

// Describes all items of a page as lines of text, for debugging and for golden files:
//   text 34,20 538x14 right shrink bold 10 Noto Sans Devanagari: 450.25
//   line 34,40 538x0 gray 0 weight 0.8
QStringList Describe(const Page& page, const FontTable& fonts);

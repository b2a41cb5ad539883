#pragma once

#include <memory>

using cairo_t = struct _cairo;
using PangoLayout = struct _PangoLayout;

// Draws text layouts so that each Marathi word is one piece of text in a PDF. Pango writes syllable by
// syllable, and whoever copies text from such a PDF gets gaps inside of words.
class WordPainter {
public:
    WordPainter();
    ~WordPainter();
    WordPainter(const WordPainter&) = delete;
    WordPainter& operator=(const WordPainter&) = delete;

    // Draws a layout with its upper left corner at (x, y). A squeezed layout is written as one piece with
    // its blanks, since those are then too narrow for a PDF reader to recognise.
    void Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed = false);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

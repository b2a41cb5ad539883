#pragma once

#include <memory>

using cairo_t = struct _cairo;
using PangoLayout = struct _PangoLayout;

// Draws laid out texts so that a PDF knows each Marathi word as one piece. The text engine itself hands its
// texts on syllable by syllable, and whoever reads the PDF then finds gaps inside of words.
class WordPainter {
public:
    WordPainter();
    ~WordPainter();
    WordPainter(const WordPainter&) = delete;
    WordPainter& operator=(const WordPainter&) = delete;

    // Draws a layout; the point is its upper left corner. What is drawn narrower than its letters are is one
    // piece with its blanks, which are too narrow then to be found as such.
    void Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed = false);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

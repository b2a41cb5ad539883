#pragma once

#include <pango/pangocairo.h>

#include <string_view>
#include <vector>

// Draws laid out texts so that a PDF knows each Marathi word as one piece. The text engine itself hands its
// texts on syllable by syllable, and whoever reads the PDF then finds gaps inside of words.
class WordPainter {
public:
    // Draws a layout; the point is its upper left corner. What is drawn narrower than its letters are is one
    // piece with its blanks, which are too narrow then to be found as such.
    void Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed = false);

private:
    double ShowRun(cairo_t* cairo, const char* text, PangoGlyphItem* run, double x, double baseline);
    bool PlaceGlyphs(const PangoGlyphString& glyphs, double x, double baseline);
    void DivideIntoWords(const PangoGlyphString& glyphs, std::string_view text);

    bool m_isSqueezed = false;
    std::vector<cairo_glyph_t> m_glyphs; // of one run: those with ink
    std::vector<cairo_text_cluster_t> m_clusters; // which bytes of its text which glyphs stand for
};

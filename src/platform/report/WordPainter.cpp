#include "platform/report/WordPainter.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view Ellipsis = "\u2026";

double FromPango(int units)
{
    return static_cast<double>(units) / PANGO_SCALE;
}

// Plain ASCII text is copied right from a PDF without our help.
bool IsPlain(PangoLayout* layout, const char* text)
{
    return pango_layout_get_character_count(layout) == static_cast<int>(std::strlen(text))
        && !pango_layout_is_ellipsized(layout);
}

bool IsPlainByte(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

double WidthOf(const PangoGlyphString& glyphs)
{
    int width = 0;
    for (int i = 0; i < glyphs.num_glyphs; ++i)
        width += glyphs.glyphs[i].geometry.width;
    return FromPango(width);
}

}

class WordPainter::Private {
public:
    void Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed);

private:
    double ShowRun(cairo_t* cairo, const char* text, PangoGlyphItem* run, double x, double baseline);
    bool PlaceGlyphs(const PangoGlyphString& glyphs, double x, double baseline);
    void DivideIntoWords(const PangoGlyphString& glyphs, std::string_view text);

    bool m_isSqueezed = false;
    std::vector<cairo_glyph_t> m_glyphs; // the visible glyphs of one run
    std::vector<cairo_text_cluster_t> m_clusters; // which glyphs stand for which bytes of its text
};

WordPainter::WordPainter() : m_d(std::make_unique<Private>()) { }

WordPainter::~WordPainter() = default;

void WordPainter::Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed)
{
    m_d->Show(cairo, layout, x, y, isSqueezed);
}

void WordPainter::Private::Show(cairo_t* cairo, PangoLayout* layout, double x, double y, bool isSqueezed)
{
    m_isSqueezed = isSqueezed;
    const char* const text = pango_layout_get_text(layout);
    if (IsPlain(layout, text) && !isSqueezed) {
        cairo_move_to(cairo, x, y);
        pango_cairo_show_layout(cairo, layout);
        return;
    }
    PangoLayoutIter* const lines = pango_layout_get_iter(layout);
    do {
        PangoRectangle place;
        pango_layout_iter_get_line_extents(lines, nullptr, &place);
        const double baseline = y + FromPango(pango_layout_iter_get_baseline(lines));
        double runX = x + FromPango(place.x);
        for (GSList* at = pango_layout_iter_get_line_readonly(lines)->runs; at; at = at->next)
            runX += ShowRun(cairo, text, static_cast<PangoGlyphItem*>(at->data), runX, baseline);
    } while (pango_layout_iter_next_line(lines));
    pango_layout_iter_free(lines);
}

// Draws a run of glyphs of one font and returns its width.
double WordPainter::Private::ShowRun(
    cairo_t* cairo, const char* text, PangoGlyphItem* run, double x, double baseline)
{
    const PangoItem& item = *run->item;
    const PangoGlyphString& glyphs = *run->glyphs;
    cairo_scaled_font_t* const font =
        pango_cairo_font_get_scaled_font(reinterpret_cast<PangoCairoFont*>(item.analysis.font));
    if (!font || item.analysis.level % 2 != 0 || !PlaceGlyphs(glyphs, x, baseline)) {
        cairo_move_to(cairo, x, baseline);
        pango_cairo_show_glyph_item(cairo, text, run);
        return WidthOf(glyphs);
    }
    m_clusters.clear();
    std::string_view shown(text + item.offset, static_cast<std::size_t>(item.length));
    if ((item.analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS) != 0) {
        // The dots stand for the text that was cut off; in the PDF they are to be dots as well.
        shown = Ellipsis;
        m_clusters.push_back({static_cast<int>(shown.size()), static_cast<int>(m_glyphs.size())});
    } else {
        DivideIntoWords(glyphs, shown);
    }
    cairo_set_scaled_font(cairo, font);
    cairo_show_text_glyphs(cairo, shown.data(), static_cast<int>(shown.size()), m_glyphs.data(),
        static_cast<int>(m_glyphs.size()), m_clusters.data(), static_cast<int>(m_clusters.size()),
        cairo_text_cluster_flags_t{});
    return WidthOf(glyphs);
}

// False if the font lacks a glyph; Pango then draws a box with its code instead.
bool WordPainter::Private::PlaceGlyphs(const PangoGlyphString& glyphs, double x, double baseline)
{
    m_glyphs.clear();
    int at = 0;
    for (int i = 0; i < glyphs.num_glyphs; ++i) {
        const PangoGlyphInfo& info = glyphs.glyphs[i];
        if ((info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0)
            return false;
        if (info.glyph != PANGO_GLYPH_EMPTY)
            m_glyphs.push_back({info.glyph, x + FromPango(at + info.geometry.x_offset),
                baseline + FromPango(info.geometry.y_offset)});
        at += info.geometry.width;
    }
    return true;
}

// A word with letters beyond ASCII becomes one cluster; everything else goes glyph by glyph.
void WordPainter::Private::DivideIntoWords(const PangoGlyphString& glyphs, std::string_view text)
{
    const auto startOf = [&](int glyph) {
        return glyph < glyphs.num_glyphs ? static_cast<std::size_t>(glyphs.log_clusters[glyph]) : text.size();
    };
    for (int first = 0; first < glyphs.num_glyphs;) {
        const std::size_t start = startOf(first);
        const std::string_view word =
            text.substr(start, m_isSqueezed ? text.npos : text.find_first_of(Blanks, start) - start);
        const bool isWhole = m_isSqueezed || !std::all_of(word.begin(), word.end(), IsPlainByte);
        int next = first;
        int drawn = 0;
        while (next < glyphs.num_glyphs
            && (startOf(next) == start || (isWhole && startOf(next) < start + word.size())))
            drawn += glyphs.glyphs[next++].glyph != PANGO_GLYPH_EMPTY;
        m_clusters.push_back({static_cast<int>(startOf(next) - start), drawn});
        first = next;
    }
}

#pragma once

#include "platform/report/FontTable.h"

#include <QStringView>

#include <memory>
#include <utility>
#include <vector>

class FontMap;
using PangoLayout = struct _PangoLayout;
using PangoContext = struct _PangoContext;

// Pango layouts, one for each font, made when they are first needed. All measuring and drawing uses these,
// without hinting and without rounding to pixels, so that lines break in the same places on screen and on
// paper.
class LayoutPool {
public:
    LayoutPool();
    ~LayoutPool();
    LayoutPool(const LayoutPool&) = delete;
    LayoutPool& operator=(const LayoutPool&) = delete;

    PangoContext* Context() const { return m_context; }

    // For single lines.
    PangoLayout* Single(const FontSpec& font) { return Find(m_single, font, false); }

    // For texts that are broken into lines; the caller sets the width.
    PangoLayout* Wrapping(const FontSpec& font) { return Find(m_wrapping, font, true); }

    // How far to move a text down, in points, so that all texts of a font stand on one baseline, although
    // letters and figures may come from different font files.
    double Drop(const FontSpec& font, PangoLayout* layout);

    // The same for a given baseline of the first line, in Pango units.
    double Drop(const FontSpec& font, int baseline);

    // Letters with signs above and below them.
    static constexpr QStringView TallText = u"क्ष्र्यूंङ्ळृEg";

private:
    using Layouts = std::vector<std::pair<FontSpec, PangoLayout*>>;
    PangoLayout* Find(Layouts& layouts, const FontSpec& font, bool wraps);

    const std::shared_ptr<FontMap> m_fonts;
    PangoContext* m_context;
    std::vector<std::pair<FontSpec, int>> m_baselines;
    Layouts m_single, m_wrapping;
};

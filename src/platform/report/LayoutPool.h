#pragma once

#include "platform/report/FontTable.h"

#include <QStringView>

#include <memory>
#include <utility>
#include <vector>

class FontMap;
using PangoLayout = struct _PangoLayout;
using PangoContext = struct _PangoContext;

// Layouts of the text engine, one a font, made when first needed. All measuring and all drawing is done with
// these, without hinting of widths and without rounding to dots, so that lines break in the same place on
// screen and on paper.
class LayoutPool {
public:
    LayoutPool();
    ~LayoutPool();
    LayoutPool(const LayoutPool&) = delete;
    LayoutPool& operator=(const LayoutPool&) = delete;

    PangoContext* Context() const { return m_context; }

    // For texts of one line.
    PangoLayout* Single(const FontSpec& font) { return Find(m_single, font, false); }

    // For texts that break into lines; the width is to be set.
    PangoLayout* Wrapping(const FontSpec& font) { return Find(m_wrapping, font, true); }

    // How far a text is moved down, in points, so that letters and figures of a font stand on one line
    // although they may come from different faces.
    double Drop(const FontSpec& font, PangoLayout* layout);

    // The same for a text whose first line has its letters on a baseline, in units of the text engine.
    double Drop(const FontSpec& font, int baseline);

    // Its letters have signs above and below.
    static constexpr QStringView TallText = u"क्ष्र्यूंङ्ळृEg";

private:
    using Layouts = std::vector<std::pair<FontSpec, PangoLayout*>>;
    PangoLayout* Find(Layouts& layouts, const FontSpec& font, bool wraps);

    const std::shared_ptr<FontMap> m_fonts;
    PangoContext* m_context;
    std::vector<std::pair<FontSpec, int>> m_baselines;
    Layouts m_single, m_wrapping;
};

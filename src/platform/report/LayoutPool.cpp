#include "platform/report/LayoutPool.h"

#include "platform/report/FontMap.h"

#include <pango/pangocairo.h>

#include <algorithm>

LayoutPool::LayoutPool() : m_fonts(FontMap::Current())
{
    m_context = pango_font_map_create_context(m_fonts->Get());
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(m_context, options);
    cairo_font_options_destroy(options);
    pango_cairo_context_set_resolution(m_context, 72);
    pango_context_set_round_glyph_positions(m_context, FALSE);
    pango_context_set_language(m_context, pango_language_from_string("mr"));
    pango_context_set_base_dir(m_context, PANGO_DIRECTION_LTR);
}

LayoutPool::~LayoutPool()
{
    for (const Layouts* layouts : {&m_single, &m_wrapping}) {
        for (const auto& [font, layout] : *layouts)
            g_object_unref(layout);
    }
    g_object_unref(m_context);
}

PangoLayout* LayoutPool::Find(Layouts& layouts, const FontSpec& font, bool wraps)
{
    for (const auto& [known, layout] : layouts) {
        if (known == font)
            return layout;
    }
    PangoLayout* const layout = pango_layout_new(m_context);
    PangoFontDescription* const description = pango_font_description_new();
    pango_font_description_set_family(description, font.family.toUtf8().constData());
    pango_font_description_set_size(description, static_cast<int>(font.size * PANGO_SCALE));
    pango_font_description_set_weight(description, font.isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_layout_set_font_description(layout, description);
    pango_font_description_free(description);
    pango_layout_set_auto_dir(layout, FALSE);
    if (wraps)
        pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
    else
        pango_layout_set_single_paragraph_mode(layout, TRUE);
    layouts.emplace_back(font, layout);
    return layout;
}

double LayoutPool::Drop(const FontSpec& font, PangoLayout* layout)
{
    return Drop(font, pango_layout_get_baseline(layout));
}

double LayoutPool::Drop(const FontSpec& font, int baseline)
{
    const auto known = std::find_if(
        m_baselines.begin(), m_baselines.end(), [&](const auto& one) { return one.first == font; });
    const std::ptrdiff_t index = known - m_baselines.begin();
    if (known == m_baselines.end()) {
        PangoLayout* const tall = pango_layout_copy(Single(font));
        const QByteArray utf8 = TallText.toUtf8();
        pango_layout_set_text(tall, utf8.constData(), static_cast<int>(utf8.size()));
        m_baselines.emplace_back(font, pango_layout_get_baseline(tall));
        g_object_unref(tall);
    }
    const int drop = m_baselines[static_cast<std::size_t>(index)].second - baseline;
    return std::max(0.0, static_cast<double>(drop) / PANGO_SCALE);
}

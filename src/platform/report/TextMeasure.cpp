#include "TextMeasure.h"

#include "LayoutPool.h"

#include <QHash>

#include <pango/pangocairo.h>

namespace {

constexpr qsizetype MostKept = 20000;
constexpr float Tolerance = 0.01F;

float ToPoints(int units)
{
    return static_cast<float>(units) / PANGO_SCALE;
}

}

class TextMeasure::Private {
public:
    PangoLayout* Lay(const FontSpec& font, const QString& text, float width)
    {
        PangoLayout* const layout = pool.Wrapping(font);
        const QByteArray utf8 = text.toUtf8();
        pango_layout_set_width(layout, static_cast<int>(width * PANGO_SCALE));
        pango_layout_set_text(layout, utf8.constData(), static_cast<int>(utf8.size()));
        return layout;
    }

    LayoutPool pool;
    std::vector<std::pair<FontSpec, float>> lineHeights;
    QHash<QString, float> heights;
};

TextMeasure::TextMeasure() : m_d(std::make_unique<Private>()) { }

TextMeasure::~TextMeasure() = default;

float TextMeasure::LineHeight(const FontSpec& font)
{
    for (const auto& [known, height] : m_d->lineHeights) {
        if (known == font)
            return height;
    }
    PangoLayout* const layout = m_d->pool.Single(font);
    const QByteArray utf8 = LayoutPool::TallText.toUtf8();
    pango_layout_set_text(layout, utf8.constData(), static_cast<int>(utf8.size()));
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout, &width, &height);
    m_d->lineHeights.emplace_back(font, ToPoints(height));
    return ToPoints(height);
}

float TextMeasure::Height(const FontSpec& font, const QString& text, float width)
{
    const QString key = text + QChar(u'\x1f') + font.family + QChar(u'\x1f') + QString::number(font.size)
        + QChar(u'\x1f') + QString::number(width) + QChar(font.isBold ? u'b' : u'n');
    const auto known = m_d->heights.constFind(key);
    if (known != m_d->heights.constEnd())
        return known.value();
    if (m_d->heights.size() >= MostKept)
        m_d->heights.clear();
    int ignored = 0;
    int height = 0;
    PangoLayout* const layout = m_d->Lay(font, text, width);
    pango_layout_get_size(layout, &ignored, &height);
    const float whole = ToPoints(height) + static_cast<float>(m_d->pool.Drop(font, layout));
    m_d->heights.insert(key, whole);
    return whole;
}

qsizetype TextMeasure::Fitting(const FontSpec& font, const QString& text, float width, float height)
{
    PangoLayout* const layout = m_d->Lay(font, text, width);
    const int lines = pango_layout_get_line_count(layout);
    const float drop = static_cast<float>(m_d->pool.Drop(font, layout));
    const QByteArray utf8 = text.toUtf8();
    for (int i = 1; i < lines; ++i) {
        PangoRectangle extents;
        PangoLayoutIter* const iter = pango_layout_get_iter(layout);
        for (int step = 0; step < i; ++step)
            pango_layout_iter_next_line(iter);
        pango_layout_iter_get_line_extents(iter, nullptr, &extents);
        const int start = pango_layout_iter_get_line_readonly(iter)->start_index;
        pango_layout_iter_free(iter);
        if (drop + ToPoints(extents.y + extents.height) > height + Tolerance)
            return QString::fromUtf8(utf8.constData(), start).size();
    }
    return text.size();
}

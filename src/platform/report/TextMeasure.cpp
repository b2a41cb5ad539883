#include "platform/report/TextMeasure.h"

#include "platform/report/LayoutPool.h"
#include "platform/report/Page.h"

#include <QHash>

#include <pango/pangocairo.h>

#include <algorithm>

namespace {

constexpr qsizetype MostKept = 20000;
constexpr qsizetype LongestKept = 200;

// For each line Pango looks at all that is left of the paragraph, so it is given long texts in portions. A
// piece has no more than MostLines lines, since a split at the end of a page lays out the whole piece again.
constexpr qsizetype Portion = 4000;
constexpr std::size_t MostLines = 100;

// A line of a text that is laid out, in Pango units.
struct Line {
    qsizetype start = 0; // index of its first character
    int top = 0;
    int bottom = 0;
    int baseline = 0;
};

float HeightFromPango(int units)
{
    return static_cast<float>(units) / PANGO_SCALE;
}

// Removes the line break at the end.
QString WithoutLineEnd(QString text)
{
    if (text.endsWith(u'\n') || text.endsWith(QChar::ParagraphSeparator))
        text.chop(1);
    if (text.endsWith(u'\r'))
        text.chop(1);
    return text;
}

// A portion of a text that doesn't separate a carriage return from its line feed.
QString PortionOf(const QString& text, qsizetype from, qsizetype length)
{
    const bool cutsLineEnd = from + length < text.size() && text[from + length - 1] == u'\r';
    return text.mid(from, cutsLineEnd ? length + 1 : length);
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
        laidOut += text.size();
        return layout;
    }

    std::vector<Line> LinesOf(const FontSpec& font, const QString& text, float width);
    float HeightOf(const FontSpec& font, const Line& first, const Line& last);

    LayoutPool pool;
    std::vector<std::pair<FontSpec, float>> lineHeights;
    QHash<QString, float> heights;
    qsizetype laidOut = 0;
};

std::vector<Line> TextMeasure::Private::LinesOf(const FontSpec& font, const QString& text, float width)
{
    PangoLayout* const layout = Lay(font, text, width);
    const char* const utf8 = pango_layout_get_text(layout);
    std::vector<Line> lines;
    qsizetype start = 0;
    int at = 0;
    PangoLayoutIter* const iter = pango_layout_get_iter(layout);
    do {
        PangoRectangle extents;
        pango_layout_iter_get_line_extents(iter, nullptr, &extents);
        const int begin = pango_layout_iter_get_line_readonly(iter)->start_index;
        start += QString::fromUtf8(utf8 + at, begin - at).size();
        at = begin;
        lines.push_back({start, extents.y, extents.y + extents.height, pango_layout_iter_get_baseline(iter)});
    } while (pango_layout_iter_next_line(iter));
    pango_layout_iter_free(iter);
    return lines;
}

// The height of these lines if they stand by themselves.
float TextMeasure::Private::HeightOf(const FontSpec& font, const Line& first, const Line& last)
{
    return HeightFromPango(last.bottom - first.top)
        + static_cast<float>(pool.Drop(font, first.baseline - first.top));
}

TextMeasure::TextMeasure() : m_d(std::make_unique<Private>()) { }

TextMeasure::~TextMeasure() = default;

qsizetype TextMeasure::LaidOut() const
{
    return m_d->laidOut;
}

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
    m_d->lineHeights.emplace_back(font, HeightFromPango(height));
    return HeightFromPango(height);
}

float TextMeasure::Height(const FontSpec& font, const QString& text, float width)
{
    if (text.size() > Portion) {
        float whole = 0;
        for (const MeasuredText& piece : Divide(font, text, width))
            whole += piece.height;
        return whole;
    }
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
    const float whole = HeightFromPango(height) + static_cast<float>(m_d->pool.Drop(font, layout));
    if (text.size() <= LongestKept)
        m_d->heights.insert(key, whole);
    return whole;
}

std::vector<MeasuredText> TextMeasure::Divide(const FontSpec& font, const QString& text, float width)
{
    if (text.size() <= Portion)
        return {{text, Height(font, text, width)}};
    std::vector<MeasuredText> pieces;
    qsizetype length = Portion;
    for (qsizetype at = 0; at < text.size();) {
        const QString portion = PortionOf(text, at, length);
        const bool isEnd = at + portion.size() == text.size();
        const std::vector<Line> lines = m_d->LinesOf(font, portion, width);
        // The last line may continue in the next portion, so it is laid out there again.
        const std::size_t whole = isEnd ? lines.size() : lines.size() - 1;
        const auto startOf = [&](std::size_t line) {
            return line < lines.size() ? lines[line].start : portion.size();
        };
        for (std::size_t first = 0; first < whole; first += MostLines) {
            const std::size_t next = std::min(first + MostLines, whole);
            const QString piece = portion.mid(startOf(first), startOf(next) - startOf(first));
            const bool isLast = isEnd && next == whole;
            pieces.push_back(
                {isLast ? piece : WithoutLineEnd(piece), m_d->HeightOf(font, lines[first], lines[next - 1])});
        }
        at += startOf(whole);
        length = whole == 0 ? 2 * length : Portion; // a single line was longer than the portion
    }
    return pieces;
}

qsizetype TextMeasure::Fitting(const FontSpec& font, const QString& text, float width, float height)
{
    const std::vector<Line> lines = m_d->LinesOf(font, text, width);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (m_d->HeightOf(font, lines.front(), lines[i]) > height + Page::Tolerance)
            return lines[i].start;
    }
    return text.size();
}

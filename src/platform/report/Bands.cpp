#include "platform/report/Bands.h"

#include "platform/report/Evaluation.h"
#include "platform/template/Spacing.h"

#include <algorithm>
#include <utility>

namespace {

constexpr float PairGap = 4;

float ToPoints(double millimetres)
{
    return static_cast<float>(millimetres * PointsPerMillimetre);
}

class FlowStream final : public BandStream {
public:
    FlowStream(const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch)
        : m_elements(elements)
        , m_maker(maker)
        , m_stretch(stretch)
    {
    }

    bool Next(Band& band) override
    {
        for (;;) {
            if (m_child && m_child->Next(band))
                return Hand(band);
            m_child.reset();
            if (!m_ready.empty()) {
                band = std::move(m_ready.front());
                m_ready.pop_front();
                return Hand(band);
            }
            if (m_at == m_elements.size())
                return false;
            Begin(m_elements[m_at++]);
        }
    }

private:
    bool Hand(Band& band)
    {
        band.newPage = band.newPage || std::exchange(m_breaks, false);
        return true;
    }

    void Begin(const TemplateElement& element)
    {
        if (!m_maker.Holds(element.condition))
            return;
        element.Visit(
            [&](const TemplateParagraph& paragraph) {
                if (std::optional<Band> band = m_maker.Make(paragraph, m_stretch))
                    m_ready.push_back(std::move(*band));
            },
            [&](const TemplateRule& rule) { m_ready.push_back(BandMaker::Make(rule, m_stretch)); },
            [&](const TemplateSpace& space) { m_ready.push_back(BandMaker::Make(space)); },
            [&](const TemplatePageBreak&) { m_breaks = true; },
            [&](const TemplatePairs& pairs) {
                for (Band& band : m_maker.Make(pairs, m_stretch))
                    m_ready.push_back(std::move(band));
            },
            [&](const TemplateLanes& lanes) { m_ready.push_back(MakeLanes(lanes, m_maker, m_stretch)); },
            [&](const TemplateEach& each) { m_child = MakeEach(each, m_maker, m_stretch); },
            [&](const TemplateTable& table) { m_child = MakeTable(table, m_maker, m_stretch); },
            [&](const TemplateChart& chart) { m_ready.push_back(MakeChart(chart, m_maker, m_stretch)); });
    }

    const std::vector<TemplateElement>& m_elements;
    BandMaker& m_maker;
    Stretch m_stretch;
    std::size_t m_at = 0;
    bool m_breaks = false;
    std::unique_ptr<BandStream> m_child;
    std::deque<Band> m_ready;
};

}

TextLook Merge(const TextLook& outer, const TextLook& inner)
{
    TextLook look = outer;
    if (inner.align)
        look.align = inner.align;
    if (inner.isBold)
        look.isBold = inner.isBold;
    if (inner.size > 0)
        look.size = inner.size;
    return look;
}

BandMaker::BandMaker(ReportData& rows, TextMeasure& texts, FontTable& fontTable)
    : Data(rows)
    , Measure(texts)
    , Fonts(fontTable)
{
}

bool BandMaker::Holds(const std::optional<Expression>& condition)
{
    return !condition || Evaluate(*condition, Data).Truth();
}

FontSpec BandMaker::Font(const TextLook& look) const
{
    const ReportTemplate& report = Data.Template();
    return {report.fontFamily, static_cast<float>(look.size > 0 ? look.size : report.fontSize),
        look.isBold.value_or(false)};
}

void BandMaker::AddWrapped(Band& band, const QString& text, const TextLook& look, Stretch stretch)
{
    if (text.isEmpty())
        return;
    const FontSpec font = Font(look);
    PlacedItem item;
    item.align = look.align.value_or(Align::Left);
    item.font = Fonts.Add(font);
    item.x = stretch.x;
    item.width = stretch.width;
    for (const MeasuredText& piece : Measure.Divide(font, text, stretch.width)) {
        item.height = piece.height;
        item.text = piece.text;
        if (!item.text.isEmpty())
            band.items.push_back(item);
        else if (!band.items.empty())
            band.items.back().height += item.height; // lines with nothing on them
        item.y += item.height;
        item.goesOn = true;
    }
    band.height = std::max(band.height, item.y);
}

std::optional<Band> BandMaker::Make(const TemplateParagraph& paragraph, Stretch stretch)
{
    Band band;
    band.keepWithNext = paragraph.keep;
    AddWrapped(band, Fill(paragraph.text, Data), paragraph.look, stretch);
    if (band.items.empty())
        return std::nullopt;
    return band;
}

Band BandMaker::Make(const TemplateRule& rule, Stretch stretch)
{
    PlacedItem line;
    line.kind = PlacedItem::Kind::Line;
    line.weight = static_cast<float>(rule.weight);
    line.x = stretch.x;
    line.y = Spacing::RuleGap + line.weight / 2;
    line.width = stretch.width;
    Band band;
    band.keepWithNext = rule.keep;
    band.height = 2 * Spacing::RuleGap + line.weight;
    band.items.push_back(std::move(line));
    return band;
}

Band BandMaker::Make(const TemplateSpace& space)
{
    Band band;
    band.height = ToPoints(space.height);
    return band;
}

std::vector<Band> BandMaker::Make(const TemplatePairs& pairs, Stretch stretch)
{
    const float labelWidth = pairs.labelWidth > 0
        ? ToPoints(pairs.labelWidth)
        : stretch.width * static_cast<float>(Spacing::PairLabelShare);
    const Stretch labels{stretch.x, labelWidth - PairGap};
    const Stretch values{stretch.x + labelWidth, stretch.width - labelWidth};
    std::vector<Band> bands;
    for (const TemplatePair& pair : pairs.pairs) {
        if (!Holds(pair.condition))
            continue;
        TextLook look = Merge(pairs.look, pair.look);
        Band& band = bands.emplace_back();
        AddWrapped(band, Fill(pair.value, Data), look, values);
        look.align = Align::Left;
        AddWrapped(band, Fill(pair.label, Data), look, labels);
        band.height = std::max(band.height, Measure.LineHeight(Font(look)));
    }
    return bands;
}

std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<FlowStream>(elements, maker, stretch);
}

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
        if (element.kind == ElementKind::Each)
            m_child = MakeEach(element, m_maker, m_stretch);
        else if (m_maker.Holds(element.condition))
            BeginHolding(element);
    }

    void BeginHolding(const TemplateElement& element)
    {
        switch (element.kind) {
        case ElementKind::Columns:
            m_ready.push_back(MakeLanes(element, m_maker, m_stretch));
            break;
        case ElementKind::Table:
            m_child = MakeTable(element, m_maker, m_stretch);
            break;
        case ElementKind::Chart:
            m_ready.push_back(MakeChart(element, m_maker, m_stretch));
            break;
        case ElementKind::PageBreak:
            m_breaks = true;
            break;
        default:
            m_maker.MakeSimple(element, m_stretch, m_ready);
        }
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

void BandMaker::MakeSimple(const TemplateElement& element, Stretch stretch, std::deque<Band>& bands)
{
    if (element.kind == ElementKind::Pairs)
        return MakePairs(element, stretch, bands);
    Band band;
    band.keepWithNext = element.keep;
    if (element.kind == ElementKind::Text) {
        AddWrapped(band, Fill(element.text, Data), element.look, stretch);
        if (band.items.empty())
            return;
    } else if (element.kind == ElementKind::Space) {
        band.height = ToPoints(element.size);
    } else {
        PlacedItem rule;
        rule.kind = PlacedItem::Kind::Line;
        rule.weight = static_cast<float>(element.size);
        rule.x = stretch.x;
        rule.y = Spacing::RuleGap + rule.weight / 2;
        rule.width = stretch.width;
        band.height = 2 * Spacing::RuleGap + rule.weight;
        band.items.push_back(std::move(rule));
    }
    bands.push_back(std::move(band));
}

void BandMaker::MakePairs(const TemplateElement& element, Stretch stretch, std::deque<Band>& bands)
{
    const float labelWidth = element.size > 0 ? ToPoints(element.size)
                                              : stretch.width * static_cast<float>(Spacing::PairLabelShare);
    const Stretch labels{stretch.x, labelWidth - PairGap};
    const Stretch values{stretch.x + labelWidth, stretch.width - labelWidth};
    for (const TemplatePair& pair : element.pairs) {
        if (!Holds(pair.condition))
            continue;
        TextLook look = Merge(element.look, pair.look);
        Band band;
        AddWrapped(band, Fill(pair.value, Data), look, values);
        look.align = Align::Left;
        AddWrapped(band, Fill(pair.label, Data), look, labels);
        band.height = std::max(band.height, Measure.LineHeight(Font(look)));
        bands.push_back(std::move(band));
    }
}

std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<FlowStream>(elements, maker, stretch);
}

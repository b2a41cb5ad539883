#include "platform/report/Bands.h"

#include "platform/report/Evaluation.h"
#include "platform/report/Room.h"

#include <algorithm>
#include <utility>

namespace {

constexpr float PairGap = 4;

float ToPoints(double millimetres)
{
    return static_cast<float>(millimetres * PointsPerMillimetre);
}

// Side by side: each lane is laid out to its end, and the page decides how much of each it takes.
class LanesStream final : public BandStream {
public:
    LanesStream(const TemplateElement& element, BandMaker& maker, Stretch stretch)
    {
        std::vector<WidthRule> rules;
        for (const TemplateLane& lane : element.lanes)
            rules.push_back(lane.width);
        const double gap = element.size * PointsPerMillimetre;
        const std::vector<double> widths = DivideWidth(rules, stretch.width, gap);
        double x = stretch.x;
        for (std::size_t i = 0; i < element.lanes.size(); ++i) {
            const Stretch own{static_cast<float>(x), static_cast<float>(widths[i])};
            AddLane(MakeFlow(element.lanes[i].elements, maker, own));
            m_band.holdsRows = m_band.holdsRows || HoldsRows(element.lanes[i]);
            x += widths[i] + gap;
        }
    }

    bool Next(Band& band) override
    {
        if (m_isDone)
            return false;
        m_isDone = true;
        band = std::move(m_band);
        return true;
    }

private:
    static bool HoldsRows(const TemplateLane& lane)
    {
        return std::any_of(lane.elements.begin(), lane.elements.end(), [](const TemplateElement& element) {
            return element.kind == ElementKind::Table || element.kind == ElementKind::Each;
        });
    }

    void AddLane(const std::unique_ptr<BandStream>& flow)
    {
        std::vector<Band>& lane = m_band.lanes.emplace_back();
        float height = 0;
        for (Band band; flow->Next(band); band = Band()) {
            height += band.height;
            lane.push_back(std::move(band));
        }
        m_band.height = std::max(m_band.height, height);
    }

    Band m_band;
    bool m_isDone = false;
};

// The children once for each row of a source.
class EachStream final : public BandStream {
public:
    EachStream(const TemplateElement& element, BandMaker& maker, Stretch stretch)
        : m_element(element)
        , m_maker(maker)
        , m_stretch(stretch)
        , m_walk(maker.Data, element.source)
        , m_depth(maker.Records.DepthOf(element))
    {
    }

    ~EachStream() override { m_maker.Data.SetCurrent(m_element.source, nullptr); }

    bool Next(Band& band) override
    {
        for (;;) {
            if (!m_kept.empty()) {
                band = std::move(m_kept.front());
                m_kept.pop_front();
                return true;
            }
            if (m_children && m_children->Next(band)) {
                Record(band);
                return true;
            }
            if (m_children && RecordAlone(band))
                return true;
            if (!Advance())
                return false;
        }
    }

private:
    bool Advance()
    {
        m_children.reset();
        do {
            m_maker.Data.SetCurrent(m_element.source, nullptr);
            if (!m_walk.Next(m_row))
                return false;
            m_maker.Data.SetCurrent(m_element.source, &m_row);
        } while (!m_maker.Holds(m_element.condition));
        m_children = MakeFlow(m_element.children, m_maker, m_stretch);
        m_waitsForRecord = m_maker.Records.each == &m_element;
        m_countBefore = m_maker.RecordCount;
        if (m_element.keep || m_element.newPage)
            Collect();
        return true;
    }

    // The first strip of a row takes its record along.
    void Record(Band& band)
    {
        if (std::exchange(m_waitsForRecord, false))
            MakeRecord(band);
    }

    // A row of which nothing went into the spreadsheet by now, such as one without rows inside, stands there
    // by itself. It is laid out to its end when this is asked.
    bool RecordAlone(Band& band)
    {
        if (m_depth == 0 || m_maker.RecordCount != m_countBefore)
            return false;
        MakeRecord(band);
        return true;
    }

    void MakeRecord(Band& band)
    {
        band.record = FieldsAround(m_maker.Records, m_depth, m_maker.Data);
        m_maker.RecordCount += 1;
    }

    // All strips of a row that stay together.
    void Collect()
    {
        for (Band band; m_children->Next(band); band = Band()) {
            Record(band);
            band.keepWithNext = band.keepWithNext || m_element.keep;
            m_kept.push_back(std::move(band));
        }
        if (!m_kept.empty()) {
            m_kept.back().keepWithNext = false;
            m_kept.front().newPage = m_element.newPage;
        }
        if (Band alone; RecordAlone(alone))
            m_kept.push_back(std::move(alone));
    }

    const TemplateElement& m_element;
    BandMaker& m_maker;
    Stretch m_stretch;
    RowWalk m_walk;
    Row m_row;
    std::size_t m_depth; // among the parts whose rows go into the spreadsheet, from 1; 0: it is none of them
    int m_countBefore = 0; // of the records, when the row began
    bool m_waitsForRecord = false;
    std::unique_ptr<BandStream> m_children;
    std::deque<Band> m_kept;
};

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
            m_child = std::make_unique<EachStream>(element, m_maker, m_stretch);
        else if (m_maker.Holds(element.condition))
            BeginHolding(element);
    }

    void BeginHolding(const TemplateElement& element)
    {
        switch (element.kind) {
        case ElementKind::Columns:
            m_child = std::make_unique<LanesStream>(element, m_maker, m_stretch);
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
        rule.y = Room::RuleGap + rule.weight / 2;
        rule.width = stretch.width;
        band.height = 2 * Room::RuleGap + rule.weight;
        band.items.push_back(std::move(rule));
    }
    bands.push_back(std::move(band));
}

void BandMaker::MakePairs(const TemplateElement& element, Stretch stretch, std::deque<Band>& bands)
{
    const float labelWidth =
        element.size > 0 ? ToPoints(element.size) : stretch.width * static_cast<float>(Room::PairLabelShare);
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

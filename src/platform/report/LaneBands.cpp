#include "platform/report/LaneBands.h"

#include "platform/report/BandSplitter.h"
#include "platform/report/FlowBands.h"
#include "platform/template/Spacing.h"

#include <algorithm>
#include <iterator>

namespace {

bool HoldsRows(const TemplateLane& lane)
{
    return std::any_of(lane.elements.begin(), lane.elements.end(), [](const TemplateElement& element) {
        return element.As<TemplateTable>() || element.As<TemplateEach>();
    });
}

// Lays out blocks side by side as one band.
class LanesMaker {
public:
    LanesMaker(const TemplateLanes& lanes, BandMaker& maker, Stretch stretch) : m_lanes(lanes), m_maker(maker)
    {
        m_stretch = lanes.frame > 0 ? AddFrame(lanes.frame, stretch, 0) : stretch;
        m_inset = lanes.frame > 0 ? Spacing::BoxPadding : 0;
        const bool hasFrames = std::any_of(
            lanes.lanes.begin(), lanes.lanes.end(), [](const TemplateLane& lane) { return lane.frame > 0; });
        m_padding = m_inset + (hasFrames ? Spacing::BoxPadding : 0);
    }

    Band Make()
    {
        std::vector<WidthRule> rules;
        for (const TemplateLane& lane : m_lanes.lanes)
            rules.push_back(lane.width);
        const double gap = m_lanes.gap * Paper::PointsPerMillimetre;
        const std::vector<double> widths = DivideWidth(rules, m_stretch.width, gap);
        double x = m_stretch.x;
        m_band.height = ToPoints(m_lanes.height);
        for (std::size_t i = 0; i < m_lanes.lanes.size(); ++i) {
            MakeLane(m_lanes.lanes[i], {static_cast<float>(x), static_cast<float>(widths[i])});
            x += widths[i] + gap;
        }
        for (std::size_t i = 0; i < m_band.lanes.size(); ++i)
            AddBottom(m_band.lanes[i], m_bottoms[i]);
        m_band.holdsRows = m_band.holdsRows && m_band.frames.empty() && m_lanes.height <= 0;
        return std::move(m_band);
    }

private:
    // Adds a frame and returns the room inside of it.
    Stretch AddFrame(double weight, Stretch around, float inset)
    {
        m_band.frames.push_back({static_cast<float>(weight), around.x, around.width, inset});
        return {around.x + Spacing::BoxPadding, std::max(1.0F, around.width - 2 * Spacing::BoxPadding)};
    }

    void MakeLane(const TemplateLane& lane, Stretch stretch)
    {
        if (lane.frame > 0)
            stretch = AddFrame(lane.frame, stretch, m_inset);
        std::vector<Band>& bands = m_band.lanes.emplace_back();
        std::vector<Band>& bottom = m_bottoms.emplace_back();
        AddPadding(bands);
        AddFlow(bands, lane.elements, stretch);
        AddFlow(bottom, lane.bottom, stretch);
        AddPadding(bottom);
        m_band.height = std::max(m_band.height, HeightOf(bands) + HeightOf(bottom));
        m_band.holdsRows = m_band.holdsRows || HoldsRows(lane);
    }

    void AddFlow(std::vector<Band>& bands, const std::vector<TemplateElement>& elements, Stretch stretch)
    {
        const std::unique_ptr<BandStream> flow = MakeFlow(elements, m_maker, stretch);
        for (Band band; flow->Next(band); band = Band())
            bands.push_back(std::move(band));
    }

    void AddPadding(std::vector<Band>& bands) const
    {
        if (m_padding > 0)
            bands.emplace_back().height = m_padding;
    }

    void AddBottom(std::vector<Band>& bands, std::vector<Band>& bottom) const
    {
        if (bottom.empty())
            return;
        Band space;
        space.isElastic = true;
        space.height = m_band.height - HeightOf(bands) - HeightOf(bottom);
        bands.push_back(std::move(space));
        std::move(bottom.begin(), bottom.end(), std::back_inserter(bands));
    }

    const TemplateLanes& m_lanes;
    BandMaker& m_maker;
    Stretch m_stretch;
    float m_inset = 0; // distance of the frames of the lanes from the edge of the band
    float m_padding =
        0; // above and below what stands in the lanes, framed or not, so that their lines are level
    Band m_band;
    std::vector<std::vector<Band>> m_bottoms; // the <bottom> of each lane
};

}

Band MakeLanes(const TemplateLanes& lanes, BandMaker& maker, Stretch stretch)
{
    return LanesMaker(lanes, maker, stretch).Make();
}

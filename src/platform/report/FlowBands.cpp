#include "platform/report/FlowBands.h"

#include "platform/report/ChartBands.h"
#include "platform/report/EachBands.h"
#include "platform/report/LaneBands.h"
#include "platform/report/TableBands.h"

#include <deque>
#include <utility>

namespace {

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

std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch)
{
    return std::make_unique<FlowStream>(elements, maker, stretch);
}

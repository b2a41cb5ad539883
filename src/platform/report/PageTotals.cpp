#include "platform/report/PageTotals.h"

namespace {

constexpr int SoFar = 0;
constexpr int OfPage = 1;

}

PageTotals::PageTotals(std::shared_ptr<const TableStrips> strips, BandMaker& maker)
    : m_strips(std::move(strips))
    , m_maker(maker)
    , m_rows(m_strips->Table().aggregates, OfPage)
    , m_groups(m_strips->Table().groupAggregates, OfPage)
{
}

void PageTotals::Take(const PageShare& share)
{
    for (const std::vector<Value>& row : share.rows)
        m_rows.Add(row);
    if (share.group)
        m_groups.Add(*share.group);
    m_hasBegun = true;
}

void PageTotals::EndPage()
{
    m_rows.Begin(SoFar);
    m_groups.Begin(SoFar);
}

Band PageTotals::Line(const TemplateText& label, int level)
{
    const TotalsInSight sight(m_maker.Data, m_rows, m_groups, level);
    return m_strips->ShortFoot(label);
}

std::vector<Band> PageTotals::Foot()
{
    const TemplatePageTotals& page = *m_strips->Table().page;
    std::vector<Band> lines;
    if (!page.foot.IsEmpty())
        lines.push_back(Line(page.foot, OfPage));
    if (!page.carry.IsEmpty())
        lines.push_back(Line(page.carry, SoFar));
    return lines;
}

std::vector<Band> PageTotals::Head()
{
    const TemplatePageTotals& page = *m_strips->Table().page;
    std::vector<Band> lines;
    if (!page.head.IsEmpty())
        lines.push_back(Line(page.head, SoFar));
    return lines;
}

float PageTotals::FootHeight() const
{
    const TemplatePageTotals& page = *m_strips->Table().page;
    const int lines = (page.foot.IsEmpty() ? 0 : 1) + (page.carry.IsEmpty() ? 0 : 1);
    return static_cast<float>(lines) * m_strips->ShortFootHeight();
}

float PageTotals::HeadHeight() const
{
    return m_strips->Table().page->head.IsEmpty() ? 0 : m_strips->ShortFootHeight();
}

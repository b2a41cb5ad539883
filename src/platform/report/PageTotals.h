#pragma once

#include "platform/report/Accumulators.h"
#include "platform/report/TableStrips.h"

// The totals of a table that goes on over pages: those of a page, and those carried to the next. They grow as
// strips are placed, since nobody knows before on which page a strip will stand.
class PageTotals {
public:
    PageTotals(std::shared_ptr<const TableStrips> strips, BandMaker& maker);

    // A strip has been placed.
    void Take(const PageShare& share);

    // The page has ended; the totals of the next begin.
    void EndPage();

    // Whether something of the table has been placed by now.
    bool HasBegun() const { return m_hasBegun; }

    // What stands below the last strip of a page, and above the first strip of the next.
    std::vector<Band> Foot();
    std::vector<Band> Head();
    float FootHeight() const;
    float HeadHeight() const;

private:
    Band Line(const TemplateText& label, int level);

    std::shared_ptr<const TableStrips> m_strips;
    BandMaker& m_maker;
    Accumulators m_rows, m_groups; // level 0: all so far; level 1: the page
    bool m_hasBegun = false;
};

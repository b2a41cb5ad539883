#pragma once

#include "platform/report/Accumulators.h"
#include "platform/report/TableStrips.h"

// The totals of a table that continues over pages: those of the page, and those carried forward. They grow
// while bands are placed, since before that nobody knows on which page a band will be.
class PageTotals {
public:
    PageTotals(std::shared_ptr<const TableStrips> strips, BandMaker& maker);

    // Adds what a band contributes, once it is placed.
    void Take(const PageShare& share);

    // Begins the totals of the next page.
    void EndPage();

    // True if something of the table has been placed.
    bool HasBegun() const { return m_hasBegun; }

    // The lines below the last band of a page, and above the first band of the next, and their heights.
    std::vector<Band> Foot();
    std::vector<Band> Head();
    float FootHeight() const;
    float HeadHeight() const;

private:
    Band Line(const TemplateText& label, int level);

    std::shared_ptr<const TableStrips> m_strips;
    BandMaker& m_maker;
    Accumulators m_rows, m_groups; // level 0: everything so far; level 1: the page
    bool m_hasBegun = false;
};

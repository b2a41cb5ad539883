#pragma once

#include "platform/report/Page.h"
#include "platform/template/Value.h"

#include <memory>
#include <optional>
#include <vector>

class PageTotals;

// A frame around a band or a part of it.
struct Frame {
    float weight = 0;
    float x = 0, width = 0;
    float inset = 0; // distance from the upper and lower edge of the band
};

// What a band of a table adds to the totals of its page.
struct PageShare {
    std::vector<std::vector<Value>> rows; // for each row, the values that its totals add
    std::optional<std::vector<Value>> group; // the same for a printed row of rows="groups"
};

// A band is a strip across the page, such as a row of a table, that is placed as one piece if there is room
// for it. The x of its items counts from the left edge of the paper, the y from the top of the band.
struct Band {
    std::vector<PlacedItem> items;
    float height = 0;
    bool keepWithNext = false; // must not be the last on its page
    bool newPage = false; // begins a new page
    std::shared_ptr<const Band> repeated; // heads of its table, repeated if it begins a page
    std::vector<std::vector<Band>> lanes; // blocks side by side, instead of items; each has its own bands
    std::vector<Frame> frames; // around the lanes
    bool isElastic = false; // the empty room between a block and its <bottom>, as much as is left
    bool restartsPages = false; // the page that it begins is numbered 1 again
    bool holdsRows = false; // of lanes: there is a <table> or an <each> in one of them
    bool isPicture = false; // a chart: made lower if the page has too little room, and never split
    std::shared_ptr<PageTotals> page; // totals of the page, if its table has a <page>
    PageShare share;
    bool endsTable = false; // the last of its table, so that nothing is carried forward
    QStringList record; // the fields of its row for a spreadsheet, if the row goes there

    // Nothing is printed for it; it only carries a record.
    bool IsUnseen() const { return items.empty() && lanes.empty() && height <= 0; }
};

// Where an element stands across the paper, in points.
struct Stretch {
    float x = 0;
    float width = 0;
};

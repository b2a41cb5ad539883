#pragma once

#include "platform/report/Page.h"
#include "platform/template/Value.h"

#include <memory>
#include <optional>
#include <vector>

class PageTotals;

// A frame of ruled lines around a strip or a part of it.
struct Frame {
    float weight = 0;
    float x = 0, width = 0;
    float inset = 0; // from the upper and the lower edge of the strip
};

// What a strip of a table adds to the totals of the page that it is placed on.
struct PageShare {
    std::vector<std::vector<Value>> rows; // of each row what its totals are made of
    std::optional<std::vector<Value>> group; // the same of a row that stands for a group
};

// A strip across the page, placed as one piece where there is room for it. Its items lie at their places from
// the left edge of the paper and from the strip's own upper edge.
struct Band {
    std::vector<PlacedItem> items;
    float height = 0;
    bool keepWithNext = false; // not to be the last on its page
    bool newPage = false; // begins a page
    std::shared_ptr<const Band> repeated; // stands above it when it begins a page: the heads of its table
    std::vector<std::vector<Band>> lanes; // instead of items: strips side by side
    std::vector<Frame> frames; // around the lanes
    bool isElastic = false; // nothing but the height that is left in a lane above what stands at its bottom
    bool restartsPages = false; // the pages are numbered anew from the one that it begins
    bool holdsRows = false; // of lanes: tables or parts that come once a row stand in them
    bool isPicture = false; // is never split; made lower where a page has too little room for it
    std::shared_ptr<PageTotals> page; // of its table, if they are printed
    PageShare share;
    bool endsTable = false; // nothing of its table follows, so nothing is carried over
    QStringList record; // of a row that goes into a spreadsheet: its fields

    // Nothing is seen of it: it only carries a record.
    bool IsUnseen() const { return items.empty() && lanes.empty() && height <= 0; }
};

// Where an element stands on the paper, in points.
struct Stretch {
    float x = 0;
    float width = 0;
};

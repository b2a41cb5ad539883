#pragma once

#include "platform/report/Records.h"
#include "platform/report/ReportPages.h"
#include "platform/report/TextMeasure.h"

#include <deque>
#include <memory>
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

// Makes the strips of single elements.
class BandMaker {
public:
    BandMaker(ReportData& rows, TextMeasure& texts, FontTable& fontTable);

    bool Holds(const std::optional<Expression>& condition);

    // The font of a look; what isn't said comes from the template.
    FontSpec Font(const TextLook& look) const;

    // A text that breaks into lines, at a height of the strip; the strip grows with it.
    void AddWrapped(Band& band, const QString& text, const TextLook& look, Stretch stretch);

    // The strip of a text, of a rule or of a space; nothing for an empty text.
    std::optional<Band> Make(const TemplateParagraph& paragraph, Stretch stretch);
    static Band Make(const TemplateRule& rule, Stretch stretch);
    static Band Make(const TemplateSpace& space);

    // Each pair is a strip.
    std::vector<Band> Make(const TemplatePairs& pairs, Stretch stretch);

    ReportData& Data;
    TextMeasure& Measure;
    FontTable& Fonts;
    RecordPlan Records; // which rows are kept for a spreadsheet
    int RecordCount = 0; // of those that have been made
};

// The strips of a chart: one.
Band MakeChart(const TemplateChart& chart, BandMaker& maker, Stretch stretch);

// The strip of blocks side by side: each is laid out to its end, and the page decides how much of each it
// takes.
Band MakeLanes(const TemplateLanes& lanes, BandMaker& maker, Stretch stretch);

// A part of a template that gives its strips one after the other, reading rows as it goes.
class BandStream {
public:
    virtual ~BandStream() = default;

    // Puts the next strip into `band`, which is empty; false at the end.
    virtual bool Next(Band& band) = 0;
};

// The elements of a template one under the other.
std::unique_ptr<BandStream> MakeFlow(
    const std::vector<TemplateElement>& elements, BandMaker& maker, Stretch stretch);

// Some elements once for each row of a source, or for each value that its rows have.
std::unique_ptr<BandStream> MakeEach(const TemplateEach& each, BandMaker& maker, Stretch stretch);

// The rows of a table with their heads, groups and totals.
std::unique_ptr<BandStream> MakeTable(const TemplateTable& table, BandMaker& maker, Stretch stretch);

// What is taken over from `inner`, and from `outer` where that says nothing.
TextLook Merge(const TextLook& outer, const TextLook& inner);

#pragma once

#include "platform/report/Bands.h"

// Fills a checked template: reads rows as it goes and gives one page after the other.
class ReportFiller {
public:
    // The template, the connection and the fonts must outlive it. New fonts are put in as they are met.
    ReportFiller(const ReportTemplate& report, Connection& connection, Selection selection, FontTable& fonts);
    ~ReportFiller();

    // Lays out the next page; false when there is none any more. A report without a row has one page.
    bool NextPage(Page& page);

    // The rows that stand on the pages so far, for a spreadsheet (see RecordPlan). The heads come first.
    const std::vector<QStringList>& Records() const { return m_records; }

    // What its texts are measured with.
    const TextMeasure& Measure() const { return m_measure; }

private:
    // A page in the making.
    struct Sheet {
        Page page;
        float y = 0; // where the next strip goes
        float end = 0; // where the foot of the page begins
        bool isEmpty = true; // nothing but its head stands on it
        std::vector<Band> footer;
        std::shared_ptr<PageTotals> totals; // of a table that goes on below what stands there
    };
    using Lanes = std::vector<std::deque<Band>>;

    Sheet BeginSheet();
    void EndSheet(Sheet& sheet);
    std::vector<Band> MakeEdge(const std::vector<TemplateElement>& elements);
    bool Fetch();
    std::size_t ChainLength();
    float ChainHeight(std::size_t length) const;
    float PageHeight() const;
    bool PlaceChain(Sheet& sheet);
    bool PlaceNext(Sheet& sheet, float end);
    void Place(Sheet& sheet, Band& band);
    void Put(Sheet& sheet, Band& band, float y, float& height);
    bool ContinueLanes(Sheet& sheet);
    float FillLane(Sheet& sheet, std::deque<Band>& lane, float top);
    bool PlaceBottoms(Sheet& sheet, std::vector<float>& ends);
    static void PutFrames(Sheet& sheet, const std::vector<Frame>& frames, float top, float bottom);
    void FitFront(std::deque<Band>& bands, float room);
    float AddRepeated(Sheet& sheet, const Band& band, float y);
    void AddPageHead(Sheet& sheet, const Band& band);
    void AddPageFoot(Sheet& sheet);
    void BeginRecords();
    void Record(const QStringList& record);

    const ReportTemplate& m_report;
    ReportData m_data;
    TextMeasure m_measure;
    BandMaker m_maker;
    std::unique_ptr<BandStream> m_flow;
    std::deque<Band> m_waiting; // strips that are made and not yet placed
    Lanes m_lanes; // what is left of strips side by side
    std::vector<Frame> m_frames; // around them
    bool m_hasEnded = false; // the flow gives no more strips
    bool m_isDone = false;
    std::vector<QStringList> m_records;
};

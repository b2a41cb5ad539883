#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"
#include "platform/report/LaneFiller.h"
#include "platform/report/ReportData.h"

#include <deque>

// Fills a checked template page by page and reads rows as it needs them.
class ReportFiller {
public:
    // Template, connection and fonts must outlive it. The fonts that the pages use are added to `fonts`.
    ReportFiller(const ReportTemplate& report, Connection& connection, Selection selection, FontTable& fonts);
    ~ReportFiller();

    // Lays out the next page; false if there are no more. A report without rows has one page.
    bool NextPage(Page& page);

    // The records of the pages so far, for a spreadsheet (see RecordPlan). The heads come first.
    const std::vector<QStringList>& Records() const { return m_records; }

    // What texts are measured with.
    const TextMeasure& Measure() const { return m_measure; }

private:
    Sheet BeginSheet();
    void EndSheet(Sheet& sheet);
    std::vector<Band> MakeEdge(const std::vector<TemplateElement>& elements);
    bool Fetch();
    std::size_t ChainLength();
    float ChainHeight(std::size_t length) const;
    float PageHeight() const;
    bool PlaceChain(Sheet& sheet);
    bool PlaceNext(Sheet& sheet, float end);
    void BeginRecords();
    void Record(QStringList record);

    const ReportTemplate& m_report;
    ReportData m_data;
    TextMeasure m_measure;
    BandMaker m_maker;
    BandSplitter m_splitter;
    std::unique_ptr<BandStream> m_flow;
    std::deque<Band> m_waiting; // bands that are made but not placed yet
    LaneFiller m_lanes; // blocks side by side that continue on the next page
    bool m_hasEnded = false; // the flow has no more bands
    bool m_isDone = false;
    std::vector<QStringList> m_records;
};

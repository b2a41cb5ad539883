#pragma once

#include "platform/report/BandMaker.h"
#include "platform/report/BandStream.h"
#include "platform/report/LaneFiller.h"
#include "platform/report/ReportData.h"

#include <deque>

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
    std::deque<Band> m_waiting; // strips that are made and not yet placed
    LaneFiller m_lanes; // those that have begun
    bool m_hasEnded = false; // the flow gives no more strips
    bool m_isDone = false;
    std::vector<QStringList> m_records;
};

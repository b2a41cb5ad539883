#include "platform/report/ReportFiller.h"

#include "platform/report/BandRoom.h"
#include "platform/report/BandSplitter.h"
#include "platform/report/Evaluation.h"
#include "platform/report/FlowBands.h"
#include "platform/report/PageTotals.h"
#include "platform/template/Spacing.h"
#include "platform/text/RunTimeError.h"

#include <utility>

ReportFiller::ReportFiller(
    const ReportTemplate& report, Connection& connection, Selection selection, FontTable& fonts)
    : m_report(report)
    , m_data(report, connection, std::move(selection))
    , m_maker(m_data, m_measure, fonts)
    , m_splitter(m_measure, fonts, report.file)
    , m_lanes(m_splitter, PageHeight())
{
    m_maker.Records = RecordPlan::Of(report.body);
    BeginRecords();
    const Stretch stretch{
        static_cast<float>(report.paper.left), static_cast<float>(report.paper.BodyWidth())};
    m_flow = MakeFlow(report.body, m_maker, stretch);
}

ReportFiller::~ReportFiller() = default;

void ReportFiller::BeginRecords()
{
    const RecordPlan& plan = m_maker.Records;
    if (plan.table || plan.each) {
        m_records.push_back(RecordHeads(plan, m_data));
    } else if (!m_report.sources.empty()) {
        m_records.push_back(FieldNames(0, m_data));
        Record(Fields(0, m_data));
    }
}

// A record with fewer fields than there are heads is filled up with empty ones.
void ReportFiller::Record(QStringList record)
{
    if (record.isEmpty())
        return;
    while (record.size() < m_records.front().size())
        record.append(QString());
    m_records.push_back(std::move(record));
}

std::vector<Band> ReportFiller::MakeEdge(const std::vector<TemplateElement>& elements)
{
    const Paper& paper = m_report.paper;
    const auto flow =
        MakeFlow(elements, m_maker, {static_cast<float>(paper.left), static_cast<float>(paper.BodyWidth())});
    std::vector<Band> bands;
    for (Band band; flow->Next(band); band = Band())
        bands.push_back(std::move(band));
    return bands;
}

Sheet ReportFiller::BeginSheet()
{
    const Paper& paper = m_report.paper;
    Sheet sheet;
    sheet.page.width = static_cast<float>(paper.width);
    sheet.page.height = static_cast<float>(paper.height);
    sheet.y = static_cast<float>(paper.top);
    m_data.Page += 1;
    if (m_lanes.IsEmpty() && !m_waiting.empty() && std::exchange(m_waiting.front().restartsPages, false)) {
        m_data.Page = 1;
        sheet.page.restartsPages = true;
    }
    std::vector<Band> header = MakeEdge(m_report.header);
    sheet.footer = MakeEdge(m_report.footer);
    sheet.end = static_cast<float>(paper.height - paper.bottom) - HeightOf(sheet.footer);
    if (sheet.y + HeightOf(header) + Spacing::SmallestBody > sheet.end)
        throw RunTimeError(RunTimeError::Overflow,
            QStringLiteral("The head and the foot of the page leave no room for the report.\n%1:%2")
                .arg(m_report.file)
                .arg(m_report.headerLine));
    for (Band& band : header)
        sheet.Place(band);
    sheet.isEmpty = true;
    return sheet;
}

void ReportFiller::EndSheet(Sheet& sheet)
{
    sheet.PlacePageTotals();
    if (m_report.paper.isRoll) {
        sheet.page.height = sheet.y + HeightOf(sheet.footer) + static_cast<float>(m_report.paper.bottom);
    } else {
        sheet.y = sheet.end;
    }
    for (Band& band : sheet.footer)
        sheet.Place(band);
    for (std::size_t i = 0; i < sheet.page.items.size(); ++i) {
        if (sheet.page.items[i].text.contains(Page::CountMark))
            sheet.page.waiting.push_back(static_cast<quint32>(i));
    }
    sheet.page.items.shrink_to_fit();
}

bool ReportFiller::NextPage(Page& page)
{
    if (m_isDone)
        return false;
    Fetch(); // sets the current row, which the header of the page may print
    Sheet sheet = BeginSheet();
    bool isFull = !m_lanes.Continue(sheet);
    while (!isFull)
        isFull = !PlaceChain(sheet);
    m_isDone = m_hasEnded && m_waiting.empty() && m_lanes.IsEmpty();
    EndSheet(sheet);
    for (const QStringList& record : sheet.records)
        Record(record);
    page = std::move(sheet.page);
    return true;
}

// Makes the next band if none is waiting; false at the end.
bool ReportFiller::Fetch()
{
    if (!m_waiting.empty())
        return true;
    Band band;
    if (m_hasEnded || !m_flow->Next(band)) {
        m_hasEnded = true;
        return false;
    }
    m_waiting.push_back(std::move(band));
    return true;
}

// How many of the waiting bands stay together. More bands are made for this, but no more than fill a page.
std::size_t ReportFiller::ChainLength()
{
    std::size_t length = 1;
    float height = m_waiting.front().height;
    while (m_waiting[length - 1].keepWithNext && height < PageHeight()) {
        if (length == m_waiting.size()) {
            Band band;
            if (m_hasEnded || !m_flow->Next(band)) {
                m_hasEnded = true;
                break;
            }
            m_waiting.push_back(std::move(band));
        }
        if (m_waiting[length].newPage)
            break;
        height += m_waiting[length].height;
        ++length;
    }
    return length;
}

float ReportFiller::PageHeight() const
{
    return static_cast<float>(m_report.paper.BodyHeight());
}

// The height of bands that stay together. If the last is blocks side by side, it counts with the least it
// can begin with, provided that it contains rows or no page can hold it.
float ReportFiller::ChainHeight(std::size_t length) const
{
    float height = 0;
    for (std::size_t i = 0; i + 1 < length; ++i)
        height += m_waiting[i].height;
    const Band& last = m_waiting[length - 1];
    const bool goesOn = last.holdsRows || last.height > PageHeight();
    return height + (goesOn ? LeastRoom(last, PageHeight()) : last.height);
}

// Places the bands that stay together. False if the page is full or the report has ended.
bool ReportFiller::PlaceChain(Sheet& sheet)
{
    if (!Fetch())
        return false;
    if (std::exchange(m_waiting.front().newPage, false) && !sheet.isEmpty)
        return false;
    const std::size_t length = ChainLength();
    const float height = ChainHeight(length);
    const Band& front = m_waiting.front();
    const float end = sheet.end - HeightBelow(m_waiting[length - 1]);
    const bool isWhole = sheet.y + (sheet.isEmpty ? HeightAbove(front) : 0) + height <= end + Page::Tolerance;
    if (!sheet.isEmpty && !isWhole) {
        // If no page can hold them, they begin here as long as there is room for a beginning.
        const bool isHopeless = HeightAbove(front) + height + sheet.end - end > PageHeight();
        const float least = LeastRoom(front, PageHeight()) + HeightBelow(front);
        if (!isHopeless || sheet.y + least > sheet.end + Page::Tolerance)
            return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (!PlaceNext(sheet, isWhole ? end : sheet.end - HeightBelow(m_waiting.front())))
            return false;
    }
    return true;
}

// Places the first waiting band above `end`; false if it, or a part of it, must go to the next page.
bool ReportFiller::PlaceNext(Sheet& sheet, float end)
{
    Band& front = m_waiting.front();
    if (front.IsUnseen()) {
        sheet.Record(front.record);
        m_waiting.pop_front();
        return true;
    }
    const bool fits = sheet.y + front.height <= end + Page::Tolerance;
    if (!fits && !front.lanes.empty()) {
        m_lanes.Take(front);
        sheet.Record(front.record);
        m_waiting.pop_front();
        return m_lanes.Continue(sheet);
    }
    if (sheet.isEmpty)
        sheet.PlaceHeadOf(front);
    if (sheet.y + front.height > end + Page::Tolerance) {
        if (!sheet.isEmpty)
            return false;
        m_splitter.FitFront(m_waiting, end - sheet.y);
    }
    Band band = std::move(m_waiting.front());
    m_waiting.pop_front();
    sheet.isEmpty = false;
    sheet.totals = band.endsTable ? nullptr : band.page;
    sheet.Place(band);
    if (band.page)
        band.page->Take(band.share);
    return true;
}

#include "platform/report/ReportFiller.h"

#include "platform/report/BandRoom.h"
#include "platform/report/BandSplitter.h"
#include "platform/report/Evaluation.h"
#include "platform/report/PageTotals.h"
#include "platform/template/Spacing.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr float Tolerance = 0.01F;

}

ReportFiller::ReportFiller(
    const ReportTemplate& report, Connection& connection, Selection selection, FontTable& fonts)
    : m_report(report)
    , m_data(report, connection, std::move(selection))
    , m_maker(m_data, m_measure, fonts)
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

ReportFiller::Sheet ReportFiller::BeginSheet()
{
    const Paper& paper = m_report.paper;
    Sheet sheet;
    sheet.page.width = static_cast<float>(paper.width);
    sheet.page.height = static_cast<float>(paper.height);
    sheet.y = static_cast<float>(paper.top);
    m_data.Page += 1;
    if (m_lanes.empty() && !m_waiting.empty() && std::exchange(m_waiting.front().restartsPages, false)) {
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
        Place(sheet, band);
    sheet.isEmpty = true;
    return sheet;
}

void ReportFiller::EndSheet(Sheet& sheet)
{
    AddPageFoot(sheet);
    if (m_report.paper.isRoll) {
        sheet.page.height = sheet.y + HeightOf(sheet.footer) + static_cast<float>(m_report.paper.bottom);
    } else {
        sheet.y = sheet.end;
    }
    for (Band& band : sheet.footer)
        Place(sheet, band);
    for (std::size_t i = 0; i < sheet.page.items.size(); ++i) {
        if (sheet.page.items[i].text.contains(PageCountMark))
            sheet.page.waiting.push_back(static_cast<quint32>(i));
    }
    sheet.page.items.shrink_to_fit();
}

bool ReportFiller::NextPage(Page& page)
{
    if (m_isDone)
        return false;
    Fetch(); // the rows that the head of the page speaks of
    Sheet sheet = BeginSheet();
    bool isFull = !ContinueLanes(sheet);
    while (!isFull)
        isFull = !PlaceChain(sheet);
    m_isDone = m_hasEnded && m_waiting.empty() && m_lanes.empty();
    EndSheet(sheet);
    page = std::move(sheet.page);
    return true;
}

// Makes sure that a strip is waiting, if there is one.
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

// How many of the waiting strips stay together; more are made as needed, but not more than fill a page.
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

// What the strips that stay together take up. Blocks side by side that stand at their end may go on over the
// page: those with rows in them, and those that no page can hold.
float ReportFiller::ChainHeight(std::size_t length) const
{
    float height = 0;
    for (std::size_t i = 0; i + 1 < length; ++i)
        height += m_waiting[i].height;
    const Band& last = m_waiting[length - 1];
    const bool goesOn = last.holdsRows || last.height > PageHeight();
    return height + (goesOn ? LeastHeight(last, PageHeight()) : last.height);
}

// Places the strips that stay together. False when the page is full or the report has ended.
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
    const bool isWhole = sheet.y + (sheet.isEmpty ? HeightAbove(front) : 0) + height <= end + Tolerance;
    if (!sheet.isEmpty && !isWhole) {
        // What fills more than a page by itself begins where it is, if it can begin there at all.
        const bool isHopeless = HeightAbove(front) + height + sheet.end - end > PageHeight();
        const float least = LeastHeight(front, PageHeight()) + HeightBelow(front);
        if (!isHopeless || sheet.y + least > sheet.end + Tolerance)
            return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (!PlaceNext(sheet, isWhole ? end : sheet.end - HeightBelow(m_waiting.front())))
            return false;
    }
    return true;
}

// Places the first waiting strip above `end`; false if it, or a part of it, has to go on to the next page.
bool ReportFiller::PlaceNext(Sheet& sheet, float end)
{
    Band& front = m_waiting.front();
    if (front.IsUnseen()) {
        Record(front.record);
        m_waiting.pop_front();
        return true;
    }
    const bool fits = sheet.y + front.height <= end + Tolerance;
    if (!fits && !front.lanes.empty()) {
        for (std::vector<Band>& lane : front.lanes)
            m_lanes.emplace_back(std::make_move_iterator(lane.begin()), std::make_move_iterator(lane.end()));
        m_frames = std::move(front.frames);
        Record(front.record);
        m_waiting.pop_front();
        return ContinueLanes(sheet);
    }
    if (sheet.isEmpty)
        AddPageHead(sheet, front);
    if (sheet.y + front.height > end + Tolerance) {
        if (!sheet.isEmpty)
            return false;
        FitFront(m_waiting, end - sheet.y);
    }
    Band band = std::move(m_waiting.front());
    m_waiting.pop_front();
    sheet.isEmpty = false;
    sheet.totals = band.endsTable ? nullptr : band.page;
    Place(sheet, band);
    if (band.page)
        band.page->Take(band.share);
    return true;
}

// Puts down what stands above a strip that begins a page: the heads of its table, and what is carried over.
void ReportFiller::AddPageHead(Sheet& sheet, const Band& band)
{
    sheet.y = AddRepeated(sheet, band, sheet.y);
    if (!band.page || !band.page->HasBegun())
        return;
    for (Band& line : band.page->Head())
        Place(sheet, line);
}

// Puts down the totals of the page, if a table goes on over it.
void ReportFiller::AddPageFoot(Sheet& sheet)
{
    if (!sheet.totals)
        return;
    for (Band& line : sheet.totals->Foot())
        Place(sheet, line);
    sheet.totals->EndPage();
}

// Puts down what stands above a strip that begins a page, if it leaves room; returns where the strip goes.
float ReportFiller::AddRepeated(Sheet& sheet, const Band& band, float y)
{
    if (!band.repeated || y + band.repeated->height >= sheet.end)
        return y;
    Band head = *band.repeated;
    float height = 0;
    Put(sheet, head, y, height);
    return y + height;
}

void ReportFiller::Place(Sheet& sheet, Band& band)
{
    float height = 0;
    Put(sheet, band, sheet.y, height);
    sheet.y += height;
}

// Puts a strip down at a height of the page; lanes inside of lanes are put down whole.
void ReportFiller::Put(Sheet& sheet, Band& band, float y, float& height)
{
    for (PlacedItem& item : band.items) {
        item.y += y;
        sheet.page.items.push_back(std::move(item));
    }
    PutFrames(sheet, band.frames, y, y + band.height);
    for (std::vector<Band>& lane : band.lanes) {
        float laneY = y;
        for (Band& inside : lane) {
            float insideHeight = 0;
            Put(sheet, inside, laneY, insideHeight);
            laneY += insideHeight;
        }
    }
    Record(band.record);
    height = band.height;
}

void ReportFiller::Record(const QStringList& record)
{
    if (record.isEmpty())
        return;
    QStringList whole = record;
    while (whole.size() < m_records.front().size())
        whole.append(QString());
    m_records.push_back(whole);
}

void ReportFiller::PutFrames(Sheet& sheet, const std::vector<Frame>& frames, float top, float bottom)
{
    for (const Frame& frame : frames) {
        const float height = bottom - top - 2 * frame.inset;
        PlacedItem line;
        line.kind = PlacedItem::Kind::Line;
        line.weight = frame.weight;
        const auto put = [&](float x, float y, float width, float length) {
            line.x = x;
            line.y = y;
            line.width = width;
            line.height = length;
            sheet.page.items.push_back(line);
        };
        put(frame.x, top + frame.inset, frame.width, 0);
        put(frame.x, bottom - frame.inset, frame.width, 0);
        put(frame.x, top + frame.inset, 0, height);
        put(frame.x + frame.width, top + frame.inset, 0, height);
    }
}

// Goes on with strips side by side; true when nothing of them is left.
bool ReportFiller::ContinueLanes(Sheet& sheet)
{
    if (m_lanes.empty())
        return true;
    const float top = sheet.y;
    std::vector<float> ends; // of what stands of each on this page
    bool isAtBottom = true;
    for (std::deque<Band>& lane : m_lanes) {
        ends.push_back(FillLane(sheet, lane, top));
        isAtBottom = isAtBottom && (lane.empty() || lane.front().isElastic);
    }
    const bool isDone = isAtBottom && PlaceBottoms(sheet, ends);
    sheet.y = *std::max_element(ends.begin(), ends.end());
    if (sheet.y > top)
        PutFrames(sheet, m_frames, top, sheet.y);
    sheet.isEmpty = sheet.isEmpty && sheet.y <= top;
    if (isDone)
        m_lanes.clear();
    return isDone;
}

// Places what stands at the bottom of the lanes, all of it ending at one height; false if it has no room. On
// a page of its own it has as much as there is.
bool ReportFiller::PlaceBottoms(Sheet& sheet, std::vector<float>& ends)
{
    std::vector<float> heights;
    float end = *std::max_element(ends.begin(), ends.end());
    const bool isFirst = sheet.isEmpty && end <= sheet.y;
    for (std::size_t i = 0; i < m_lanes.size(); ++i) {
        float height = 0;
        for (const Band& band : m_lanes[i])
            height += band.isElastic ? 0 : band.height;
        heights.push_back(height);
        end = std::max(end, ends[i] + height);
    }
    const bool fits = end <= sheet.end + Tolerance;
    if (!fits && !isFirst)
        return false;
    bool isDone = true;
    for (std::size_t i = 0; i < m_lanes.size(); ++i) {
        if (m_lanes[i].empty())
            continue;
        m_lanes[i].pop_front(); // the room above it
        ends[i] = FillLane(sheet, m_lanes[i], fits ? end - heights[i] : ends[i]);
        isDone = isDone && m_lanes[i].empty();
    }
    return isDone;
}

// Fills one of the strips side by side from a height on, as far as it goes or down to what stands at its
// bottom; returns where it ends.
float ReportFiller::FillLane(Sheet& sheet, std::deque<Band>& lane, float top)
{
    bool isFirst = sheet.isEmpty;
    float y = isFirst && !lane.empty() ? AddRepeated(sheet, lane.front(), top) : top;
    std::size_t chain = 0; // strips at the front that stay together and have begun
    while (!lane.empty() && !lane.front().isElastic) {
        if (chain == 0) {
            chain = ChainIn(lane);
            if (!isFirst && y + FirstPiece(lane, PageHeight()) > sheet.end + Tolerance)
                break;
        }
        if (y + lane.front().height > sheet.end + Tolerance) {
            if (!isFirst)
                break;
            FitFront(lane, sheet.end - y);
        }
        isFirst = isFirst && lane.front().IsUnseen();
        --chain;
        float height = 0;
        Put(sheet, lane.front(), y, height);
        y += height;
        lane.pop_front();
    }
    return y;
}

// Makes the first strip, which is taller than the room of a whole page, stand in it: a picture is made lower,
// anything else is cut into what has room and the rest of it.
void ReportFiller::FitFront(std::deque<Band>& bands, float room)
{
    Band& whole = bands.front();
    if (whole.isPicture)
        return Lower(whole, room);
    Band rest = BandSplitter(m_measure, m_maker.Fonts).Split(whole, room);
    if (!HasContent(whole) && HasContent(rest))
        throw RunTimeError(RunTimeError::Overflow,
            QStringLiteral("A line of the report is taller than the page.\n%1").arg(m_report.file));
    if (HasContent(rest))
        bands.insert(bands.begin() + 1, std::move(rest));
}

#include "platform/report/ReportFiller.h"

#include "platform/report/Evaluation.h"
#include "platform/report/PageTotals.h"
#include "platform/report/Room.h"
#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr float Tolerance = 0.01F;

float HeightOf(const std::vector<Band>& bands)
{
    float height = 0;
    for (const Band& band : bands)
        height += band.height;
    return height;
}

bool HasContent(const Band& band)
{
    return !band.items.empty()
        || std::any_of(band.lanes.begin(), band.lanes.end(), [](const auto& lane) { return !lane.empty(); });
}

float HeightAtTop(const Band& band)
{
    return band.repeated ? band.repeated->height : 0;
}

// What has to stand above a strip that begins a page.
float HeightAbove(const Band& band)
{
    return HeightAtTop(band) + (band.page && band.page->HasBegun() ? band.page->HeadHeight() : 0);
}

// The room that has to be left below a strip, in case it is the last of its page.
float HeightBelow(const Band& band)
{
    return band.page && !band.endsTable ? band.page->FootHeight() : 0;
}

// How many strips at the front of a lane stay together.
template <typename Lane> std::size_t ChainIn(const Lane& lane)
{
    std::size_t length = 1;
    while (length < lane.size() && lane[length - 1].keepWithNext)
        ++length;
    return length;
}

// The height with which a lane begins: the strips that stay together, or the first of them if together they
// fill more than a page.
template <typename Lane> float FirstPiece(const Lane& lane, float page)
{
    float height = 0;
    for (std::size_t i = 0; i < ChainIn(lane); ++i)
        height += lane[i].height;
    return height + HeightAtTop(lane.front()) > page ? lane.front().height : height;
}

// The room with which a strip can begin, if it may go on over the page.
float LeastHeight(const Band& band, float page)
{
    if (band.lanes.empty())
        return band.height;
    float height = 0;
    for (const std::vector<Band>& lane : band.lanes)
        height = std::max(height, lane.empty() ? 0 : FirstPiece(lane, page));
    return height;
}

// Makes a picture stand in a height: its strokes lie closer, its texts keep their size.
void Lower(Band& picture, float room)
{
    const float share = room / picture.height;
    for (PlacedItem& item : picture.items) {
        if (item.kind == PlacedItem::Kind::Text) {
            const float middle = (item.y + item.height / 2) * share;
            item.y = std::clamp(middle - item.height / 2, 0.0F, std::max(0.0F, room - item.height));
        } else {
            item.y *= share;
            item.height *= share;
        }
    }
    picture.height = room;
}

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
    std::vector<Band> header = MakeEdge(m_report.header);
    sheet.footer = MakeEdge(m_report.footer);
    sheet.end = static_cast<float>(paper.height - paper.bottom) - HeightOf(sheet.footer);
    if (sheet.y + HeightOf(header) + Room::SmallestBody > sheet.end)
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

// Goes on with strips side by side; true when nothing of them is left.
bool ReportFiller::ContinueLanes(Sheet& sheet)
{
    if (m_lanes.empty())
        return true;
    const float top = sheet.y;
    float bottom = top;
    bool isDone = true;
    for (std::deque<Band>& lane : m_lanes)
        isDone = FillLane(sheet, lane, top, bottom) && isDone;
    sheet.y = bottom;
    sheet.isEmpty = false;
    if (isDone)
        m_lanes.clear();
    return isDone;
}

bool ReportFiller::FillLane(Sheet& sheet, std::deque<Band>& lane, float top, float& bottom)
{
    bool isFirst = sheet.isEmpty;
    float y = isFirst && !lane.empty() ? AddRepeated(sheet, lane.front(), top) : top;
    std::size_t chain = 0; // strips at the front that stay together and have begun
    while (!lane.empty()) {
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
    bottom = std::max(bottom, y);
    return lane.empty();
}

// Makes the first strip, which is taller than the room of a whole page, stand in it: a picture is made lower,
// anything else is cut into what has room and the rest of it.
void ReportFiller::FitFront(std::deque<Band>& bands, float room)
{
    Band& whole = bands.front();
    if (whole.isPicture)
        return Lower(whole, room);
    Band rest = Split(whole, room);
    if (!HasContent(whole) && HasContent(rest))
        throw RunTimeError(RunTimeError::Overflow,
            QStringLiteral("A line of the report is taller than the page.\n%1").arg(m_report.file));
    if (HasContent(rest))
        bands.insert(bands.begin() + 1, std::move(rest));
}

// Leaves in a strip what stands in a height and returns the rest of it: texts are cut between two of their
// lines, everything else goes to the side where it begins.
Band ReportFiller::Split(Band& whole, float room)
{
    Band first;
    Band rest;
    first.height = room;
    first.record = std::move(whole.record);
    first.share = std::exchange(whole.share, {});
    first.page = rest.page = whole.page;
    rest.endsTable = whole.endsTable;
    rest.repeated = whole.repeated;
    rest.keepWithNext = whole.keepWithNext;
    bool goesOver = false; // the item before, or a part of it
    for (PlacedItem& item : whole.items) {
        if (item.goesOn && goesOver)
            item.y = room + rest.items.back().y + rest.items.back().height;
        const std::size_t before = rest.items.size();
        SplitItem(std::move(item), room, first, rest);
        goesOver = rest.items.size() > before;
    }
    if (!whole.lanes.empty())
        SplitLanes(whole, room, first, rest);
    whole = std::move(first);
    return rest;
}

void ReportFiller::SplitItem(PlacedItem item, float room, Band& first, Band& rest)
{
    if (item.y + item.height <= room + Tolerance)
        return first.items.push_back(std::move(item));
    const bool isText = item.kind == PlacedItem::Kind::Text && item.fit == Fit::Wrap;
    PlacedItem next = item;
    next.y = std::max(0.0F, item.y - room);
    const FontSpec& font = m_maker.Fonts.At(item.font);
    if (isText && item.y + m_measure.LineHeight(font) <= room + Tolerance) {
        const qsizetype count = m_measure.Fitting(font, item.text, item.width, room - item.y);
        next.text = item.text.mid(count);
        next.height = m_measure.Height(font, next.text, item.width);
        item.text.truncate(count);
        item.height = room - item.y;
        first.items.push_back(std::move(item));
    }
    if (isText && next.text.isEmpty())
        return;
    rest.height = std::max(rest.height, next.y + next.height);
    rest.items.push_back(std::move(next));
}

void ReportFiller::SplitLanes(Band& whole, float room, Band& first, Band& rest)
{
    for (std::vector<Band>& lane : whole.lanes) {
        float y = 0;
        std::size_t at = 0;
        while (at < lane.size() && y + lane[at].height <= room + Tolerance)
            y += lane[at++].height;
        std::vector<Band>& later = rest.lanes.emplace_back();
        if (at < lane.size()) {
            if (Band next = Split(lane[at], room - y); HasContent(next))
                later.push_back(std::move(next));
            const auto behind = lane.begin() + static_cast<std::ptrdiff_t>(at) + 1;
            std::move(behind, lane.end(), std::back_inserter(later));
            lane.resize(HasContent(lane[at]) ? at + 1 : at);
        }
        first.lanes.push_back(std::move(lane));
        rest.height = std::max(rest.height, HeightOf(later));
    }
}

#include "ReportFiller.h"

#include "Evaluation.h"
#include "Room.h"
#include "RunTimeError.h"

#include <algorithm>
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
    while (m_waiting[length - 1].keepWithNext && height < m_report.paper.BodyHeight()) {
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

float ReportFiller::HeightAtTop(const Band& band) const
{
    return band.repeated ? band.repeated->height : 0;
}

// Places the strips that stay together. False when the page is full or the report has ended.
bool ReportFiller::PlaceChain(Sheet& sheet)
{
    if (!Fetch())
        return false;
    if (std::exchange(m_waiting.front().newPage, false) && !sheet.isEmpty)
        return false;
    const std::size_t length = ChainLength();
    float height = 0;
    for (std::size_t i = 0; i < length; ++i)
        height += m_waiting[i].height;
    if (!sheet.isEmpty && sheet.y + height > sheet.end + Tolerance) {
        // What fills more than a page by itself begins where it is, if it can begin there at all.
        const float page = static_cast<float>(m_report.paper.BodyHeight());
        const bool isHopeless = height + HeightAtTop(m_waiting.front()) > page;
        if (!isHopeless || sheet.y + m_waiting.front().height > sheet.end + Tolerance)
            return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (!PlaceNext(sheet))
            return false;
    }
    return true;
}

// Places the first waiting strip; false if it, or a part of it, has to go on to the next page.
bool ReportFiller::PlaceNext(Sheet& sheet)
{
    const bool fits = sheet.y + m_waiting.front().height <= sheet.end + Tolerance;
    if (!fits && !m_waiting.front().lanes.empty()) {
        for (std::vector<Band>& lane : m_waiting.front().lanes)
            m_lanes.emplace_back(std::make_move_iterator(lane.begin()), std::make_move_iterator(lane.end()));
        Record(m_waiting.front().record);
        m_waiting.pop_front();
        return ContinueLanes(sheet);
    }
    if (sheet.isEmpty)
        AddRepeated(sheet, m_waiting.front());
    if (sheet.y + m_waiting.front().height > sheet.end + Tolerance) {
        if (!sheet.isEmpty)
            return false;
        SplitFront(m_waiting, sheet.end - sheet.y);
    }
    Band band = std::move(m_waiting.front());
    m_waiting.pop_front();
    sheet.isEmpty = false;
    Place(sheet, band);
    return true;
}

void ReportFiller::AddRepeated(Sheet& sheet, const Band& band)
{
    if (!band.repeated)
        return;
    Band head = *band.repeated;
    if (sheet.y + head.height < sheet.end)
        Place(sheet, head);
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
    if (!record.isEmpty())
        m_records.push_back(record);
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
    float y = top;
    const bool isTop = sheet.isEmpty;
    if (isTop && !lane.empty() && lane.front().repeated) {
        Band head = *lane.front().repeated;
        float height = 0;
        Put(sheet, head, y, height);
        y += height;
    }
    bool isFirst = true;
    while (!lane.empty()) {
        if (y + lane.front().height > sheet.end + Tolerance) {
            if (!isTop || !isFirst)
                break;
            SplitFront(lane, sheet.end - y);
        }
        isFirst = false;
        float height = 0;
        Put(sheet, lane.front(), y, height);
        y += height;
        lane.pop_front();
    }
    bottom = std::max(bottom, y);
    return lane.empty();
}

// Cuts the first strip, which is taller than a whole page, into one that has room and the rest of it: texts
// between two of their lines, everything else goes to the side where it begins.
void ReportFiller::SplitFront(std::deque<Band>& bands, float room)
{
    Band& whole = bands.front();
    Band first;
    Band rest;
    first.height = room;
    first.record = std::move(whole.record);
    rest.repeated = whole.repeated;
    rest.keepWithNext = whole.keepWithNext;
    for (PlacedItem& item : whole.items) {
        const bool isText = item.kind == PlacedItem::Kind::Text && item.fit == Fit::Wrap;
        if (item.y + item.height <= room + Tolerance) {
            first.items.push_back(std::move(item));
            continue;
        }
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
            continue;
        rest.height = std::max(rest.height, next.y + next.height);
        rest.items.push_back(std::move(next));
    }
    if (first.items.empty() && !rest.items.empty())
        throw RunTimeError(RunTimeError::Overflow,
            QStringLiteral("A line of the report is taller than the page.\n%1").arg(m_report.file));
    whole = std::move(first);
    if (!rest.items.empty())
        bands.insert(bands.begin() + 1, std::move(rest));
}

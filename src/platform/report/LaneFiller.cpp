#include "platform/report/LaneFiller.h"

#include "platform/report/BandRoom.h"

#include <algorithm>
#include <iterator>
#include <utility>

void LaneFiller::Take(Band& band)
{
    for (std::vector<Band>& lane : band.lanes)
        m_lanes.emplace_back(std::make_move_iterator(lane.begin()), std::make_move_iterator(lane.end()));
    m_frames = std::move(band.frames);
}

bool LaneFiller::Continue(Sheet& sheet)
{
    if (m_lanes.empty())
        return true;
    const float top = sheet.y;
    std::vector<float> ends; // where each lane ends on this page
    bool isAtBottom = true;
    for (std::deque<Band>& lane : m_lanes) {
        ends.push_back(FillLane(sheet, lane, top));
        isAtBottom = isAtBottom && (lane.empty() || lane.front().isElastic);
    }
    const bool isDone = isAtBottom && PlaceBottoms(sheet, ends);
    sheet.y = *std::max_element(ends.begin(), ends.end());
    if (sheet.y > top)
        sheet.PutFrames(m_frames, top, sheet.y);
    sheet.isEmpty = sheet.isEmpty && sheet.y <= top;
    if (isDone)
        m_lanes.clear();
    return isDone;
}

// Places the <bottom> of each lane so that all of them end at the same height; false if there is no room. At
// the top of a page they take the room there is.
bool LaneFiller::PlaceBottoms(Sheet& sheet, std::vector<float>& ends)
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
    const bool fits = end <= sheet.end + Page::Tolerance;
    if (!fits && !isFirst)
        return false;
    bool isDone = true;
    for (std::size_t i = 0; i < m_lanes.size(); ++i) {
        if (m_lanes[i].empty())
            continue;
        m_lanes[i].pop_front(); // the elastic band above the bottom
        ends[i] = FillLane(sheet, m_lanes[i], fits ? end - heights[i] : ends[i]);
        isDone = isDone && m_lanes[i].empty();
    }
    return isDone;
}

// Places a lane from `top` on until the page is full, or down to its <bottom>; returns where it ends.
float LaneFiller::FillLane(Sheet& sheet, std::deque<Band>& lane, float top)
{
    bool isFirst = sheet.isEmpty;
    float y = isFirst && !lane.empty() ? sheet.PutRepeated(lane.front(), top) : top;
    std::size_t chain = 0; // how many of the bands that stay together are still to be placed
    while (!lane.empty() && !lane.front().isElastic) {
        if (chain == 0) {
            chain = ChainIn(lane);
            if (!isFirst && y + FirstPiece(lane, m_pageHeight) > sheet.end + Page::Tolerance)
                break;
        }
        if (y + lane.front().height > sheet.end + Page::Tolerance) {
            if (!isFirst)
                break;
            m_splitter.FitFront(lane, sheet.end - y);
        }
        isFirst = isFirst && lane.front().IsUnseen();
        --chain;
        y += sheet.Put(lane.front(), y);
        lane.pop_front();
    }
    return y;
}

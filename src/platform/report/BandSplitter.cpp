#include "platform/report/BandSplitter.h"

#include "platform/text/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// Squeezes a picture into a height. Its texts keep their size.
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

void BandSplitter::FitFront(std::deque<Band>& bands, float room)
{
    Band& whole = bands.front();
    if (whole.isPicture)
        return Lower(whole, room);
    Band rest = Split(whole, room);
    if (!HasContent(whole) && HasContent(rest))
        throw RunTimeError(RunTimeError::Overflow,
            QStringLiteral("A line of the report is taller than the page.\n%1").arg(m_file));
    if (HasContent(rest))
        bands.insert(bands.begin() + 1, std::move(rest));
}

Band BandSplitter::Split(Band& whole, float room)
{
    Band first;
    Band rest;
    first.height = room;
    first.record = std::move(whole.record);
    first.share = std::exchange(whole.share, {});
    first.page = rest.page = whole.page;
    rest.endsTable = whole.endsTable;
    first.frames = rest.frames = whole.frames;
    rest.repeated = whole.repeated;
    rest.keepWithNext = whole.keepWithNext;
    bool goesOver = false; // the item before, or a part of it, went into the rest
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

void BandSplitter::SplitItem(PlacedItem item, float room, Band& first, Band& rest)
{
    if (item.y + item.height <= room + Page::Tolerance)
        return first.items.push_back(std::move(item));
    const bool isText = item.kind == PlacedItem::Kind::Text && item.fit == Fit::Wrap;
    PlacedItem next = item;
    next.y = std::max(0.0F, item.y - room);
    const FontSpec& font = m_fonts.At(item.font);
    if (isText && item.y + m_measure.LineHeight(font) <= room + Page::Tolerance) {
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

void BandSplitter::SplitLanes(Band& whole, float room, Band& first, Band& rest)
{
    for (std::vector<Band>& lane : whole.lanes) {
        float y = 0;
        std::size_t at = 0;
        while (at < lane.size() && y + lane[at].height <= room + Page::Tolerance)
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

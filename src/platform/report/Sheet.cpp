#include "platform/report/Sheet.h"

#include "platform/report/PageTotals.h"

#include <utility>

void Sheet::Place(Band& band)
{
    y += Put(band, y);
}

float Sheet::Put(Band& band, float top)
{
    for (PlacedItem& item : band.items) {
        item.y += top;
        page.items.push_back(std::move(item));
    }
    PutFrames(band.frames, top, top + band.height);
    for (std::vector<Band>& lane : band.lanes) {
        float laneY = top;
        for (Band& inside : lane)
            laneY += Put(inside, laneY);
    }
    Record(band.record);
    return band.height;
}

void Sheet::PutFrames(const std::vector<Frame>& frames, float top, float bottom)
{
    for (const Frame& frame : frames) {
        const float height = bottom - top - 2 * frame.inset;
        PlacedItem line;
        line.kind = PlacedItem::Kind::Line;
        line.weight = frame.weight;
        const auto put = [&](float left, float above, float width, float length) {
            line.x = left;
            line.y = above;
            line.width = width;
            line.height = length;
            page.items.push_back(line);
        };
        put(frame.x, top + frame.inset, frame.width, 0);
        put(frame.x, bottom - frame.inset, frame.width, 0);
        put(frame.x, top + frame.inset, 0, height);
        put(frame.x + frame.width, top + frame.inset, 0, height);
    }
}

float Sheet::PutRepeated(const Band& band, float top)
{
    if (!band.repeated || top + band.repeated->height >= end)
        return top;
    Band head = *band.repeated;
    return top + Put(head, top);
}

void Sheet::PlaceHeadOf(const Band& band)
{
    y = PutRepeated(band, y);
    if (!band.page || !band.page->HasBegun())
        return;
    for (Band& line : band.page->Head())
        Place(line);
}

void Sheet::PlacePageTotals()
{
    if (!totals)
        return;
    for (Band& line : totals->Foot())
        Place(line);
    totals->EndPage();
}

void Sheet::Record(const QStringList& record)
{
    if (!record.isEmpty())
        records.push_back(record);
}

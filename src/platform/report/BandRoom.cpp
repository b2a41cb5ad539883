#include "platform/report/BandRoom.h"

#include "platform/report/PageTotals.h"

float HeightAbove(const Band& band)
{
    const float heads = band.repeated ? band.repeated->height : 0;
    return heads + (band.page && band.page->HasBegun() ? band.page->HeadHeight() : 0);
}

float HeightBelow(const Band& band)
{
    return band.page && !band.endsTable ? band.page->FootHeight() : 0;
}

float LeastRoom(const Band& band, float page)
{
    if (band.lanes.empty())
        return band.height;
    float height = 0;
    for (const std::vector<Band>& lane : band.lanes)
        height = std::max(height, lane.empty() ? 0 : FirstPiece(lane, page));
    return height;
}

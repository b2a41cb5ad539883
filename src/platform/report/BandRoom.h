#pragma once

#include "platform/report/Band.h"

#include <algorithm>

// How much room bands need on a page, in points.

// The height of what is repeated above a band that begins a page: the heads of its table, and the totals
// brought forward.
float HeightAbove(const Band& band);

// The room to leave below a band for the totals of the page, in case the page ends there.
float HeightBelow(const Band& band);

// How many bands at the front of a lane must stay together.
template <typename Lane> std::size_t ChainIn(const Lane& lane)
{
    std::size_t length = 1;
    while (length < lane.size() && lane[length - 1].keepWithNext && !lane[length].isElastic)
        ++length;
    return length;
}

// The least height a lane can begin with: the bands that stay together, or only the first if together they
// are more than a page.
template <typename Lane> float FirstPiece(const Lane& lane, float page)
{
    if (lane.front().isElastic)
        return 0;
    float height = 0;
    for (std::size_t i = 0; i < ChainIn(lane); ++i)
        height += lane[i].height;
    const float heads = lane.front().repeated ? lane.front().repeated->height : 0;
    return height + heads > page ? lane.front().height : height;
}

// The least room a band can begin with, if it may continue on the next page.
float LeastRoom(const Band& band, float page);

#pragma once

#include "platform/report/Band.h"

#include <algorithm>

// How much room strips need on a page, in points.

// What has to stand above a strip that begins a page: the heads of its table, and what is carried over.
float HeightAbove(const Band& band);

// The room that has to be left below a strip, in case it is the last of its page.
float HeightBelow(const Band& band);

// How many strips at the front of a lane stay together.
template <typename Lane> std::size_t ChainIn(const Lane& lane)
{
    std::size_t length = 1;
    while (length < lane.size() && lane[length - 1].keepWithNext && !lane[length].isElastic)
        ++length;
    return length;
}

// The height with which a lane begins: the strips that stay together, or the first of them if together they
// fill more than a page.
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

// The room with which a strip can begin, if it may go on over the page.
float LeastHeight(const Band& band, float page);

#pragma once

#include "platform/report/BandSplitter.h"
#include "platform/report/Sheet.h"

#include <deque>

// Places strips that stand side by side, each as far as a page goes.
class LaneFiller {
public:
    // The splitter must outlive it; the height is that of a page between its margins.
    LaneFiller(BandSplitter& splitter, float pageHeight) : m_splitter(splitter), m_pageHeight(pageHeight) { }

    // Takes over the lanes of a strip.
    void Take(Band& band);

    bool IsEmpty() const { return m_lanes.empty(); }

    // Goes on with what is left; true when nothing of it is.
    bool Continue(Sheet& sheet);

private:
    bool PlaceBottoms(Sheet& sheet, std::vector<float>& ends);
    float FillLane(Sheet& sheet, std::deque<Band>& lane, float top);

    BandSplitter& m_splitter;
    float m_pageHeight;
    std::vector<std::deque<Band>> m_lanes; // what is left of each
    std::vector<Frame> m_frames; // around them
};

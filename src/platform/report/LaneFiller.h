#pragma once

#include "platform/report/BandSplitter.h"
#include "platform/report/Sheet.h"

#include <deque>

// Places blocks that stand side by side, as much of each as the page takes.
class LaneFiller {
public:
    // The splitter must outlive it. `pageHeight` is the height between the margins.
    LaneFiller(BandSplitter& splitter, float pageHeight) : m_splitter(splitter), m_pageHeight(pageHeight) { }

    // Takes the lanes and frames of a band.
    void Take(Band& band);

    bool IsEmpty() const { return m_lanes.empty(); }

    // Places what is left of them; true if that was all.
    bool Continue(Sheet& sheet);

private:
    bool PlaceBottoms(Sheet& sheet, std::vector<float>& ends);
    float FillLane(Sheet& sheet, std::deque<Band>& lane, float top);

    BandSplitter& m_splitter;
    float m_pageHeight;
    std::vector<std::deque<Band>> m_lanes; // the bands that are left of each
    std::vector<Frame> m_frames; // around them
};

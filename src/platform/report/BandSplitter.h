#pragma once

#include "platform/report/Bands.h"

// How tall strips are together.
float HeightOf(const std::vector<Band>& bands);

// Whether there is anything in a strip.
bool HasContent(const Band& band);

// Makes a picture stand in a height: its strokes lie closer, its texts keep their size.
void Lower(Band& picture, float room);

// Cuts strips that are taller than a page.
class BandSplitter {
public:
    BandSplitter(TextMeasure& measure, const FontTable& fonts) : m_measure(measure), m_fonts(fonts) { }

    // Leaves in a strip what stands in a height and returns the rest of it: texts are cut between two of
    // their lines, everything else goes to the side where it begins.
    Band Split(Band& whole, float room);

private:
    void SplitItem(PlacedItem item, float room, Band& first, Band& rest);
    void SplitLanes(Band& whole, float room, Band& first, Band& rest);

    TextMeasure& m_measure;
    const FontTable& m_fonts;
};

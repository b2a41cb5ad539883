#pragma once

#include "platform/report/Band.h"
#include "platform/report/TextMeasure.h"

#include <deque>

// How tall strips are together.
float HeightOf(const std::vector<Band>& bands);

// Whether there is anything in a strip.
bool HasContent(const Band& band);

// Cuts strips that are taller than a page.
class BandSplitter {
public:
    // `file` is the template's, for the error that a line of it is too tall. All must outlive it.
    BandSplitter(TextMeasure& measure, const FontTable& fonts, const QString& file)
        : m_measure(measure)
        , m_fonts(fonts)
        , m_file(file)
    {
    }

    // Makes the first strip, which is taller than the room of a whole page, stand in it: a picture is made
    // lower, anything else is cut into what has room and the rest of it.
    void FitFront(std::deque<Band>& bands, float room);

private:
    // Leaves in a strip what stands in a height and returns the rest of it: texts are cut between two of
    // their lines, everything else goes to the side where it begins.
    Band Split(Band& whole, float room);
    void SplitItem(PlacedItem item, float room, Band& first, Band& rest);
    void SplitLanes(Band& whole, float room, Band& first, Band& rest);

    TextMeasure& m_measure;
    const FontTable& m_fonts;
    const QString& m_file;
};

#pragma once

#include "platform/report/Band.h"
#include "platform/report/TextMeasure.h"

#include <deque>

// The height of several bands.
float HeightOf(const std::vector<Band>& bands);

// True if there is anything in a band.
bool HasContent(const Band& band);

// Splits bands that are taller than a page.
class BandSplitter {
public:
    // `file` is the template's, named in the error if a single line is too tall. All must outlive it.
    BandSplitter(TextMeasure& measure, const FontTable& fonts, const QString& file)
        : m_measure(measure)
        , m_fonts(fonts)
        , m_file(file)
    {
    }

    // Makes the first band, which is too tall even for an empty page, fit into `room`: a picture is made
    // lower; anything else is split, and the rest is put behind it.
    void FitFront(std::deque<Band>& bands, float room);

private:
    // Keeps in `whole` what fits into `room` and returns the rest. Texts are split between two lines,
    // everything else goes where it begins.
    Band Split(Band& whole, float room);
    void SplitItem(PlacedItem item, float room, Band& first, Band& rest);
    void SplitLanes(Band& whole, float room, Band& first, Band& rest);

    TextMeasure& m_measure;
    const FontTable& m_fonts;
    const QString& m_file;
};

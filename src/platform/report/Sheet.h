#pragma once

#include "platform/report/Band.h"

// A page in the making.
struct Sheet {
    static constexpr float Tolerance = 0.01F; // what a strip may be too tall by

    Page page;
    float y = 0; // where the next strip goes
    float end = 0; // where the foot of the page begins
    bool isEmpty = true; // nothing but its head stands on it
    std::vector<Band> footer;
    std::shared_ptr<PageTotals> totals; // of a table that goes on below what stands there
    std::vector<QStringList> records; // for a spreadsheet: of the strips that have been put down

    // Puts a strip down below the last one.
    void Place(Band& band);

    // Puts a strip down at a height of the page, with lanes inside it whole, and returns how tall it is.
    float Put(Band& band, float top);

    void PutFrames(const std::vector<Frame>& frames, float top, float bottom);

    // Puts down the heads of the table of a strip that begins a page, if they leave room; returns where the
    // strip itself goes.
    float PutRepeated(const Band& band, float top);

    // Places what stands above a strip that begins a page: the heads of its table, and what is carried over.
    void PlaceHeadOf(const Band& band);

    // Places the totals of the page, if a table goes on over it.
    void PlacePageTotals();

    void Record(const QStringList& record);
};

#pragma once

#include "platform/report/Band.h"

// A page while it is being filled.
struct Sheet {
    Page page;
    float y = 0; // where the next band goes
    float end = 0; // where the footer begins
    bool isEmpty = true; // there is only its header on it
    std::vector<Band> footer;
    std::shared_ptr<PageTotals> totals; // of the table that continues on the next page, if there is one
    std::vector<QStringList> records; // of the bands on it, for a spreadsheet

    // Puts a band below the last one.
    void Place(Band& band);

    // Puts a band at a height of the page, with all of its lanes, and returns how tall it is.
    float Put(Band& band, float top);

    void PutFrames(const std::vector<Frame>& frames, float top, float bottom);

    // Puts the heads of its table above a band that begins the page, if they leave room for it; returns
    // where the band goes.
    float PutRepeated(const Band& band, float top);

    // Places what comes above a band that begins the page: the heads of its table, and the totals brought
    // forward.
    void PlaceHeadOf(const Band& band);

    // Places the totals of the page, if a table continues on the next page.
    void PlacePageTotals();

    void Record(const QStringList& record);
};

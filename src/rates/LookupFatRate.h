#pragma once

#include <QDate>
#include <QString>

// What the charts say about one can of milk.
struct FatRate {
    enum class Outcome {
        NoChart, // there is no chart at all
        Unchanged, // the chart has the fat, but the animal is neither word: the rate stays what it was
        Priced,
    };

    Outcome outcome = Outcome::NoChart;
    double rate = 0; // rupees a litre; 0 for a fat that the chart doesn't have
};

// The rate of a fat (in percent, as typed; it counts to one decimal) on a date, for "gaaya" or "mhOsa".
//
// The chart is the one that begins on that very date, and for every other date the newest one, even if
// that begins later. Charts are read anew at each call, so a chart that was just saved is in force. A chart
// whose table is missing is a database error.
FatRate LookupFatRate(const QDate& date, double fat, QStringView animal);

#pragma once

#include "tools/reckoning/Exact.h"

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

// A delivery or a sale as it stands in the books.
struct RawMilk {
    QDate day;
    QString shift;
    QString animal;
    QString name; // the member's or the customer's
    int number = 0; // the member's or the customer's
    Exact litres;
    Exact amount;
    Exact ourLitres; // of a sale
    int tenths = 0; // of fat
};

using RawMilkRows = std::vector<RawMilk>;
using RawMilkTest = std::function<bool(const RawMilk&)>;

// All rows of the open books. What is summed from them is summed here, in exact decimals, and not by the
// statements of a screen.
RawMilkRows RawDeliveries();
RawMilkRows RawSales();

Exact SumOf(const RawMilkRows& rows, Exact RawMilk::*figure, const RawMilkTest& counts);

// The average fat by litres, in tenths.
int AverageTenths(const RawMilkRows& rows, const RawMilkTest& counts);

// A figure with decimals, as reports write it: "12.50".
QString WithDecimals(Exact figure, int decimals);

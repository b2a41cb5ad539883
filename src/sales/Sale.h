#pragma once

#include "sales/SalesShift.h"

#include <optional>

// A sale as the books hold it: a row of MilkSales, with its copy among those of the open shift. Shift and
// number name it, in whatever company. The caller opens the transaction.
struct Sale {
    SalesShift shift;
    double number = 0;
    QString type; // "raoK", or the type of the customer
    double customerNo = 0; // 0 for cash
    QString customerName;
    QString animal;
    double liters = 0;
    double fat = 0;
    double rate = 0; // rupees a litre
    double amount = 0; // rupees
    // The society's own measure of the same milk.
    double ourLiters = 0;
    double snf = 0;
    double ourFat = 0;
    double ourRate = 0;

    bool IsForCash() const;

    // Our litres at our rate, in rupees and paise.
    double OurAmount() const;

    // The sale of a shift with this number, if there is one.
    static std::optional<Sale> Find(const SalesShift& shift, double number);

    // Whether there is a sale with its shift and number.
    bool IsStored() const;

    void Insert() const;

    // Replaces all but the type.
    void Update() const;

    void Delete() const;

    // The condition that finds it in either table.
    SqlText OfItself() const;
};

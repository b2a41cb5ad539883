#pragma once

#include "platform/database/Sql.h"

#include <QDate>
#include <QString>

// Half a day of sales. Its rows are in MilkSales; MilkSalesTemp holds a copy of those of the selected company
// while the shift is open.
struct SalesShift {
    QDate date;
    QString time; // "sakaL" or "saMQyaakaL"

    // One more than the highest number of the shift, whatever the company: 1 if there is none yet.
    double NextNumber() const;

    // The same among the rows of the copy.
    double NextNumberInCopy() const;

    // Fills the copy with the rows of the shift, in a transaction of its own.
    void Open() const;

    // The condition that finds its rows: " where …".
    SqlText Condition() const;

    // Empties the copy, in a transaction of its own.
    static void EmptyCopy();

    // Takes out of the copy what belongs to no company. The caller opens the transaction.
    static void TidyCopy();
};

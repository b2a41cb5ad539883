#pragma once

#include "platform/database/Sql.h"

#include <QDate>
#include <QString>

#include <cstdint>

// Half a day at the counter. Its rows are in MilkCollections; MilkCollectionsTemp holds a copy of them while
// the shift is open, and every write goes to the books first and to the copy after them.
struct Shift {
    QDate date;
    QString time; // "sakaL" or "saMQyaakaL"

    // The date as a statement compares with it.
    QString Day() const;
};

// One can of milk, told by its shift and its number in it.
struct Delivery {
    Shift shift;
    double number = 0;
    double memberNo = 0;
    QString memberName;
    QString animal;
    double liters = 0;
    double fat = 0;
    double rate = 0; // rupees a litre
    double amount = 0; // rupees
    QString actualTime; // the clock of the counter, "9.05"
};

// Fills the copy with the rows of a shift, in a transaction of its own.
void OpenShift(const Shift& shift);

// Empties the copy, in a transaction of its own.
void EmptyShiftCopy();

// Takes what is no delivery out of the copy: rows numbered 0.
void TidyShiftCopy();

// The same for a copy that was just filled, and rows of no company with them.
void TidyFilledCopy();

// The number after the highest one of the shift, 1 in an empty shift; by the books, or by the copy. A shift
// that has come to 32767 is an overflow.
std::int16_t NextNumberInBooks(const Shift& shift);
std::int16_t NextNumberInCopy(const Shift& shift);

// The number in the copy as a deletion asks for it: by the date itself, not by its text.
std::int16_t NextNumberAfterDelete(const Shift& shift);

// The query for a member's deliveries in the copy of a shift.
SqlText RowsOfMember(const Shift& shift, double memberNo);

// Adds a delivery to the books and to the copy, under the selected company. The caller's transaction makes it
// one change; an apostrophe in a text breaks the statement, and then nothing is written.
void InsertDelivery(const Delivery& delivery);

// Gives the row of this shift and number the delivery's other values, in the books and in the copy. Without
// such a row nothing is changed.
void UpdateDelivery(const Delivery& delivery);

// Takes the row of this shift and number out of the books and out of the copy; there may be none.
void DeleteDelivery(const Shift& shift, double number);

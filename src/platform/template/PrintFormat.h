#pragma once

#include "platform/template/Value.h"

// The format of a printed number or date.
struct PrintFormat {
    enum class Kind : quint8 { None, Number, Date };
    Kind kind = Kind::None;
    bool isGrouped = false; // with commas the Indian way: 1,23,456.00
    int decimals = 6; // decimals of a number
    QString pattern; // without the commas

    // Reads a pattern. A number is #, 0 and one point, with commas as in #,##,##0.00; a date is dd, MM,
    // MMMM, yy or yyyy with signs between them. Anything else is of kind None.
    static PrintFormat Of(const QString& text);

    bool operator==(const PrintFormat&) const = default;
};

// Prints a value in a format. A value that the format doesn't suit, such as a text, is printed without it.
// MMMM is the Marathi name of the month.
QString Printed(const Value& value, const PrintFormat& format);

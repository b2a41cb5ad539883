#pragma once

#include "platform/template/Value.h"

// How a value is printed: the pattern of a number or of a date.
struct PrintFormat {
    enum class Kind : quint8 { None, Number, Date };
    Kind kind = Kind::None;
    bool isGrouped = false; // the digits of a number in groups, as money is written: 1,23,456.00
    int decimals = 6; // of a number: its places
    QString pattern; // without the commas

    // Reads a pattern: '#', '0' and one '.', with commas where the digits of Indian money have them
    // (#,##,##0.00); or dd, MM, MMMM, yy, yyyy and signs. Anything else is of no kind.
    static PrintFormat Of(const QString& text);

    bool operator==(const PrintFormat&) const = default;
};

// A value as it is printed: by the format, or else as it is. Null and a text have no format. MMMM is the
// Marathi name of the month.
QString Printed(const Value& value, const PrintFormat& format);

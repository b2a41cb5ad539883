#pragma once

#include <QDate>
#include <QString>

// The type of an expression. Unknown is a column whose declaration has no type: each value is taken as it is
// stored.
enum class ValueType : quint8 { Unknown, Number, Text, Date, Truth };

// One value while a report is filled. Texts of fields are still as they are stored; evaluating a field turns
// them into Unicode.
struct Value {
    enum class Kind : quint8 { Null, Number, Text, Date, Truth };
    Kind kind = Kind::Null;
    double number = 0; // of a truth: 1 or 0
    QDate date = {};
    QString text = {};

    // A value of each kind; an invalid date becomes Null.
    static Value OfNumber(double number);
    static Value OfText(QString text);
    static Value OfDate(QDate date);
    static Value OfTruth(bool truth);

    bool IsNull() const { return kind == Kind::Null; }

    // The value as a number: a text through Val, Null and dates as 0.
    double Number() const;

    // True if this is a condition that holds.
    bool Truth() const { return kind == Kind::Truth && number != 0; }

    // The value as it is printed without a format: a number in its shortest form, a date as dd/MM/yyyy, Null
    // as nothing.
    QString Text() const;
};

// Returns -1, 0 or 1. Null comes before everything else, but equals 0 and the empty text. Texts are trimmed
// and compared by code point.
int Compare(const Value& first, const Value& second);

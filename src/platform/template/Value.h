#pragma once

#include <QDate>
#include <QString>

// What an expression of a template can yield. Unknown is a column whose declaration says nothing: it is taken
// as it comes.
enum class ValueType : quint8 { Unknown, Number, Text, Date, Truth };

// One value while a report is filled. A stored text is already in Unicode here.
struct Value {
    enum class Kind : quint8 { Null, Number, Text, Date, Truth };
    Kind kind = Kind::Null;
    double number = 0; // a truth is 1 or 0
    QDate date = {};
    QString text = {};

    // Each of its kind; a date that is none is Null.
    static Value OfNumber(double number);
    static Value OfText(QString text);
    static Value OfDate(QDate date);
    static Value OfTruth(bool truth);

    bool IsNull() const { return kind == Kind::Null; }

    // The number; a text through Val, Null and a date as 0.
    double Number() const;

    // Whether a condition holds; only a truth can.
    bool Truth() const { return kind == Kind::Truth && number != 0; }

    // What is printed without a format: a number in shortest form, a date as dd/MM/yyyy, Null as nothing.
    QString Text() const;
};

// -1, 0 or 1. Null is less than anything, but equals 0 and the empty text. Texts are compared by code point,
// without the blanks around them.
int Compare(const Value& first, const Value& second);

#pragma once

#include <QDate>
#include <QString>

class Connection;

// Which rows of a table a report shows.
struct Selection {
    QString table; // empty: all rows of all tables
    QString condition; // as an SQL condition
    QDate date = {}; // the day that the condition asks for; invalid if it asks for none, or for several
};

// Reads a selection formula (see ReadFormula): comparisons of a field with a number, a text or a day, joined
// by and, or, not and brackets. All fields must be of the same table. An empty formula selects everything. A
// formula that can't be read, or that names an unknown column, is a run-time error that quotes it.
Selection ReadSelectionFormula(const QString& formula, Connection& connection);

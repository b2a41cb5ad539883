#pragma once

#include <QDate>
#include <QString>

class Connection;

// Which rows of a table a report is to show.
struct Selection {
    QString table; // empty: nothing is narrowed
    QString condition; // in the words of a statement
    QDate date = {}; // the one that a column has to have; none if there is no such day, or more than one
};

// Reads a selection formula (see ReadFormula): comparisons of a field with a number, a text or a day, joined
// by and, or, not and brackets. All its fields are of one table. An empty formula selects everything. A
// formula that can't be read, or that names a column which isn't there, is a run-time error that shows it.
Selection ReadSelectionFormula(const QString& formula, Connection& connection);

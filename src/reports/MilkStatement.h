#pragma once

#include <QDate>
#include <QString>

// The statement of one member's deliveries, or of one customer's purchases, day by day: both are staged in
// MilkCollectionsME and print in the same shape.
namespace MilkStatement {

enum class Kind { Collections, Sales };

// Whose milk, and over which days, both included.
struct Wanted {
    Kind kind = Kind::Collections;
    QString name; // of the member or of the customer, as it is stored
    QDate from, to;
};

// Stages a statement from the books.
void Stage(const Wanted& wanted);

// Stages the statement of what a counter has put into MilkCollectionsTemp: one member's deliveries of a
// period. The copy stays as it is.
void StageCopy();

}

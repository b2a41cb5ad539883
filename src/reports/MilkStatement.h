#pragma once

#include <QDate>
#include <QString>

// Stages the statement of one member's deliveries, or of one customer's purchases, day by day. Both go into
// MilkCollectionsME and are printed by the same template.
namespace MilkStatement {

enum class Kind { Collections, Sales };

// Whose milk, from which day to which.
struct Scope {
    Kind kind = Kind::Collections;
    QString name; // of the member or of the customer, as it is stored
    QDate from, to;
};

// Stages a statement from the books.
void Stage(const Scope& wanted);

// Stages the statement of the deliveries that a counter has put into MilkCollectionsTemp, which are one
// member's.
void StageCopy();

}

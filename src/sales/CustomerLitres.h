#pragma once

#include <QString>

// The litres that a customer has taken since the opening of the year: the closing columns of CustomersMaster.
// A new sale moves them on by one rule, and a change or a deletion works them out anew by another; the two
// differ where a closing figure lies below its opening one. The caller opens the transaction.
namespace CustomerLitres {

// Moves the figure of the animal on by the litres of a new sale.
void Advance(const QString& customerName, QStringView animal, double liters);

// Works the figure of the animal out from the opening and all sales.
void Recompute(const QString& customerName, QStringView animal);

}

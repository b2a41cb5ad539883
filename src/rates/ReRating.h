#pragma once

#include <QDate>

#include <functional>

// Prices the deliveries of the selected company anew, by the chart under edit, from a day on and without an
// end.
namespace ReRating {

// Whether there are deliveries to price.
bool HasDeliveries(const QDate& from);

// Whether a payment reaches to the day or beyond: then the deliveries keep their rates.
bool IsPaid(const QDate& from);

// How many fats the chart has.
int Fats();

// Sets the rate of each fat of the chart that has one, for its animal, and then all amounts, unrounded: whole
// or not at all. `done` is called twice for each fat, behind each animal.
void Run(const QDate& from, const std::function<void(double fat)>& done);

}

#pragma once

#include "society/Fields.h"

class QHBoxLayout;

// Rows of fields that several screens have alike. A screen adds its own fields behind them.
namespace FieldRows {

// The date and the shift; `shiftWidth` in pixels.
QHBoxLayout* DateAndShift(Field& date, Field& shift, int shiftWidth);

struct MilkWidths { // in pixels
    int litres;
    int fat;
    int rate;
};

// Litres × fat → rate = amount, as tall fields. The amount takes the width that is left.
QHBoxLayout* Milk(
    LitresField& litres, FatField& fat, RateField& rate, MoneyField& amount, const MilkWidths& widths);

}

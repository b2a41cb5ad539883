#pragma once

#include "platform/forms/Control.h"

class QLayout;

// The totals of the open shift beside its deliveries: the litres of each animal, and their average fat. Both
// go by the copy, and are walked anew each time.
class ShiftTotals {
public:
    // `litersFormat` is how the counter writes litres.
    ShiftTotals(Screen* screen, QStringView litersFormat);

    void ShiftLitersTotal();
    void ShiftAverageFat();

    // The labels in their rows.
    QLayout* LaidOut();

private:
    QStringView m_litersFormat;
    Label lblTotalLitersTitle;
    Label lblTotalLitersC;
    Label lblTotalCowLiters;
    Label lblTotalLitersB;
    Label lblTotalBuffLiters;
    Label Label4;
    Label lblAvgCowFat;
    Label lblAvgBuffFat;
};

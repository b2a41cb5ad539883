#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/Field.h"
#include "platform/forms/Panel.h"

class QWidget;

// A rate per litre beside the chart's, which F5 shows and keeps. It adds nothing to a payment: its amount is
// always 0. What is keyed is remembered until the program ends, and kept in the column of the cow's cans.
class ExtraRate {
    Screen* m_screen;

public:
    explicit ExtraRate(Screen* screen);

    NumberField txtExtraRsPerLtr{m_screen, "txtExtraRsPerLtr", NumberField::Digits::Decimals};
    NumberField txtExtraAmount{m_screen, "txtExtraAmount", NumberField::Digits::Decimals};

    void ShowOrHide();

    // Sets the amount to the only one that it ever has.
    void SetNoAmount();

    QWidget* LaidOut();

private:
    void Keep();

    Panel m_panel{m_screen, {&txtExtraRsPerLtr, &txtExtraAmount}};
    Control* m_before = nullptr; // where the clerk was when it was shown
};

#pragma once

#include "platform/forms/Control.h"
#include "platform/text/Currency.h"

class QWidget;
struct SalesShift;

// What a shift has sold of each animal's milk, litres and rupees: on the spot, for cash or to a customer of
// local sale, and to the federation.
class DaySummary {
public:
    explicit DaySummary(Screen* screen);

    // Reads the sales of the shift anew.
    void Show(const SalesShift& shift);

    // Shows that nothing is sold yet.
    void ShowNone();

    // The figures on their sheet.
    QWidget* LaidOut();

private:
    struct Sum {
        double liters = 0;
        Currency amount;
    };
    struct Figures {
        Figures(Screen* screen, const char* litersName, const char* amountName);
        void Show(const Sum& sum);

        Label liters;
        Label amount;
    };

    Figures m_rokhCow;
    Figures m_rokhBuff;
    Figures m_udharCow;
    Figures m_udharBuff;
};

#pragma once

#include "platform/forms/DataGrid.h"
#include "rates/frmNewFatRates.h"
#include "tests/support/SocietyTest.h"

// A clerk at the screen of the fat rates, in a society with the charts of the first of April and of the first
// of July 2007. A chart has the fats 1, 4 and 4.3 to 4.7, and 30.
class NewFatRatesTest : public SocietyTest {
protected:
    NewFatRatesTest();

    void Play(const std::function<void(Clerk&)>& script) { On<frmNewFatRates>(script); }

    // Plays with a change open: the newest chart is taken, and the focus is on the fat. `day` as it is typed.
    void PlayOnChart(const char* day, const std::function<void(Clerk&)>& script);

    // A cow's rate is the given one and a tenth of the fat, a buffalo's 5 more.
    void AddChart(const QString& from, const QString& table, int cowRate);

    // The rows of a chart's table or of the working chart: "4.5|30.45|35.45" is fat, cow, buffalo.
    QStringList Chart(const QString& table);
    QStringList WorkingChart();
    QString WorkingRow(const char* fat);
    QStringList ChartDates();

    void AddDelivery(const QString& day, const QString& animal, double liters, double fat, double rate,
        double amount, int company = 1);
    void AddPayment(const QString& to, int company = 1);

    // The deliveries: "01/07/2007|gaaya|4.5|30|60" is day, animal, fat, rate, amount.
    QStringList Deliveries(int company = 1);
};

// Whether a label of the screen on top is seen.
bool IsShown(const Clerk& clerk, const char* label);

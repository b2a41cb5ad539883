#pragma once

#include "core/messages/Progress.h"
#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "platform/forms/Field.h"
#include "platform/forms/Panel.h"
#include "society/SocietyScreen.h"

// The fat rates: the newest chart is taken under edit, changed row by row or by a rate for each percent of
// fat, and saved under a date, as a new chart or over the newest one. Then the deliveries from that date on
// may be priced anew. The caption of cmdAdd tells whether a change is open.
class frmNewFatRates final : public SocietyScreen {
public:
    frmNewFatRates();

    static Keys::Places KeyPlaces();

protected:
    void Load() override;
    void Escape() override;

private:
    DateField maskOldDate{this, "maskOldDate"};
    DateField maskDate{this, "maskDate", &frmNewFatRates::maskDate_LostFocus};
    DataGrid DataGridBuffRates;
    NumberField txtFat{this, "txtFat", NumberField::Digits::Decimals, &frmNewFatRates::txtFat_LostFocus};
    NumberField txtBuffRate{
        this, "txtBuffRate", NumberField::Digits::Decimals, &frmNewFatRates::txtBuffRate_LostFocus};
    NumberField txtCowRate{
        this, "txtCowRate", NumberField::Digits::Decimals, &frmNewFatRates::txtCowRate_LostFocus};
    NumberField txtBuffIncrement{this, "txtBuffIncrement", NumberField::Digits::Decimals};
    NumberField txtCowIncrement{this, "txtCowIncrement", NumberField::Digits::Decimals};
    Button cmdGo{this, "cmdGo", Plain(u" >"), &frmNewFatRates::cmdGo_Click};
    NumberField txtBasicBuffRate{this, "txtBasicBuffRate", NumberField::Digits::Decimals};
    NumberField txtBasicCowRate{this, "txtBasicCowRate", NumberField::Digits::Decimals};
    Button cmdFatdar{this, "cmdFatdar", Plain(u">>"), &frmNewFatRates::cmdFatdar_Click};
    Button cmdAdd{this, "cmdAdd", Shivaji(u"&dr badla"), &frmNewFatRates::cmdAdd_Click};
    Button Command1{this, "Command1", Shivaji(u"irpaoT-"), &frmNewFatRates::Command1_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmNewFatRates::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmNewFatRates::cmdExit_Click};

    Panel FrameFatDarBadla{this, {&txtBasicBuffRate, &txtBasicCowRate, &cmdFatdar}};
    Label lblExit{this, "lblExit", Shivaji(u"iga`DmaQaUna baahor pDNyaasaazI")};
    Label lblEsc{this, "lblEsc", Plain(u"Esc")};
    Label lblMessage{this, "lblMessage"};
    Progress ReRated{this};
    TemplateReport CrystalReport1{u"FatRateList.rpt"};

    QDate NewestDate; // of the newest chart
    bool IsExisting = false; // maskDate is the day of a chart, whose table is ExistingTable
    QString ExistingTable;
    bool WasInGrid = false; // or passed by it from the day, since the screen was opened

    void maskOldDate_Change();
    void maskDate_LostFocus();
    void DataGridBuffRates_GotFocus();
    void DataGridBuffRates_LostFocus();
    bool txtFat_KeyDown(const QKeyEvent& key);
    void txtFat_LostFocus();
    void txtBuffRate_LostFocus();
    void txtCowRate_LostFocus();
    void cmdGo_Click();
    void cmdFatdar_Click();
    void cmdAdd_Click();
    void Command1_Click();
    void cmdCancel_Click();

    // States
    bool IsEditing() const;
    void BeginChange();
    void Rest();
    void EnableInputs(bool isEditing);

    // The day of the chart
    bool InsistOnDay();
    void FindChartOfDay();
    void TakeNewestChart();

    // The rows
    void StepFat(double step);
    void ShowRows();
    void PointAtFat();
    void ShowWayOut(bool visible);

    // Rates for each percent of fat
    void ShowFrame();
    void ShowBases();

    // Saving
    void SaveChart();
    void OfferReRating(const QDate& from);
    void ReRate(const QDate& from);

    void LayOut();
    QWidget* ChartPanel();
    QLayout* DateLine();
    QWidget* RowPanel();
    QWidget* FramePanel();
    QLayout* ProgressLine();
};

#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/OptionButton.h"
#include "society/SocietyScreen.h"

// The list of the payments of a date, of those paid in cash or of those paid through the bank.
class frmReportPaymentList final : public SocietyScreen {
public:
    frmReportPaymentList();

    static Keys::Places KeyPlaces();

    // The selection formula for the payments of a date, dd/MM/yyyy.
    static QString SelectionFormula(const QString& date);

private:
    DateField MaskFromDate{this, "MaskFromDate", &frmReportPaymentList::MaskFromDate_LostFocus};
    OptionButton Option1{this, "Option1", Shivaji(u"raoK")};
    OptionButton Option2{this, "Option2", Shivaji(u"baÐMk")};
    OptionGroup way{&Option1, &Option2};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportPaymentList::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportPaymentList::cmdExit_Click};

    void Load() override;

    void MaskFromDate_LostFocus();
    void cmdReport_Click();

    void LayOut();
};

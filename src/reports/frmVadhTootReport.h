#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/OptionButton.h"
#include "society/SocietyScreen.h"

// The gain and loss of milk between collection and sale over a range of days, in litres or rupees.
class frmVadhTootReport final : public SocietyScreen {
public:
    frmVadhTootReport();

    static Keys::Places KeyPlaces();

private:
    DateField maskFromDate{this, "maskFromDate", &frmVadhTootReport::maskFromDate_LostFocus};
    DateField maskToDate{this, "maskToDate", &frmVadhTootReport::maskToDate_LostFocus};
    OptionButton OptionLiters{this, "OptionLiters", Shivaji(u"ilaTsa-")};
    OptionButton OptionAmount{this, "OptionAmount", Shivaji(u"r@kma")};
    OptionGroup measure{&OptionLiters, &OptionAmount};
    Button cmdPrint{this, "cmdPrint", Shivaji(u"irpaoT-"), &frmVadhTootReport::cmdPrint_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmVadhTootReport::cmdExit_Click};

    Label lblMessage{this, "lblMessage"};
    TemplateReport CRVadhTootReport;

    QStringList federationCustomers; // as they are when the screen opens

    void Load() override;

    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void cmdPrint_Click();

    void PrintLiters();
    void PrintAmounts();
    void LayOut();
};

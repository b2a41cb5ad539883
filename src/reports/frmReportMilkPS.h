#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"
#include "society/SocietyScreen.h"

// The statement of one member's deliveries or of one customer's purchases over a range of days. A counter
// opens it with gReportMode "ShowMilkCollection": then it stages what is in MilkCollectionsTemp and closes
// itself; the counter prints.
class frmReportMilkPS final : public SocietyScreen {
public:
    frmReportMilkPS();

    static Keys::Places KeyPlaces();

private:
    DateField maskFromDate{this, "maskFromDate", &frmReportMilkPS::maskFromDate_LostFocus};
    DateField maskToDate{this, "maskToDate", &frmReportMilkPS::maskToDate_LostFocus};
    OptionButton OptionCollections{
        this, "OptionCollections", Shivaji(u" saMklana"), &frmReportMilkPS::Option_Click};
    OptionButton OptionSales{this, "OptionSales", Shivaji(u" ivaËI"), &frmReportMilkPS::Option_Click};
    OptionGroup kind{&OptionCollections, &OptionSales};
    NameCombo ComboAccountName{this, "ComboAccountName", &frmReportMilkPS::ComboAccountName_LostFocus};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportMilkPS::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMilkPS::cmdExit_Click};

    void Load() override;

    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void Option_Click();
    void ComboAccountName_LostFocus();
    void cmdReport_Click();

    void ListAccounts();
    void LayOut();
};

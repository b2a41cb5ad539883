#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/Screen.h"

// The list of a day's deliveries, of one shift or both, of one animal or both.
class frmReportMilkCollections final : public Screen {
public:
    frmReportMilkCollections();

private:
    Label lblTitle{this, "lblTitle"};
    Label lblCompanyTitle{this, "lblCompanyTitle"};
    Label lblAcYear{this, "lblAcYear"};
    Label lblGuide{this, "lblGuide"};
    DateField MaskUserDate{this, "MaskUserDate", &frmReportMilkCollections::MaskUserDate_LostFocus};
    NameCombo ComboAnimal{this, "ComboAnimal", &frmReportMilkCollections::ComboAnimal_LostFocus};
    OptionButton OptionMorning{this, "OptionMorning", Shivaji(u"&sakaL")};
    OptionButton OptionEvening{this, "OptionEvening", Shivaji(u"saMQyaa&kaL")};
    OptionButton OptionBoth{this, "OptionBoth", Shivaji(u"&daonhI")};
    OptionGroup shift{&OptionMorning, &OptionEvening, &OptionBoth};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportMilkCollections::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMilkCollections::cmdExit_Click};

    void Load() override;
    void Escape() override;

    void MaskUserDate_LostFocus();
    void ComboAnimal_GotFocus();
    void ComboAnimal_LostFocus();
    void cmdReport_Click();
    void cmdExit_Click();

    bool HoldDate();
    bool HoldAnimal();
    QString Selection() const;
    QString Subject() const;
    void LayOut();
};

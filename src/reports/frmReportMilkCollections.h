#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"
#include "society/SocietyScreen.h"

// The list of a day's deliveries, of one shift or both, of one animal or both.
class frmReportMilkCollections final : public SocietyScreen {
public:
    frmReportMilkCollections();

    static Keys::Places KeyPlaces();

private:
    DateField MaskUserDate{this, "MaskUserDate", &frmReportMilkCollections::MaskUserDate_LostFocus};
    NameCombo ComboAnimal{this, "ComboAnimal", &frmReportMilkCollections::ComboAnimal_LostFocus};
    OptionButton OptionMorning{this, "OptionMorning", Shivaji(u"&sakaL")};
    OptionButton OptionEvening{this, "OptionEvening", Shivaji(u"saMQyaa&kaL")};
    OptionButton OptionBoth{this, "OptionBoth", Shivaji(u"&daonhI")};
    OptionGroup shift{&OptionMorning, &OptionEvening, &OptionBoth};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportMilkCollections::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMilkCollections::cmdExit_Click};

    void Load() override;

    void MaskUserDate_LostFocus();
    void ComboAnimal_LostFocus();
    void cmdReport_Click();

    bool HoldDate();
    bool HoldAnimal();
    QString Selection() const;
    QString Subject() const;
    void LayOut();
};

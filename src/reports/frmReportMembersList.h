#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/NameCombo.h"
#include "platform/forms/OptionButton.h"
#include "society/SocietyScreen.h"

// The list of the members: all of them, those of an area, or those of an animal.
class frmReportMembersList final : public SocietyScreen {
public:
    frmReportMembersList();

    static Keys::Places KeyPlaces();

private:
    OptionButton OptionList{
        this, "OptionList", Shivaji(u"  &1 pUNa- yaadI"), &frmReportMembersList::Option_Click};
    OptionButton OptionArea{
        this, "OptionArea", Shivaji(u"  &2 ivaBaaga"), &frmReportMembersList::Option_Click};
    OptionButton OptionMilk{this, "OptionMilk", Shivaji(u"  &3 dUQa"), &frmReportMembersList::Option_Click};
    OptionGroup list{&OptionList, &OptionArea, &OptionMilk};
    NameCombo ComboArea{this, "ComboArea", &frmReportMembersList::ComboArea_LostFocus};
    OptionButton OptionCow{this, "OptionCow", Shivaji(u"gaaya")};
    OptionButton OptionBuff{this, "OptionBuff", Shivaji(u"mhOsa")};
    OptionButton OptionBoth{this, "OptionBoth", Shivaji(u"daonhI")};
    OptionGroup milk{&OptionCow, &OptionBuff, &OptionBoth};
    Button cmdReport{this, "cmdReport", Shivaji(u"&irpaoT-"), &frmReportMembersList::cmdReport_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmReportMembersList::cmdExit_Click};

    void Load() override;

    void Option_Click();
    void ComboArea_LostFocus();
    void cmdReport_Click();

    void OpenWhatIsChosen();
    void StageAll();
    void StageArea();
    void StageMilk();
    QString ChosenAnimal() const;
    QString Subject() const;
    void LayOut();
};

#pragma once

#include "collection/Deliveries.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "society/Fields.h"
#include "society/SocietyScreen.h"

// The members who brought milk to a shift the day before and none to it today.
class frmAbsenseMemberCollection final : public SocietyScreen {
public:
    frmAbsenseMemberCollection();

    static Keys::Places KeyPlaces();

private:
    Label Label28{this, "Label28", Shivaji(u"Aaja dUQa saMklana nasaNaaáyaaMcaI naavao")};

    DateField MaskDate{this, "MaskDate", &frmAbsenseMemberCollection::MaskDate_LostFocus};
    ShiftField txtTime{this, "txtTime", &frmAbsenseMemberCollection::txtTime_LostFocus};
    Button Command1{this, "Command1", Plain(u">>"), &frmAbsenseMemberCollection::Command1_Click};
    DataGrid DataGridMembers;

    void Load() override;
    void Escape() override { Close(); } // nothing is cleared here

    void MaskDate_LostFocus();
    void txtTime_LostFocus();
    void Command1_Click();

    void LayOut();
    void ListAbsent(const Shift& today);
};

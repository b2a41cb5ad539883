#pragma once

#include "payments/BulkPayment.h"
#include "payments/ExtraRate.h"
#include "payments/MemberPayment.h"
#include "platform/forms/Button.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/Panel.h"
#include "society/RecordModes.h"
#include "society/SocietyScreen.h"

// The payment of the milk of a period: of one member, whose payment can be taken back, too, or of a range of
// members in one run.
class frmNewMilkPayment final : public SocietyScreen {
public:
    frmNewMilkPayment();

    static Keys::Places KeyPlaces();

private:
    BulkPayment Frame1{this, &frmNewMilkPayment::cmdCalculate_Click, &frmNewMilkPayment::Command2_Click};
    CheckBox chkInstallment{
        this, "chkInstallment", Plain(u"हप्त्याप्रमाणे कपात"), &frmNewMilkPayment::chkInstallment_Click};
    ExtraRate Extra{this};
    MemberPayment Payment{
        this, {chkInstallment, Extra, DataGrid1, DataGridUchals}, &frmNewMilkPayment::txtMemberNo_LostFocus};
    Button cmdNew{this, "cmdNew", Shivaji(u"&navaIna"), &frmNewMilkPayment::cmdNew_Click};
    Button cmdModify{this, "cmdModify", Shivaji(u"ba&dla"), &frmNewMilkPayment::cmdModify_Click};
    Button cmdDelete{this, "cmdDelete", Shivaji(u"&KaoDNao"), &frmNewMilkPayment::cmdDelete_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmNewMilkPayment::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmNewMilkPayment::cmdExit_Click};
    DataGrid DataGridUchals{this, "DataGridUchals", DeductionHeads::HeadColumns()};
    DataGrid DataGrid1{this, "DataGrid1", MemberPayment::DeliveryColumns()};

    RecordModes Modes;
    Panel Single;
    QWidget* StripOfMany = nullptr; // the keys of each panel
    QWidget* StripOfOne = nullptr;

    void Load() override;

    void cmdCalculate_Click();
    void Command2_Click();
    void chkInstallment_Click();
    void txtMemberNo_LostFocus();
    void cmdNew_Click();
    void cmdModify_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();

    void ShowSingle();
    void ResetPaymentScreen();
    void BeginAtPeriod();
    void CalculateMember();
    void LoadMember();
    bool InsistOnFigures(const Caption& wanted);
    void ShowOrHideExtraRate();

    void LayOut();
    QWidget* SinglePanel();
    QWidget* Strips();
};

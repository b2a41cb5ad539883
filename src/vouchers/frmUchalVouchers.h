#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/Panel.h"
#include "society/SocietyScreen.h"
#include "vouchers/VoucherPanel.h"

// What a member gets as an advance, split over heads, and what he gives back. Two panels, one at a time: that
// of the chosen kind is shown by Command1, and by opening a mode.
class frmUchalVouchers final : public SocietyScreen {
public:
    frmUchalVouchers();

    static Keys::Places KeyPlaces();

protected:
    void Load() override;

private:
    OptionButton OptUchalEntry{this, "OptUchalEntry", Shivaji(u"]cala naaoMd")};
    OptionButton OptPaymentEntry{this, "OptPaymentEntry", Shivaji(u"jamaa naaoMd")};
    OptionGroup Kind{&OptUchalEntry, &OptPaymentEntry};
    Button Command1{this, "Command1", Plain(u">>"), &frmUchalVouchers::Command1_Click};

    VoucherPanel Advance;
    NameCombo ComboUchalTypes{this, "ComboUchalTypes", &frmUchalVouchers::ComboUchalTypes_LostFocus};
    MoneyField txtUchalAmount{
        this, "txtUchalAmount", u"########0.00", &frmUchalVouchers::txtUchalAmount_LostFocus};
    Button cmdGo{this, "cmdGo", Plain(u" >"), &frmUchalVouchers::cmdGo_Click};
    DataGrid DataGridUchals;
    MoneyField txtAmount{this, "txtAmount"}; // the total of the heads; only shown

    VoucherPanel Receipt;
    MoneyField txtAmount1{this, "txtAmount1", &frmUchalVouchers::txtAmount1_LostFocus};

    Button cmdAdd{this, "cmdAdd", Shivaji(u"&navaIna"), &frmUchalVouchers::cmdAdd_Click};
    Button cmdMod{this, "cmdMod", Shivaji(u"ba&dla"), &frmUchalVouchers::cmdMod_Click};
    Button cmdDel{this, "cmdDel", Shivaji(u"&KaoDNao"), &frmUchalVouchers::cmdDel_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmUchalVouchers::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmUchalVouchers::cmdExit_Click};

    Panel AdvanceFrame;
    Panel Frame1; // of receipts
    RecordModes Modes;
    double OldAmount = 0; // of the voucher as it was called up

    void LayOut();
    QLayout* AdvanceFields();
    QLayout* ReceiptFields();

    // The panels
    bool IsReceipt() const { return OptPaymentEntry.Chosen(); }
    VoucherPanel& Chosen() { return IsReceipt() ? Receipt : Advance; }
    void Command1_Click();
    void ShowChosenPanel();
    void ShowCalledUp();
    void ClearFields();

    // The heads of an advance
    void ComboUchalTypes_LostFocus();
    void txtUchalAmount_LostFocus();
    void cmdGo_Click();
    bool IsHeadKnown() const;
    void ShowHeads();
    void LeaveHeads();

    void txtAmount1_LostFocus();

    // Modes
    void OpenMode(void (RecordModes::*enter)());
    void ShowIdle();
    void ReturnToIdle();

    void cmdAdd_Click();
    void cmdMod_Click();
    void cmdMod_GotFocus();
    void cmdDel_Click();
    void cmdCancel_Click();

    Voucher Entered();
    bool IsNumbered();
    bool IsComplete();
    bool IsAmountGiven();
    bool AreHeadsTaken();
    bool IsCalledUp();
    void SaveNew();
    void SaveModified();
    void DeleteFound();

    void StartMachinesCalculator();
};

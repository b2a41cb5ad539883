#pragma once

#include "core/preview/TemplateReport.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Button.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/TabPages.h"
#include "society/Fields.h"
#include "society/SocietyScreen.h"

#include <array>
#include <utility>

// The settings of the society: its row of AutoSettings, on three tabs. A save replaces the row: the columns
// that are on no tab are lost, and if a required field is empty, the row is only deleted.
class frmAutoSettings final : public SocietyScreen {
public:
    frmAutoSettings();

    static Keys::Places KeyPlaces();

protected:
    void Load() override;
    QString PlaceOfFocus() const override;

private:
    enum Pages { Collection, Payment, Sale };
    TabPages SSTab;

    // Collection
    ChoiceCombo ComboAutoLiters;
    ChoiceCombo ComboAutoFat;
    ChoiceCombo ComboPrintStatus;
    LitresField txtCowLimit{this, "txtCowLimit", &frmAutoSettings::txtCowLimit_LostFocus};
    LitresField txtBuffLimit{this, "txtBuffLimit", &frmAutoSettings::txtBuffLimit_LostFocus};
    ChoiceCombo ComboReceipt;
    CheckBox CheckRepeatCol{this, "CheckRepeatCol",
        Shivaji(u"eka maombarcaI eka vaoLI ekapoxaa jaast vaoLa dUQa saMklana naaoMd kÉ VayacaI ka Æ")};

    // Payment
    ChoiceCombo ComboPaymentDuration;
    MoneyField txtCow{this, "txtCow", &frmAutoSettings::txtCow_LostFocus};
    MoneyField txtBuff{this, "txtBuff", &frmAutoSettings::txtBuff_LostFocus};
    ChoiceCombo cmbFatRateType{this, "cmbFatRateType", {}, &frmAutoSettings::cmbFatRateType_LostFocus};
    CheckBox CheckCNP{this, "CheckCNP", Shivaji(u"dUQa KrodIcaI enT/I dUQa saMklana krtovaoLIca kravaI ka Æ"),
        &frmAutoSettings::CheckCNP_Click};
    CheckBox CheckSNU{this, "CheckSNU",
        Shivaji(
            u"maombarlaa kolaolaI ]Qaar ivaËI dUQa pomaonT krtovaoLI ]cala mhNaUna ivacaarat GyaavaI ka Æ")};
    OptionButton OptionAddThev{this, "OptionAddThev", Shivaji(u"zovaImaQyao Gyaa")};
    OptionButton OptionPayable{this, "OptionPayable", Shivaji(u"doNao daKvaa")};
    OptionButton OptionPayIt{this, "OptionPayIt", Shivaji(u"pUNa- pomaonT kra")};
    OptionButton OptionDiscount{this, "OptionDiscount", Shivaji(u"saUT daKvaa")};
    OptionGroup DecimalPayment{{&OptionAddThev, &OptionPayable, &OptionPayIt, &OptionDiscount}};

    // Milk sale
    RateField txtCowSaleRate{this, "txtCowSaleRate", &frmAutoSettings::txtCowSaleRate_LostFocus};
    RateField txtBuffSaleRate{this, "txtBuffSaleRate", &frmAutoSettings::txtBuffSaleRate_LostFocus};
    RateField txtMixSaleRate{this, "txtMixSaleRate", &frmAutoSettings::txtMixSaleRate_LostFocus};
    ChoiceCombo ComboMSRPrintStatus;

    Button CmdSave{this, "CmdSave", Shivaji(u"&saovh"), &frmAutoSettings::CmdSave_Click};
    Button CmdCancel{this, "CmdCancel", Shivaji(u"&r_"), &frmAutoSettings::CmdCancel_Click};
    Button CmdExit{this, "CmdExit", Shivaji(u"&baahor"), &frmAutoSettings::cmdExit_Click};

    // It is shown beside ComboReceipt, but is last in the tab order, so that Enter in ComboReceipt doesn't
    // lead to it.
    Button cmdReceipt{this, "cmdReceipt", Shivaji(u"pavatI p`kar"), &frmAutoSettings::cmdReceipt_Click};

    TemplateReport CRMilkReceipt;

    void LayOut();
    QLayout* CollectionPage();
    QLayout* PaymentPage();
    QLayout* SalePage();
    void SetGuides();
    void ShowTabGuide();
    void TurnToNextPage() { SSTab.TurnToNext(); }
    void TurnToPreviousPage() { SSTab.TurnToPrevious(); }
    void GoToRestOfPayments() { cmbFatRateType.SetFocus(); }
    void GoToReceiptOfSales() { ComboMSRPrintStatus.SetFocus(); }

    void SSTab_Click();
    void CheckCNP_Click();
    void CmdSave_Click();
    void CmdCancel_Click();
    void cmdReceipt_Click();

    // Leaving the fields
    void ComboAutoLiters_LostFocus();
    void ComboAutoFat_LostFocus();
    void ComboPrintStatus_LostFocus();
    void txtCowLimit_LostFocus();
    void txtBuffLimit_LostFocus();
    void ComboReceipt_LostFocus();
    void CheckRepeatCol_LostFocus();
    void ComboPaymentDuration_LostFocus();
    void txtCow_LostFocus();
    void txtBuff_LostFocus();
    void cmbFatRateType_LostFocus();
    void txtCowSaleRate_LostFocus();
    void txtBuffSaleRate_LostFocus();
    void txtMixSaleRate_LostFocus();
    void ComboMSRPrintStatus_LostFocus();

    // Whether the last field of a page leads on to the next page. It doesn't if the clerk goes elsewhere:
    // back, to another page, to a button.
    bool LeadsOn() const { return !IsSteppingBack() && !GoingTo(); }

    // These return whether the field may be left.
    bool CheckChoice(ChoiceCombo& combo);
    bool CheckNotZero(NumberField& field);
    bool CheckKapat(NumberField& field);

    // The row behind the screen
    static constexpr QStringView ByFat = u"f^T nausaar";
    static constexpr QStringView ByFatAndSnf = u"f^T va esa ena ef nausaar"; // offered, but never kept
    void LoadSettings();
    void ShowSettings(const Recordset& settings);
    bool AreRequiredFieldsFilled() const;
    std::array<std::pair<OptionButton*, QStringView>, 4> DecimalPayments();
    QStringView DecimalPaymentWord();
    QString InsertStatement();
};

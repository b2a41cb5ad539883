#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/Button.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"
#include "society/RecordModes.h"
#include "society/SocietyScreen.h"

#include <vector>

// The members of the society: who they are, how they are paid, and their figures at the opening and now.
// The caption of the New, Modify or Delete button tells the mode; without one the fields are closed.
class frmMembers final : public SocietyScreen {
public:
    frmMembers();

    static Keys::Places KeyPlaces();

protected:
    void Load() override;
    void Escape() override;

private:
    Label lblBankName{this, "lblBankName", Shivaji(u"ba^nkocao naava")};
    Label lblBankAccountNo{this, "lblBankAccountNo", Shivaji(u"ba^nk Kato naMbar")};

    WholeField txtMemberNo{this, "txtMemberNo", &frmMembers::txtMemberNo_LostFocus};
    NameCombo ComboMemberName{this, "ComboMemberName", &frmMembers::ComboMemberName_LostFocus};
    TextField txtAddress{this, "txtAddress"};
    NameCombo ComboCity{this, "ComboCity", &frmMembers::ComboCity_LostFocus};
    ChoiceField txtAnimal;
    ChoiceField txtPaymentType;
    NameCombo ComboBankName{this, "ComboBankName", &frmMembers::ComboBankName_LostFocus};
    TextField txtBankAccountNo{this, "txtBankAccountNo", &frmMembers::txtBankAccountNo_LostFocus};
    MoneyField txtOpeningBalance{this, "txtOpeningBalance", &frmMembers::txtOpeningBalance_LostFocus};
    ChoiceField txtOpeningDorC;
    LitresField txtCowOpeningLits{this, "txtCowOpeningLits", &frmMembers::txtCowOpeningLits_LostFocus};
    LitresField txtBuffOpeningLits{this, "txtBuffOpeningLits", &frmMembers::txtBuffOpeningLits_LostFocus};
    MoneyField txtOpeningUchal{this, "txtOpeningUchal", &frmMembers::txtOpeningUchal_LostFocus};
    MoneyField txtCowOpeningThev{this, "txtCowOpeningThev", &frmMembers::txtCowOpeningThev_LostFocus};
    MoneyField txtBuffOpeningThev{this, "txtBuffOpeningThev", &frmMembers::txtBuffOpeningThev_LostFocus};

    // Shown, never entered.
    MoneyField txtClosingBalance{this, "txtClosingBalance"};
    TextField txtClosingDorC{this, "txtClosingDorC"};
    LitresField txtCowClosingLits{this, "txtCowClosingLits"};
    LitresField txtBuffClosingLits{this, "txtBuffClosingLits"};
    MoneyField txtClosingUchal{this, "txtClosingUchal"};
    MoneyField txtCowClosingThev{this, "txtCowClosingThev"};
    MoneyField txtBuffClosingThev{this, "txtBuffClosingThev"};

    Button cmdNew{this, "cmdNew", Shivaji(u"&navaIna"), &frmMembers::cmdNew_Click};
    Button cmdModify{this, "cmdModify", Shivaji(u"ba&dla"), &frmMembers::cmdModify_Click};
    Button cmdDelete{this, "cmdDelete", Shivaji(u"&KaoDNao"), &frmMembers::cmdDelete_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmMembers::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmMembers::cmdExit_Click};

    RecordModes Modes;

    // The last record read. A new member is written with the account of the last one.
    double AccountId = 0;
    QString OldName;
    double CowOpeningLoaded = 0;
    double CowClosingLoaded = 0;
    double BuffOpeningLoaded = 0;
    double BuffClosingLoaded = 0;

    void LayOut();
    QLayout* IdentityColumn();
    QLayout* FiguresColumn();
    void SetGuides();

    // Modes
    void ShowIdle();
    void ReturnToIdle();
    void ClearFields();

    void cmdNew_Click();
    void cmdModify_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();

    void SaveNew();
    void SaveModified();
    void DeleteFound();

    // Leaving the fields
    void txtMemberNo_LostFocus();
    void ComboMemberName_LostFocus();
    void ComboCity_LostFocus();
    void txtAnimal_LostFocus();
    void txtPaymentType_LostFocus();
    void ComboBankName_LostFocus();
    void txtBankAccountNo_LostFocus();
    void txtOpeningBalance_LostFocus();
    void txtOpeningDorC_LostFocus();
    void txtCowOpeningLits_LostFocus();
    void txtBuffOpeningLits_LostFocus();
    void txtOpeningUchal_LostFocus();
    void txtCowOpeningThev_LostFocus();
    void txtBuffOpeningThev_LostFocus();

    void Refuse(Field& field, QStringView message);
    void Hold(Field& field);
    void OfferToAdd(NameCombo& combo, QStringView table, QStringView column, QStringView question);
    bool IsAccountNoMissing() const;
    bool AreRequiredFieldsFilled();
    void EnableFiguresOfAnimal();
    void ShowBankFields(bool shown);
    void ComputeClosingBalance();
    void ToSaveButton();

    // The rows behind the screen
    double MemberNo() const;
    int NextMemberNo() const;
    void LoadLists();
    void LoadRecord(const Recordset& member);
    QString InsertStatement() const;
    QString UpdateStatement() const;
    void RenameEverywhere();
    void DeleteEverywhere();
};

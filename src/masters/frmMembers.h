#pragma once

#include "masters/GrowingList.h"
#include "masters/MasterScreen.h"
#include "masters/MemberRecord.h"
#include "platform/forms/Button.h"

// The members of the society: who they are, how they are paid, and their figures at the opening and now.
class frmMembers final : public MasterScreen {
public:
    frmMembers();

    static Keys::Places KeyPlaces();

private:
    Label lblBankName{this, "lblBankName", Shivaji(u"ba^nkocao naava")};
    Label lblBankAccountNo{this, "lblBankAccountNo", Shivaji(u"ba^nk Kato naMbar")};

    WholeField txtMemberNo{this, "txtMemberNo", &frmMembers::Number_LostFocus};
    NameCombo ComboMemberName{this, "ComboMemberName", &frmMembers::Name_LostFocus};
    TextField txtAddress{this, "txtAddress"};
    NameCombo ComboCity{this, "ComboCity", &frmMembers::ComboCity_LostFocus};
    ChoiceField txtAnimal{this, "txtAnimal", ChoicesOf({Word::Cow, Word::Buffalo, Word::Both}),
        &frmMembers::txtAnimal_LostFocus};
    ChoiceField txtPaymentType{
        this, "txtPaymentType", ChoicesOf({Word::Cash, Word::Bank}), &frmMembers::txtPaymentType_LostFocus};
    NameCombo ComboBankName{this, "ComboBankName", &frmMembers::ComboBankName_LostFocus};
    TextField txtBankAccountNo{this, "txtBankAccountNo", &frmMembers::txtBankAccountNo_LostFocus};
    MoneyField txtOpeningBalance{this, "txtOpeningBalance", &frmMembers::txtOpeningBalance_LostFocus};
    ChoiceField txtOpeningDorC{this, "txtOpeningDorC", ChoicesOf({Direction::Payable, Direction::Due}),
        &frmMembers::txtOpeningDorC_LostFocus};
    LitresField txtCowOpeningLits{this, "txtCowOpeningLits", &frmMembers::txtCowOpeningLits_LostFocus};
    LitresField txtBuffOpeningLits{this, "txtBuffOpeningLits", &frmMembers::txtBuffOpeningLits_LostFocus};
    MoneyField txtOpeningUchal{this, "txtOpeningUchal", &frmMembers::txtOpeningUchal_LostFocus};
    MoneyField txtCowOpeningThev{this, "txtCowOpeningThev", &frmMembers::txtCowOpeningThev_LostFocus};
    MoneyField txtBuffOpeningThev{this, "txtBuffOpeningThev", &frmMembers::txtBuffOpeningThev_LostFocus};

    // Only shown.
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
    GrowingList Cities{ComboCity, u"CityMaster", u"CityName", u"navaIna Sahr A^D kravao ka Æ"};
    GrowingList Banks{ComboBankName, u"BankMaster", u"BankName", u"navaIna baÐk A^D kravaI ka Æ"};

    MemberRecord Loaded; // as read; a new member gets the account of the last one

    void LayOut();
    QLayout* IdentityColumn();
    QLayout* FiguresColumn();
    void SetGuides();

    // The record and its fields
    double MemberNo() const { return txtMemberNo.Value(); }
    void Load() override;
    void LoadLists() override;
    void LoadRecord(const Recordset& row) override;
    void Show(const MemberRecord& member);
    MemberRecord Entered() const;
    void ClearFields() override;
    void InsertRecord() override;
    void UpdateRecord() override;
    void DeleteRecord() override;

    // Leaving the fields
    void ComboCity_LostFocus();
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

    bool IsAccountNoMissing() const;
    void ShowBankFields(bool shown);
    void ComputeClosing() override;
};

#pragma once

#include "masters/MasterScreen.h"
#include "platform/forms/Button.h"

// The customers of the society, to whom it sells the milk: who they are, and their litres at the opening and
// now.
class frmCustomers final : public MasterScreen {
public:
    frmCustomers();

    static Keys::Places KeyPlaces();

private:
    WholeField txtCustomerNo{this, "txtCustomerNo", &frmCustomers::Number_LostFocus};
    NameCombo ComboCustomerName{this, "ComboCustomerName", &frmCustomers::Name_LostFocus};
    ChoiceField txtAnimal{this, "txtAnimal", ChoicesOf({Word::Cow, Word::Buffalo, Word::Both}),
        &frmCustomers::txtAnimal_LostFocus};
    ChoiceField txtCustomerType{this, "txtCustomerType", ChoicesOf({Word::LocalSale, Word::FederationSale}),
        &frmCustomers::txtCustomerType_LostFocus};
    NumberField txtCowOpeningLits{
        this, "txtCowOpeningLits", NumberField::Digits::Decimals, &frmCustomers::txtCowOpeningLits_LostFocus};
    NumberField txtBuffOpeningLits{this, "txtBuffOpeningLits", NumberField::Digits::Decimals,
        &frmCustomers::txtBuffOpeningLits_LostFocus};

    // Only shown.
    LitresField txtCowClosingLits{this, "txtCowClosingLits", u"#####0.00"};
    LitresField txtBuffClosingLits{this, "txtBuffClosingLits", u"#####0.00"};

    Button cmdNew{this, "cmdNew", Shivaji(u"&navaIna"), &frmCustomers::cmdNew_Click};
    Button cmdModify{this, "cmdModify", Shivaji(u"ba&dla"), &frmCustomers::cmdModify_Click};
    Button cmdDelete{this, "cmdDelete", Shivaji(u"&KaoDNao"), &frmCustomers::cmdDelete_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmCustomers::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmCustomers::cmdExit_Click};

    RecordModes Modes;

    // As read
    QString LoadedName;
    double LoadedCowOpeningLits = 0;
    double LoadedCowClosingLits = 0;
    double LoadedBuffOpeningLits = 0;
    double LoadedBuffClosingLits = 0;

    void LayOut();
    void SetGuides();

    // The record and its fields
    double CustomerNo() const { return txtCustomerNo.Value(); }
    void LoadLists() override;
    void LoadRecord(const Recordset& row) override;
    void ClearFields() override;
    void InsertRecord() override;
    void UpdateRecord() override;
    void DeleteRecord() override;

    void ComboCustomerName_GotFocus();
    void txtCustomerType_LostFocus();
    void txtCowOpeningLits_LostFocus();
    void txtBuffOpeningLits_LostFocus();
};

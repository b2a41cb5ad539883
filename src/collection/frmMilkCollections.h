#pragma once

#include "Button.h"
#include "DateField.h"
#include "Deliveries.h"
#include "NameCombo.h"
#include "Screen.h"

class QWidget;
class Recordset;

// The counter: one line of fields for one can of milk, walked with Enter; the last of them saves it.
class frmMilkCollections final : public Screen {
public:
    frmMilkCollections();

    // Litres of the new rows saved since the screen was opened. They are only added to.
    double CowLitersTaken = 0;
    double BuffLitersTaken = 0;

private:
    Label lblTitle{this, "lblTitle"};
    Label lblCompanyTitle{this, "lblCompanyTitle"};
    Label lblAcYear{this, "lblAcYear"};
    Label lblActualCollectionTime{this, "lblActualCollectionTime"};
    Label lblFooter{this, "lblFooter"};
    Label lblF9{this, "lblF9", Plain(u"F9")};
    Label lblSearch{this, "lblSearch", Shivaji(u"dUQa saMklana pavatI")};
    Label lblF7{this, "lblF7", Plain(u"F7")};
    Label lblMilk{this, "lblMilk", Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana")};
    Label lblF10{this, "lblF10", Plain(u"F10")};
    Label lblDelete{this, "lblDelete", Shivaji(u"KaoDNao")};

    DateField maskDate{this, "maskDate"};
    ChoiceField txtTime{
        this, "txtTime", {{u'1', QStringLiteral("sakaL")}, {u'2', QStringLiteral("saMQyaakaL")}}};
    NumberField txtCollectionNo{this, "txtCollectionNo", NumberField::Digits::Whole};
    NumberField txtMemberNo{this, "txtMemberNo", NumberField::Digits::Whole};
    NameCombo ComboMemberName{this, "ComboMemberName"};
    ChoiceField txtAnimal{
        this, "txtAnimal", {{u'1', QStringLiteral("gaaya")}, {u'2', QStringLiteral("mhOsa")}}};
    NumberField txtLiters{this, "txtLiters", NumberField::Digits::Decimals};
    NumberField txtFat{this, "txtFat", NumberField::Digits::Decimals};
    NumberField txtRate{this, "txtRate", NumberField::Digits::Decimals};
    NumberField txtAmount{this, "txtAmount", NumberField::Digits::Decimals};
    Button cmdGo{this, "cmdGo", Plain(u" >")};

    std::int16_t NextCollectionNo = 1; // the number of the next new row
    bool IsExistingRow = false; // the fields show a row that the shift already has
    bool FocusBounce = false; // a field that was just entered is sending the focus back

    void Load() override;
    bool KeyDown(const QKeyEvent& key) override;
    void Escape() override;

    void maskDate_GotFocus();
    void maskDate_LostFocus();
    void txtTime_GotFocus();
    void txtTime_LostFocus();
    void txtCollectionNo_GotFocus();
    bool txtCollectionNo_KeyDown(const QKeyEvent& key);
    void txtCollectionNo_LostFocus();
    void txtMemberNo_GotFocus();
    bool txtMemberNo_KeyDown(const QKeyEvent& key);
    void txtMemberNo_LostFocus();
    void ComboMemberName_GotFocus();
    void ComboMemberName_LostFocus();
    void txtAnimal_GotFocus();
    void txtAnimal_LostFocus();
    void txtLiters_LostFocus();
    void txtFat_GotFocus();
    void txtFat_LostFocus();
    void txtRate_LostFocus();
    void cmdGo_Click();
    void cmdGo_LostFocus();

    void ClearEntryFields();
    void RefreshActualTime();
    void LoadMemberNames();

    void EnableEntry(bool enabled);
    void SendBack(Control& to);
    bool IsSentBack();
    bool HoldDate();
    Shift TheShift() const;
    Delivery TheDelivery() const;
    void ShowNumber(std::int16_t number);
    void ShowRow(const Recordset& row);
    void ShowAmount();
    void ShowMemberKeys(bool shown);
    void TakeAnimalOf(const Recordset& member);
    void OfferLastFat();
    bool IsSecondDelivery() const;
    void StoreNew(const Delivery& delivery);
    void DeleteRow();
    void SearchMember();

    void LayOut();
    QWidget* ShiftLine();
    QWidget* EntryPanel();
    QWidget* MemberKeys();
};

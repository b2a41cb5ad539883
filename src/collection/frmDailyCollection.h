#pragma once

#include "collection/DailyList.h"
#include "collection/DailyRow.h"
#include "collection/DailyRules.h"
#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"
#include "society/RecordModes.h"
#include "society/SocietyScreen.h"

class Recordset;

// The deliveries of one member, day after day: for keying a paper register, and for mending a row. It writes
// the books and nothing beside them: no slip, no balance and no copy of the shift. The captions of the
// buttons tell what it is doing.
class frmDailyCollection final : public SocietyScreen {
public:
    frmDailyCollection();

    static Keys::Places KeyPlaces();

private:
    WholeField txtMemberNo{this, "txtMemberNo", &frmDailyCollection::txtMemberNo_LostFocus};
    NameCombo cmbMemberName{this, "cmbMemberName", &frmDailyCollection::cmbMemberName_LostFocus};
    DateField MasKCollectionDate{
        this, "MasKCollectionDate", &frmDailyCollection::MasKCollectionDate_LostFocus};
    NameCombo cmbCollectionTime{this, "cmbCollectionTime", &frmDailyCollection::cmbCollectionTime_LostFocus};
    WholeField txtCollectionNo{this, "txtCollectionNo", &frmDailyCollection::txtCollectionNo_LostFocus};
    AnimalField txtAnimal{this, "txtAnimal", &frmDailyCollection::txtAnimal_LostFocus};
    LitresField txtLiters{this, "txtLiters", &frmDailyCollection::txtLiters_LostFocus};
    FatField txtFat{this, "txtFat", &frmDailyCollection::txtFat_LostFocus};
    RateField txtRate{this, "txtRate", &frmDailyCollection::txtRate_LostFocus};
    MoneyField txtAmount{this, "txtAmount", &frmDailyCollection::txtAmount_LostFocus};
    Button cmdAdd{this, "cmdAdd", Shivaji(u"&navaIna"), &frmDailyCollection::cmdAdd_Click};
    Button cmdModify{this, "cmdModify", Shivaji(u"ba&dla"), &frmDailyCollection::cmdModify_Click};
    Button cmdDelete{this, "cmdDelete", Shivaji(u"&KaoDNao..."), &frmDailyCollection::cmdDelete_Click};
    Button cmdCancel{this, "cmdCancel", Shivaji(u"&r_"), &frmDailyCollection::cmdCancel_Click};
    Button cmdExit{this, "cmdExit", Shivaji(u"&baahor"), &frmDailyCollection::cmdExit_Click};
    DailyList List{this};

    RecordModes Modes;
    DailyRow Row{txtMemberNo, cmbMemberName, MasKCollectionDate, cmbCollectionTime, txtCollectionNo,
        txtAnimal, txtLiters, txtFat, txtRate, txtAmount};
    DailyRules Rules;

    bool IsPicked = false; // the number comes from the member's list, and its row is to be shown

    void Load() override;
    void Escape() override;

    void txtMemberNo_Change();
    void txtMemberNo_LostFocus();
    void cmbMemberName_LostFocus();
    void MasKCollectionDate_LostFocus();
    bool cmbCollectionTime_KeyDown(const QKeyEvent& key);
    void cmbCollectionTime_LostFocus();
    void txtCollectionNo_Change();
    void txtCollectionNo_LostFocus();
    Recordset RowOfNumber() const;
    void txtAnimal_LostFocus();
    void txtLiters_LostFocus();
    void txtFat_LostFocus();
    void txtRate_LostFocus();
    void txtAmount_LostFocus();
    void cmdAdd_Click();
    void cmdModify_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    void DataGrid1_Click();

    // States
    void BeginState();
    void ShowIdle();
    void ClearFields();
    void BackToIdle();
    void WriteAndRest(const QString& statement, Button& button);

    // What the fields show
    void ShowMemberOfNumber();
    void TakeMember(const Recordset& member);
    void ShowNextNumber();
    void ShowAmount();

    // The member's list
    void ShowOrHideList();
    void CloseList();

    void LayOut();
    QLayout* MemberLine();
    QLayout* DayLine();
    QWidget* MilkPanel();
};

#pragma once

#include "platform/database/Recordset.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"
#include "society/RecordModes.h"
#include "society/SocietyScreen.h"

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
    DataGrid DataGrid1;

    RecordModes Modes;

    QWidget* Frame1 = nullptr; // holds DataGrid1
    bool IsRowShown = false; // the fields show a row of the books
    bool IsPicked = false; // the number comes from the member's list, and its row is to be shown
    QString ProposedNo; // the number that the screen has put there itself
    QStringList NumberedFor; // the day and shift that the number shown stands for
    QStringList PricedFor; // what the amount that is shown was made for

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
    void txtAnimal_LostFocus();
    void txtLiters_LostFocus();
    void txtFat_LostFocus();
    void txtRate_LostFocus();
    void txtAmount_Change();
    void txtAmount_LostFocus();
    void cmdAdd_Click();
    void cmdModify_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    void DataGrid1_Click();

    // States
    void BeginState();
    void SetGuides();
    void ShowIdle();
    void ClearFields();
    std::vector<Field*> Fields();

    // Rules of the fields
    struct Missing { // a field that has to be entered first, and what the guide line says of it; or none
        Field* field = nullptr;
        Caption wanted;
    };
    bool HasMissing();
    Missing Unfinished();
    Missing UnfinishedNumber();
    Missing UnfinishedFigure();
    QStringList DayAndShift() const;
    QStringList Priced() const;
    void TakeMember(const Recordset& member);
    void ShowAmount();
    void ShowNextNumber();
    void ShowRow(const Recordset& row);
    void ForgetRow();

    // The rows behind the screen
    QString Day() const;
    QString InsertStatement() const;
    QString UpdateStatement() const;
    QString DeleteStatement() const;

    // The member's list
    bool IsListShown() const { return DataGrid1.Visible(); }
    void OpenList();
    void CloseList();
    void ShowOrHideList();
    void ShowList(bool shown);

    void LayOut();
    QLayout* MemberLine();
    QLayout* DayLine();
    QWidget* MilkPanel();
    QWidget* ListFrame();
};

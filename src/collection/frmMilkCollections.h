#pragma once

#include "collection/CounterScreen.h"
#include "core/preview/TemplateReport.h"
#include "society/Fields.h"

class QStackedLayout;

// The counter of the society. F7 on a member's number lays a frame over the list of the shift, in which a
// member's own collection over a period is shown with its sums.
class frmMilkCollections final : public CounterScreen {
public:
    frmMilkCollections();

    static Keys::Places KeyPlaces();

private:
    Label Label28{this, "Label28", Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana")};

    Label lblCowLitM{this, "lblCowLitM"};
    Label lblCowLitE{this, "lblCowLitE"};
    Label lblCowTotalLiters{this, "lblCowTotalLiters"};
    Label lblCowTotalM{this, "lblCowTotalM"};
    Label lblCowTotalE{this, "lblCowTotalE"};
    Label lblCowTotal{this, "lblCowTotal"};
    Label lblCowAvgFatM{this, "lblCowAvgFatM"};
    Label lblCowAvgFatE{this, "lblCowAvgFatE"};
    Label lblCowTotalAvgFat{this, "lblCowTotalAvgFat"};
    Label lblBuffLitM{this, "lblBuffLitM"};
    Label lblBuffLitE{this, "lblBuffLitE"};
    Label lblBuffTotalLiters{this, "lblBuffTotalLiters"};
    Label lblBuffTotalM{this, "lblBuffTotalM"};
    Label lblBuffTotalE{this, "lblBuffTotalE"};
    Label lblBuffTotal{this, "lblBuffTotal"};
    Label lblBuffAvgFatM{this, "lblBuffAvgFatM"};
    Label lblBuffAvgFatE{this, "lblBuffAvgFatE"};
    Label lblBuffTotalAvgFat{this, "lblBuffTotalAvgFat"};

    DateField maskFromDate{this, "maskFromDate", &frmMilkCollections::maskFromDate_LostFocus};
    DateField maskToDate{this, "maskToDate", &frmMilkCollections::maskToDate_LostFocus};
    WholeField txtAccountId{this, "txtAccountId", &frmMilkCollections::txtAccountId_LostFocus};
    NameCombo cmbAccountName{this, "cmbAccountName", &frmMilkCollections::cmbAccountName_LostFocus};
    Button cmdGoOn{this, "cmdGoOn", Plain(u">>"), &frmMilkCollections::cmdGoOn_Click};
    Button Command1{this, "Command1", Shivaji(u"&irpaoT-"), &frmMilkCollections::Command1_Click};
    Button Command2{this, "Command2", Shivaji(u"&baahor"), &frmMilkCollections::Command2_Click};
    Button Command3{
        this, "Command3", Shivaji(u"dUQa saMklana nasaNaaro saBaasad"), &frmMilkCollections::Command3_Click};
    DataGrid DataGridMilk;

    TemplateReport CRMilkPayments;
    QStackedLayout* m_views = nullptr; // the list of the shift, and FrameMilkCollection over it
    QStackedLayout* m_keys = nullptr; // the strips of keys of both
    bool IsFrameOpen = false;
    std::vector<Control*> m_heldBack; // what could be entered before the frame was opened

    void Load() override;
    void Escape() override;
    void LoadMemberNames() override;
    void MembersShown() override;

    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void txtAccountId_LostFocus();
    void cmbAccountName_GotFocus();
    void cmbAccountName_LostFocus();
    void cmdGoOn_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    void ShowMemberGrid();
    void MemberLitersAndAmounts();
    void MemberAverageFat();
    void RenumberTemp();
    void ResetMemberFrame();

    void ShowMemberFrame();
    std::vector<Control*> FrameControls();
    void ShowFrame(bool shown);
    bool HoldPeriod();
    void ShowAccount(const Recordset& member);
    QString InPeriod() const;

    QLayout* Views();
    QWidget* KeyStrips();
    QWidget* ShiftView();
    QWidget* FrameMilkCollection();
    QLayout* FrameHead();
    QWidget* MemberSums();
};

#pragma once

#include "collection/CopySums.h"
#include "collection/Deliveries.h"
#include "core/preview/TemplateReport.h"
#include "platform/forms/Button.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "platform/forms/Panel.h"
#include "society/Fields.h"
#include "society/MemberCombo.h"

class QLayout;
class QWidget;

// A figure of a member's milk of one animal: of the mornings, of the evenings and of both.
struct FigureOfHalves {
    FigureOfHalves(Screen* screen, const char* morningName, const char* eveningName, const char* bothName);

    // `figure` is a member of MilkSums; the formats are those of a half and of both.
    template <class Figure>
    void Show(const HalfDaySums& sums, Figure figure, QStringView format, QStringView formatOfBoth);

    Label morning;
    Label evening;
    Label both;
};

// FrameMilkCollection: one member's collection over a period, with its sums and its report. It lies over the
// list of the shift, and while it is open the copy holds the period in place of the shift. What opens and
// leaves it is the counter's.
class MemberFrame {
    Screen* m_screen;

public:
    explicit MemberFrame(Screen* screen);

    Label Label28{m_screen, "Label28", Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana")};

    DateField maskFromDate{m_screen, "maskFromDate", {this, &MemberFrame::maskFromDate_LostFocus}};
    DateField maskToDate{m_screen, "maskToDate", {this, &MemberFrame::maskToDate_LostFocus}};
    WholeField txtAccountId{m_screen, "txtAccountId", {this, &MemberFrame::txtAccountId_LostFocus}};
    MemberCombo cmbAccountName{m_screen, "cmbAccountName", {this, &MemberFrame::cmbAccountName_LostFocus}};
    Button cmdGoOn{m_screen, "cmdGoOn", Plain(u">>"), {this, &MemberFrame::cmdGoOn_Click}};
    Button Command1{m_screen, "Command1", Shivaji(u"&irpaoT-"), {this, &MemberFrame::Command1_Click}};
    Button Command2{m_screen, "Command2", Shivaji(u"&baahor")}; // the way out: the counter answers it
    Button Command3{m_screen, "Command3", Shivaji(u"dUQa saMklana nasaNaaro saBaasad"),
        {this, &MemberFrame::Command3_Click}};
    DataGrid DataGridMilk;

    // Fills it as the counter opens: from the copy, which is empty then.
    void Load();

    bool IsOpen() const { return m_panel.Visible(); }

    // Opens it, on its first date. The rest of the screen waits until it is closed.
    void Open();
    void Close();

    // Empties it and gives the copy back to the shift.
    void ResetMemberFrame(const Shift& shift);

    QWidget* LaidOut();

private:
    FigureOfHalves m_cowLitres{m_screen, "lblCowLitM", "lblCowLitE", "lblCowTotalLiters"};
    FigureOfHalves m_cowAmount{m_screen, "lblCowTotalM", "lblCowTotalE", "lblCowTotal"};
    FigureOfHalves m_cowFat{m_screen, "lblCowAvgFatM", "lblCowAvgFatE", "lblCowTotalAvgFat"};
    FigureOfHalves m_buffLitres{m_screen, "lblBuffLitM", "lblBuffLitE", "lblBuffTotalLiters"};
    FigureOfHalves m_buffAmount{m_screen, "lblBuffTotalM", "lblBuffTotalE", "lblBuffTotal"};
    FigureOfHalves m_buffFat{m_screen, "lblBuffAvgFatM", "lblBuffAvgFatE", "lblBuffTotalAvgFat"};
    TemplateReport CRMilkPayments;

    Panel m_panel{m_screen,
        {&maskFromDate, &maskToDate, &txtAccountId, &cmbAccountName, &cmdGoOn, &Command1, &Command2,
            &Command3, &DataGridMilk},
        {&Label28}};
    std::vector<Control*> m_heldBack; // what could be entered before the frame was opened

    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void txtAccountId_LostFocus();
    void cmbAccountName_LostFocus();
    void cmdGoOn_Click();
    void Command1_Click();
    void Command3_Click();

    bool InsistOnPeriod();
    void ShowAccount(const Recordset& member);
    SqlText InPeriod() const;
    void RenumberTemp();
    void ShowMemberGrid();
    void MemberLitersAndAmounts();
    void MemberAverageFat();

    QLayout* Head();
    QWidget* Sums();
};

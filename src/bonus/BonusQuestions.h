#pragma once

#include "bonus/BonusRun.h"
#include "core/messages/Progress.h"
#include "platform/forms/Button.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/DateField.h"
#include "platform/forms/Panel.h"
#include "society/Fields.h"

#include <optional>

class QLayout;
class QWidget;

// Frame1: what the bonus is asked for, and the member in hand while it is worked out.
class BonusQuestions {
    Screen* m_screen;

public:
    // The button is the screen's.
    BonusQuestions(Screen* screen, const Handler& go);

    DateField maskFromDate{m_screen, "maskFromDate", {this, &BonusQuestions::maskFromDate_LostFocus}};
    DateField maskToDate{m_screen, "maskToDate", {this, &BonusQuestions::maskToDate_LostFocus}};
    WholeField txtFromAcNo{m_screen, "txtFromAcNo", {this, &BonusQuestions::txtFromAcNo_LostFocus}};
    WholeField txtToAcNo{m_screen, "txtToAcNo", {this, &BonusQuestions::txtToAcNo_LostFocus}};
    ChoiceCombo cmbMilkType{m_screen, "cmbMilkType"};
    RateField txtCowBonusRate{m_screen, "txtCowBonusRate", u"#####0.00"};
    RateField txtBuffBonusRate{m_screen, "txtBuffBonusRate", u"####0.00"};
    CheckBox chkAdvanceBalance{m_screen, "chkAdvanceBalance", Plain(u"Advance Balance")};
    Button cmdGo;

    // Fills it as the screen opens. From then on a rate that is typed is the new one of the settings at once.
    void Load();

    // The fields may be emptied: the rates of the settings stay.
    void LetRatesBe();

    // Whether all is given.
    bool AreGiven() { return FirstEmpty() == nullptr; }

    // The same, and in order; if not, the focus goes to the first field that lacks it.
    bool InsistOnAll();

    BonusParameters Parameters() const;

    // While the bonus is worked out.
    void BeginRun();
    void ShowDone(const MemberBonus& bonus);
    void EndRun();

    void SetVisible(bool visible) { m_panel.SetVisible(visible); }
    QWidget* LaidOut();

private:
    void maskFromDate_LostFocus();
    void maskToDate_LostFocus();
    void txtFromAcNo_LostFocus();
    void txtToAcNo_LostFocus();
    void txtCowBonusRate_TextChanged();
    void txtBuffBonusRate_TextChanged();

    Control* FirstEmpty();
    void ShowLast();
    QLayout* Fields();
    QLayout* InHand();

    Progress ProgressBar1{m_screen};
    Label lblMemberNo{m_screen, "lblMemberNo"};
    Label lblMemberName{m_screen, "lblMemberName"};
    Label lblCowliters{m_screen, "lblCowliters"};
    Label lblBuffLiters{m_screen, "lblBuffLiters"};
    Label lblCowBonus{m_screen, "lblCowBonus"};
    Label lblBuffBonus{m_screen, "lblBuffBonus"};
    Label lblTotalBonus{m_screen, "lblTotalBonus"};
    std::optional<MemberBonus> m_last; // worked out, and not shown yet
    Panel m_panel;
};

#pragma once

#include "platform/database/Sql.h"
#include "platform/forms/NameCombo.h"
#include "society/Fields.h"

#include <vector>

class QLayout;
class Recordset;

// One member's row of the bonus, called up by number or name and corrected. A field's text is the working
// value: each figure is worked out of the fields that it needs, as soon as one of them changes.
class BonusOfMember {
    Screen* m_screen;

public:
    // The rates of the run.
    BonusOfMember(Screen* screen, const NumberField& cowRate, const NumberField& buffRate);

    WholeField txtMemberNo{m_screen, "txtMemberNo", {this, &BonusOfMember::txtMemberNo_LostFocus}};
    NameCombo cmbMemberName{m_screen, "cmbMemberName", {this, &BonusOfMember::cmbMemberName_LostFocus}};
    LitresField txtPreviousCowLiters{m_screen, "txtPreviousCowLiters", u"#####0.000",
        {this, &BonusOfMember::txtPreviousCowLiters_LostFocus}};
    LitresField txtCurrentCowLiters{m_screen, "txtCurrentCowLiters", u"#####0.000"};
    LitresField txtTotalcowLiters{m_screen, "txtTotalcowLiters", u"######0.000"};
    MoneyField txtTotalCowBonus{m_screen, "txtTotalCowBonus", u"#####0.00"};
    LitresField txtPreviousBuffLiters{m_screen, "txtPreviousBuffLiters", u"#####0.000",
        {this, &BonusOfMember::txtPreviousBuffLiters_LostFocus}};
    LitresField txtCurrentBuffLiters{m_screen, "txtCurrentBuffLiters", u"#####0.000"};
    LitresField txtTotalBuffLiters{m_screen, "txtTotalBuffLiters", u"#####0.00"};
    MoneyField txtTotalBuffBonus{m_screen, "txtTotalBuffBonus", u"#####0.00"};
    MoneyField txtTotalBonus{m_screen, "txtTotalBonus", u"#####0.00"};
    MoneyField txtAdvance{m_screen, "txtAdvance", u"#####0.00", {this, &BonusOfMember::txtAdvance_LostFocus}};
    MoneyField txtPreviousThev{
        m_screen, "txtPreviousThev", u"#####0.00", {this, &BonusOfMember::txtPreviousThev_LostFocus}};
    MoneyField txtRemainingBonus{m_screen, "txtRemainingBonus", u"#####0.00"};

    // Empties it, and takes the names of the members of a new run.
    void BeginAnew();

    // Writes the corrected row, in a transaction of its own; nothing without a member.
    void Save();

    // A member's row was called up.
    Event Shown;

    std::vector<Control*> Controls();
    QLayout* LaidOut();

private:
    void txtMemberNo_LostFocus();
    void cmbMemberName_LostFocus();
    void txtPreviousCowLiters_LostFocus();
    void txtPreviousBuffLiters_LostFocus();
    void txtAdvance_LostFocus();
    void txtPreviousThev_LostFocus();

    SqlText RowOfNumber() const;
    bool ShowRowOfNumber();
    void ShowNameOfNumber();
    void Show(const Recordset& row);
    void Recalculate();

    const NumberField& m_cowRate;
    const NumberField& m_buffRate;
};

#pragma once

#include "core/messages/Progress.h"
#include "payments/MemberPayment.h"
#include "platform/forms/Button.h"
#include "platform/forms/ChoiceCombo.h"
#include "platform/forms/DataGrid.h"
#include "platform/forms/DateField.h"
#include "platform/forms/Panel.h"
#include "society/Fields.h"

// Frame1: whether one member is paid or many, and the run over a range of members. It lies over the payment
// of one member until that is chosen.
class BulkPayment {
    Screen* m_screen;

public:
    // The buttons are the screen's.
    BulkPayment(Screen* screen, const Handler& calculate, const Handler& exit);

    ChoiceCombo cmbPaymentType{
        m_screen, "cmbPaymentType", {}, {this, &BulkPayment::cmbPaymentType_LostFocus}};
    DateField maskFromDate1{m_screen, "maskFromDate1", {this, &BulkPayment::maskFromDate1_LostFocus}};
    DateField MaskToDate1{m_screen, "MaskToDate1", {this, &BulkPayment::MaskToDate1_LostFocus}};
    DateField MaskBillDate1{m_screen, "MaskBillDate1", {this, &BulkPayment::MaskBillDate1_LostFocus}};
    NumberField txtFromAc{
        m_screen, "txtFromAc", NumberField::Digits::Decimals, {this, &BulkPayment::txtFromAc_LostFocus}};
    NumberField txtToAc{
        m_screen, "txtToAc", NumberField::Digits::Decimals, {this, &BulkPayment::txtToAc_LostFocus}};
    Button cmdCalculate;
    Button Command2;
    DataGrid DataGridPayment;
    DataGrid DataGridMembers;

    // Fills it as the screen opens. `days` are those of the payment of one member.
    void Load(PaymentDays& days);

    bool IsSingle() const;

    // Whether all that the run needs is given; the focus goes to the first field that lacks it.
    bool InsistOnAll();

    // Pays all members of the range, each whole or not at all, without a question.
    void Run(MemberPayment& payment);

    void Hide() { m_panel.SetVisible(false); }

    QWidget* LaidOut();

private:
    void cmbPaymentType_GotFocus();
    void cmbPaymentType_LostFocus();
    void maskFromDate1_LostFocus();
    void MaskToDate1_LostFocus();
    void MaskBillDate1_LostFocus();
    void txtFromAc_LostFocus();
    void txtToAc_LostFocus();

    bool IsMultiple() const;
    void EnableFields(bool enabled);
    void PayMember(MemberPayment& payment, int number);
    void BindPayments();
    void ShowSoFar();
    void UpdateTotals();
    SqlText InRange() const;

    QLayout* Fields();
    QLayout* Totals();

    PaymentDays* m_days = nullptr;
    Progress ProgressBar1{m_screen};
    Label Label43{m_screen, "Label43"};
    Label lblMember{m_screen, "lblMember"}; // the one at hand
    Label lblLiters{m_screen, "lblLiters"};
    Label lblAmount{m_screen, "lblAmount"};
    Label lblAdvance{m_screen, "lblAdvance"};
    Label lblNetAmount{m_screen, "lblNetAmount"};
    Panel m_panel;
};

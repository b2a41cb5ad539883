#pragma once

#include "payments/ExtraRate.h"
#include "payments/PaymentOf.h"
#include "platform/forms/CheckBox.h"
#include "society/Fields.h"

class QLayout;
class QWidget;
class Recordset;

// The figures of one member's payment, from the litres to what is paid out. A field's text is the working
// value: each step reads the fields that it needs, and writes its result back by their patterns.
class PaymentFigures {
    Screen* m_screen;

public:
    // `installments` is the box by which the list of installments is followed.
    PaymentFigures(Screen* screen, const CheckBox& installments, ExtraRate& extra);

    LitresField txtCowlitres{m_screen, "txtCowlitres", u"#####0.000"};
    LitresField txtBufflitres{m_screen, "txtBufflitres", u"#####0.000"};
    MoneyField txtCowAmount{m_screen, "txtCowAmount", u"#####0.00"};
    MoneyField txtBuffAmount{m_screen, "txtBuffAmount", u"#####0.00"};
    MoneyField txtTotalMilkPurchaseAmount{m_screen, "txtTotalMilkPurchaseAmount", u"########0.00",
        {this, &PaymentFigures::txtTotalMilkPurchaseAmount_LostFocus}};
    MoneyField txtCowDepositkapat{
        m_screen, "txtCowDepositkapat", u"######0.00", {this, &PaymentFigures::txtCowDepositkapat_LostFocus}};
    MoneyField txtBuffDep0sitKapat{m_screen, "txtBuffDep0sitKapat", u"#####0.00",
        {this, &PaymentFigures::txtBuffDep0sitKapat_LostFocus}};
    MoneyField txtUchal{m_screen, "txtUchal", u"######0.00", {this, &PaymentFigures::txtUchal_LostFocus}};
    MoneyField txtTotalPayment{m_screen, "txtTotalPayment", u"######0.00"};
    MoneyField txtNetPayable{m_screen, "txtNetPayable", u"########0.00"};
    Label lblUchalAmount{m_screen, "lblUchalAmount"};
    Label lblKapat{m_screen, "lblKapat"};

    QString PaymentAnimal; // "gaaya", "mhOsa" or "daonhI"
    float PreviousAdvance = 0; // what was unpaid before the period; below 0 if more came back than was given
    float FixedKapat = 0;
    bool SuppressRecalc = false; // a change of a deduction leaves the totals as they are

    // The fields that the clerk may change.
    std::vector<Control*> Entries();

    // Shows litres, amounts and deposits of the deliveries. Returns false, and shows the litres only, if
    // there are none.
    bool ReadMilk(const PaymentOf& of);

    // Shows what is outstanding, and proposes to take back the whole rupees of it.
    void ProposeUchal(float outstanding);

    // Sums up what is deducted, by all heads together and at most as much as the milk brings.
    void SummariseDeductions(double memberNo);

    // The totals once the clerk has changed a figure: of the heads, what is deducted now counts.
    void RecalcTotals();

    // What is outstanding, and the whole deduction, in rupees.
    double Outstanding() const;
    double Kapat() const;
    void ShowKapat(double rupees);

    // Shows a payment that was made.
    void ShowMade(const Recordset& payment);

    // The same once its heads have been built, which proposes a deduction. `thev` are the paise that went to
    // the deposit.
    void ShowDeducted(const Recordset& payment, double thev);

    void Clear();

    // The milk with its deposits, and what is deducted and paid.
    QWidget* MilkSheet();
    QLayout* Sums();

private:
    void txtTotalMilkPurchaseAmount_LostFocus();
    void txtCowDepositkapat_LostFocus();
    void txtBuffDep0sitKapat_LostFocus();
    void txtUchal_LostFocus();
    void DeductionIsChanged();
    void ReadDeposits();
    double AfterDeposits() const;

    const CheckBox& m_installments;
    ExtraRate& m_extra;

    // They stay blank.
    Label lblPreviousBalance{m_screen, "lblPreviousBalance"};
    Label lblPreDC{m_screen, "lblPreDC"};
    Label lblCurrentBalance{m_screen, "lblCurrentBalance"};
    Label lblCurDC{m_screen, "lblCurDC"};
};

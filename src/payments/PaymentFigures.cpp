#include "payments/PaymentFigures.h"

#include "payments/Installments.h"
#include "payments/Precision.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Screen.h"

#include <functional>

namespace {

constexpr int LongestFigure = 12;

// What some deliveries come to: nothing if there are none.
FieldValue SumOf(QStringView column, QStringView name, const PaymentOf& of, QStringView animal)
{
    const Recordset sum(
        gCn, Sql(u"Select Sum(", column, u") as ", name, of.Deliveries(), u" And Animal=", Quoted(animal)));
    return sum.Eof() ? FieldValue() : sum[name];
}

void CutPaise(NumberField& field)
{
    field.Show(field.Value() - PaiseOf(field.Text()));
}

}

PaymentFigures::PaymentFigures(Screen* screen, const CheckBox& installments, ExtraRate& extra)
    : m_screen(screen)
    , m_installments(installments)
    , m_extra(extra)
{
    txtTotalMilkPurchaseAmount.TextChanged = [this] { RecalcTotals(); };
    for (NumberField* field :
        std::initializer_list<NumberField*>{&txtCowDepositkapat, &txtBuffDep0sitKapat, &txtUchal})
        field->TextChanged = [this] { DeductionIsChanged(); };
    for (Control* entry : Entries()) {
        auto& field = static_cast<NumberField&>(*entry);
        field.TakeLetterN();
        field.SetMaxLength(LongestFigure);
    }
    for (Control* shown : std::initializer_list<Control*>{
             &txtCowlitres, &txtBufflitres, &txtCowAmount, &txtBuffAmount, &txtTotalPayment, &txtNetPayable})
        shown->SetEnabled(false);
}

std::vector<Control*> PaymentFigures::Entries()
{
    return {&txtTotalMilkPurchaseAmount, &txtCowDepositkapat, &txtBuffDep0sitKapat, &txtUchal};
}

// The milk

// An animal counts for PaymentAnimal as soon as it has deliveries, even of 0 litres.
bool PaymentFigures::ReadMilk(const PaymentOf& of)
{
    const FieldValue cow = SumOf(u"Liters", u"Clitres", of, Word::Cow);
    txtCowlitres.Show(cow.Number());
    if (!cow.IsNull())
        PaymentAnimal = Word::Cow.toString();
    const FieldValue buff = SumOf(u"Liters", u"blitres", of, Word::Buffalo);
    txtBufflitres.Show(buff.Number());
    if (!buff.IsNull())
        PaymentAnimal = Word::Buffalo.toString();
    if (txtCowlitres.Value() == 0 && txtBufflitres.Value() == 0)
        return false;
    if (txtCowlitres.Value() != 0 && txtBufflitres.Value() != 0)
        PaymentAnimal = Word::Both.toString();

    txtCowAmount.Show(SumOf(u"Amount", u"camount", of, Word::Cow).Number());
    txtBuffAmount.Show(SumOf(u"Amount", u"bamount", of, Word::Buffalo).Number());
    txtTotalMilkPurchaseAmount.Show(txtCowAmount.Value() + txtBuffAmount.Value());
    ReadDeposits();
    return true;
}

void PaymentFigures::ReadDeposits()
{
    const Recordset rates(gCn, u"Select ThevKapatCow,ThevKapatBuff from Autosettings");
    if (rates.Eof())
        return;
    txtCowDepositkapat.Show(txtCowlitres.Value() * rates[u"ThevKapatCow"].Number());
    txtBuffDep0sitKapat.Show(txtBufflitres.Value() * rates[u"ThevKapatBuff"].Number());
}

double PaymentFigures::AfterDeposits() const
{
    return txtTotalMilkPurchaseAmount.Value() - txtCowDepositkapat.Value() - txtBuffDep0sitKapat.Value();
}

// The deductions

void PaymentFigures::ProposeUchal(float outstanding)
{
    txtUchal.Show(Decimal(outstanding));
    CutPaise(txtUchal);
    lblUchalAmount.SetFigure(Format(outstanding, u"#####0.00"));
}

// The heads keep their paise here, though what is proposed has none.
void PaymentFigures::SummariseDeductions(double memberNo)
{
    double heads =
        Decimal(Recordset(gCn, u"Select sum(Amount) as TAmount From AdvanceTemp")[u"TAmount"].Number());
    if (m_installments.Checked())
        if (const auto installment = InstallmentOf(memberNo); installment && heads >= *installment)
            heads = *installment + Decimal(FixedKapat);
    const double deposits = txtCowDepositkapat.Value() + txtBuffDep0sitKapat.Value();
    double kapat = heads + deposits;
    if (const float most = ToSingle(AfterDeposits()); ToSingle(txtUchal.Value()) > most) {
        txtUchal.Show(Decimal(most));
        CutPaise(txtUchal);
        kapat = txtUchal.Value() + deposits;
    }
    ShowKapat(kapat);
    txtTotalPayment.Show(txtTotalMilkPurchaseAmount.Value() - Kapat());
}

void PaymentFigures::DeductionIsChanged()
{
    if (!SuppressRecalc)
        RecalcTotals();
}

void PaymentFigures::RecalcTotals()
{
    ShowKapat(txtUchal.Value() + txtCowDepositkapat.Value() + txtBuffDep0sitKapat.Value());
    txtTotalPayment.Show(txtTotalMilkPurchaseAmount.Value() - Kapat());
    m_extra.SetNoAmount();
}

double PaymentFigures::Outstanding() const
{
    return Val(lblUchalAmount.Shown().Text());
}

double PaymentFigures::Kapat() const
{
    return Val(lblKapat.Shown().Text());
}

void PaymentFigures::ShowKapat(double rupees)
{
    lblKapat.SetFigure(Format(rupees, u"#########0.00"));
}

// What the clerk changes

void PaymentFigures::txtTotalMilkPurchaseAmount_LostFocus()
{
    txtTotalMilkPurchaseAmount.Reformat();
}

void PaymentFigures::txtCowDepositkapat_LostFocus()
{
    txtCowDepositkapat.Reformat();
}

void PaymentFigures::txtBuffDep0sitKapat_LostFocus()
{
    txtBuffDep0sitKapat.Reformat();
}

// Not more than is owed, and not more than the milk and the old balance bring; whole rupees. What is put in
// here has to pass when it comes by again, so both sides are compared as the singles of what is shown.
void PaymentFigures::txtUchal_LostFocus()
{
    if (ToSingle(Outstanding()) < ToSingle(txtUchal.Value())) {
        txtUchal.Show(Outstanding());
        txtUchal.SetFocus(
            Plain(QStringLiteral("एकूण येणे %1 : त्यापेक्षा जास्त कपात नको").arg(lblUchalAmount.Shown().Text())));
        return;
    }
    const float sum = ToSingle(AfterDeposits() + Decimal(PreviousAdvance));
    const double most = Decimal(sum);
    if (ToSingle(txtUchal.Value()) > ToSingle(most)) {
        txtUchal.SetText(ShortestDecimal(sum));
        txtUchal.SetFocus(Plain(QStringLiteral("दुधाच्या रकमेतून जास्तीत जास्त %1 कपात होते").arg(txtUchal.Text())));
        return;
    }
    txtUchal.Reformat();
    CutPaise(txtUchal);
}

// A payment that was made

void PaymentFigures::ShowMade(const Recordset& payment)
{
    txtCowlitres.Show(payment[u"LitersCow"].Number());
    txtBufflitres.SetText(Format(payment[u"LitersBuff"].Number(), u"#####0.0000"));
    txtCowAmount.Show(payment[u"CowAmount"].Number());
    txtBuffAmount.Show(payment[u"BuffAmount"].Number());
    txtTotalMilkPurchaseAmount.Show(payment[u"Amount"].Number());
    txtCowDepositkapat.Show(payment[u"ThevKapatCow"].Number());
    txtBuffDep0sitKapat.Show(payment[u"ThevKapatBuff"].Number());
}

void PaymentFigures::ShowDeducted(const Recordset& payment, double thev)
{
    txtUchal.Show(payment[u"TotalUchal"].Number());
    txtCowDepositkapat.Show(payment[u"ThevKapatCow"].Number());
    txtBuffDep0sitKapat.Show(payment[u"ThevKapatBuff"].Number());
    ShowKapat(payment[u"Kapat"].Number() + thev);
    txtTotalPayment.Clear();
    txtNetPayable.Show(payment[u"NetAmount"].Number());
    m_extra.SetNoAmount();
    FixedKapat = ToSingle(payment[u"FixedKapat"].Number());
}

// The totals follow each change of the others, so they are emptied last.
void PaymentFigures::Clear()
{
    SuppressRecalc = false;
    FixedKapat = 0;
    for (Field* field : std::initializer_list<Field*>{&txtCowlitres, &txtBufflitres, &txtCowAmount,
             &txtBuffAmount, &txtTotalMilkPurchaseAmount, &txtCowDepositkapat, &txtBuffDep0sitKapat,
             &txtUchal, &txtTotalPayment, &txtNetPayable, &m_extra.txtExtraAmount})
        field->Clear();
    lblUchalAmount.SetFigure({});
    lblKapat.SetFigure({});
}

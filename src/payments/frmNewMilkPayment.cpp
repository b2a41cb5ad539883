#include "payments/frmNewMilkPayment.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"

namespace {

constexpr QStringView RestTitle = u" dUQa pomaonT"; // दूध पेमेन्ट
constexpr int Ticked = -1; // as the books say yes; what a tick writes, 1, isn't read as one

}

Keys::Places frmNewMilkPayment::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmNewMilkPayment"), Shivaji(u"dUQa pomaonT"),
            {Next, Back, Leave, CalculatorKey(), New, Delete, Save, Cancel,
                {QStringLiteral("F5"), Plain(u"जादा दर"), &frmNewMilkPayment::ShowOrHideExtraRate}, Tick,
                ExitButton}},
        {QStringLiteral("frmNewMilkPayment.Frame1"), Plain(u"दूध पेमेंट, अनेक मेम्बर्स"),
            {Next, Back, Leave, {QStringLiteral("F2"), Shivaji(u"k^la@yaulaoTr")},
                {QStringLiteral("F5"), Plain(u"जादा दर")}, Tick, ExitButton}},
        {QStringLiteral("frmNewMilkPayment.cmbPaymentType"), Plain(u"दूध पेमेंट, एक की अनेक मेम्बर्स"),
            {ChooseOption, {QStringLiteral("Alt+↓ Alt+↑"), Plain(u"यादी उघडा, बंद")}}},
    };
}

frmNewMilkPayment::frmNewMilkPayment()
    : SocietyScreen(KeyPlaces(), Shivaji(RestTitle))
    , Modes(*this, RestTitle, {cmdNew, cmdModify, cmdDelete, cmdCancel, cmdExit})
    , Single(this,
          {&Payment.Days.maskFromDate, &Payment.Days.maskToDate, &Payment.Days.MaskBillDate,
              &Payment.Days.txtBillNo, &Payment.txtMemberNo, &Payment.ComboMemberName,
              &Payment.Figures.txtCowlitres, &Payment.Figures.txtBufflitres, &Payment.Figures.txtCowAmount,
              &Payment.Figures.txtBuffAmount, &Payment.Figures.txtTotalMilkPurchaseAmount,
              &Payment.Figures.txtCowDepositkapat, &Payment.Figures.txtBuffDep0sitKapat,
              &Payment.Figures.txtUchal, &Payment.Figures.txtTotalPayment, &Payment.Figures.txtNetPayable,
              &cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit, &DataGridUchals, &DataGrid1})
{
    std::vector<Control*> entries = Payment.Figures.Entries();
    entries.insert(entries.begin(), {&Payment.Days.maskToDate, &Payment.Days.MaskBillDate});
    Modes.SetFields({&Payment.Days.maskFromDate, &Payment.txtMemberNo}, entries);
    LayOut();
    Single.SetVisible(false);
}

// The panels

void frmNewMilkPayment::Load()
{
    Frame1.Load(Payment.Days);
    const Recordset company(gCn, u"SELECT CostCenter FROM CompanySelected");
    chkInstallment.SetChecked(!company.Eof() && company[u"CostCenter"].Number() == Ticked);
    ResetPaymentScreen();
    for (Button* button : {&cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit})
        button->SetEnabled(false);
}

void frmNewMilkPayment::cmdCalculate_Click()
{
    if (Frame1.IsSingle())
        ShowSingle();
    else if (Frame1.InsistOnAll())
        Frame1.Run(Payment);
}

void frmNewMilkPayment::ShowSingle()
{
    Frame1.Hide();
    Single.SetVisible(true);
    StripOfMany->hide();
    StripOfOne->show();
    ResetPaymentScreen();
    cmdNew.SetFocus();
}

void frmNewMilkPayment::Command2_Click()
{
    Close();
}

void frmNewMilkPayment::chkInstallment_Click()
{
    Transaction remembering(gCn);
    gCn.Execute(Sql(u"UPDATE Companyselected SET CostCenter=", chkInstallment.Checked() ? 1 : 0));
    remembering.Commit();
}

void frmNewMilkPayment::ShowOrHideExtraRate()
{
    Extra.ShowOrHide();
}

// The modes

void frmNewMilkPayment::ResetPaymentScreen()
{
    Payment.Clear();
    const bool canModify = cmdModify.Enabled();
    Modes.Rest();
    cmdModify.SetEnabled(canModify);
    cmdCancel.SetEnabled(false);
}

void frmNewMilkPayment::BeginAtPeriod()
{
    Payment.Days.maskToDate.SetEnabled(!PaymentDays::IsDerived());
    Payment.Days.maskFromDate.SetFocus();
}

void frmNewMilkPayment::cmdNew_Click()
{
    if (!Modes.IsNew()) {
        Modes.EnterNew();
        BeginAtPeriod();
        return;
    }
    if (InsistOnFigures(Plain(u"दिनांक बदलला : Enter ने हिशोब पुन्हा करा"))) {
        Payment.Posting.PostPayment(PaymentMode::Single);
        ResetPaymentScreen();
    }
}

// Grey as long as the screen is open: a payment is changed by taking it back and making it anew.
void frmNewMilkPayment::cmdModify_Click()
{
    if (Modes.IsModify()) {
        ResetPaymentScreen();
        return;
    }
    Modes.EnterModify();
    Payment.Days.MaskBillDate.SetEnabled(false);
    BeginAtPeriod();
}

void frmNewMilkPayment::cmdDelete_Click()
{
    if (!Modes.IsDelete()) {
        Payment.Figures.SuppressRecalc = true;
        Modes.EnterDelete();
        BeginAtPeriod();
        return;
    }
    if (InsistOnFigures(Plain(u"पेमेंट पाहा, मग पुन्हा दाबा"))) {
        Payment.Posting.ReversePayment();
        ResetPaymentScreen();
    }
}

void frmNewMilkPayment::cmdCancel_Click()
{
    ResetPaymentScreen();
    cmdNew.SetFocus();
}

// What is written is of a member and a bill, and was worked out, or looked up, for the days and the member
// that stand there.
bool frmNewMilkPayment::InsistOnFigures(const Caption& wanted)
{
    if (Payment.txtMemberNo.Value() == 0)
        Payment.txtMemberNo.SetFocus();
    else if (Payment.Days.txtBillNo.Value() == 0)
        Payment.Days.MaskBillDate.SetFocus();
    else if (!Payment.IsWorkedOut())
        Payment.txtMemberNo.SetFocus(wanted);
    else
        return true;
    return false;
}

// The member

void frmNewMilkPayment::txtMemberNo_LostFocus()
{
    if (Payment.txtMemberNo.IsEmpty() && IsSteppingBack())
        return; // to mend the dates
    if (Modes.IsNew() && Payment.txtMemberNo.IsEmpty())
        Payment.txtMemberNo.SetFocus(Plain(u"मेम्बर नंबर टाका    Alt+R : रद्द"));
    else if (!Payment.Days.InsistOnDates())
        return;
    else if (Modes.IsNew())
        CalculateMember();
    else
        LoadMember();
}

void frmNewMilkPayment::CalculateMember()
{
    if (!Payment.FindMember()) {
        ResetPaymentScreen();
        return;
    }
    Payment.ShowDeliveries();
    Payment.ComputeMemberPeriod();
    if (Payment.PaymentSkip)
        ResetPaymentScreen();
}

// The payment is seen before it is taken back, even if the button is pressed by its key.
void frmNewMilkPayment::LoadMember()
{
    const bool wasSeen = Payment.IsWorkedOut();
    if (!Payment.LoadPayment()) {
        ResetPaymentScreen();
        cmdNew.SetFocus();
    } else if (!wasSeen && GoingTo() == &cmdDelete) {
        Payment.txtMemberNo.SetFocus(Plain(u"पेमेंट पाहा, मग पुन्हा दाबा"));
    } else if (Modes.IsDelete() && !IsSteppingBack()) {
        cmdDelete.SetFocus();
    }
}

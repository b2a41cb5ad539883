#include "utilities/frmAutoSettings.h"

#include "core/messages/Messages.h"
#include "platform/text/Numbers.h"
#include "society/Words.h"

#include <QKeyEvent>

namespace {

QStringList YesNo()
{
    return {Word::Yes.toString(), Word::No.toString()};
}

QStringList ReceiptTypes()
{
    QStringList types;
    for (int number = 1; number <= 8; ++number)
        types.append(QStringLiteral("Tašp %1").arg(number));
    return types;
}

}

Keys::Places frmAutoSettings::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmAutoSettings"), Shivaji(u"Aa^Tao saoTIMgja"),
            {Next, Back, {QStringLiteral("Ctrl+PgDn"), Plain(u"पुढचे पान")},
                {QStringLiteral("Ctrl+PgUp"), Plain(u"मागचे पान")}, {QStringLiteral("Alt+↓"), Plain(u"यादी")},
                {QStringLiteral("1 2 3 …"), Plain(u"निवडा")}, Tick, ChooseOption, Save, Cancel, ExitButton,
                Leave}},
        {QStringLiteral("frmAutoSettings.cmdReceipt"), Plain(u"ऑटो सेटींग्ज, संकलनाच्या पानावर"),
            {{QStringLiteral("Shift+Tab"), Plain(u"पहिल्या प्रश्नावरून पावती प्रकाराच्या बटणावर")},
                {QStringLiteral("Enter"), Plain(u"बटणावर : नमुना पावती")}}},
        {QStringLiteral("frmAutoSettings.Payment"), Plain(u"ऑटो सेटींग्ज, पेमेंटच्या पानावर, ठेव कपातीत"),
            {{QStringLiteral("↓"), Plain(u"दराचा प्रकार व पुढील प्रश्न")}}},
        {QStringLiteral("frmAutoSettings.Sale"), Plain(u"ऑटो सेटींग्ज, दूध विक्रीच्या पानावर"),
            {{QStringLiteral("↓"), Shivaji(u"ivaËI pavatIÀip`MT")}}},
    };
}

frmAutoSettings::frmAutoSettings()
    : SocietyScreen(KeyPlaces(), Shivaji(u"Aa^Tao saoTIMgja"), {.guide = "lblMessage"})
    , SSTab(this, "SSTab", {Plain(u"संकलन"), Plain(u"पेमेंट"), Shivaji(u"dUQa ivaËI")},
          &frmAutoSettings::SSTab_Click)
    , ComboAutoLiters(this, "ComboAutoLiters", YesNo(), &frmAutoSettings::ComboAutoLiters_LostFocus)
    , ComboAutoFat(this, "ComboAutoFat", YesNo(), &frmAutoSettings::ComboAutoFat_LostFocus)
    , ComboPrintStatus(this, "ComboPrintStatus",
          {Word::No.toString(), QStringLiteral("f@t sËIna"), Word::Yes.toString()},
          &frmAutoSettings::ComboPrintStatus_LostFocus)
    , ComboReceipt(this, "ComboReceipt", ReceiptTypes(), &frmAutoSettings::ComboReceipt_LostFocus)
    , ComboPaymentDuration(this, "ComboPaymentDuration",
          {QStringLiteral("1 idvasa"), QStringLiteral("7 idvasa"), QStringLiteral("10 idvasa"),
              QStringLiteral("15 idvasa"), QStringLiteral("1 maihnaa")},
          &frmAutoSettings::ComboPaymentDuration_LostFocus)
    , ComboMSRPrintStatus(this, "ComboMSRPrintStatus",
          {QStringLiteral("saovh"), QStringLiteral("saovh va sËIna"), QStringLiteral("saovh va ip`MT")},
          &frmAutoSettings::ComboMSRPrintStatus_LostFocus)
{
    // These two offer more than their digits reach; the rest is picked from the list.
    ComboReceipt.SetDigits(6);
    ComboPaymentDuration.SetDigits(4);
    cmbFatRateType.SetMouseOnly(true);
    ComboPrintStatus.SetText(Word::Yes.toString());
    CmdCancel.SetCancels(true);
    When(CheckRepeatCol.LostFocus, &frmAutoSettings::CheckRepeatCol_LostFocus);
    CmdExit.SetCancels(true); // nothing is saved by it, so no field need be right
    SetGuides();
    LayOut();
}

void frmAutoSettings::Load()
{
    LoadSettings();
}

bool frmAutoSettings::KeyDown(const QKeyEvent& key)
{
    return SSTab.TurnPage(key) || GoBeyondThePageTurn(key);
}

// The last figure of a page leads on to another page, so what stands below it has a key of its own: the rest
// of the payments, and the print of the sales.
bool frmAutoSettings::GoBeyondThePageTurn(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Down)
        return false;
    if (SSTab.Tab() == Sale && !ComboMSRPrintStatus.HasFocus())
        ComboMSRPrintStatus.SetFocus();
    else if (SSTab.Tab() == Payment && (SSTab.HasFocus() || txtCow.HasFocus() || txtBuff.HasFocus()))
        cmbFatRateType.SetFocus();
    else
        return false;
    return true;
}

void frmAutoSettings::SSTab_Click()
{
    ShowTabGuide();
    if (SSTab.Tab() == Collection)
        ComboAutoLiters.SetFocus();
    else if (SSTab.Tab() == Payment)
        ComboPaymentDuration.SetFocus();
}

void frmAutoSettings::CheckCNP_Click()
{
    lblGuide.SetCaption(CheckCNP.Checked()
            ? Shivaji(u"dUQa KrodIcaI enT/I dUQa saMklana krtovaoLIca kolaI jaa[-la")
            : Shivaji(u"dUQa KrodIcaI enT/I dUQa pomaonT krtovaoLIca kolaI jaa[-la"));
}

void frmAutoSettings::CmdCancel_Click()
{
    LoadSettings();
}

// Leaving the fields. Each is checked only where the one before it isn't empty, so that a step back to an
// empty field isn't caught in the next one. Boxes and options always hold something.

bool frmAutoSettings::CheckChoice(ChoiceCombo& combo)
{
    if (combo.HoldsAWord())
        return true;
    combo.Clear();
    combo.SetFocus(Plain(u"Alt+↓ : यादीतून निवडा    Alt+R : रद्द"));
    return false;
}

bool frmAutoSettings::CheckNotZero(NumberField& field)
{
    if (field.Reformat() != 0)
        return true;
    field.SetFocus(Plain(u"0 पेक्षा जास्त टाका    Alt+R : रद्द"));
    return false;
}

bool frmAutoSettings::CheckKapat(NumberField& field)
{
    const double value = field.Reformat();
    if (value > 0 || (value == 0 && ComboPaymentDuration.IsEmpty()))
        return true;
    field.SetFocus(Plain(u"0 पेक्षा जास्त टाका    Alt+R : रद्द"));
    return false;
}

void frmAutoSettings::ComboAutoLiters_LostFocus()
{
    CheckChoice(ComboAutoLiters);
}

void frmAutoSettings::ComboAutoFat_LostFocus()
{
    if (!ComboAutoLiters.IsEmpty())
        CheckChoice(ComboAutoFat);
}

void frmAutoSettings::ComboPrintStatus_LostFocus()
{
    if (!ComboAutoFat.IsEmpty())
        CheckChoice(ComboPrintStatus);
}

void frmAutoSettings::txtCowLimit_LostFocus()
{
    if (!ComboPrintStatus.IsEmpty())
        CheckNotZero(txtCowLimit);
}

void frmAutoSettings::txtBuffLimit_LostFocus()
{
    if (!txtCowLimit.IsEmpty())
        CheckNotZero(txtBuffLimit);
}

void frmAutoSettings::ComboReceipt_LostFocus()
{
    if (!txtBuffLimit.IsEmpty())
        CheckChoice(ComboReceipt);
}

void frmAutoSettings::CheckRepeatCol_LostFocus()
{
    if (!LeadsOn())
        return;
    SSTab.SetTab(Payment);
    ComboPaymentDuration.SetFocus();
}

void frmAutoSettings::ComboPaymentDuration_LostFocus()
{
    CheckChoice(ComboPaymentDuration);
}

void frmAutoSettings::txtCow_LostFocus()
{
    CheckKapat(txtCow);
}

void frmAutoSettings::txtBuff_LostFocus()
{
    if (!txtCow.IsEmpty() && !CheckKapat(txtBuff))
        return;
    if (!LeadsOn())
        return;
    SSTab.SetTab(Sale);
    txtCowSaleRate.SetFocus();
}

void frmAutoSettings::cmbFatRateType_LostFocus()
{
    if (cmbFatRateType.Text() == ByFatAndSnf)
        ShowPlain(QStringLiteral("This Facility is available in the next version."));
    else if (!cmbFatRateType.IsEmpty())
        return;
    cmbFatRateType.SetText(ByFat.toString());
}

void frmAutoSettings::txtCowSaleRate_LostFocus()
{
    CheckNotZero(txtCowSaleRate);
}

void frmAutoSettings::txtBuffSaleRate_LostFocus()
{
    if (!txtCowSaleRate.IsEmpty())
        CheckNotZero(txtBuffSaleRate);
}

void frmAutoSettings::txtMixSaleRate_LostFocus()
{
    if (!txtBuffSaleRate.IsEmpty() && !CheckNotZero(txtMixSaleRate))
        return;
    if (!LeadsOn())
        return;
    SSTab.SetTab(Collection);
    CmdSave.SetFocus();
}

void frmAutoSettings::ComboMSRPrintStatus_LostFocus()
{
    if (!txtMixSaleRate.IsEmpty())
        CheckChoice(ComboMSRPrintStatus);
}

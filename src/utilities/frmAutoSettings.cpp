#include "utilities/frmAutoSettings.h"

#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/ReceiptLayouts.h"
#include "society/Words.h"

namespace {

constexpr QStringView PaymentPlace = u"frmAutoSettings.Payment";
constexpr QStringView SalePlace = u"frmAutoSettings.Sale";

QStringList YesNo()
{
    return {Word::Yes.toString(), Word::No.toString()};
}

QString SettingsQuery()
{
    return Sql(u"select * from AutoSettings where CompanyId=", gAppState.gCompanyId);
}

// An empty column leaves its field empty, without the zeros of its pattern.
void ShowFigure(NumberField& field, const FieldValue& value)
{
    if (value.Text().isEmpty())
        field.Clear();
    else
        field.Show(value.Number());
}

QStringView WordOf(const CheckBox& box, QStringView unchecked, QStringView checked)
{
    return box.Checked() ? checked : unchecked;
}

}

Keys::Places frmAutoSettings::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmAutoSettings"), Shivaji(u"Aa^Tao saoTIMgja"),
            {Next, Back, {QStringLiteral("Ctrl+PgDn"), Plain(u"पुढचे पान"), &frmAutoSettings::TurnToNextPage},
                {QStringLiteral("Ctrl+PgUp"), Plain(u"मागचे पान"), &frmAutoSettings::TurnToPreviousPage},
                {QStringLiteral("Alt+↓"), Plain(u"यादी"), {}, true, true},
                {QStringLiteral("1 2 3 …"), Plain(u"निवडा"), {}, true, true}, Tick, ChooseOption, Save,
                Cancel, ExitButton, Leave}},
        {QStringLiteral("frmAutoSettings.cmdReceipt"), Plain(u"ऑटो सेटींग्ज, संकलनाच्या पानावर"),
            {{QStringLiteral("Shift+Tab"), Plain(u"पहिल्या प्रश्नावरून पावती प्रकाराच्या बटणावर")},
                {QStringLiteral("Enter"), Plain(u"बटणावर : नमुना पावती")}}},
        {PaymentPlace.toString(), Plain(u"ऑटो सेटींग्ज, पेमेंटच्या पानावर, ठेव कपातीत"),
            {{QStringLiteral("↓"), Plain(u"दराचा प्रकार व पुढील प्रश्न"), &frmAutoSettings::GoToRestOfPayments}}},
        {SalePlace.toString(), Plain(u"ऑटो सेटींग्ज, दूध विक्रीच्या पानावर"),
            {{QStringLiteral("↓"), Shivaji(u"ivaËI pavatIÀip`MT"), &frmAutoSettings::GoToReceiptOfSales}}},
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
    // These two offer more than their digits reach; the rest has to be picked from the list.
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

void frmAutoSettings::LoadSettings()
{
    SSTab.SetTab(Collection);
    cmbFatRateType.SetWords({ByFat.toString(), ByFatAndSnf.toString()});
    const Recordset settings(gCn, SettingsQuery());
    if (!settings.Eof())
        ShowSettings(settings);
    ComboAutoLiters.SetFocus();
}

void frmAutoSettings::ShowSettings(const Recordset& settings)
{
    ComboAutoLiters.SetText(settings[u"AutoLiters"].Text());
    ComboAutoFat.SetText(settings[u"AutoFat"].Text());
    ComboPrintStatus.SetText(settings[u"PrintStatus"].Text());
    ShowFigure(txtCowLimit, settings[u"CanLimitCow"]);
    ShowFigure(txtBuffLimit, settings[u"CanLimitBuff"]);
    ComboReceipt.SetText(settings[u"ReceiptType"].Text());
    CheckRepeatCol.SetChecked(settings[u"RepeatCollection"].Text() == Word::Yes);

    ComboPaymentDuration.SetText(settings[u"PaymentDuration"].Text());
    ShowFigure(txtCow, settings[u"ThevKapatCow"]);
    ShowFigure(txtBuff, settings[u"ThevKapatBuff"]);
    const FieldValue fatRateType = settings[u"FatRatetype"];
    cmbFatRateType.SetText(fatRateType.IsNull() ? ByFat.toString() : fatRateType.Text());
    CheckCNP.SetChecked(settings[u"PurchaseEntry"].Text() == u"Collection");
    CheckSNU.SetChecked(settings[u"UchalEntry"].Text() == u"Sales");
    DecimalPayment.Clear();
    for (const auto& [option, word] : DecimalPayments())
        if (settings[u"DecimalPayment"].Text() == word)
            option->Choose();

    ShowFigure(txtCowSaleRate, settings[u"SalesRateCow"]);
    ShowFigure(txtBuffSaleRate, settings[u"SalesRateBuff"]);
    ShowFigure(txtMixSaleRate, settings[u"SalesRateMix"]);
    ComboMSRPrintStatus.SetText(settings[u"MSRPrintStatus"].Text());
}

// Keys and pages

// The last figure of a page leads on to another page. So the fields below it are reached with a key of their
// own: the rest of the payments, and the receipt of the sales.
QString frmAutoSettings::PlaceOfFocus() const
{
    if (SSTab.Tab() == Sale && !ComboMSRPrintStatus.HasFocus())
        return SalePlace.toString();
    if (SSTab.Tab() == Payment && (SSTab.HasFocus() || txtCow.HasFocus() || txtBuff.HasFocus()))
        return PaymentPlace.toString();
    return SocietyScreen::PlaceOfFocus();
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

// Leaving the fields. A field is checked only if the one before it isn't empty; otherwise a clerk who steps
// back to an empty field would be caught in the one after it. Boxes and options always hold something.

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

// The buttons

void frmAutoSettings::CmdCancel_Click()
{
    LoadSettings();
}

// The row is deleted before anything is checked, and not written again if a required field is empty: until a
// later save all settings are read as empty. The system has it so.
void frmAutoSettings::CmdSave_Click()
{
    Transaction save(gCn);
    Recordset present(gCn, SettingsQuery());
    gCn.Execute(Sql(u"delete * from AutoSettings where CompanyId=", gAppState.gCompanyId));
    if (!AreRequiredFieldsFilled()) {
        save.Commit();
        return;
    }
    gCn.Execute(InsertStatement());
    gCn.Execute(Sql(u"Update Autosettings Set FatRateType=", Quoted(cmbFatRateType.Text())));
    present.Close();
    save.Commit();
    gAppState.gAutoLiters = ComboAutoLiters.Text();
    gAppState.gAutoFat = ComboAutoFat.Text();
    gAppState.gPaymentDuration = ComboPaymentDuration.Text();
}

bool frmAutoSettings::AreRequiredFieldsFilled() const
{
    return !ComboAutoFat.IsEmpty() && !ComboAutoLiters.IsEmpty() && !ComboPrintStatus.IsEmpty()
        && !ComboReceipt.IsEmpty() && !ComboPaymentDuration.IsEmpty() && !txtCow.IsEmpty()
        && !txtBuff.IsEmpty();
}

std::array<std::pair<OptionButton*, QStringView>, 4> frmAutoSettings::DecimalPayments()
{
    return {{{&OptionAddThev, u"AddThev"}, {&OptionPayable, u"Payable"}, {&OptionPayIt, u"PayIt"},
        {&OptionDiscount, u"Discount"}}};
}

QStringView frmAutoSettings::DecimalPaymentWord()
{
    for (const auto& [option, word] : DecimalPayments())
        if (option->Chosen())
            return word;
    return {};
}

QString frmAutoSettings::InsertStatement()
{
    return Sql(u"insert into AutoSettings(CompanyId,AutoLiters,AutoFat,PrintStatus,MSRPrintStatus,"
               u"CanLimitBuff,CanLimitCow,ReceiptType,RepeatCollection,PaymentDuration,PurchaseEntry,"
               u"UchalEntry,DecimalPayment,ThevKapatCow,ThevKapatBuff,SalesRateCow,SalesRateBuff,"
               u"SalesRateMix,WeighScale) Values(",
        Values(gAppState.gCompanyId, ComboAutoLiters.Text(), ComboAutoFat.Text(), ComboPrintStatus.Text(),
            ComboMSRPrintStatus.Text(), txtBuffLimit.Text(), txtCowLimit.Text(), ComboReceipt.Text(),
            WordOf(CheckRepeatCol, Word::No, Word::Yes), ComboPaymentDuration.Text(),
            WordOf(CheckCNP, u"Payment", u"Collection"), WordOf(CheckSNU, u"Uchal", u"Sales"),
            DecimalPaymentWord()),
        u",", txtCow.Text(), u",", txtBuff.Text(), u",",
        Values(txtCowSaleRate.Text(), txtBuffSaleRate.Text(), txtMixSaleRate.Text(), gAppState.gWeighScale),
        u")");
}

// Stages the sample and shows it in the chosen layout; an unknown one leaves the layout of the last time.
void frmAutoSettings::cmdReceipt_Click()
{
    Transaction staging(gCn);
    gCn.Execute(u"delete * from MilkReceipt");
    gCn.Execute(u"delete * from MilkReceipt");
    gCn.Execute(u"insert into MilkReceipt select * from MRView");
    gCn.Execute(Sql(u"update MilkReceipt set CompanyId=", gAppState.gCompanyId));
    if (const ReceiptLayout layout = ReceiptLayoutOf(ComboReceipt.Text()); !layout.type.isEmpty())
        CRMilkReceipt.SetTemplate(layout.sampleTemplate);
    gCn.Execute(u"delete * from MilkReceipt where CompanyId=0");
    staging.Commit();
    CRMilkReceipt.Print();
}

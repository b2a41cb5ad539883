#include "utilities/frmAutoSettings.h"
#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Numbers.h"
#include "society/ReceiptLayouts.h"
#include "society/Words.h"

namespace {

QString SettingsQuery()
{
    return Sql(u"select * from AutoSettings where CompanyId=", gAppState.gCompanyId);
}

// A column that holds nothing leaves its field empty.
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

// The row goes before anything is checked, and stays away if a required field is empty: until a later save
// the screens then read every setting as empty.
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

// Stages the sample bill and shows it in the chosen layout; one that isn't known keeps the layout before.
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

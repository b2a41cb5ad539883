#include "payments/frmThevDate.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/forms/Layout.h"
#include "society/Wanted.h"

Keys::Places frmThevDate::KeyPlaces()
{
    using namespace KeyHints;
    return {{QStringLiteral("frmThevDate"), Shivaji(u"zovaIcaa kalaavaQaI"),
        {Next, Back, Leave, Save, ExitButton}}};
}

frmThevDate::frmThevDate() : SocietyScreen(KeyPlaces(), Shivaji(u"zovaIcaa kalaavaQaI"))
{
    Command2.SetCancels(true);
    LayOut();
}

void frmThevDate::Load()
{
    maskFromDate.SetDate(gAppState.gFromDate);
    MaskEdBox1.SetDate(gAppState.gToDate);
}

void frmThevDate::Command1_Click()
{
    if (!maskFromDate.InsistOnDate(Wanted::Date()) || !MaskEdBox1.InsistOnDate(Wanted::Date()))
        return;
    Transaction keeping(gCn);
    gCn.Execute(Sql(u"UPDATE CompanySelected SET FromDate=", Quoted(maskFromDate.Text()), u", ToDate=",
        Quoted(MaskEdBox1.Text())));
    keeping.Commit();
    gAppState.gFromDate = maskFromDate.Date();
    gAppState.gToDate = MaskEdBox1.Date();
    Close();
}

void frmThevDate::Command2_Click()
{
    Close();
}

void frmThevDate::LayOut()
{
    constexpr int guideWidth = 520; // the form is narrower than what the guide line says
    lblGuide.Widget()->setMinimumWidth(guideWidth);
    Layout::Form form;
    form.Row(lblGuide);
    form.Row(Plain(u"दिनांक पासून"), maskFromDate, Layout::DateWidth);
    form.Row(Plain(u"दिनांक पर्यंत"), MaskEdBox1, Layout::DateWidth);
    Stack(Layout::InTheMiddle(form, {&Command1, &Command2}));
}

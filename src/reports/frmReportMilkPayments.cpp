#include "reports/frmReportMilkPayments.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "reports/PaySlips.h"
#include "society/PaymentPeriod.h"
#include "society/Wanted.h"

namespace {

// The template of a payment period; empty if the settings name none.
QStringView TemplateOf(QStringView duration)
{
    if (duration == PaymentPeriod::Day)
        return u"MilkPaymentsReport1D.rpt";
    if (duration == PaymentPeriod::Week)
        return u"MilkPaymentsReport7D.rpt";
    if (duration == PaymentPeriod::TenDays)
        return u"MilkPaymentsReport10D.rpt";
    if (duration == PaymentPeriod::HalfMonth)
        return u"MilkPaymentsReport15D.rpt";
    return duration == PaymentPeriod::Month ? u"MilkPaymentsReport1M.rpt" : QStringView();
}

}

Keys::Places frmReportMilkPayments::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportMilkPayments"), Shivaji(u"dUQa pomaonT irpaoT-"),
            {Next, Back, Leave, PrintReport, ExitButton}},
    };
}

frmReportMilkPayments::frmReportMilkPayments() : SocietyScreen(KeyPlaces(), Shivaji(u" dUQa pomaonT irpaoT-"))
{
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the date
    LayOut();
}

void frmReportMilkPayments::MaskUserDate_LostFocus()
{
    HoldPaymentDate();
}

// The date has to be one on which milk was paid; the period of its first payment is kept.
bool frmReportMilkPayments::HoldPaymentDate()
{
    if (!MaskUserDate.InsistOnDate(Wanted::Date()))
        return false;
    const Recordset payment(gCn,
        Sql(u"Select * from MilkPayments Where CompanyId=", gAppState.gCompanyId, u" And PaymentDate=",
            SqlDay(MaskUserDate.Date()), u" order by rowid"));
    if (payment.Eof()) {
        ShowPlain(QStringLiteral("Invalid Payment Date"));
        MaskUserDate.SetFocus(Plain(u"ज्या दिवशी दुधाचे पेमेंट झाले तो दिनांक टाका    Esc : बाहेर"));
        return false;
    }
    FromDate = payment[u"FromDate"].Date();
    ToDate = payment[u"ToDate"].Date();
    return true;
}

void frmReportMilkPayments::CmdReport_Click()
{
    if (!HoldPaymentDate())
        return;
    const PaySlips slips({MaskUserDate.Date(), FromDate, ToDate, Members.From(), Members.To()});
    if (!slips.Any()) {
        ShowPlain(QStringLiteral("No Records"), QStringLiteral("Milk Payments"));
        return;
    }
    slips.Stage(Staging);
    PrintSlips();
    Staging.End();
}

void frmReportMilkPayments::PrintSlips()
{
    const QStringView name = TemplateOf(gAppState.gPaymentDuration);
    if (name.isEmpty()) {
        ShowNotice(Plain(u"ऑटो सेटींग्जमध्ये पेमेंटचा कालावधी निवडा."));
        return;
    }
    CRMilkPayments.SetTemplate(name);
    CRMilkPayments.SetSubject(ReportSubject({}, MaskUserDate.Date()));
    CRMilkPayments.Print();
}

#include "reports/frmReportPaymentList.h"

#include "core/preview/ReportSubject.h"
#include "core/preview/TemplateReport.h"
#include "platform/database/Sql.h"
#include "society/Wanted.h"

namespace {

// A day or a month of the mask without its leading zero.
QString WithoutZero(QString text)
{
    if (text.startsWith(u'0'))
        text.remove(0, 1);
    return text;
}

}

Keys::Places frmReportPaymentList::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportPaymentList"), Shivaji(u"dUQa pomaonT ilasT"),
            {Next, Back, Leave, ChooseOption, PrintReport, ExitButton}},
    };
}

frmReportPaymentList::frmReportPaymentList() : SocietyScreen(KeyPlaces(), Shivaji(u" dUQa pomaoMT ilasT"))
{
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the date
    LayOut();
}

void frmReportPaymentList::Load()
{
    Option1.Choose();
}

void frmReportPaymentList::MaskFromDate_LostFocus()
{
    MaskFromDate.InsistOnDate(Wanted::Date());
}

QString frmReportPaymentList::SelectionFormula(const QString& date)
{
    return Sql(u"{MilkPayments.PaymentDate} = DateTime (", date.mid(6, 4), u",", WithoutZero(date.mid(3, 2)),
        u",", WithoutZero(date.left(2)), u",00, 00, 00)");
}

void frmReportPaymentList::cmdReport_Click()
{
    if (!MaskFromDate.InsistOnDate(Wanted::Date()))
        return;
    TemplateReport report(Option1.Chosen() ? u"CashMilkPayment.rpt" : u"BankMilkPayment.rpt");
    report.SetSubject(ReportSubject({}, MaskFromDate.Date()));
    report.SetSelectionFormula(SelectionFormula(MaskFromDate.Text()));
    report.Print();
}

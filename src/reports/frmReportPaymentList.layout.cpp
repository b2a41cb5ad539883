#include "reports/frmReportPaymentList.h"
#include "reports/ReportLayout.h"

void frmReportPaymentList::LayOut()
{
    SetTitleLabel(lblTitle);
    SetGuideLabel(lblGuide);
    Layout::Form form;
    ReportLayout::AddGuide(form, lblGuide);
    form.Row(Shivaji(u"pomaonT idnaaMk"), MaskFromDate, ReportLayout::DateWidth);
    form.Row(Plain(u"पेमेंट प्रकार"), {{&Option1, Option1.Shown()}, {&Option2, Option2.Shown()}}, 0);
    ReportLayout::Finish(
        *this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), form, cmdReport, cmdExit);
}

#include "reports/frmReportPaymentList.h"
#include "reports/ReportLayout.h"

void frmReportPaymentList::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide);
    form.Row(Shivaji(u"pomaonT idnaaMk"), MaskFromDate, ReportLayout::DateWidth);
    form.Row(Plain(u"पेमेंट प्रकार"), {{&Option1, Option1.Shown()}, {&Option2, Option2.Shown()}}, 0);
    Stack(ReportLayout::Body(form, cmdReport, cmdExit));
}

#include "reports/frmReportPaymentList.h"

#include "platform/forms/Layout.h"

void frmReportPaymentList::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide);
    form.Row(Shivaji(u"pomaonT idnaaMk"), MaskFromDate, Layout::DateWidth);
    form.Row(Plain(u"पेमेंट प्रकार"), {{&Option1, Option1.Shown()}, {&Option2, Option2.Shown()}}, 0);
    Stack(Layout::InTheMiddle(form, {&cmdReport, &cmdExit}));
}

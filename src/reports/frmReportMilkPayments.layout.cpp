#include "reports/frmReportMilkPayments.h"

#include "platform/forms/Layout.h"

void frmReportMilkPayments::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide);
    form.Row(Shivaji(u"pomaonT idnaaMk"), MaskUserDate, Layout::DateWidth);
    Members.AddTo(form);
    form.Grid()->addLayout(Staging.Line(), form.Grid()->rowCount(), 0, 1, 2);
    Stack(Layout::InTheMiddle(form, {&CmdReport, &cmdExit}));
}

#include "reports/frmVadhTootReport.h"

#include "platform/forms/Layout.h"

void frmVadhTootReport::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide);
    form.Row(Shivaji(u"pasaUna"), maskFromDate, Layout::DateWidth);
    form.Row(Shivaji(u"pya-nt"), maskToDate, Layout::DateWidth);
    form.Row(
        Plain(u"पत्रक"), {{&OptionLiters, OptionLiters.Shown()}, {&OptionAmount, OptionAmount.Shown()}}, 0);
    lblMessage.Widget()->setAlignment(Qt::AlignCenter);
    lblMessage.Widget()->setMinimumSize(Layout::LineWidth, Layout::FieldHeight); // the guide line fits, too
    form.Row(lblMessage);
    Stack(Layout::InTheMiddle(form, {&cmdPrint, &cmdExit}));
}

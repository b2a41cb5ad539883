#include "reports/frmReportMilkPS.h"

#include "platform/forms/Layout.h"

void frmReportMilkPS::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide); // above what is asked for: the list of names drops down over what is below
    form.Row(Shivaji(u"pasaUna"), maskFromDate, Layout::DateWidth);
    form.Row(Shivaji(u"pya-nt"), maskToDate, Layout::DateWidth);
    form.Row(Plain(u"प्रकार"),
        {{&OptionCollections, OptionCollections.Shown()}, {&OptionSales, OptionSales.Shown()}}, 0);
    form.Row(Plain(u"नाव"), ComboAccountName, Layout::NameWidth);
    Stack(Layout::InTheMiddle(form, {&cmdReport, &cmdExit}));
}

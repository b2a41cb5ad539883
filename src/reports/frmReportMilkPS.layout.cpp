#include "reports/frmReportMilkPS.h"
#include "reports/ReportLayout.h"

void frmReportMilkPS::LayOut()
{
    SetTitleLabel(lblTitle);
    SetGuideLabel(lblGuide);
    Layout::Form form;
    ReportLayout::AddGuide(form, lblGuide);
    form.Row(Shivaji(u"pasaUna"), maskFromDate, ReportLayout::DateWidth);
    form.Row(Shivaji(u"pya-nt"), maskToDate, ReportLayout::DateWidth);
    form.Row(Plain(u"प्रकार"),
        {{&OptionCollections, OptionCollections.Shown()}, {&OptionSales, OptionSales.Shown()}}, 0);
    form.Row(Plain(u"नाव"), ComboAccountName, ReportLayout::NameWidth);
    ReportLayout::Finish(
        *this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), form, cmdReport, cmdExit);
}

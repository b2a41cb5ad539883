#include "reports/frmReportMilkCollections.h"
#include "reports/ReportLayout.h"

void frmReportMilkCollections::LayOut()
{
    SetTitleLabel(lblTitle);
    SetGuideLabel(lblGuide);
    Layout::Form form;
    ReportLayout::AddGuide(form, lblGuide);
    form.Row(Shivaji(u"idnaaMk"), MaskUserDate, ReportLayout::DateWidth);
    form.Row(Plain(u"जनावर"), ComboAnimal, ReportLayout::DateWidth);
    form.Row(Plain(u"वेळ"),
        {{&OptionMorning, OptionMorning.Shown()}, {&OptionEvening, OptionEvening.Shown()},
            {&OptionBoth, OptionBoth.Shown()}},
        0);
    ReportLayout::Finish(
        *this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), form, cmdReport, cmdExit);
}

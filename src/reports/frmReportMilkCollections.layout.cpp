#include "reports/frmReportMilkCollections.h"
#include "reports/ReportLayout.h"

void frmReportMilkCollections::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide); // above what is asked for: the list of names drops down over what is below
    form.Row(Shivaji(u"idnaaMk"), MaskUserDate, ReportLayout::DateWidth);
    form.Row(Plain(u"जनावर"), ComboAnimal, ReportLayout::DateWidth);
    form.Row(Plain(u"वेळ"),
        {{&OptionMorning, OptionMorning.Shown()}, {&OptionEvening, OptionEvening.Shown()},
            {&OptionBoth, OptionBoth.Shown()}},
        0);
    Stack(ReportLayout::Body(form, cmdReport, cmdExit));
}

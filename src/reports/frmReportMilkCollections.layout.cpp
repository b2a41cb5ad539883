#include "reports/frmReportMilkCollections.h"

#include "platform/forms/Layout.h"

void frmReportMilkCollections::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide); // above what is asked for: the list of names drops down over what is below
    form.Row(Shivaji(u"idnaaMk"), MaskUserDate, Layout::DateWidth);
    form.Row(Plain(u"जनावर"), ComboAnimal, Layout::DateWidth);
    form.Row(Plain(u"वेळ"),
        {{&OptionMorning, OptionMorning.Shown()}, {&OptionEvening, OptionEvening.Shown()},
            {&OptionBoth, OptionBoth.Shown()}},
        0);
    Stack(Layout::InTheMiddle(form, {&cmdReport, &cmdExit}));
}

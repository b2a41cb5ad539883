#include "reports/frmReportMilkPaymentsRegister.h"

#include "platform/forms/Layout.h"

void frmReportMilkPaymentsRegister::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide);
    if (IsBalance()) {
        form.Row(Shivaji(u"idnaaMk"), maskFromDate, Layout::DateWidth);
        form.Row(Shivaji(u"AKor"), maskToDate, Layout::DateWidth);
    } else {
        form.Row(Shivaji(u"kalaavaQaI"),
            {{&maskFromDate, Plain(u"कालावधीचा पहिला दिवस")}, {&maskToDate, Plain(u"कालावधीचा शेवटचा दिवस")}},
            Layout::DateWidth);
    }
    Members.AddTo(form);
    if (m_mode == Mode::PR)
        form.Row(Plain(u"कागद"), {{&OptionPT, OptionPT.Shown()}, {&OptionLS, OptionLS.Shown()}}, 0);
    form.Grid()->addLayout(Staging.Line(), form.Grid()->rowCount(), 0, 1, 2);
    Stack(Layout::InTheMiddle(form, {&cmdReport, &cmdExit}));
}

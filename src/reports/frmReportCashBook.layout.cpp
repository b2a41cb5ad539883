#include "reports/frmReportCashBook.h"

#include "platform/forms/Layout.h"

void frmReportCashBook::LayOut()
{
    Layout::Form form;
    form.Row(lblGuide); // above what is asked for: the list of names drops down over what is below
    Days.AddTo(form);
    const Caption account = Plain(u"खाते");
    for (Control* control : std::initializer_list<Control*>{&ComboAccountName, &txtAccountName})
        control->SetAccessibleName(account);
    form.Row(account, m_mode == Mode::C ? static_cast<Control&>(txtAccountName) : ComboAccountName,
        Layout::NameWidth);
    form.Grid()->addLayout(Staging.Line(), form.Grid()->rowCount(), 0, 1, 2);
    Stack(Layout::InTheMiddle(form, {&cmdPrint, &cmdExit}));
}

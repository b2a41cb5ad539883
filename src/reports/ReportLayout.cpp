#include "reports/ReportLayout.h"

#include "platform/forms/Button.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int RowSpacing = 18;

}

QLayout* ReportLayout::Body(const Layout::Form& form, Button& cmdReport, Button& cmdExit)
{
    cmdExit.SetCancels(true); // by mouse the screen is left whatever stands in its dates
    form.Grid()->setVerticalSpacing(RowSpacing);
    auto* middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(form.Grid());
    middle->addStretch(1);
    auto* body = new QVBoxLayout;
    body->addStretch(1);
    body->addLayout(middle);
    body->addStretch(3); // room for the list of names that drops down
    body->addLayout(Layout::ButtonRow({&cmdReport, &cmdExit}));
    return body;
}

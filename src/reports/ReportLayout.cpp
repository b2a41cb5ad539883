#include "reports/ReportLayout.h"

#include "core/menu/Keys.h"
#include "platform/forms/Button.h"
#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int RowSpacing = 18;

}

void ReportLayout::AddGuide(Layout::Form& form, Label& guide)
{
    Layout::MakeGuide(guide);
    form.Row(guide);
}

void ReportLayout::Finish(
    Screen& screen, QWidget* header, const Layout::Form& form, Button& cmdReport, Button& cmdExit)
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
    Layout::Stack(screen, header, body, Layout::KeyStrip(Keys::Of(screen.Name())));
}

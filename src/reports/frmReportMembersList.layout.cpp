#include "reports/frmReportMembersList.h"

#include "platform/forms/Layout.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace {

// An option at the head of a row; what belongs to it follows in the same row.
void AddOption(QGridLayout& grid, int row, OptionButton& option)
{
    Layout::SizeField(option, 0);
    grid.addWidget(option.Widget(), row, 0);
}

}

void frmReportMembersList::LayOut()
{
    Layout::SizeField(ComboArea, Layout::NameWidth);
    ComboArea.SetAccessibleName(OptionArea.Shown());
    auto* animals = new QHBoxLayout;
    for (OptionButton* option : {&OptionCow, &OptionBuff, &OptionBoth}) {
        Layout::SizeField(*option, 0);
        animals->addWidget(option->Widget());
    }
    animals->addStretch(1);

    Layout::Form form;
    QGridLayout& grid = *form.Grid();
    grid.setHorizontalSpacing(24);
    grid.addWidget(lblGuide.Widget(), 0, 1); // above the list of areas, which drops down
    AddOption(grid, 1, OptionList);
    AddOption(grid, 2, OptionArea);
    grid.addWidget(ComboArea.Widget(), 2, 1);
    AddOption(grid, 3, OptionMilk);
    grid.addLayout(animals, 3, 1);
    Stack(Layout::InTheMiddle(form, {&cmdReport, &cmdExit}));
}

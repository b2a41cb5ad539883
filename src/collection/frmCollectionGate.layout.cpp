#include "collection/frmCollectionGate.h"

#include "platform/forms/ColumnBar.h"
#include "platform/forms/Pieces.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

QLayout* frmCollectionGate::ListAndTotals()
{
    auto* list = new QVBoxLayout;
    list->setSpacing(4);
    list->addWidget(OrderBar());
    list->addWidget(List(DataGridInwards, 31), 1);
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa saMklana"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Sized(Command3, 320, NarrowField, Look::Size::Normal));
    buttons->addStretch(1);
    buttons->addWidget(Sized(Command1, 130, NarrowField, Look::Size::Normal));
    list->addLayout(buttons);

    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(list, 1);
    row->addWidget(Totals());
    return row;
}

// The search box over the columns before the first that sorts, and over each of the others the button that
// sorts by it.
QWidget* frmCollectionGate::OrderBar()
{
    constexpr int height = 28;
    auto* bar = new ColumnBar(DataGridInwards);
    const std::vector<DataGrid::Column> columns = InwardsColumns(CounterKinds::Gate);
    int before = -1;
    for (int at = 0; at < static_cast<int>(columns.size()); ++at) {
        for (const auto& [button, field] : OrderButtons()) {
            if (field != columns[at].field)
                continue;
            if (before < 0)
                before = at;
            bar->Put(*Sized(*button, 0, height, Look::Size::Normal, true), at, at);
            button->SetAccessibleName(columns[at].caption);
        }
    }
    auto* search = new QWidget; // so that the box is no wider than its caption
    auto* row = new QHBoxLayout(search);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(Sized(chkSerachMode, 0, height, Look::Size::Normal));
    row->addStretch(1);
    bar->Put(*search, 0, before - 1);
    return bar;
}

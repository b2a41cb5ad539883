#include "collection/frmCollectionGate.h"

#include "platform/forms/Pieces.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using namespace Pieces;

QLayout* frmCollectionGate::ListAndTotals()
{
    auto* list = new QVBoxLayout;
    list->setSpacing(4);
    list->addLayout(OrderLine());
    list->addWidget(List(DataGridInwards, 31), 1);
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa saMklana"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Sized(Command3, 320, 34, Look::Size::Normal));
    buttons->addStretch(1);
    buttons->addWidget(Sized(Command1, 130, 34, Look::Size::Normal));
    list->addLayout(buttons);

    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(list, 1);
    row->addWidget(Totals());
    return row;
}

// The search box, no wider than its caption, over the columns before the first that sorts.
QWidget* frmCollectionGate::SearchBox(int width, int height)
{
    auto* place = new QWidget;
    place->setFixedWidth(width);
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(Sized(chkSerachMode, 0, height, Look::Size::Normal));
    row->addStretch(1);
    return place;
}

// The search box, and over each of the last four columns the button that sorts by it.
QLayout* frmCollectionGate::OrderLine()
{
    constexpr int height = 28;
    constexpr int edge = 1; // of the list
    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    int searchWidth = edge;
    for (const DataGrid::Column& column : InwardsColumns(GateCounter)) {
        const auto orders = OrderButtons();
        const auto order = std::find_if(
            orders.begin(), orders.end(), [&](const auto& one) { return one.second == column.field; });
        if (order == orders.end()) {
            searchWidth += column.width;
            continue;
        }
        if (line->isEmpty())
            line->addWidget(SearchBox(searchWidth, height));
        line->addWidget(
            Sized(*order->first, column.width, height, Look::Size::Normal, true), column.width > 0 ? 0 : 1);
        order->first->SetAccessibleName(column.caption);
    }
    line->addSpacing(QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent) + edge);
    return line;
}

#include "frmCollectionGate.h"

#include "Counter.h"
#include "CounterPieces.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

using namespace CounterPieces;

QLayout* frmCollectionGate::ListAndTotals()
{
    auto* list = new QVBoxLayout;
    list->setSpacing(4);
    list->addLayout(OrderLine());
    list->addWidget(List(DataGridInwards, 30), 1);
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa saMklana"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Sized(Command3, 320, 34, Look::Size::Normal));
    buttons->addStretch(1);
    buttons->addWidget(Sized(Command1, 130, 34, Look::Size::Normal));
    list->addLayout(buttons);

    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(list, 1);
    QWidget* totals = Totals();
    totals->setFixedWidth(215);
    row->addWidget(totals);
    return row;
}

// The search box, and over each of the last four columns the button that sorts by it.
QLayout* frmCollectionGate::OrderLine()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(Sized(chkSerachMode, 0, 28, Look::Size::Normal));
    line->addStretch(1);
    for (const auto& [button, width, column] : {std::tuple(&cmdLtrOrder, Counter::Twips(1400), u"ilaTsa-"),
             std::tuple(&cmdFatOrder, Counter::Twips(1200), u"f^T"),
             std::tuple(&cmdRateOrder, Counter::Twips(1200), u"dr"),
             std::tuple(&cmdAmtOrder, Counter::Twips(1300), u"r@kma")}) {
        line->addWidget(Sized(*button, width, 28, Look::Size::Normal, true));
        button->SetAccessibleName(Shivaji(column));
    }
    line->addSpacing(QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2);
    return line;
}

#include "payments/frmNewMilkPayment.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

namespace {

constexpr int DeliveriesWidth = 464; // with the bar at its side

}

void frmNewMilkPayment::LayOut()
{
    auto* told = new QHBoxLayout;
    told->setSpacing(12);
    told->addWidget(chkInstallment.Widget());
    told->addWidget(lblGuide.Widget(), 1);
    told->addWidget(Extra.LaidOut());

    auto* body = new QVBoxLayout;
    body->setSpacing(6);
    body->addWidget(Frame1.LaidOut(), 1);
    body->addWidget(SinglePanel(), 1);
    body->addLayout(told);
    body->addLayout(Layout::ButtonRow({&cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit}));
    Stack(body, Strips(), {20, 8, 20, 10});
}

// Each panel shows its own keys.
QWidget* frmNewMilkPayment::Strips()
{
    StripOfMany = KeyStrip(QStringLiteral("frmNewMilkPayment.Frame1"));
    StripOfOne = KeyStrip(Name());
    StripOfOne->hide();
    auto* strips = new QWidget;
    auto* column = new QVBoxLayout(strips);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(StripOfMany);
    column->addWidget(StripOfOne);
    return strips;
}

// The deliveries at the left, what they come to at the right, and below it what is deducted, head by head.
QWidget* frmNewMilkPayment::SinglePanel()
{
    auto* deducted = new QHBoxLayout;
    deducted->setSpacing(12);
    deducted->addWidget(List(DataGridUchals, 28, Look::Size::Small, 30), 1);
    deducted->addLayout(Payment.Figures.Sums());
    DataGridUchals.SetAccessibleName(Shivaji(u"]cala"));

    auto* right = new QVBoxLayout;
    right->setSpacing(6);
    right->addWidget(Payment.Figures.MilkSheet());
    right->addLayout(deducted, 1);

    auto* both = new QHBoxLayout;
    both->setSpacing(14);
    QWidget* list = List(DataGrid1, 25, Look::Size::Small, 30);
    list->setMinimumWidth(DeliveriesWidth);
    both->addWidget(list, 46);
    both->addLayout(right, 52);
    DataGrid1.SetAccessibleName(Shivaji(u"dUQa saMklana"));

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(Payment.Row());
    column->addLayout(both, 1);
    return Single.LaidOut(column);
}

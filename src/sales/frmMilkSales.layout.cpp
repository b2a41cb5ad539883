#include "sales/frmMilkSales.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

void frmMilkSales::LayOut()
{
    QHBoxLayout* shift = FieldRows::DateAndShift(maskDate, txtTime, 180);
    shift->setContentsMargins(16, 0, 16, 0);
    shift->addLayout(InLine(Shivaji(u"ivaËI Ë."), txtSalesNo, 140));
    shift->addStretch(1);

    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addLayout(shift);
    body->addWidget(EntryPanel());
    body->addWidget(FrameOurLiters.LaidOut());
    body->addWidget(List(DataGridInwards), 1);
    body->addWidget(Summary.LaidOut());
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa ivaËI"));
    Stack(body, {20, 6, 20, 8});
}

QWidget* frmMilkSales::EntryPanel()
{
    auto* buyer = new QHBoxLayout;
    buyer->setSpacing(16);
    buyer->addLayout(InLine(Shivaji(u"ga`ahkacao naava"), ComboCustName, 0), 1);
    buyer->addLayout(InLine(Shivaji(u"dUQa"), txtAnimal, 140));

    QHBoxLayout* milk =
        FieldRows::Milk(txtLiters, txtFat, txtRate, txtAmount, {.litres = 200, .fat = 130, .rate = 170});
    cmdGo.SetAccessibleName(Shivaji(u"saovh"));
    milk->addWidget(Sized(cmdGo, 80, TallField, Look::Size::Title, true), 0, Qt::AlignBottom);

    auto* panel = Sheet();
    auto* stack = new QVBoxLayout(panel);
    stack->setContentsMargins(16, 6, 16, 8);
    stack->setSpacing(2);
    stack->addLayout(buyer);
    stack->addWidget(lblGuide.Widget());
    stack->addLayout(milk);
    return panel;
}

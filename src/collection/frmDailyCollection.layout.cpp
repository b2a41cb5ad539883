#include "collection/frmDailyCollection.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

void frmDailyCollection::LayOut()
{
    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addLayout(MemberLine());
    body->addLayout(DayLine());
    body->addWidget(MilkPanel());
    body->addWidget(lblGuide.Widget());
    body->addWidget(List.LaidOut(), 1);
    body->addLayout(Layout::ButtonRow({&cmdAdd, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit}));
    Stack(body, {20, 14, 20, 14});
}

QLayout* frmDailyCollection::MemberLine()
{
    auto* line = new QHBoxLayout;
    line->setContentsMargins(16, 0, 16, 0);
    line->setSpacing(16);
    line->addLayout(InLine(Shivaji(u"maombar naMbar"), txtMemberNo, 160));
    line->addLayout(InLine(Shivaji(u"maombarcao naaMva"), cmbMemberName, 0), 1);
    return line;
}

QLayout* frmDailyCollection::DayLine()
{
    QHBoxLayout* line = FieldRows::DateAndShift(MasKCollectionDate, cmbCollectionTime, 200);
    line->setContentsMargins(16, 0, 16, 0);
    line->addLayout(InLine(Shivaji(u"saMklana k`M"), txtCollectionNo, 160));
    line->addLayout(InLine(Shivaji(u"dUQa p`kar"), txtAnimal, 160));
    line->addStretch(1);
    return line;
}

QWidget* frmDailyCollection::MilkPanel()
{
    auto* panel = Sheet();
    QHBoxLayout* milk =
        FieldRows::Milk(txtLiters, txtFat, txtRate, txtAmount, {.litres = 200, .fat = 130, .rate = 170});
    panel->setLayout(milk);
    milk->setContentsMargins(16, 6, 16, 10);
    return panel;
}

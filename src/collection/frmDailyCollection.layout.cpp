#include "collection/frmDailyCollection.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

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
    line->addLayout(Under(Shivaji(u"maombar naMbar"), txtMemberNo, 160, Look::Size::Large, LineField));
    line->addLayout(Under(Shivaji(u"maombarcao naaMva"), cmbMemberName, 0, Look::Size::Large, LineField), 1);
    return line;
}

QLayout* frmDailyCollection::DayLine()
{
    auto* line = new QHBoxLayout;
    line->setContentsMargins(16, 0, 16, 0);
    line->setSpacing(16);
    line->addLayout(Under(Shivaji(u"idnaaMk"), MasKCollectionDate, 160, Look::Size::Large, LineField));
    line->addLayout(Under(Shivaji(u"vaoL"), cmbCollectionTime, 200, Look::Size::Large, LineField));
    line->addLayout(Under(Shivaji(u"saMklana k`M"), txtCollectionNo, 160, Look::Size::Large, LineField));
    line->addLayout(Under(Shivaji(u"dUQa p`kar"), txtAnimal, 160, Look::Size::Large, LineField));
    line->addStretch(1);
    return line;
}

QWidget* frmDailyCollection::MilkPanel()
{
    auto* panel = Sheet();
    auto* milk = new QHBoxLayout(panel);
    milk->setContentsMargins(16, 6, 16, 10);
    milk->setSpacing(10);
    milk->addLayout(Under(Shivaji(u"ilaTsa-"), txtLiters, 200, Look::Size::Title, TallField));
    milk->addWidget(Sign(u"×"), 0, Qt::AlignBottom);
    milk->addLayout(Under(Shivaji(u"f^T"), txtFat, 130, Look::Size::Title, TallField));
    milk->addWidget(Sign(u"→"), 0, Qt::AlignBottom);
    milk->addLayout(Under(Shivaji(u"dr"), txtRate, 170, Look::Size::Title, TallField));
    milk->addWidget(Sign(u"="), 0, Qt::AlignBottom);
    milk->addLayout(Under(Shivaji(u"r@kma"), txtAmount, 0, Look::Size::Title, TallField), 1);
    return panel;
}

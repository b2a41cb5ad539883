#include "collection/ShiftTotals.h"

#include "collection/CopySums.h"
#include "collection/Counter.h"
#include "platform/forms/Pieces.h"
#include "platform/text/Numbers.h"

#include <QGridLayout>

using namespace Counter;
using namespace Pieces;

ShiftTotals::ShiftTotals(Screen* screen, QStringView litersFormat)
    : m_litersFormat(litersFormat)
    , lblTotalLitersTitle(screen, "lblTotalLitersTitle", Shivaji(u"¹ ekUNa ilaTsa- ¹"))
    , lblTotalLitersC(screen, "lblTotalLitersC", Shivaji(u"gaaya"))
    , lblTotalCowLiters(screen, "lblTotalCowLiters")
    , lblTotalLitersB(screen, "lblTotalLitersB", Shivaji(u"mhOsa"))
    , lblTotalBuffLiters(screen, "lblTotalBuffLiters")
    , Label4(screen, "Label4", Shivaji(u"¹ sarasarI f^T ¹"))
    , lblAvgCowFat(screen, "lblAvgCowFat")
    , lblAvgBuffFat(screen, "lblAvgBuffFat")
{
}

void ShiftTotals::ShiftLitersTotal()
{
    const CopySums sums = WalkCopy();
    lblTotalCowLiters.SetFigure(Format(sums.cow.Both().liters, m_litersFormat));
    lblTotalBuffLiters.SetFigure(Format(sums.buff.Both().liters, m_litersFormat));
}

void ShiftTotals::ShiftAverageFat()
{
    const CopySums sums = WalkCopy();
    lblAvgCowFat.SetFigure(Format(sums.cow.Both().AverageFat(), AverageFatFormat));
    lblAvgBuffFat.SetFigure(Format(sums.buff.Both().AverageFat(), AverageFatFormat));
}

QLayout* ShiftTotals::LaidOut()
{
    auto* sums = new QGridLayout;
    sums->setVerticalSpacing(0);
    sums->setColumnStretch(1, 1);
    for (Label* title : {&lblTotalLitersTitle, &Label4})
        title->Widget()->setAlignment(Qt::AlignCenter);
    for (const Label* label : {&lblTotalLitersTitle, &lblTotalLitersC, &lblTotalLitersB, &Label4})
        SetInk(*label->Widget());
    sums->addWidget(lblTotalLitersTitle.Widget(), 0, 0, 1, 2);
    sums->addWidget(lblTotalLitersC.Widget(), 1, 0);
    sums->addWidget(Figure(lblTotalCowLiters, Look::Size::Large), 1, 1);
    sums->addWidget(lblTotalLitersB.Widget(), 2, 0);
    sums->addWidget(Figure(lblTotalBuffLiters, Look::Size::Large), 2, 1);
    sums->addWidget(Label4.Widget(), 3, 0, 1, 2);
    sums->addWidget(Heading(lblTotalLitersC.Shown()), 4, 0);
    sums->addWidget(Figure(lblAvgCowFat, Look::Size::Large), 4, 1);
    sums->addWidget(Heading(lblTotalLitersB.Shown()), 5, 0);
    sums->addWidget(Figure(lblAvgBuffFat, Look::Size::Large), 5, 1);
    return sums;
}

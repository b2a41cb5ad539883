#include "society/FieldRows.h"

#include "platform/forms/Pieces.h"

#include <QHBoxLayout>

using namespace Pieces;

QHBoxLayout* FieldRows::DateAndShift(Field& date, Field& shift, int shiftWidth)
{
    constexpr int dateWidth = 160;
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addLayout(InLine(Shivaji(u"idnaaMk"), date, dateWidth));
    row->addLayout(InLine(Shivaji(u"vaoL"), shift, shiftWidth));
    return row;
}

QHBoxLayout* FieldRows::Milk(
    LitresField& litres, FatField& fat, RateField& rate, MoneyField& amount, const MilkWidths& widths)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(Tall(Shivaji(u"ilaTsa-"), litres, widths.litres));
    row->addWidget(Sign(u"×"), 0, Qt::AlignBottom);
    row->addLayout(Tall(Shivaji(u"f^T"), fat, widths.fat));
    row->addWidget(Sign(u"→"), 0, Qt::AlignBottom);
    row->addLayout(Tall(Shivaji(u"dr"), rate, widths.rate));
    row->addWidget(Sign(u"="), 0, Qt::AlignBottom);
    row->addLayout(Tall(Shivaji(u"r@kma"), amount, 0), 1);
    return row;
}

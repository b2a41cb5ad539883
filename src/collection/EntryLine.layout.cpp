#include "collection/EntryLine.h"

#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"

#include <QHBoxLayout>

using namespace Pieces;

namespace {

// The amount can't be entered, but it is what the clerk calls out: it stands in full ink.
void MakeResult(const Field& field)
{
    QPalette palette = field.Widget()->palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(Look::Ink));
    field.Widget()->setPalette(palette);
}

}

QLayout* EntryLine::MemberRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addLayout(InLine(Shivaji(u"maombar naMbar"), txtMemberNo, 140));
    row->addLayout(InLine(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0), 1);
    row->addLayout(InLine(Shivaji(u"dUQa"), txtAnimal, 140));
    return row;
}

QHBoxLayout* EntryLine::MilkRow()
{
    MakeResult(txtAmount);
    return FieldRows::Milk(txtLiters, txtFat, txtRate, txtAmount, {.litres = 190, .fat = 120, .rate = 150});
}

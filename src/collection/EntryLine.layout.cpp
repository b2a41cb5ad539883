#include "collection/EntryLine.h"

#include "platform/forms/Pieces.h"

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
    row->addLayout(Under(Shivaji(u"maombar naMbar"), txtMemberNo, 140, Look::Size::Large, LineField));
    row->addLayout(Under(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0, Look::Size::Large, LineField), 1);
    row->addLayout(Under(Shivaji(u"dUQa"), txtAnimal, 140, Look::Size::Large, LineField));
    return row;
}

QHBoxLayout* EntryLine::MilkRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(Under(Shivaji(u"ilaTsa-"), txtLiters, 190, Look::Size::Title, TallField));
    row->addWidget(Sign(u"×"), 0, Qt::AlignBottom);
    row->addLayout(Under(Shivaji(u"f^T"), txtFat, 120, Look::Size::Title, TallField));
    row->addWidget(Sign(u"→"), 0, Qt::AlignBottom);
    row->addLayout(Under(Shivaji(u"dr"), txtRate, 150, Look::Size::Title, TallField));
    row->addWidget(Sign(u"="), 0, Qt::AlignBottom);
    row->addLayout(Under(Shivaji(u"r@kma"), txtAmount, 0, Look::Size::Title, TallField), 1);
    MakeResult(txtAmount);
    return row;
}

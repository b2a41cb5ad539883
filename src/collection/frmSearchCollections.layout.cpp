#include "collection/frmSearchCollections.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

namespace {

constexpr int FoundRow = 38;

}

void frmSearchCollections::LayOut()
{
    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(Question());
    body->addWidget(lblGuide.Widget());
    body->addWidget(List(DataGridInwards, FoundRow, Look::Size::Large), 1);
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa saMklana"));
    cmdGo.SetAccessibleName(KeyAction(u"Alt+P"));
    body->addLayout(Layout::ButtonRow({&cmdGo}));
    Stack(body, {20, 10, 20, 12});
}

// Whose slip, and of which shift.
QWidget* frmSearchCollections::Question()
{
    auto* panel = Sheet();
    QHBoxLayout* row = FieldRows::DateAndShift(maskDate, txtTime, 180);
    panel->setLayout(row);
    row->setContentsMargins(16, 6, 16, 10);
    row->addLayout(InLine(Shivaji(u"maombar naMbar"), txtMemberNo, 140));
    row->addLayout(InLine(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0), 1);
    return panel;
}

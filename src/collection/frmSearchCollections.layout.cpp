#include "collection/frmSearchCollections.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

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
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(16, 6, 16, 10);
    row->setSpacing(16);
    row->addLayout(Under(Shivaji(u"idnaaMk"), maskDate, 160, Look::Size::Large, LineField));
    row->addLayout(Under(Shivaji(u"vaoL"), txtTime, 180, Look::Size::Large, LineField));
    row->addLayout(Under(Shivaji(u"maombar naMbar"), txtMemberNo, 140, Look::Size::Large, LineField));
    row->addLayout(Under(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0, Look::Size::Large, LineField), 1);
    return panel;
}

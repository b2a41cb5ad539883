#include "core/start/AppDate.h"

#include "core/menu/Keys.h"
#include "core/messages/Messages.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Look.h"
#include "platform/shell/World.h"
#include "platform/text/Dates.h"

#include <QLabel>
#include <QVBoxLayout>

frmAppDate::frmAppDate() : Screen("frmAppDate", Shape::Card)
{
    When(MaskAppDate.GotFocus, &frmAppDate::MaskAppDate_GotFocus);

    SetColours(QColor(Look::FocusColour), QColor(Look::DateColour));
    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u" idnaaMk "));
    MaskAppDate.SetAccessibleName(lblDate.Shown());
    MaskAppDate.Widget()->setFont(Look::Font(Look::Size::Title));
    MaskAppDate.Widget()->setFixedSize(Layout::LoneDate);
    lblDate.Widget()->setFont(Look::Font(Look::Size::Large));

    auto* date = new QHBoxLayout;
    date->setSpacing(16);
    date->addStretch(1);
    date->addWidget(lblDate.Widget());
    date->addWidget(MaskAppDate.Widget());
    date->addStretch(1);
    auto* body = new QVBoxLayout;
    body->addStretch(1);
    body->addLayout(date);
    body->addStretch(1);
    body->addLayout(Layout::ButtonRow({&cmdExit}));
    Layout::Stack(*this, Layout::Header(lblTitle), body, Layout::KeyStrip(Keys::Of(Name())));
    setMinimumSize(Layout::SmallCard);
}

void frmAppDate::Load()
{
    const Recordset latest(
        gCn, QStringLiteral("select CollectionDate from MilkCollections order by CollectionDate desc"));
    MaskAppDate.SetText(latest.Eof() ? QStringLiteral("01/04/") + gAppState.gAccountingYear.left(4)
                                     : latest[u"CollectionDate"].Text());
    DateBad = 0;
}

void frmAppDate::Escape()
{
    MaskAppDate.Clear();
    Close();
}

void frmAppDate::MaskAppDate_GotFocus()
{
    DateBad = 0;
}

void frmAppDate::MaskAppDate_LostFocus()
{
    if (!MaskAppDate.IsEmptyMask())
        gAppState.gAppDate = MaskAppDate.Date();
    if (MaskAppDate.HoldsDate())
        return;
    DateBad = 1;
    ShowNotice(Shivaji(u" idnaaMk vyavaisqat Ta[-p kra."));
    MaskAppDate.SetDate(World::Current().clock->Now().date());
    MaskAppDate.SetFocus();
}

void frmAppDate::cmdExit_Click()
{
    if (DateBad == 0)
        Close();
}

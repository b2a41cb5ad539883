#include "collection/frmMilkCollections.h"

#include "platform/forms/Pieces.h"

#include <QHBoxLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

using namespace Pieces;

QLayout* frmMilkCollections::Views()
{
    m_views = new QStackedLayout;
    m_views->addWidget(ShiftView());
    m_views->addWidget(Frame.LaidOut());
    return m_views;
}

QWidget* frmMilkCollections::KeyStrips()
{
    auto* strips = new QWidget;
    m_keys = new QStackedLayout(strips);
    for (const QString& keys : {Name(), QStringLiteral("FrameMilkCollection")})
        m_keys->addWidget(KeyStrip(keys));
    return strips;
}

QWidget* frmMilkCollections::ShiftView()
{
    auto* view = new QWidget;
    auto* row = new QHBoxLayout(view);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(List(DataGridInwards), 1);
    DataGridInwards.SetAccessibleName(Shivaji(u"dUQa saMklana"));
    row->addWidget(Totals());
    return view;
}

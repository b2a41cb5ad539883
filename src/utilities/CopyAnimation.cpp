#include "utilities/CopyAnimation.h"

#include "platform/forms/Look.h"

#include <QPainter>

namespace {

constexpr int Steps = 12; // of one flight
constexpr QSize Room(420, 64);

// A folder with its flap, in a square.
void PaintFolder(QPainter& painter, QRectF square)
{
    const double flap = square.height() / 5;
    painter.drawRect(QRectF(square.left(), square.top(), square.width() / 2, flap));
    painter.drawRect(square.adjusted(0, flap, 0, 0));
}

}

CopyAnimation::CopyAnimation(const char* name)
{
    setObjectName(QLatin1String(name));
    setFixedSize(Room);
    QSizePolicy place = sizePolicy();
    place.setRetainSizeWhenHidden(true);
    setSizePolicy(place);
    hide();
}

void CopyAnimation::Play()
{
    m_step = 0;
    show();
}

void CopyAnimation::Step()
{
    m_step = (m_step + 1) % Steps;
    update();
}

void CopyAnimation::Stop()
{
    hide();
}

void CopyAnimation::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(Look::Ink), 2));
    painter.setBrush(QColor(Look::PlainColour));
    const double side = height() * 0.7;
    const double foot = height() - side - 2;
    PaintFolder(painter, QRectF(2, foot, side, side));
    PaintFolder(painter, QRectF(width() - side - 2, foot, side, side));

    const double way = double(m_step) / (Steps - 1);
    const double rise = 4 * way * (1 - way) * foot; // highest in the middle of the flight
    const QRectF sheet(
        2 + side / 4 + way * (width() - side - 4), foot + side / 4 - rise, side / 2, side * 0.6);
    painter.setBrush(Qt::white);
    painter.drawRect(sheet);
    for (const double line : {0.25, 0.5, 0.75})
        painter.drawLine(QPointF(sheet.left() + 3, sheet.top() + line * sheet.height()),
            QPointF(sheet.right() - 3, sheet.top() + line * sheet.height()));
}

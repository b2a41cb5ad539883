#include "core/start/ProgramIcon.h"

#include "platform/forms/Look.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int Grid = 16; // at the smallest size every line lies on a pixel

QPainterPath Can()
{
    QPainterPath can;
    can.addRoundedRect(QRectF(4, 1, 8, 2), 0.7, 0.7); // the lid
    can.addRect(QRectF(5, 3, 6, 1)); // the neck
    can.moveTo(5, 4);
    can.quadTo(5, 5, 3, 7); // the shoulders
    can.lineTo(3, 14);
    can.quadTo(3, 15, 4, 15);
    can.lineTo(12, 15);
    can.quadTo(13, 15, 13, 14);
    can.lineTo(13, 7);
    can.quadTo(11, 5, 11, 4);
    can.closeSubpath();
    return can;
}

QPainterPath Handles()
{
    QPainterPath handles;
    handles.moveTo(4.5, 3.5);
    handles.lineTo(2.5, 3.5);
    handles.lineTo(2.5, 7.5);
    handles.lineTo(3.5, 7.5);
    handles.moveTo(11.5, 3.5);
    handles.lineTo(13.5, 3.5);
    handles.lineTo(13.5, 7.5);
    handles.lineTo(12.5, 7.5);
    return handles;
}

QPainterPath Drop()
{
    QPainterPath drop;
    drop.moveTo(8, 6.5);
    drop.cubicTo(8.6, 8.4, 10.5, 9.4, 10.5, 11.3);
    drop.cubicTo(10.5, 12.8, 9.4, 13.7, 8, 13.7);
    drop.cubicTo(6.6, 13.7, 5.5, 12.8, 5.5, 11.3);
    drop.cubicTo(5.5, 9.4, 7.4, 8.4, 8, 6.5);
    return drop;
}

QPixmap Drawing(int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(static_cast<double>(side) / Grid, static_cast<double>(side) / Grid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Look::Band));
    painter.drawRoundedRect(QRectF(0, 0, Grid, Grid), 3, 3);
    painter.strokePath(Handles(), QPen(QColor(Look::BandText), 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(QColor(Look::BandText));
    painter.drawPath(Can());
    painter.setBrush(QColor(Look::Band));
    painter.drawPath(Drop());
    return picture;
}

}

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(Drawing(side));
    return icon;
}

#include "core/menu/KeyboardMap.h"

#include "platform/forms/Look.h"
#include "platform/text/Shivaji01.h"

#include <QPainter>

namespace {

struct KeyRow {
    double indent = 0; // in key widths
    QStringView plain;
    QStringView shifted;
};

constexpr KeyRow KeyRows[] = {
    {0.0, u"`1234567890-=", u"~!@#$%^&*()_+"},
    {0.5, u"qwertyuiop[]\\", u"QWERTYUIOP{}|"},
    {0.8, u"asdfghjkl;'", u"ASDFGHJKL:\""},
    {1.2, u"zxcvbnm,./", u"ZXCVBNM<>?"},
};
constexpr double KeysAcross = 13.6;

QString ShapeOf(char16_t code)
{
    for (const Shivaji01::Glyph& glyph : Shivaji01::Glyphs()) {
        if (glyph.code != code)
            continue;
        const bool joins = glyph.kind == u"sign" || glyph.kind == u"prefix" || glyph.kind == u"mark"
            || glyph.kind == u"stem" || glyph.kind == u"rakar" || glyph.kind == u"nukta";
        return joins ? QChar(0x25CC) + glyph.unicode.toString() : glyph.unicode.toString();
    }
    return {};
}

void PaintKey(QPainter& painter, const QRectF& key, QChar plain, QChar shifted)
{
    painter.setPen(QPen(QColor(Look::PlainColour).darker(120), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(key.adjusted(2, 2, -2, -2), 5, 5);
    const int margin = Look::Pixels(7);
    const QRectF upper(key.left() + margin, key.top() + 3, key.width() - 2 * margin, key.height() / 2 - 3);
    const QRectF lower = upper.translated(0, key.height() / 2 - 2);
    for (const auto& [area, latin] : {std::pair(upper, shifted), std::pair(lower, plain)}) {
        painter.setFont(Look::PaintedFont(Look::Size::Small));
        painter.setPen(QColor(Look::Ink).lighter(250));
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, latin);
        painter.setFont(Look::PaintedFont(Look::Size::Normal, true));
        painter.setPen(QColor(Look::Ink));
        painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, ShapeOf(latin.unicode()));
    }
}

void PaintAltNumbers(QPainter& painter, const QRectF& area)
{
    constexpr int columns = 10;
    const double width = area.width() / columns;
    const double height = Look::Pixels(27);
    int at = 0;
    for (const Shivaji01::Glyph& glyph : Shivaji01::Glyphs()) {
        const int number = Shivaji01::AltNumber(glyph.code);
        if (number == 0)
            continue;
        const int row = at / columns;
        const QRectF cell(area.left() + at % columns * width, area.top() + row * height, width, height);
        painter.setFont(Look::PaintedFont(Look::Size::Small));
        painter.setPen(QColor(Look::Ink).lighter(250));
        painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter,
            QStringLiteral("%1").arg(number, 4, 10, QLatin1Char('0')));
        painter.setFont(Look::PaintedFont(Look::Size::Normal, true));
        painter.setPen(QColor(Look::Ink));
        painter.drawText(
            cell.adjusted(Look::Pixels(44), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, ShapeOf(glyph.code));
        ++at;
    }
}

}

void KeyboardMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = width() / KeysAcross;
    const double keyHeight = Look::Pixels(62);
    double top = 0;
    for (const KeyRow& row : KeyRows) {
        for (qsizetype at = 0; at < row.plain.size(); ++at) {
            const QRectF key((row.indent + static_cast<double>(at)) * side, top, side, keyHeight);
            PaintKey(painter, key, row.plain[at], row.shifted[at]);
        }
        top += keyHeight;
    }
    painter.setFont(Look::PaintedFont(Look::Size::Small, true));
    painter.setPen(QColor(Look::GuideInk));
    painter.drawText(QRectF(0, top + Look::Pixels(6), width(), Look::Pixels(24)),
        Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Alt धरून आकडे :"));
    top += Look::Pixels(32);
    PaintAltNumbers(painter, QRectF(0, top, width(), height() - top));
}

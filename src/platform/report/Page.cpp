#include "platform/report/Page.h"

#include <cmath>

namespace {

QString Whole(float number)
{
    return QString::number(std::lround(number));
}

QString Place(const PlacedItem& item)
{
    return Whole(item.x) + QStringLiteral(",") + Whole(item.y) + QStringLiteral(" ") + Whole(item.width)
        + QStringLiteral("x") + Whole(item.height);
}

QString DescribeText(const PlacedItem& item, const FontSpec& font)
{
    constexpr QStringView aligns[] = {u" left", u" center", u" right"};
    constexpr QStringView fits[] = {u" wrap", u" cut", u" shrink"};
    return QStringLiteral("text ") + Place(item) + aligns[static_cast<std::size_t>(item.align)]
        + fits[static_cast<std::size_t>(item.fit)]
        + (font.isBold ? QStringLiteral(" bold ") : QStringLiteral(" ")) + QString::number(font.size)
        + QStringLiteral(" ") + font.family + QStringLiteral(": ") + item.text;
}

QString DescribeStroke(const PlacedItem& item)
{
    const QString place = Place(item) + QStringLiteral(" gray ") + QString::number(item.gray);
    if (item.kind == PlacedItem::Kind::Box)
        return QStringLiteral("box ") + place;
    return QStringLiteral("line ") + place + QStringLiteral(" weight ") + QString::number(item.weight);
}

}

QRectF PlacedItem::Rect() const
{
    return QRectF(x, y, width, height).normalized();
}

QStringList Describe(const Page& page, const FontTable& fonts)
{
    QStringList lines{QStringLiteral("page ") + Whole(page.width) + QStringLiteral("x") + Whole(page.height)};
    for (const PlacedItem& item : page.items) {
        if (item.kind == PlacedItem::Kind::Text)
            lines.append(DescribeText(item, fonts.At(item.font)));
        else
            lines.append(DescribeStroke(item));
    }
    return lines;
}

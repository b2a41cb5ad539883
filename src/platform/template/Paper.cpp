#include "platform/template/Paper.h"

#include <QRegularExpression>

#include <cmath>
#include <utility>

namespace {

constexpr double LongestRoll = 3000 * Paper::PointsPerMillimetre;
constexpr double PointsPerInch = 72;
constexpr double Smallest = 20 * Paper::PointsPerMillimetre;
constexpr double Largest = 1000 * Paper::PointsPerMillimetre;

Paper Sheet(QStringView name, double width, double height)
{
    Paper paper;
    paper.name = name.toString();
    paper.width = width;
    paper.height = height;
    return paper;
}

std::optional<Paper> Sensible(const Paper& paper)
{
    const bool fits = paper.width >= Smallest && paper.width <= Largest && paper.height >= Smallest
        && (paper.isRoll || paper.height <= Largest);
    return fits ? std::optional(paper) : std::nullopt;
}

// A length in millimetres with at most one decimal: "58", "93.4".
QString SideInMillimetres(double points)
{
    return QString::number(std::round(points / Paper::PointsPerMillimetre * 10) / 10);
}

}

QString MediaName(const QSizeF& sheet)
{
    constexpr double tolerance = 0.5 * Paper::PointsPerMillimetre;
    const auto isAlike = [](const QSizeF& first, const QSizeF& second) {
        return std::abs(first.width() - second.width()) < tolerance
            && std::abs(first.height() - second.height()) < tolerance;
    };
    for (const QStringView name : {u"A4", u"A5", u"A6"}) {
        const Paper known = *ReadPaper(name);
        const QSizeF size(known.width, known.height);
        if (isAlike(sheet, size) || isAlike(sheet, size.transposed()))
            return known.name;
    }
    return QStringLiteral("Custom.%1x%2mm")
        .arg(SideInMillimetres(sheet.width()), SideInMillimetres(sheet.height()));
}

std::optional<Paper> ReadPaper(QStringView text)
{
    constexpr std::pair<double, double> sizesFromA4[] = {{210, 297}, {148, 210}, {105, 148}};
    if (text.size() == 2 && text[0] == u'A' && text[1] >= u'4' && text[1] <= u'6') {
        const auto& [width, height] = sizesFromA4[text[1].unicode() - u'4'];
        return Sheet(text, width * Paper::PointsPerMillimetre, height * Paper::PointsPerMillimetre);
    }
    static const QRegularExpression sizes(
        QStringLiteral("^(\\d+(?:\\.\\d+)?)(?:x(\\d+(?:\\.\\d+)?))?(mm|in)$"));
    const QRegularExpressionMatch match = sizes.match(text.toString());
    if (!match.hasMatch())
        return std::nullopt;
    const double unit = match.capturedView(3) == u"mm" ? Paper::PointsPerMillimetre : PointsPerInch;
    const double width = match.capturedView(1).toDouble() * unit;
    Paper paper = Sheet(text, width, match.capturedView(2).toDouble() * unit);
    if (match.capturedView(2).isEmpty()) {
        paper.isRoll = true;
        paper.height = LongestRoll;
    }
    return Sensible(paper);
}

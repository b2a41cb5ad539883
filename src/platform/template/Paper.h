#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

// The paper a template is made for. All lengths are in points.
struct Paper {
    // Templates are written in millimetres, pages are laid out in points.
    static constexpr double PointsPerMillimetre = 72.0 / 25.4;

    QString name; // as it is written in the template
    double width = 0;
    double height = 0; // of a roll: the longest page
    bool isRoll = false; // the page is as long as its content
    double left = 0, top = 0, right = 0, bottom = 0; // margins

    double BodyWidth() const { return width - left - right; }
    double BodyHeight() const { return height - top - bottom; }
};

inline float ToPoints(double millimetres)
{
    return static_cast<float>(millimetres * Paper::PointsPerMillimetre);
}

// Reads a paper size: "A4", "A5" or "A6", a roll by its width such as "58mm" or "80mm", or any sheet such as
// "105x148mm" or "10x12in". Nothing for any other text, and for paper smaller than 20 mm or larger than a
// metre.
std::optional<Paper> ReadPaper(QStringView text);

// The name of a paper size, in points, for print services: "A6" upright or landscape, "Custom.58x93.4mm".
QString MediaName(const QSizeF& sheet);

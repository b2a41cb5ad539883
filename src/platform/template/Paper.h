#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

// Millimetres of the templates into points of the page.
inline constexpr double PointsPerMillimetre = 72.0 / 25.4;

// The sheet that a template is made for. All lengths are points.
struct Paper {
    QString name; // as the template writes it
    double width = 0;
    double height = 0; // of a roll: the longest piece that is cut off
    bool isRoll = false; // the page is as long as its content
    double left = 0, top = 0, right = 0, bottom = 0; // margins

    double BodyWidth() const { return width - left - right; }
    double BodyHeight() const { return height - top - bottom; }
};

// Reads the size of a sheet: "A4", "A5" or "A6", a roll by its width such as "58mm" or "80mm", or any sheet
// such as "105x148mm" or, for fanfold, "10x12in". Nothing for a text that is none of these, or that is
// smaller than 20 mm or larger than a metre.
std::optional<Paper> ReadPaper(QStringView text);

// What print services call a sheet of so many points: "A6" whichever way it lies, "Custom.58x93.4mm".
QString MediaName(const QSizeF& sheet);

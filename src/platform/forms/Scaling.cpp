#include "platform/forms/Scaling.h"

#include "platform/forms/Look.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <vector>

// The sizes that a part had when its screen was laid out.
struct BaseSizes {
    QSize least;
    QSize largest;
    int type = 0; // pixels; 0 if it inherits its font
    int margin = 0; // of a label
};
Q_DECLARE_METATYPE(BaseSizes)

struct BaseGaps {
    QMargins margins;
    int across = 0; // gap in a grid, or in a row or column of parts
    int down = 0; // of a grid
    std::vector<int> columns; // the minimum widths of a grid
    std::vector<int> rows;
    std::vector<QSize> spacers; // in the order of the items; empty for other items
};
Q_DECLARE_METATYPE(BaseGaps)

namespace {

constexpr const char* Kept = "baseSizes";

// The share of a window's growth that goes to type.
constexpr double Share = 0.85;

// In a small window lines of text are slightly higher than calculated, since their heights are rounded up to
// whole pixels.
constexpr double Slack = 0.97;

// Rounded down: what fits at factor 1 must fit at any.
int Scaled(int length, double factor)
{
    return static_cast<int>(std::floor(length * factor));
}

int ScaledLargest(int length, double factor)
{
    return length >= QWIDGETSIZE_MAX ? QWIDGETSIZE_MAX : Scaled(length, factor);
}

// The sizes that were kept with an object; the first call takes them from it.
template <class Base, class Object, class Take> Base BaseOf(Object& object, const Take& take)
{
    if (const QVariant kept = object.property(Kept); kept.isValid())
        return kept.value<Base>();
    Base base = take(object);
    object.setProperty(Kept, QVariant::fromValue(base));
    return base;
}

BaseSizes SizesOf(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return {widget.minimumSize(), widget.maximumSize(),
        widget.testAttribute(Qt::WA_SetFont) ? widget.font().pixelSize() : 0, label ? label->margin() : 0};
}

void ScaleType(QWidget& widget, int pixels, double factor)
{
    QFont font = widget.font();
    font.setPixelSize(Scaling::FontPixels(pixels, factor));
    if (font != widget.font())
        widget.setFont(font);
}

void ScaleWidget(QWidget& widget, double factor)
{
    const auto base = BaseOf<BaseSizes>(widget, SizesOf);
    if (base.type > 0)
        ScaleType(widget, base.type, factor);
    widget.setMinimumSize(Scaled(base.least.width(), factor), Scaled(base.least.height(), factor));
    widget.setMaximumSize(
        ScaledLargest(base.largest.width(), factor), ScaledLargest(base.largest.height(), factor));
    if (auto* label = qobject_cast<QLabel*>(&widget); label && base.margin > 0)
        label->setMargin(Scaled(base.margin, factor));
}

BaseGaps GapsOf(const QLayout& layout)
{
    BaseGaps gaps;
    gaps.margins = layout.contentsMargins();
    if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) {
        gaps.across = grid->horizontalSpacing();
        gaps.down = grid->verticalSpacing();
        for (int column = 0; column < grid->columnCount(); ++column)
            gaps.columns.push_back(grid->columnMinimumWidth(column));
        for (int row = 0; row < grid->rowCount(); ++row)
            gaps.rows.push_back(grid->rowMinimumHeight(row));
    } else {
        gaps.across = layout.spacing();
    }
    for (int at = 0; at < layout.count(); ++at) {
        QSpacerItem* const spacer = layout.itemAt(at)->spacerItem();
        gaps.spacers.push_back(spacer ? spacer->sizeHint() : QSize());
    }
    return gaps;
}

void ScaleGrid(QGridLayout& grid, const BaseGaps& base, double factor)
{
    grid.setHorizontalSpacing(Scaled(base.across, factor));
    grid.setVerticalSpacing(Scaled(base.down, factor));
    for (int column = 0; column < static_cast<int>(base.columns.size()); ++column)
        grid.setColumnMinimumWidth(column, Scaled(base.columns[column], factor));
    for (int row = 0; row < static_cast<int>(base.rows.size()); ++row)
        grid.setRowMinimumHeight(row, Scaled(base.rows[row], factor));
}

void ScaleLayout(QLayout& layout, double factor)
{
    const auto base = BaseOf<BaseGaps>(layout, GapsOf);
    const QMargins& m = base.margins;
    layout.setContentsMargins(Scaled(m.left(), factor), Scaled(m.top(), factor), Scaled(m.right(), factor),
        Scaled(m.bottom(), factor));
    if (auto* grid = qobject_cast<QGridLayout*>(&layout))
        ScaleGrid(*grid, base, factor);
    else
        layout.setSpacing(Scaled(base.across, factor));
    for (int at = 0; at < static_cast<int>(base.spacers.size()); ++at) {
        QSpacerItem* const spacer = layout.itemAt(at)->spacerItem();
        if (!spacer)
            continue;
        const QSizePolicy policy = spacer->sizePolicy();
        spacer->changeSize(Scaled(base.spacers[at].width(), factor),
            Scaled(base.spacers[at].height(), factor), policy.horizontalPolicy(), policy.verticalPolicy());
    }
    layout.invalidate();
}

}

double Scaling::FactorFor(const QSize& window)
{
    const double fits = std::min(static_cast<double>(window.width()) / Look::ScreenWidth,
        static_cast<double>(window.height()) / Look::ScreenHeight);
    if (fits < 1)
        return fits * Slack;
    const double growth = std::min(static_cast<double>(window.width()) / Look::DesktopWidth,
        static_cast<double>(window.height()) / Look::DesktopHeight);
    return std::max(1.0, 1 + Share * (growth - 1));
}

void Scaling::Apply(QWidget& screen, double factor)
{
    ScaleWidget(screen, factor);
    ScaleType(screen, QApplication::font().pixelSize(),
        factor); // inherited by the parts without a font of their own
    for (QWidget* part : screen.findChildren<QWidget*>())
        ScaleWidget(*part, factor);
    for (QLayout* layout : screen.findChildren<QLayout*>())
        ScaleLayout(*layout, factor);
}

int Scaling::FontPixels(int pixels, double factor)
{
    return std::max(1, static_cast<int>(pixels * factor));
}

#include "platform/forms/Look.h"

#include "platform/forms/Scaling.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

#include <cmath>

namespace {

double g_factor = 1;

QString& Family()
{
    static QString family;
    return family;
}

// Buttons in one flat colour, which shows the colour of the focus unaltered; check boxes and option circles
// that can be seen from a distance.
class FlatStyle final : public QProxyStyle {
public:
    FlatStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        constexpr int mark = 22;
        constexpr int bar = 18;
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return Look::Pixels(mark);
        case PM_ScrollBarExtent:
            return Look::Pixels(bar);
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override
    {
        if (element == PE_FrameFocusRect)
            return;
        if (element != PE_PanelButtonCommand) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        const QColor face = option->palette.color(QPalette::Button);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(face.darker(150));
        painter->setBrush(option->state.testFlag(State_Sunken) ? face.darker(110) : face);
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        painter->restore();
    }
};

int PixelsOf(Look::Size size)
{
    switch (size) {
    case Look::Size::Small:
        return 15;
    case Look::Size::Normal:
        return 19;
    case Look::Size::Menu:
        return 21;
    case Look::Size::Large:
        return 24;
    case Look::Size::Title:
        return 30;
    }
    Q_UNREACHABLE();
}

}

void Look::Apply(QApplication& application, const QString& family)
{
    Family() = family;
    application.setStyle(new FlatStyle);

    QPalette palette;
    palette.setColor(QPalette::Window, QColor(Paper));
    palette.setColor(QPalette::Base, QColor(PlainColour));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(Quiet));
    palette.setColor(QPalette::Button, QColor(PlainColour));
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(Quiet));
    palette.setColor(QPalette::Highlight, QColor(Band));
    palette.setColor(QPalette::HighlightedText, QColor(BandText));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(Ink));
        palette.setColor(QPalette::Disabled, role, QColor(Ink).lighter(280));
    }
    application.setPalette(palette);
    application.setFont(Font(Size::Normal));
}

QFont Look::Font(Size size, bool bold)
{
    QFont font;
    if (!Family().isEmpty())
        font.setFamilies({Family(), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setStyleStrategy(QFont::PreferNoShaping); // figures need none and are laid out sooner
    font.setPixelSize(PixelsOf(size));
    font.setBold(bold);
    return font;
}

QFont Look::PaintedFont(Size size, bool bold)
{
    QFont font = Font(size, bold);
    font.setPixelSize(Scaling::FontPixels(font.pixelSize(), Factor()));
    return font;
}

double Look::Factor()
{
    return g_factor;
}

void Look::SetFactor(double factor)
{
    g_factor = factor;
}

int Look::Pixels(int length)
{
    return static_cast<int>(std::floor(length * g_factor));
}

void Look::SetBackground(QWidget& widget, QColor colour)
{
    QPalette palette = widget.palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Base, colour);
        palette.setColor(group, QPalette::Button, colour);
    }
    widget.setPalette(palette);
}

void Look::SetListColours(QWidget& widget, bool focus)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base, focus ? QColor(Qt::white) : QColor(Quiet));
    palette.setColor(QPalette::Highlight, QColor(focus ? FocusColour : PlainColour));
    palette.setColor(QPalette::HighlightedText, QColor(Ink));
    widget.setPalette(palette);
}

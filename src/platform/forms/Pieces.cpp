#include "platform/forms/Pieces.h"

#include "platform/forms/DataGrid.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

void Pieces::SetInk(QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor(Look::Ink));
    widget.setPalette(palette);
}

QLabel* Pieces::Heading(const Caption& caption, Look::Size size, bool bold)
{
    QLabel* heading = Layout::Text(caption);
    heading->setFont(Look::Font(size, bold));
    SetInk(*heading);
    return heading;
}

QLabel* Pieces::Sign(QStringView sign)
{
    QLabel* label = Heading(Plain(sign), Look::Size::Title);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(TallField);
    return label;
}

QFrame* Pieces::Sheet()
{
    auto* panel = new QFrame;
    panel->setFrameShape(QFrame::Box);
    panel->setAutoFillBackground(true);
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, QColor(Look::BandText));
    palette.setColor(QPalette::WindowText, QColor(Look::PlainColour));
    panel->setPalette(palette);
    return panel;
}

QLayout* Pieces::Under(const Caption& caption, Field& field, int width, Look::Size size, int height)
{
    field.SetAccessibleName(caption);
    static_cast<QLineEdit*>(field.Widget())->setTextMargins(6, 0, 6, 0);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(Heading(caption));
    column->addWidget(Sized(field, width, height, size, size == Look::Size::Title));
    return column;
}

QLayout* Pieces::InLine(const Caption& caption, Field& field, int width)
{
    return Under(caption, field, width, Look::Size::Large, LineField);
}

QLayout* Pieces::Tall(const Caption& caption, Field& field, int width)
{
    return Under(caption, field, width, Look::Size::Title, TallField);
}

QWidget* Pieces::Sized(Control& control, int width, int height, Look::Size size, bool bold)
{
    control.Widget()->setFont(Look::Font(size, bold));
    control.Widget()->setFixedHeight(height);
    if (width > 0)
        control.Widget()->setFixedWidth(width);
    return control.Widget();
}

QLabel* Pieces::Figure(const Label& label, Look::Size size, bool bold)
{
    QLabel* figure = label.Widget();
    figure->setFont(Look::Font(size, bold));
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    SetInk(*figure);
    return figure;
}

QWidget* Pieces::List(const DataGrid& grid, int rowHeight, Look::Size size, int headHeight)
{
    auto* view = static_cast<QTableView*>(grid.Widget());
    view->setFont(Look::Font(size));
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view->horizontalHeader()->setFont(Look::Font(Look::Size::Small));
    view->horizontalHeader()->setFixedHeight(headHeight);
    view->verticalHeader()->setDefaultSectionSize(rowHeight);
    return view;
}

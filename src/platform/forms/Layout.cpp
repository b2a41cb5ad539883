#include "Layout.h"

#include "Look.h"
#include "Screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int FieldHeight = 38;

QWidget* BandWidget(int height)
{
    auto* band = new QWidget;
    QPalette palette = band->palette();
    palette.setColor(QPalette::Window, QColor(Look::Band));
    palette.setColor(QPalette::WindowText, QColor(Look::BandText));
    band->setPalette(palette);
    band->setAutoFillBackground(true);
    band->setMinimumHeight(height);
    band->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return band;
}

QLabel* PlainLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel& Text(Label& label)
{
    return *static_cast<QLabel*>(label.Widget());
}

void SetInk(QWidget& widget, QRgb colour)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    widget.setPalette(palette);
}

void PutOnBand(Label& label, QFont font)
{
    Text(label).setFont(font);
    SetInk(Text(label), Look::BandText);
}

}

QWidget* Layout::Header(Label& title, Label& company, Label& year)
{
    QWidget* band = Header(title);
    auto* row = static_cast<QHBoxLayout*>(band->layout());
    auto* society = new QVBoxLayout;
    society->setSpacing(0);
    for (Label* label : {&company, &year}) {
        PutOnBand(*label, Look::Font(Look::Size::Small));
        Text(*label).setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        society->addWidget(label->Widget());
    }
    row->addLayout(society);
    return band;
}

QWidget* Layout::Header(Label& title)
{
    QWidget* band = BandWidget(64);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(20, 4, 20, 4);
    PutOnBand(title, Look::Font(Look::Size::Title, true));
    row->addWidget(title.Widget());
    row->addStretch(1);
    return band;
}

QWidget* Layout::KeyStrip(const std::vector<KeyHint>& hints)
{
    QWidget* band = BandWidget(40);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(14, 4, 14, 4);
    row->setSpacing(6);
    for (const KeyHint& hint : hints) {
        auto* key = PlainLabel(hint.key);
        key->setFont(Look::Font(Look::Size::Small, true));
        key->setAlignment(Qt::AlignCenter);
        key->setMargin(4);
        QPalette cap = key->palette();
        cap.setColor(QPalette::Window, QColor(Look::PlainColour));
        cap.setColor(QPalette::WindowText, QColor(Look::Ink));
        key->setPalette(cap);
        key->setAutoFillBackground(true);
        row->addWidget(key);
        auto* action = PlainLabel(hint.action.Seen().trimmed());
        action->setFont(Look::Font(Look::Size::Small));
        SetInk(*action, Look::BandText);
        row->addWidget(action);
        row->addSpacing(8);
    }
    row->addStretch(1);
    return band;
}

void Layout::Stack(Screen& screen, QWidget* header, QLayout* body, QWidget* keys)
{
    auto* stack = new QVBoxLayout(&screen);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    if (header)
        stack->addWidget(header);
    body->setContentsMargins(24, 16, 24, 16);
    stack->addLayout(body, 1);
    if (keys)
        stack->addWidget(keys);
}

QLayout* Layout::ButtonRow(std::initializer_list<Control*> buttons)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addStretch(1);
    for (Control* button : buttons) {
        button->Widget()->setMinimumHeight(44);
        button->Widget()->setMinimumWidth(120);
        row->addWidget(button->Widget());
    }
    row->addStretch(1);
    return row;
}

Layout::Form::Form() : m_grid(new QGridLayout)
{
    m_grid->setHorizontalSpacing(14);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnStretch(1, 1);
}

QWidget* Layout::Form::CaptionLabel(const Caption& caption) const
{
    auto* label = PlainLabel(caption.Seen().trimmed());
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

void Layout::Form::Row(const Caption& caption, Control& field, int width)
{
    SizeField(field, width);
    field.SetAccessibleName(caption);
    m_grid->addWidget(CaptionLabel(caption), m_row, 0);
    m_grid->addWidget(field.Widget(), m_row, 1, width > 0 ? Qt::AlignLeft : Qt::Alignment());
    ++m_row;
}

void Layout::Form::Row(
    const Caption& caption, std::initializer_list<std::pair<Control*, Caption>> fields, int width)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (const auto& [field, name] : fields) {
        SizeField(*field, width);
        field->SetAccessibleName(name);
        row->addWidget(field->Widget());
    }
    row->addStretch(1);
    m_grid->addWidget(CaptionLabel(caption), m_row, 0);
    m_grid->addLayout(row, m_row, 1);
    ++m_row;
}

void Layout::Form::Row(Label& label)
{
    m_grid->addWidget(label.Widget(), m_row++, 0, 1, 2);
}

void Layout::MakeGuide(Label& label)
{
    Text(label).setFont(Look::Font(Look::Size::Large, true));
    Text(label).setAlignment(Qt::AlignCenter);
    Text(label).setMinimumHeight(44);
    Text(label).setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    SetInk(Text(label), Look::GuideInk);
}

void Layout::MakeCaption(Label& label, bool bold)
{
    Text(label).setFont(Look::Font(Look::Size::Normal, bold));
    Text(label).setAlignment(Qt::AlignCenter);
}

void Layout::SizeField(Control& field, int width)
{
    field.Widget()->setMinimumHeight(FieldHeight);
    if (width > 0)
        field.Widget()->setFixedWidth(width);
}

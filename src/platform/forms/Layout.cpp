#include "platform/forms/Layout.h"

#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

constexpr int StripMargin = 14;
constexpr int StripSpacing = 14;
constexpr int StripHeight = 40;
constexpr int RowMargin = 4;

void MakeBand(QWidget& band, int height)
{
    QPalette palette = band.palette();
    palette.setColor(QPalette::Window, QColor(Look::Band));
    palette.setColor(QPalette::WindowText, QColor(Look::BandText));
    band.setPalette(palette);
    band.setAutoFillBackground(true);
    band.setMinimumHeight(height);
    band.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QLabel* PlainLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void SetInk(QWidget& widget, QRgb colour)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    widget.setPalette(palette);
}

void PutOnBand(Label& label, const QFont& font)
{
    label.Widget()->setFont(font);
    SetInk(*label.Widget(), Look::BandText);
}

// A key, drawn as a key cap, and what it does. It paints itself: each slip at the counter opens a screen with
// 20 of these, and as labels in layouts they took a third of the time until it was seen.
class HintWidget final : public QWidget {
public:
    HintWidget(const KeyHint& hint, QWidget* parent)
        : QWidget(parent)
        , m_key(hint.key)
        , m_action(hint.action.Seen().trimmed())
        , m_isOfField(hint.ofField)
        , m_isOfButton(!hint.ofField && hint.pressed.AreNone() && m_key.startsWith(u"Alt+"))
    {
        setEnabled(hint.lit);
        setAccessibleName(m_key + u' ' + m_action);
        Measure();
    }

    // Dulls a key that does nothing on the screen as it is now.
    void Light(const Screen& screen)
    {
        const Control* focus = screen.FocusHolder();
        if (m_isOfField)
            setEnabled(focus && focus->HasOwnKey(m_key));
        else if (m_isOfButton)
            setEnabled(screen.AnswersLetter(m_key.back()));
    }

    // Takes the size of the type as it is now.
    void Measure()
    {
        const QFontMetrics keys(KeyFont());
        const QFontMetrics actions(ActionFont());
        const int margin = Look::Pixels(CapMargin);
        m_capWidth = keys.horizontalAdvance(m_key) + 2 * margin;
        m_actionLeft = m_capWidth + Look::Pixels(CapGap);
        m_size = QSize(m_actionLeft + actions.horizontalAdvance(m_action),
            std::max(keys.height(), actions.height()) + 2 * margin);
        m_baseline = margin + std::max(keys.ascent(), actions.ascent());
    }

    QSize sizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRect cap(0, 0, m_capWidth, height());
        painter.fillRect(cap, QColor(isEnabled() ? Look::PlainColour : Look::DullColour));
        painter.setFont(KeyFont());
        painter.setPen(QColor(isEnabled() ? Look::Ink : Look::Band));
        painter.drawText(Look::Pixels(CapMargin), m_baseline, m_key);
        painter.setFont(ActionFont());
        painter.setPen(QColor(isEnabled() ? Look::BandText : Look::DullColour));
        painter.drawText(m_actionLeft, m_baseline, m_action);
    }

private:
    static constexpr int CapMargin = 4;
    static constexpr int CapGap = 6;

    static QFont KeyFont() { return Look::PaintedFont(Look::Size::Small, true); }
    static QFont ActionFont() { return Look::PaintedFont(Look::Size::Small); }

    QString m_key;
    QString m_action;
    bool m_isOfField;
    bool m_isOfButton;
    int m_capWidth = 0;
    int m_actionLeft = 0;
    int m_baseline = 0; // one for all, whichever fonts their letters come from
    QSize m_size;
};

// The keys side by side, in as many rows as the width needs.
class Strip final : public QWidget {
public:
    explicit Strip(const std::vector<KeyHint>& hints)
    {
        MakeBand(*this, StripHeight);
        for (const KeyHint& hint : hints)
            m_pieces.push_back(new HintWidget(hint, this));
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    void Light(const Screen& screen)
    {
        for (HintWidget* piece : m_pieces)
            piece->Light(screen);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Flow(width, false); }
    QSize sizeHint() const override { return {0, heightForWidth(this->width())}; }

protected:
    void resizeEvent(QResizeEvent*) override { Flow(width(), true); }

    // The type has changed its size, and so have the hints.
    void changeEvent(QEvent* event) override
    {
        if (event->type() != QEvent::FontChange)
            return;
        for (HintWidget* piece : m_pieces)
            piece->Measure();
        updateGeometry();
        Flow(width(), true);
    }

private:
    // Returns the height of the rows; moves the hints to their places if isPlaced. What the least height
    // leaves over stands above and below them alike.
    int Flow(int width, bool isPlaced) const
    {
        const int margin = Look::Pixels(StripMargin);
        const int rowMargin = Look::Pixels(RowMargin);
        QPoint at(margin, rowMargin);
        int rowHeight = 0;
        std::vector<QRect> places;
        for (const HintWidget* piece : m_pieces) {
            const QSize size = piece->sizeHint();
            if (at.x() > margin && at.x() + size.width() > width - margin) {
                at = QPoint(margin, at.y() + rowHeight + rowMargin);
                rowHeight = 0;
            }
            places.emplace_back(at, size);
            at.rx() += size.width() + Look::Pixels(StripSpacing);
            rowHeight = std::max(rowHeight, size.height());
        }
        const int rows = at.y() + rowHeight + rowMargin;
        const int height = std::max(Look::Pixels(StripHeight), rows);
        for (std::size_t piece = 0; isPlaced && piece < places.size(); ++piece)
            m_pieces[piece]->setGeometry(places[piece].translated(0, (height - rows) / 2));
        return height;
    }

    std::vector<HintWidget*> m_pieces;
};

// The strip, or those of a screen that shows one of several.
std::vector<Strip*> StripsIn(QWidget& keys)
{
    if (auto* only = dynamic_cast<Strip*>(&keys))
        return {only};
    std::vector<Strip*> strips;
    for (QWidget* widget : keys.findChildren<QWidget*>())
        if (auto* strip = dynamic_cast<Strip*>(widget))
            strips.push_back(strip);
    return strips;
}

QWidget* HeaderBand(Label& title, std::initializer_list<Label*> society)
{
    auto* band = new QWidget;
    MakeBand(*band, 64);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(20, 4, 20, 4);
    PutOnBand(title, Look::Font(Look::Size::Title, true));
    row->addWidget(title.Widget());
    row->addStretch(1);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    for (Label* label : society) {
        PutOnBand(*label, Look::Font(Look::Size::Small));
        label->Widget()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        lines->addWidget(label->Widget());
    }
    row->addLayout(lines);
    return band;
}

}

QWidget* Layout::Header(Label& title, Label& company, Label& year)
{
    return HeaderBand(title, {&company, &year});
}

QWidget* Layout::Header(Label& title, Label& company)
{
    return HeaderBand(title, {&company});
}

QWidget* Layout::Header(Label& title)
{
    return HeaderBand(title, {});
}

QWidget* Layout::KeyStrip(const std::vector<KeyHint>& hints)
{
    return new Strip(hints);
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
    if (!keys)
        return;
    stack->addWidget(keys);
    screen.Settled = [&screen, strips = StripsIn(*keys)] {
        for (Strip* strip : strips)
            strip->Light(screen);
    };
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

QLabel* Layout::Text(const Caption& caption, Qt::Alignment align, bool bold)
{
    QLabel* label = PlainLabel(caption.Seen().trimmed());
    label->setAlignment(align | Qt::AlignVCenter);
    if (bold)
        label->setFont(Look::Font(Look::Size::Normal, true));
    return label;
}

Layout::Form::Form() : m_grid(new QGridLayout)
{
    m_grid->setHorizontalSpacing(14);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnStretch(1, 1);
}

void Layout::Form::Row(const Caption& caption, Control& field, int width)
{
    SizeField(field, width);
    field.SetAccessibleName(caption);
    m_grid->addWidget(Text(caption, Qt::AlignRight), m_row, 0);
    m_grid->addWidget(field.Widget(), m_row, 1, width > 0 ? Qt::AlignLeft : Qt::Alignment());
    ++m_row;
}

void Layout::Form::Row(const Caption& caption, Control& field, int width, Label& told)
{
    SizeField(field, width);
    field.SetAccessibleName(caption);
    told.Widget()->setFixedWidth(NameWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(field.Widget());
    row->addWidget(told.Widget());
    m_grid->addWidget(Text(caption, Qt::AlignRight), m_row, 0);
    m_grid->addLayout(row, m_row, 1);
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
    m_grid->addWidget(Text(caption, Qt::AlignRight), m_row, 0);
    m_grid->addLayout(row, m_row, 1);
    ++m_row;
}

void Layout::Form::Row(Label& label)
{
    m_grid->addWidget(label.Widget(), m_row++, 0, 1, 2);
}

QLayout* Layout::InTheMiddle(const Form& form, std::initializer_list<Control*> buttons)
{
    constexpr int rowSpacing = 18;
    form.Grid()->setVerticalSpacing(rowSpacing);
    auto* middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(form.Grid());
    middle->addStretch(1);
    auto* body = new QVBoxLayout;
    body->addStretch(1);
    body->addLayout(middle);
    body->addStretch(3); // room for the list
    body->addLayout(ButtonRow(buttons));
    return body;
}

void Layout::MakeGuide(Label& label)
{
    label.Widget()->setFont(Look::Font(Look::Size::Large, true));
    label.Widget()->setAlignment(Qt::AlignCenter);
    label.Widget()->setMinimumHeight(44);
    label.Widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    SetInk(*label.Widget(), Look::GuideInk);
}

void Layout::SizeField(Control& field, int width)
{
    field.Widget()->setMinimumHeight(FieldHeight);
    if (width > 0)
        field.Widget()->setFixedWidth(width);
}

#include "frmMilkCollections.h"

#include "Keys.h"
#include "Look.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int TallField = 64;

QLabel* Text(const Label& label)
{
    return static_cast<QLabel*>(label.Widget());
}

void SetInk(QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, QColor(Look::Ink));
    widget.setPalette(palette);
}

QLabel* Sign(QStringView sign)
{
    auto* label = new QLabel(sign.toString());
    SetInk(*label);
    label->setFont(Look::Font(Look::Size::Title));
    label->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(TallField);
    return label;
}

QFrame* Panel()
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

QLabel* Heading(const Caption& caption)
{
    auto* heading = new QLabel(caption.Seen().trimmed());
    SetInk(*heading);
    return heading;
}

// A field under its caption.
QLayout* Column(const Caption& caption, Field& field, int width, Look::Size size)
{
    field.SetAccessibleName(caption);
    static_cast<QLineEdit*>(field.Widget())->setTextMargins(6, 0, 6, 0);
    field.Widget()->setFont(Look::Font(size, size == Look::Size::Title));
    field.Widget()->setFixedHeight(size == Look::Size::Title ? TallField : 44);
    if (width > 0)
        field.Widget()->setFixedWidth(width);
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(Heading(caption));
    column->addWidget(field.Widget());
    return column;
}

// The amount can't be entered, but it is what the clerk calls out: it stands in full ink.
void MakeResult(const Field& field)
{
    QPalette palette = field.Widget()->palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(Look::Ink));
    field.Widget()->setPalette(palette);
}

}

void frmMilkCollections::LayOut()
{
    SetColours(QColor(Look::FocusColour), QColor(Look::DateColour));
    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u"dUQa saMklana 1"));
    SetGuideLabel(lblFooter);
    Layout::MakeGuide(lblFooter);
    Text(lblFooter)->setFont(Look::Font(Look::Size::Title, true));

    auto* body = new QVBoxLayout;
    body->setSpacing(16);
    body->addWidget(ShiftLine());
    body->addWidget(EntryPanel());
    body->addWidget(lblFooter.Widget());
    body->addStretch(1);
    Layout::Stack(*this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), body,
        Layout::KeyStrip(Keys::Of(Name())));
    setFixedSize(Look::ScreenWidth, Look::ScreenHeight);
}

QWidget* frmMilkCollections::ShiftLine()
{
    Text(lblActualCollectionTime)->setFont(Look::Font(Look::Size::Title, true));
    Text(lblActualCollectionTime)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Text(lblActualCollectionTime)->setFixedHeight(44);
    auto* clock = new QVBoxLayout;
    clock->setSpacing(2);
    clock->addWidget(Heading(Plain(u"घड्याळ")), 0, Qt::AlignRight);
    clock->addWidget(lblActualCollectionTime.Widget());

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(20, 0, 20, 0);
    row->setSpacing(20);
    row->addLayout(Column(Shivaji(u"idnaaMk"), maskDate, 170, Look::Size::Large));
    row->addLayout(Column(Shivaji(u"vaoL"), txtTime, 190, Look::Size::Large));
    row->addLayout(Column(Shivaji(u"saMklana Ë."), txtCollectionNo, 150, Look::Size::Large));
    row->addStretch(1);
    row->addLayout(clock);
    return line;
}

QWidget* frmMilkCollections::EntryPanel()
{
    auto* member = new QHBoxLayout;
    member->setSpacing(20);
    member->addLayout(Column(Shivaji(u"maombar naMbar"), txtMemberNo, 150, Look::Size::Large));
    member->addLayout(Column(Shivaji(u"maombarcao naaMva"), ComboMemberName, 0, Look::Size::Large), 1);
    member->addLayout(Column(Shivaji(u"dUQa"), txtAnimal, 150, Look::Size::Large));

    auto* money = new QHBoxLayout;
    money->setSpacing(10);
    money->addLayout(Column(Shivaji(u"ilaTsa-"), txtLiters, 190, Look::Size::Title));
    money->addWidget(Sign(u"×"), 0, Qt::AlignBottom);
    money->addLayout(Column(Shivaji(u"f^T"), txtFat, 120, Look::Size::Title));
    money->addWidget(Sign(u"→"), 0, Qt::AlignBottom);
    money->addLayout(Column(Shivaji(u"dr"), txtRate, 150, Look::Size::Title));
    money->addWidget(Sign(u"="), 0, Qt::AlignBottom);
    money->addLayout(Column(Shivaji(u"r@kma"), txtAmount, 0, Look::Size::Title), 1);
    cmdGo.Widget()->setFont(Look::Font(Look::Size::Title, true));
    cmdGo.Widget()->setFixedSize(80, TallField);
    cmdGo.SetAccessibleName(Shivaji(u"saovh"));
    money->addWidget(cmdGo.Widget(), 0, Qt::AlignBottom);
    MakeResult(txtAmount);

    auto* panel = Panel();
    auto* stack = new QVBoxLayout(panel);
    stack->setContentsMargins(20, 18, 20, 24);
    stack->setSpacing(12);
    stack->addLayout(member);
    stack->addWidget(MemberKeys());
    stack->addLayout(money);
    return panel;
}

// The keys of the member's number, on a line that keeps its height while they are hidden.
QWidget* frmMilkCollections::MemberKeys()
{
    auto* line = new QWidget;
    line->setFixedHeight(34);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (const auto& [key, action] :
        {std::pair(&lblF9, &lblSearch), std::pair(&lblF7, &lblMilk), std::pair(&lblF10, &lblDelete)}) {
        Text(*key)->setFont(Look::Font(Look::Size::Small, true));
        Text(*key)->setMargin(4);
        Text(*key)->setAutoFillBackground(true);
        QPalette cap = Text(*key)->palette();
        cap.setColor(QPalette::Window, QColor(Look::PlainColour));
        cap.setColor(QPalette::WindowText, QColor(Look::Ink));
        Text(*key)->setPalette(cap);
        Text(*action)->setFont(Look::Font(Look::Size::Small));
        Text(*action)->setPalette(cap);
        row->addWidget(Text(*key));
        row->addWidget(Text(*action));
        row->addSpacing(16);
    }
    row->addStretch(1);
    ShowMemberKeys(false);
    return line;
}

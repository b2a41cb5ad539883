#include "collection/MemberFrame.h"

#include "platform/forms/Pieces.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <tuple>

using namespace Pieces;

namespace {

QLabel* Mark(QStringView text)
{
    QLabel* mark = Heading(Plain(text), Look::Size::Small);
    mark->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return mark;
}

}

QWidget* MemberFrame::LaidOut()
{
    auto* frame = Sheet();
    frame->setObjectName(QStringLiteral("FrameMilkCollection"));
    auto* below = new QHBoxLayout;
    below->setSpacing(8);
    below->addWidget(List(DataGridMilk, 25, Look::Size::Small, 30), 1);
    DataGridMilk.SetAccessibleName(Label28.Shown());
    below->addWidget(Sums());

    auto* stack = new QVBoxLayout(frame);
    stack->setContentsMargins(10, 6, 10, 8);
    stack->setSpacing(6);
    stack->addLayout(Head());
    stack->addLayout(below, 1);
    return frame;
}

QLayout* MemberFrame::Head()
{
    auto* title = new QHBoxLayout;
    Label28.Widget()->setFont(Look::Font(Look::Size::Normal, true));
    SetInk(*Label28.Widget());
    title->addWidget(Label28.Widget(), 1);
    title->addWidget(Sized(Command1, 120, NarrowField, Look::Size::Normal));
    title->addWidget(Sized(Command2, 120, NarrowField, Look::Size::Normal));
    title->addWidget(Sized(Command3, 320, NarrowField, Look::Size::Normal));

    maskFromDate.SetAccessibleName(Plain(u"दिनांक पासून"));
    maskToDate.SetAccessibleName(Plain(u"दिनांक पर्यंत"));
    txtAccountId.SetAccessibleName(Shivaji(u"maombar naMbar"));
    cmbAccountName.SetAccessibleName(Shivaji(u"maombarcao naaMva"));
    auto* fields = new QHBoxLayout;
    fields->addWidget(Heading(Shivaji(u"idnaaMk")));
    fields->addWidget(Sized(maskFromDate, 130, NarrowField, Look::Size::Normal));
    fields->addWidget(Heading(Plain(u"ते")));
    fields->addWidget(Sized(maskToDate, 130, NarrowField, Look::Size::Normal));
    fields->addSpacing(10);
    fields->addWidget(Heading(Shivaji(u"maombar naMbar")));
    fields->addWidget(Sized(txtAccountId, 90, NarrowField, Look::Size::Normal));
    fields->addWidget(Sized(cmbAccountName, 0, NarrowField, Look::Size::Normal), 1);
    fields->addWidget(Sized(cmdGoOn, 60, NarrowField, Look::Size::Normal, true));

    auto* head = new QVBoxLayout;
    head->setSpacing(6);
    head->addLayout(title);
    head->addLayout(fields);
    return head;
}

// Litres, amount and fat, each with a row for an animal and a column for each half of the day and for both.
QWidget* MemberFrame::Sums()
{
    auto* sums = new QWidget;
    auto* grid = new QGridLayout(sums);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(6);
    for (int column = 1; column <= 3; ++column)
        grid->setColumnMinimumWidth(column, 84);
    grid->addWidget(Mark(Shivaji(u"sakaL").Seen()), 0, 1);
    grid->addWidget(Mark(Shivaji(u"saMQyaakaL").Seen()), 0, 2);
    grid->addWidget(Mark(Shivaji(u"ekUNa").Seen()), 0, 3);
    int row = 1;
    for (const auto& [name, cow, buff] : {std::tuple(Shivaji(u"ilaTsa-"), &m_cowLitres, &m_buffLitres),
             std::tuple(Shivaji(u"r@kma"), &m_cowAmount, &m_buffAmount),
             std::tuple(Shivaji(u"f^T"), &m_cowFat, &m_buffFat)}) {
        grid->addWidget(Heading(name, Look::Size::Small, true), row++, 0);
        for (const auto& [animal, figure] :
            {std::pair(Shivaji(u"gaaya"), cow), std::pair(Shivaji(u"mhOsa"), buff)}) {
            grid->addWidget(Heading(animal, Look::Size::Small), row, 0);
            int column = 1;
            for (const Label* half : {&figure->morning, &figure->evening, &figure->both})
                grid->addWidget(Figure(*half, Look::Size::Small), row, column++);
            ++row;
        }
    }
    grid->setRowStretch(row, 1);
    return sums;
}

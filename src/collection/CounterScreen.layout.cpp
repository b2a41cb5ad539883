#include "collection/CounterScreen.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"
#include "society/FieldRows.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

void CounterScreen::LayOut(QLayout* below, QWidget* keys)
{
    SetColours(QColor(Look::FocusColour), QColor(m_kind.fieldColour));

    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(ShiftLine());
    body->addWidget(EntryPanel());
    body->addLayout(below, 1);
    Stack(body, keys, {20, 6, 20, 8});
}

QWidget* CounterScreen::ShiftLine()
{
    Figure(lblActualCollectionTime, Look::Size::Title)->setFixedHeight(LineField);
    auto* clock = new QVBoxLayout;
    clock->setSpacing(0);
    clock->addWidget(Heading(Plain(u"घड्याळ")), 0, Qt::AlignRight);
    clock->addWidget(lblActualCollectionTime.Widget());

    auto* line = new QWidget;
    QHBoxLayout* row = FieldRows::DateAndShift(maskDate, txtTime, 180);
    line->setLayout(row);
    row->setContentsMargins(16, 0, 16, 0);
    row->addLayout(InLine(Shivaji(u"saMklana Ë."), txtCollectionNo, 140));
    row->addStretch(1);
    row->addLayout(clock);
    return line;
}

QWidget* CounterScreen::EntryPanel()
{
    QHBoxLayout* milk = Line.MilkRow();
    cmdGo.SetAccessibleName(Shivaji(u"saovh"));
    milk->addWidget(Sized(cmdGo, 80, TallField, Look::Size::Title, true), 0, Qt::AlignBottom);

    auto* panel = Sheet();
    auto* stack = new QVBoxLayout(panel);
    stack->setContentsMargins(16, 6, 16, 8);
    stack->setSpacing(2);
    stack->addLayout(Line.MemberRow());
    stack->addWidget(KeysAndGuide());
    stack->addLayout(milk);
    return panel;
}

// The keys of the member's number, or the guide of the field in focus, on a line that keeps its height.
QWidget* CounterScreen::KeysAndGuide()
{
    auto* line = new QWidget;
    line->setFixedHeight(34);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    Line.KeysOfMember.LayOut(*row);
    lblGuide.Widget()->setMinimumHeight(0);
    row->addWidget(lblGuide.Widget(), 1);
    Line.ShowMemberKeys(false);
    return line;
}

QWidget* CounterScreen::Totals()
{
    constexpr int width = 197;
    auto* panel = Sheet();
    panel->setFixedWidth(width);
    auto* stack = new QVBoxLayout(panel);
    stack->setContentsMargins(10, 4, 10, 8);
    stack->setSpacing(4);
    stack->addLayout(m_totals.LaidOut());
    stack->addStretch(1);
    stack->addLayout(Devices.ScaleLine());
    stack->addLayout(Devices.TesterLine());
    stack->addWidget(Sized(cmdPrinterOnOff, 0, 32, Look::Size::Normal));
    return panel;
}

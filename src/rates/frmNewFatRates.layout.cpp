#include "rates/frmNewFatRates.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

using namespace Pieces;

namespace {

constexpr int RateRow = 32;
constexpr int ChartWidth = 350;
constexpr int RateWidth = 165;

QHBoxLayout* Line()
{
    auto* line = new QHBoxLayout;
    line->setContentsMargins(16, 6, 16, 10);
    line->setSpacing(16);
    return line;
}

}

void frmNewFatRates::LayOut()
{
    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    right->addLayout(DateLine());
    right->addWidget(RowPanel());
    right->addWidget(lblGuide.Widget());
    right->addWidget(FramePanel());
    right->addStretch(1);
    right->addLayout(ProgressLine());

    auto* both = new QHBoxLayout;
    both->setSpacing(16);
    both->addWidget(ChartPanel(), 1);
    both->addLayout(right, 2);

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(both, 1);
    body->addLayout(Layout::ButtonRow({&cmdAdd, &Command1, &cmdCancel, &cmdExit}));
    Stack(body, {20, 10, 20, 12});
}

// The rows of the chart, and above them what is told while they hold the focus.
QWidget* frmNewFatRates::ChartPanel()
{
    auto* told = new QHBoxLayout;
    told->addWidget(lblEsc.Widget());
    told->addWidget(lblExit.Widget(), 1);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(told);
    column->addWidget(List(DataGridBuffRates, RateRow, Look::Size::Large), 1);
    DataGridBuffRates.SetAccessibleName(Plain(u"दरपत्रक"));
    auto* panel = new QWidget;
    panel->setMinimumWidth(ChartWidth);
    panel->setLayout(column);
    return panel;
}

QLayout* frmNewFatRates::DateLine()
{
    auto* line = Line();
    line->addLayout(
        Under(Shivaji(u"puvaI-cyaa drpHakacaa idnaaMk"), maskOldDate, 170, Look::Size::Large, LineField));
    line->addLayout(
        Under(Shivaji(u"navaIna drpHakacaa idnaaMk"), maskDate, 170, Look::Size::Large, LineField));
    line->addStretch(1);
    return line;
}

// A row of the chart, and by how much the next one rises.
QWidget* frmNewFatRates::RowPanel()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addLayout(Under(Shivaji(u"f^T"), txtFat, 110, Look::Size::Title, TallField));
    row->addWidget(Sign(u"→"), 0, Qt::AlignBottom);
    row->addLayout(Under(Shivaji(u"mhOsa"), txtBuffRate, RateWidth, Look::Size::Title, TallField));
    row->addLayout(Under(Shivaji(u"gaaya"), txtCowRate, RateWidth, Look::Size::Title, TallField));
    row->addStretch(1);

    auto* rise = new QHBoxLayout;
    rise->setSpacing(10);
    rise->addLayout(
        Under(Plain(u"पुढच्या फॅटला वाढ : म्हैस"), txtBuffIncrement, 190, Look::Size::Large, LineField));
    rise->addLayout(
        Under(Plain(u"पुढच्या फॅटला वाढ : गाय"), txtCowIncrement, 190, Look::Size::Large, LineField));
    rise->addWidget(Sized(cmdGo, 90, LineField, Look::Size::Large, true), 0, Qt::AlignBottom);
    cmdGo.SetAccessibleName(Plain(u"हे दर ठेवा"));
    rise->addStretch(1);

    auto* panel = Sheet();
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(16, 6, 16, 10);
    rows->setSpacing(6);
    rows->addLayout(row);
    rows->addLayout(rise);
    return panel;
}

// One grid without rows of its own, whose heights would be those from when the fields were hidden.
QWidget* frmNewFatRates::FramePanel()
{
    const Caption title = Shivaji(u"duQaacaa p`it f^T dr");
    auto* grid = new QGridLayout;
    grid->setContentsMargins(16, 0, 16, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(2);
    grid->addWidget(Heading(title, Look::Size::Normal, true), 0, 0, 1, 4);
    int column = 0;
    for (const auto& [caption, field] :
        {std::pair<Caption, Field*>(Shivaji(u"mhOsa dr $."), &txtBasicBuffRate),
            std::pair<Caption, Field*>(Shivaji(u"gaaya dr $."), &txtBasicCowRate)}) {
        field->SetAccessibleName(caption);
        grid->addWidget(Heading(caption), 1, column);
        grid->addWidget(Sized(*field, RateWidth, LineField, Look::Size::Large), 2, column++);
    }
    grid->addWidget(Sized(cmdFatdar, 90, LineField, Look::Size::Large, true), 2, column++);
    cmdFatdar.SetAccessibleName(title);
    grid->setColumnStretch(column, 1);
    return FrameFatDarBadla.LaidOut(grid);
}

QLayout* frmNewFatRates::ProgressLine()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(16);
    line->addWidget(ReRated.Widget(), 1);
    line->addWidget(lblMessage.Widget());
    return line;
}

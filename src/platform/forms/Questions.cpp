#include "platform/forms/Questions.h"

#include <QHBoxLayout>

namespace {

constexpr int FieldWidth = 230;
constexpr int ButtonWidth = 150;
constexpr int RowSpacing = 10;
constexpr int PageMargin = 16;
constexpr int QuestionWidth = 330;
constexpr int WhoseWidth = 110;

// What both say together; either may be empty.
Caption Together(const Caption& question, const Caption& rest)
{
    return Plain(QString(question.Seen().trimmed() + u' ' + rest.Seen().trimmed()).trimmed());
}

}

Layout::Questions::Questions() : m_grid(new QGridLayout)
{
    m_grid->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    m_grid->setHorizontalSpacing(16);
    m_grid->setVerticalSpacing(RowSpacing);
    m_grid->setColumnMinimumWidth(0, QuestionWidth);
    m_grid->setColumnMinimumWidth(1, WhoseWidth);
    m_grid->setColumnStretch(3, 1);
}

void Layout::Questions::Choice(const Caption& question, Control& field)
{
    Put(question, {}, field, nullptr);
}

void Layout::Questions::Choice(const Caption& question, Control& field, Button& button)
{
    SizeField(button, ButtonWidth);
    Put(question, {}, field, button.Widget());
}

void Layout::Questions::Figure(
    const Caption& question, const Caption& whose, Control& field, const Caption& measure)
{
    Put(question, whose, field, Text(measure));
}

void Layout::Questions::Box(Control& box)
{
    m_grid->addWidget(box.Widget(), m_row++, 0, 1, 4, Qt::AlignLeft);
}

void Layout::Questions::Options(const Caption& question, std::initializer_list<OptionButton*> options)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(26);
    row->setContentsMargins(28, 0, 0, 0);
    for (OptionButton* option : options) {
        option->SetAccessibleName(Together(question, option->Shown()));
        row->addWidget(option->Widget());
    }
    row->addStretch(1);
    m_grid->addWidget(Text(question), m_row++, 0, 1, 4);
    m_grid->addLayout(row, m_row++, 0, 1, 4);
}

QLayout* Layout::Questions::Page()
{
    m_grid->setRowStretch(m_row, 1);
    return m_grid;
}

void Layout::Questions::Put(const Caption& question, const Caption& whose, Control& field, QWidget* behind)
{
    SizeField(field, FieldWidth);
    field.SetAccessibleName(Together(question, whose));
    m_grid->addWidget(Text(question), m_row, 0);
    if (!whose.IsEmpty())
        m_grid->addWidget(Text(whose), m_row, 1);
    m_grid->addWidget(field.Widget(), m_row, 2, Qt::AlignLeft);
    if (behind)
        m_grid->addWidget(behind, m_row, 3, Qt::AlignLeft);
    ++m_row;
}

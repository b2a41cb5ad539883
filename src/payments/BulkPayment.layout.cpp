#include "payments/BulkPayment.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Pieces;

QWidget* BulkPayment::LaidOut()
{
    auto* told = new QVBoxLayout;
    told->setSpacing(4);
    told->addWidget(Label43.Widget());
    told->addWidget(ProgressBar1.Widget());
    told->addWidget(lblMember.Widget());
    for (const Label* label : {&Label43, &lblMember})
        SetInk(*label->Widget());

    auto* head = new QHBoxLayout;
    head->setSpacing(24);
    head->addLayout(Fields());
    head->addLayout(told, 1);

    auto* lists = new QHBoxLayout;
    lists->setSpacing(12);
    lists->addWidget(List(DataGridPayment), 3);
    auto* members = new QVBoxLayout;
    members->setSpacing(2);
    members->addWidget(Heading(Plain(u"दूध नसलेले मेम्बर्स"), Look::Size::Normal, true));
    members->addWidget(List(DataGridMembers, 28, Look::Size::Normal, 30), 1);
    lists->addLayout(members, 1);
    DataGridPayment.SetAccessibleName(Plain(u"पेमेंट झालेले मेम्बर्स"));
    DataGridMembers.SetAccessibleName(Plain(u"दूध नसलेले मेम्बर्स"));

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    column->addLayout(head);
    column->addLayout(lists, 1);
    column->addLayout(Totals());
    return m_panel.LaidOut(column);
}

QLayout* BulkPayment::Fields()
{
    constexpr int numberWidth = 110;
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(6);
    const auto put = [&](int row, int column, const Caption& caption, Field& field, int width) {
        field.SetAccessibleName(caption);
        form->addWidget(Layout::Text(caption, Qt::AlignRight), row, column);
        form->addWidget(Sized(field, width, NarrowField, Look::Size::Normal), row, column + 1, Qt::AlignLeft);
    };
    put(0, 0, Plain(u"पेमेंट"), cmbPaymentType, 190);
    put(1, 0, Plain(u"पासून"), maskFromDate1, Layout::DateWidth);
    put(1, 2, Plain(u"पर्यंत"), MaskToDate1, Layout::DateWidth);
    put(2, 0, Shivaji(u"pomaonT idnaaMk"), MaskBillDate1, Layout::DateWidth);
    put(3, 0, Plain(u"मेम्बर नं. पासून"), txtFromAc, numberWidth);
    put(3, 2, Plain(u"मेम्बर नं. पर्यंत"), txtToAc, numberWidth);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addWidget(Sized(cmdCalculate, 110, LineField, Look::Size::Large, true));
    buttons->addWidget(Sized(Command2, 130, LineField, Look::Size::Normal));
    buttons->addStretch(1);
    form->addLayout(buttons, 4, 1, 1, 3);
    cmdCalculate.SetAccessibleName(Plain(u"पुढे"));
    return form;
}

QLayout* BulkPayment::Totals()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addStretch(1);
    for (const auto& [caption, figure] :
        {std::pair(Shivaji(u"ilaTsa-"), &lblLiters), std::pair(Shivaji(u"r@kma"), &lblAmount),
            std::pair(Shivaji(u"kpat"), &lblAdvance), std::pair(Plain(u"निव्वळ देय"), &lblNetAmount)}) {
        row->addWidget(Heading(caption));
        QLabel* label = Figure(*figure, Look::Size::Large);
        label->setMinimumWidth(140);
        row->addWidget(label);
        row->addSpacing(14);
    }
    return row;
}

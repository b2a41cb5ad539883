#include "payments/PaymentFigures.h"

#include "platform/forms/Pieces.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>

#include <tuple>

using namespace Pieces;

namespace {

constexpr int MilkWidth = 118;
constexpr int SumWidth = 156;

}

// Litres, amount and deposit, of cow and buffalo; the amount of both, from which all is deducted.
QWidget* PaymentFigures::MilkSheet()
{
    auto* sheet = Sheet();
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(12, 4, 12, 8);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    int column = 1;
    for (const Caption& animal : {Shivaji(Word::Cow), Shivaji(Word::Buffalo), Shivaji(u"ekUNa")}) {
        QLabel* head = Heading(animal, Look::Size::Normal, true);
        head->setAlignment(Qt::AlignRight);
        grid->addWidget(head, 0, column++);
    }
    const auto put = [&](int row, const Caption& caption, std::initializer_list<Field*> fields) {
        grid->addWidget(Heading(caption), row, 0);
        int at = 1;
        for (Field* field : fields) {
            field->SetAccessibleName(caption);
            grid->addWidget(Sized(*field, MilkWidth, NarrowField, Look::Size::Normal), row, at++);
        }
    };
    put(1, Shivaji(u"ilaTsa-"), {&txtCowlitres, &txtBufflitres});
    put(2, Shivaji(u"r@kma"), {&txtCowAmount, &txtBuffAmount, &txtTotalMilkPurchaseAmount});
    put(3, Shivaji(u"zova kpat"), {&txtCowDepositkapat, &txtBuffDep0sitKapat});
    for (const auto& [row, balance, side] :
        {std::tuple(1, &lblPreviousBalance, &lblPreDC), std::tuple(3, &lblCurrentBalance, &lblCurDC)}) {
        auto* both = new QHBoxLayout;
        both->addWidget(balance->Widget(), 1);
        both->addWidget(side->Widget());
        grid->addLayout(both, row, 3);
    }
    grid->setColumnStretch(0, 1);
    return sheet;
}

// From what is owed down to what is paid out.
QLayout* PaymentFigures::Sums()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    int row = 0;
    const auto put = [&](const Caption& caption, QWidget* figure) {
        grid->addWidget(Heading(caption), row, 0);
        grid->addWidget(figure, row++, 1);
    };
    for (const Label* label : {&lblUchalAmount, &lblKapat})
        Figure(*label, Look::Size::Large)->setFixedSize(SumWidth, NarrowField);
    put(Plain(u"एकूण येणे"), lblUchalAmount.Widget());
    put(Shivaji(u"kpat"), Sized(txtUchal, SumWidth, NarrowField, Look::Size::Large, true));
    put(Plain(u"एकूण कपात"), lblKapat.Widget());
    put(Plain(u"देय रक्कम"), Sized(txtTotalPayment, SumWidth, NarrowField, Look::Size::Large));
    put(Plain(u"निव्वळ देय"), Sized(txtNetPayable, SumWidth, NarrowField, Look::Size::Large, true));
    txtUchal.SetAccessibleName(Shivaji(u"kpat"));
    txtTotalPayment.SetAccessibleName(Plain(u"देय रक्कम"));
    txtNetPayable.SetAccessibleName(Plain(u"निव्वळ देय"));
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(0, 1);
    return grid;
}

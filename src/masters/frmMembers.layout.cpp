#include "masters/frmMembers.h"

#include "core/state/AppState.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"
#include "platform/text/Dates.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int NumberWidth = 120;
constexpr int WordWidth = 150;
constexpr int FigureWidth = 128;
constexpr int DirectionWidth = 72;
constexpr int RowSpacing = 14;

QLabel* CaptionOf(const Caption& caption, bool heading = false)
{
    auto* label = new QLabel(caption.Seen().trimmed());
    label->setFont(Look::Font(Look::Size::Normal, heading));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

// One line of the table of figures: what it was at the opening, and what it is now.
struct FigureLine {
    Caption caption;
    NumberField& opening;
    NumberField& closing;
};

void NameBoth(const FigureLine& line, Field& opening, Field& closing)
{
    opening.SetAccessibleName(Plain(QString(line.caption.Seen() + QStringLiteral(" आरंभीची"))));
    closing.SetAccessibleName(Plain(QString(line.caption.Seen() + QStringLiteral(" अखेरची"))));
}

}

void frmMembers::LayOut()
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(34);
    columns->addLayout(IdentityColumn(), 1);
    columns->addLayout(FiguresColumn());

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(columns);
    body->addStretch(1);
    body->addWidget(lblGuide.Widget());
    body->addLayout(Layout::ButtonRow({&cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit}));
    Stack(body);
}

QLayout* frmMembers::IdentityColumn()
{
    Layout::Form form;
    form.Row(Shivaji(u"maombar naMbar"), txtMemberNo, NumberWidth);
    form.Row(Shivaji(u"maombarcao naaMva"), ComboMemberName);
    form.Row(Shivaji(u"p<aa"), txtAddress);
    form.Row(Shivaji(u"gaava"), ComboCity);
    form.Row(Plain(u"जनावर"), txtAnimal, WordWidth);
    form.Row(Plain(u"पेमेंट प्रकार"), txtPaymentType, WordWidth);

    // The bank's captions come and go with their fields; nothing else moves for them.
    QGridLayout& grid = *form.Grid();
    grid.setVerticalSpacing(RowSpacing);
    grid.setColumnMinimumWidth(0, lblBankAccountNo.Widget()->sizeHint().width());
    int row = grid.rowCount();
    const std::pair<Label*, TextField*> bank[] = {
        {&lblBankName, &ComboBankName}, {&lblBankAccountNo, &txtBankAccountNo}};
    for (const auto& [caption, field] : bank) {
        caption->Widget()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        field->SetAccessibleName(caption->Shown());
        Layout::SizeField(*field, 0);
        grid.addWidget(caption->Widget(), row, 0);
        grid.addWidget(field->Widget(), row, 1);
        grid.setRowMinimumHeight(row++, field->Widget()->minimumHeight());
    }
    return &grid;
}

QLayout* frmMembers::FiguresColumn()
{
    const FigureLine balance{Plain(u"बाकी"), txtOpeningBalance, txtClosingBalance};
    const FigureLine lines[] = {
        balance,
        {Plain(u"गाय लिटर्स"), txtCowOpeningLits, txtCowClosingLits},
        {Plain(u"म्हैस लिटर्स"), txtBuffOpeningLits, txtBuffClosingLits},
        {Shivaji(u"]cala"), txtOpeningUchal, txtClosingUchal},
        {Shivaji(u"gaaya zova"), txtCowOpeningThev, txtCowClosingThev},
        {Shivaji(u"mhOsa zova"), txtBuffOpeningThev, txtBuffClosingThev},
    };

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(RowSpacing);
    grid->addWidget(CaptionOf(Plain(u"आरंभीची"), true), 0, 1);
    grid->addWidget(CaptionOf(Plain(u"अखेरची"), true), 0, 3);
    grid->setRowMinimumHeight(0, txtMemberNo.Widget()->minimumHeight());
    int row = 1;
    for (const FigureLine& line : lines) {
        Layout::SizeField(line.opening, FigureWidth);
        Layout::SizeField(line.closing, FigureWidth);
        line.closing.SetEnabled(false);
        NameBoth(line, line.opening, line.closing);
        grid->addWidget(CaptionOf(line.caption), row, 0);
        grid->addWidget(line.opening.Widget(), row, 1);
        grid->addWidget(line.closing.Widget(), row++, 3);
    }

    NameBoth(balance, txtOpeningDorC, txtClosingDorC);
    txtClosingDorC.SetEnabled(false);
    Layout::SizeField(txtOpeningDorC, DirectionWidth);
    Layout::SizeField(txtClosingDorC, DirectionWidth);
    grid->addWidget(txtOpeningDorC.Widget(), 1, 2);
    grid->addWidget(txtClosingDorC.Widget(), 1, 4);
    grid->setRowStretch(row, 1);
    return grid;
}

void frmMembers::SetGuides()
{
    txtMemberNo.SetGuide(Shivaji(u"maombar naMbar"));
    ComboMemberName.SetGuide(Shivaji(u"maombarcao naaMva"));
    txtAddress.SetGuide(Shivaji(u"p<aa"));
    ComboCity.SetGuide(Shivaji(u"gaava"));
    txtAnimal.SetGuide(Shivaji(u"1 ¹ gaaya    2 ¹ mhOsa    3 ¹ daonhI"));
    txtPaymentType.SetGuide(Shivaji(u"1 ¹ raoK    2 ¹ ba^nk"));
    ComboBankName.SetGuide(Shivaji(u"ba^nkocao naava"));
    txtBankAccountNo.SetGuide(Shivaji(u"ba^nk Kato naMbar"));
    txtOpeningDorC.SetGuide(Shivaji(u"1 ¹ doNao  2 ¹ yaoNao"));

    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    QString guide = company.Eof() ? QString() : Format(company[u"FromDate"].Date(), u"dd.MM.yyyy");
    guide += u" raojaI doNao ikMvaa yaoNao AsalaolaI r@kma";
    txtOpeningBalance.SetGuide(Shivaji(guide));
}

#include "masters/frmMembers.h"

#include "core/state/AppState.h"
#include "platform/forms/FigureTable.h"
#include "platform/text/Dates.h"

#include <QGridLayout>

namespace {

constexpr int NumberWidth = 120;
constexpr int WordWidth = 150;

}

void frmMembers::LayOut()
{
    LayRegister(IdentityColumn(), FiguresColumn(), {&cmdNew, &cmdModify, &cmdDelete, &cmdCancel, &cmdExit});
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

    // The bank fields come and go with their captions; their rows keep their height, so nothing else moves.
    QGridLayout& grid = *form.Grid();
    grid.setVerticalSpacing(Layout::Roomy);
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
    Layout::FigureTable table(Plain(u"आरंभीची"), Plain(u"अखेरची"));
    table.Line(Plain(u"बाकी"), {txtOpeningBalance, &txtOpeningDorC}, {txtClosingBalance, &txtClosingDorC});
    table.Line(Plain(u"गाय लिटर्स"), {txtCowOpeningLits}, {txtCowClosingLits});
    table.Line(Plain(u"म्हैस लिटर्स"), {txtBuffOpeningLits}, {txtBuffClosingLits});
    table.Line(Shivaji(u"]cala"), {txtOpeningUchal}, {txtClosingUchal});
    table.Line(Shivaji(u"gaaya zova"), {txtCowOpeningThev}, {txtCowClosingThev});
    table.Line(Shivaji(u"mhOsa zova"), {txtBuffOpeningThev}, {txtBuffClosingThev});
    return table.Grid();
}

void frmMembers::SetGuides()
{
    txtMemberNo.SetGuide(Shivaji(u"maombar naMbar"));
    ComboMemberName.SetGuide(Shivaji(u"maombarcao naaMva"));
    txtAddress.SetGuide(Shivaji(u"p<aa"));
    ComboCity.SetGuide(Shivaji(u"gaava"));
    ComboBankName.SetGuide(Shivaji(u"ba^nkocao naava"));
    txtBankAccountNo.SetGuide(Shivaji(u"ba^nk Kato naMbar"));
    txtOpeningDorC.SetGuide(Shivaji(u"1 ¹ doNao  2 ¹ yaoNao"));

    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    QString guide = company.Eof() ? QString() : Format(company[u"FromDate"].Date(), u"dd.MM.yyyy");
    guide += u" raojaI doNao ikMvaa yaoNao AsalaolaI r@kma";
    txtOpeningBalance.SetGuide(Shivaji(guide));
}

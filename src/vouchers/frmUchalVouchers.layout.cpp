#include "vouchers/frmUchalVouchers.h"

#include "platform/forms/Layout.h"
#include "platform/forms/Pieces.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int NumberWidth = 140;
constexpr int AmountWidth = 180;

void AddVoucherRows(Layout::Form& form, VoucherPanel& panel)
{
    form.Row(Shivaji(u"idnaaMk"), panel.MaskTranDate, Layout::DateWidth);
    form.Row(Shivaji(u"vha]car naMbar"), panel.txtTranNo, NumberWidth);
    form.Row(Shivaji(u"maombar naMbar"), panel.txtMemberNo, NumberWidth);
    form.Row(Shivaji(u"maombarcao naaMva"), panel.ComboMemberName, Layout::NameWidth);
}

}

void frmUchalVouchers::LayOut()
{
    auto* kinds = new QHBoxLayout;
    kinds->setSpacing(24);
    for (Control* choice : std::initializer_list<Control*>{&OptUchalEntry, &OptPaymentEntry, &Command1})
        kinds->addWidget(choice->Widget());
    Command1.SetAccessibleName(Plain(u"निवडलेली नोंद दाखवा"));
    kinds->addStretch(1);

    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(kinds);
    body->addWidget(AdvanceFrame.LaidOut(AdvanceFields()), 1);
    body->addWidget(Frame1.LaidOut(ReceiptFields()), 1);
    body->addWidget(lblGuide.Widget());
    body->addLayout(Layout::ButtonRow({&cmdAdd, &cmdMod, &cmdDel, &cmdCancel, &cmdExit}));
    Stack(body);
}

QLayout* frmUchalVouchers::AdvanceFields()
{
    Layout::Form form;
    AddVoucherRows(form, Advance);
    form.Row(Plain(u"प्रकार"), ComboUchalTypes, Layout::NameWidth);
    form.Row(Shivaji(u"r@kma"), txtUchalAmount, AmountWidth);
    form.Row(Plain(u"प्रकार घ्या"), cmdGo, NumberWidth);

    Layout::Form total;
    total.Row(Shivaji(u"ekUNa"), txtAmount, AmountWidth);
    auto* heads = new QVBoxLayout;
    heads->setSpacing(8);
    heads->addWidget(Pieces::List(DataGridUchals, 34), 1);
    heads->addLayout(total.Grid());
    DataGridUchals.SetAccessibleName(Plain(u"उचलचे प्रकार"));

    auto* fields = new QVBoxLayout;
    fields->addLayout(form.Grid());
    fields->addStretch(1);
    auto* columns = new QHBoxLayout;
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(28);
    columns->addLayout(fields);
    columns->addLayout(heads, 1);
    return columns;
}

QLayout* frmUchalVouchers::ReceiptFields()
{
    Layout::Form form;
    AddVoucherRows(form, Receipt);
    form.Row(Shivaji(u"r@kma"), txtAmount1, AmountWidth);

    auto* fields = new QVBoxLayout;
    fields->setContentsMargins(0, 0, 0, 0);
    fields->addLayout(form.Grid());
    fields->addStretch(1);
    auto* left = new QHBoxLayout;
    left->setContentsMargins(0, 0, 0, 0);
    left->addLayout(fields);
    left->addStretch(1);
    return left;
}

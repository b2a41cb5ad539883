#include "core/menu/KeyboardTutor.h"

#include "core/menu/KeyboardMap.h"
#include "core/menu/Keys.h"
#include "platform/forms/Look.h"

#include <QVBoxLayout>

frmKeyboardTutor::frmKeyboardTutor() : Screen("frmKeyboardTutor")
{
    When(txtEnglish.Change, &frmKeyboardTutor::txtEnglish_Change);
    When(txtMarathi.Change, &frmKeyboardTutor::txtMarathi_Change);

    SetTitleLabel(lblTitle);
    SetTitle(Shivaji(u"kIbaaoD- TyaUTr"));
    txtEnglish.Widget()->setFont(Look::Font(Look::Size::Large));
    txtMarathi.Widget()->setFont(Look::Font(Look::Size::Large));

    Layout::Form form;
    form.Row(Plain(u"English"), txtEnglish);
    form.Row(Shivaji(u"marazI"), txtMarathi);
    auto* body = new QVBoxLayout;
    body->setSpacing(14);
    body->addLayout(form.Grid());
    body->addWidget(new KeyboardMap, 1);
    Layout::Stack(*this, Layout::Header(lblTitle), body, Layout::KeyStrip(Keys::Of(Name())));
}

void frmKeyboardTutor::txtEnglish_Change()
{
    txtMarathi.SetText(txtEnglish.Text());
}

void frmKeyboardTutor::txtMarathi_Change()
{
    txtEnglish.SetText(txtMarathi.Text());
}

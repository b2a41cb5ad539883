#include "society/SocietyScreen.h"

#include "core/menu/CommonKeys.h"
#include "core/menu/Keys.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Layout.h"

SocietyScreen::SocietyScreen(const char* name, const Caption& title, const LabelNames& labels)
    : Screen(name)
    , lblCompanyTitle(this, labels.company)
    , lblGuide(this, labels.guide)
{
    SetTitleLabel(lblTitle);
    SetTitle(title);
    SetGuideLabel(lblGuide);
    Layout::MakeGuide(lblGuide);
    ShowCompany();
}

// The selected company; without one the labels stay empty.
void SocietyScreen::ShowCompany()
{
    const Recordset company(gCn, u"SELECT * FROM CompanySelected");
    if (company.Eof())
        return;
    lblCompanyTitle.SetText(company[u"CompanyName"].Text());
    lblAcYear.SetFigure(company[u"AccountingYear"].Text());
}

void SocietyScreen::Stack(QLayout* body, const QMargins& margins)
{
    Stack(body, Layout::KeyStrip(Keys::Of(Name())), margins);
}

void SocietyScreen::Stack(QLayout* body, QWidget* keys, const QMargins& margins)
{
    Layout::Stack(*this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), body, keys);
    body->setContentsMargins(margins);
}

bool SocietyScreen::KeyDown(const QKeyEvent& key)
{
    const auto names = [this](QStringView hint) { return !Keys::Action(Name(), hint).IsEmpty(); };
    return (names(u"F2") && CommonKeys::Calculator(key)) || (names(u"F12") && CommonKeys::Tutor(key));
}

void SocietyScreen::Escape()
{
    EmptyFields();
    Close();
}

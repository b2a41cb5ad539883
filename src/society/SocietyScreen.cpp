#include "society/SocietyScreen.h"

#include "core/menu/CommonKeys.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Layout.h"

SocietyScreen::SocietyScreen(const Keys::Places& keys, const Caption& title, const LabelNames& labels)
    : Screen(keys.front().name.toLatin1().constData())
    , lblTitle(this, labels.title)
    , lblCompanyTitle(this, labels.company)
    , lblGuide(this, labels.guide)
    , m_keys(keys)
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
    Stack(body, KeyStrip(Name()), margins);
}

void SocietyScreen::Stack(QLayout* body, QWidget* strip, const QMargins& margins)
{
    Layout::Stack(*this, Layout::Header(lblTitle, lblCompanyTitle, lblAcYear), body, strip);
    body->setContentsMargins(margins);
}

// Keys

QWidget* SocietyScreen::KeyStrip(const QString& place) const
{
    return Layout::KeyStrip(Keys::Of(m_keys, place));
}

Caption SocietyScreen::KeyAction(QStringView key) const
{
    return Keys::Action(Keys::Of(m_keys, Name()), key);
}

Caption SocietyScreen::KeyAction(const Control& field, QStringView key) const
{
    return Keys::Action(Keys::Of(m_keys, PlaceOf(field)), key);
}

Caption SocietyScreen::KeyGuide(const Control& field) const
{
    return Keys::Guide(Keys::Of(m_keys, PlaceOf(field)));
}

QString SocietyScreen::PlaceOf(const Control& field) const
{
    return Name() + u'.' + field.Name();
}

KeyHint SocietyScreen::CalculatorKey()
{
    return CommonKeys::CalculatorKey(&SocietyScreen::StartCalculator);
}

KeyHint SocietyScreen::TutorKey()
{
    return CommonKeys::TutorKey(&SocietyScreen::ShowTutor);
}

void SocietyScreen::StartCalculator()
{
    CommonKeys::Calculator();
}

void SocietyScreen::ShowTutor()
{
    CommonKeys::Tutor();
}

QString SocietyScreen::PlaceOfFocus() const
{
    const Control* field = FocusHolder();
    return field && field->CanTakeFocus() ? PlaceOf(*field) : Name();
}

bool SocietyScreen::KeyDown(const QKeyEvent& key)
{
    const QString held = PlaceOfFocus();
    for (const Keys::Place& place : m_keys)
        if (place.name == held && Keys::Answer(*this, place.keys, key))
            return true;
    return Keys::Answer(*this, m_keys.front().keys, key);
}

void SocietyScreen::Escape()
{
    EmptyFields();
    Close();
}

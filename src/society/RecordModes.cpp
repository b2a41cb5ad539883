#include "society/RecordModes.h"

#include "platform/forms/Screen.h"

namespace {

constexpr QStringView Save = u"&saovh"; // सेव्ह
constexpr QStringView Remove = u"&KaoDa"; // खोडा

// What a mode appends to the title.
constexpr QStringView NewTitle = u" navaIna roka^D-"; // नवीन रेकॉर्ड
constexpr QStringView ModifyTitle = u" roka^D-maQyao badla"; // रेकॉर्डमध्ये बदल
constexpr QStringView DeleteTitle = u" roka^D- KaoDNao"; // रेकॉर्ड खोडणे

}

RecordModes::RecordModes(Screen& screen, QStringView title, const Buttons& buttons)
    : m_screen(screen)
    , m_title(title.toString())
    , m_buttons(buttons)
{
    for (Button* button : {&buttons.add, &buttons.modify, &buttons.remove})
        m_atRest.emplace_back(button, button->Shown());
    buttons.cancel.SetCancels(true);
}

void RecordModes::SetFields(std::vector<Control*> lookUp, std::vector<Control*> others)
{
    m_lookUp = std::move(lookUp);
    m_others = std::move(others);
}

bool RecordModes::IsNew() const
{
    return m_buttons.add.Reads(Save);
}

bool RecordModes::IsModify() const
{
    return m_buttons.modify.Reads(Save);
}

bool RecordModes::IsDelete() const
{
    return m_buttons.remove.Reads(Remove);
}

void RecordModes::EnterNew()
{
    Enter(m_buttons.add, Save, NewTitle);
}

void RecordModes::EnterModify()
{
    Enter(m_buttons.modify, Save, ModifyTitle);
}

void RecordModes::EnterDelete()
{
    Enter(m_buttons.remove, Remove, DeleteTitle);
}

void RecordModes::Enter(Button& button, QStringView caption, QStringView title)
{
    button.SetCaption(Shivaji(caption));
    m_screen.SetTitle(Shivaji(QString(m_title % title)));
    for (const auto& [other, atRest] : m_atRest)
        other->SetEnabled(other == &button);
    m_buttons.exit.SetEnabled(false);
    m_buttons.cancel.SetEnabled(true);
    for (Control* field : m_lookUp)
        field->SetEnabled(true);
    for (Control* field : m_others)
        field->SetEnabled(!IsDelete());
}

void RecordModes::Rest()
{
    for (const auto& [button, atRest] : m_atRest) {
        button->SetCaption(atRest);
        button->SetEnabled(true);
    }
    m_screen.SetTitle(Shivaji(m_title));
    m_buttons.exit.SetEnabled(true);
    m_buttons.cancel.SetEnabled(true);
    for (const std::vector<Control*>* fields : {&m_lookUp, &m_others})
        for (Control* field : *fields)
            field->SetEnabled(false);
}

Button& RecordModes::Open() const
{
    return IsModify() ? m_buttons.modify : IsDelete() ? m_buttons.remove : m_buttons.add;
}

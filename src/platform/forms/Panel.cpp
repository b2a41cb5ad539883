#include "platform/forms/Panel.h"

#include "platform/forms/Screen.h"

#include <QLayout>

Panel::Panel(Screen* screen, std::initializer_list<Control*> controls, std::initializer_list<Label*> labels)
    : m_controls(controls)
    , m_labels(labels)
    , m_frame(new QWidget(screen))
{
}

QWidget* Panel::LaidOut(QLayout* contents)
{
    m_frame->setLayout(contents);
    m_frame->setVisible(m_visible);
    return m_frame;
}

void Panel::SetVisible(bool visible)
{
    m_visible = visible;
    for (Control* control : m_controls)
        control->SetVisible(visible);
    for (Label* label : m_labels)
        label->SetVisible(visible);
    if (m_frame->layout())
        m_frame->setVisible(visible);
}

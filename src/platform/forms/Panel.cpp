#include "platform/forms/Panel.h"

#include "platform/forms/Screen.h"

#include <QLayout>

Panel::Panel(Screen* screen, std::initializer_list<Control*> controls, std::initializer_list<Label*> labels)
    : m_screen(screen)
    , m_controls(controls)
    , m_labels(labels)
{
}

QWidget* Panel::LaidOut(QLayout* contents)
{
    auto* frame = new QWidget(m_screen);
    frame->setLayout(contents);
    SetFrame(frame);
    return frame;
}

void Panel::SetFrame(QWidget* frame)
{
    m_frame = frame;
    if (!m_visible)
        m_frame->hide();
}

void Panel::SetVisible(bool visible)
{
    m_visible = visible;
    for (Control* control : m_controls) {
        control->SetUnseen(!visible);
        control->SetVisible(visible);
    }
    for (Label* label : m_labels)
        label->SetVisible(visible);
    if (m_frame)
        m_frame->setVisible(visible);
}

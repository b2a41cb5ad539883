#include "platform/forms/Control.h"

#include "platform/forms/Look.h"
#include "platform/forms/Screen.h"

#include <QAbstractScrollArea>
#include <QLabel>

Event Handler::On(Screen& screen) const
{
    return m_run ? [run = m_run, &screen] { run(screen); } : Event();
}

Control::Control(Screen* screen, const char* name, QWidget* widget) : m_screen(screen), m_widget(widget)
{
    widget->setParent(screen);
    widget->setObjectName(QLatin1String(name));
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(screen);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget))
        area->viewport()->installEventFilter(screen);
    screen->Add(*this);
}

Control::~Control()
{
    m_screen->Remove(*this);
}

void Control::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    m_widget->setEnabled(enabled);
}

void Control::SetVisible(bool visible)
{
    m_visible = visible;
    m_widget->setVisible(visible);
}

bool Control::HasFocus() const
{
    return m_screen->FocusHolder() == this;
}

void Control::SetFocus()
{
    m_screen->SetFocus(*this);
}

void Control::SetFocus(const Caption& wanted)
{
    m_screen->SetFocus(*this, wanted);
}

void Control::SetAccessibleName(const Caption& name)
{
    m_widget->setAccessibleName(name.Seen().trimmed());
}

void Control::SetColours(QColor focus, QColor plain)
{
    m_colours.emplace(focus, plain);
    ShowFocus(HasFocus());
}

void Control::SetGuide(const Caption& guide)
{
    m_guide = guide;
    if (HasFocus())
        m_screen->ShowGuide(guide);
}

bool Control::KeyBeforeScreen(const QKeyEvent&)
{
    return false;
}

bool Control::KeepsPress(bool)
{
    return false;
}

void Control::RunEvent(const Event& event)
{
    m_screen->Run(event);
}

void Control::ShowFocus(bool held)
{
    const auto [focus, plain] = m_colours.value_or(m_screen->Colours());
    Look::SetBackground(*m_widget, held ? focus : plain);
}

Label::Label(Screen* screen, const char* name, const Caption& caption) : m_widget(new QLabel(screen))
{
    m_widget->setObjectName(QLatin1String(name));
    m_widget->setTextFormat(Qt::PlainText);
    SetCaption(caption);
}

void Label::SetCaption(const Caption& caption)
{
    m_caption = caption;
    m_widget->setText(caption.Seen());
}

void Label::SetVisible(bool visible)
{
    m_visible = visible;
    m_widget->setVisible(visible);
}

QString Label::Name() const
{
    return m_widget->objectName();
}
